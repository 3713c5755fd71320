#include "base/Files.h"
#include "run/DropIntake.h"
#include "run/RunDriver.h"
#include "support/TestEntry.h"
#include "support/TestRun.h"

#include <QTest>

#include <unistd.h>

using namespace dravolin;
using namespace dravolin::test;

namespace {

const QString validRoot = QStringLiteral("1.2.826.0.1.3680043.10.1234");

} // namespace

class TestDropIntake : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sortsFoldersFromEverythingElseInDropOrder();
    void takesTheTableOfTheSelectedItem_data();
    void takesTheTableOfTheSelectedItem();
    void tellsWhichKindOfRunBegins_data();
    void tellsWhichKindOfRunBegins();
};

void TestDropIntake::sortsFoldersFromEverythingElseInDropOrder()
{
    const TestRun run;
    const auto inside = [&run](const char *name) { return run.path(QString::fromUtf8(name)); };
    const QString undecodable = fromBytes(toBytes(run.folder.path()) + "/caf\xE9");
    for (const QString &path : {inside("zebra"), inside("alpha"), inside(".hidden"), inside("folder.dcm"),
                                undecodable, inside("quote\"$`\nbreak")})
        QVERIFY(createFolder(path));
    for (const QString &path : {inside("z.dcm"), inside("a.dcm"), inside("no extension")})
        QVERIFY(writeText(path, QString()));
    QCOMPARE(::symlink(toBytes(inside("zebra")).constData(), toBytes(inside("link")).constData()), 0);
    QCOMPARE(::symlink("nowhere", toBytes(inside("broken link")).constData()), 0);

    const Drop drop = sortDroppedPaths({inside("z.dcm"), inside("zebra"), inside("link"), inside("alpha"),
                                        inside("missing"), inside("a.dcm"), inside(".hidden"),
                                        inside("broken link"), inside("folder.dcm"), undecodable,
                                        inside("no extension"), inside("quote\"$`\nbreak"), inside("zebra")});

    QCOMPARE(drop.folders,
             QStringList({inside("zebra"), inside("alpha"), inside(".hidden"), inside("folder.dcm"),
                          undecodable, inside("quote\"$`\nbreak"), inside("zebra")}));
    QCOMPARE(drop.individualFiles,
             QStringList({inside("z.dcm"), inside("link"), inside("missing"), inside("a.dcm"),
                          inside("broken link"), inside("no extension")}));
}

void TestDropIntake::takesTheTableOfTheSelectedItem_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("path");
    const QString none = QStringLiteral("Don't use a look-up table");
    QTest::newRow("the first item is no table") << 0 << none << QString() << QString();
    QTest::newRow("the first item, though a table has its title")
        << 0 << QStringLiteral("Site") << QString() << QString();
    QTest::newRow("a table") << 1 << QStringLiteral("Site") << QStringLiteral("Site")
                             << QStringLiteral("/t/site");
    QTest::newRow("another table") << 7 << QStringLiteral("ID") << QStringLiteral("ID")
                                   << QStringLiteral("/t/id");
    QTest::newRow("a table without a name") << 1 << QString() << QString() << QStringLiteral("/t/nameless");
    QTest::newRow("a title without a path")
        << 2 << QStringLiteral("Gone") << QStringLiteral("Gone") << QString();
}

void TestDropIntake::takesTheTableOfTheSelectedItem()
{
    QFETCH(int, index);
    QFETCH(QString, title);
    TestRun run;
    run.host.fields.uidRoot = validRoot;
    run.host.chosen.table = index > 0 ? std::optional(title) : std::nullopt;
    run.state.set(&RunState::allLUTsPaths, TitleToPath{{QStringLiteral("Site"), QStringLiteral("/t/site")},
                                                       {QStringLiteral("ID"), QStringLiteral("/t/id")},
                                                       {QString(), QStringLiteral("/t/nameless")}});

    const std::optional<Drop> drop = takeDrop(run.context, {});

    QVERIFY(drop);
    QTEST(drop->options.selectedLUT, "table");
    QTEST(drop->options.selectedLUTpath, "path");
    QVERIFY(!drop->options.theLUTtag);
}

void TestDropIntake::tellsWhichKindOfRunBegins_data()
{
    QTest::addColumn<Qt::CheckState>("construct");
    QTest::addColumn<Qt::CheckState>("onlyGenerate");
    QTest::addColumn<QString>("call");
    const QString construction = QStringLiteral("begins Construct: 0010,0020");
    QTest::newRow("anonymization") << Qt::Unchecked << Qt::Unchecked
                                   << QStringLiteral("begins Anonymize: 0010,0020");
    QTest::newRow("construction") << Qt::Checked << Qt::Unchecked << construction;
    QTest::newRow("only generate") << Qt::Unchecked << Qt::Checked
                                   << QStringLiteral("begins OnlyGenerate: 0010,0020");
    QTest::newRow("construction comes first") << Qt::Checked << Qt::Checked << construction;
}

void TestDropIntake::tellsWhichKindOfRunBegins()
{
    QFETCH(Qt::CheckState, construct);
    QFETCH(Qt::CheckState, onlyGenerate);
    QFETCH(QString, call);
    TestRun run;
    run.host.chosen.prepopulate = construct;
    run.host.chosen.onlyGenerateSOP = onlyGenerate;
    run.state.set(&RunState::LUTconstructionTag, QStringLiteral("0010,0020"));
    beginRun(run.context, [&run] { run.host.calls.append(QStringLiteral("run starts")); });
    QCOMPARE(run.host.calls, QStringList({call, QStringLiteral("run starts")}));
}

DRAVOLIN_TEST(TestDropIntake)
#include "tst_dropintake.moc"
