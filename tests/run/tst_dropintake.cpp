#include "base/Files.h"
#include "run/DropIntake.h"
#include "support/TestEntry.h"
#include "support/TestRun.h"

#include <QTest>

#include <unistd.h>

namespace dravolin::test {

namespace {

const QString validRoot = QStringLiteral("1.2.826.0.1.3680043.10.1234");

// A window that is closed while it grows.
class ClosedHost : public RecordingHost
{
public:
    void growWindow(int, std::function<void()>) override {}
};

} // namespace

class DropIntakeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sortsFoldersFromEverythingElseInDropOrder();
    void takesTheTableOfTheSelectedItem_data();
    void takesTheTableOfTheSelectedItem();
    void preparesTheWindowInOrder_data();
    void preparesTheWindowInOrder();
    void startsNoRunInAWindowThatWasClosed();
};

void DropIntakeTest::sortsFoldersFromEverythingElseInDropOrder()
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

void DropIntakeTest::takesTheTableOfTheSelectedItem_data()
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

void DropIntakeTest::takesTheTableOfTheSelectedItem()
{
    QFETCH(int, index);
    QFETCH(QString, title);
    TestRun run;
    run.host.texts[TextField::UidRoot] = validRoot;
    run.host.lut = {index, title};
    run.state.set(&RunState::allLUTsPaths, TitleToPath{{QStringLiteral("Site"), QStringLiteral("/t/site")},
                                                       {QStringLiteral("ID"), QStringLiteral("/t/id")},
                                                       {QString(), QStringLiteral("/t/nameless")}});

    const std::optional<Drop> drop = takeDrop(run.context, {});

    QVERIFY(drop);
    QTEST(drop->options.selectedLUT, "table");
    QTEST(drop->options.selectedLUTpath, "path");
    QVERIFY(!drop->options.theLUTtag);
}

void DropIntakeTest::preparesTheWindowInOrder_data()
{
    QTest::addColumn<Qt::CheckState>("construct");
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("status");
    const QString tag = QStringLiteral("0010,0020");
    QTest::newRow("anonymization") << Qt::Unchecked << tag << QStringLiteral("\nWorking...");
    QTest::newRow("construction") << Qt::Checked << tag
                                  << QStringLiteral("\nConstructing LUT for tag : (0010,0020)...");
    QTest::newRow("construction without a tag")
        << Qt::Checked << QString() << QStringLiteral("\nConstructing LUT for tag : ()...");
    QTest::newRow("construction, a tag that looks like a place marker")
        << Qt::Checked << QStringLiteral("%1%2") << QStringLiteral("\nConstructing LUT for tag : (%1%2)...");
}

void DropIntakeTest::preparesTheWindowInOrder()
{
    QFETCH(Qt::CheckState, construct);
    QFETCH(QString, tag);
    QFETCH(QString, status);
    TestRun run;
    run.host.checkStates[CheckBox::Prepopulate] = construct;
    run.state.set(&RunState::LUTconstructionTag, tag);

    prepareWindow(run.context, [&run] { run.host.calls.append(QStringLiteral("run starts")); });

    QCOMPARE(run.host.calls,
             QStringList({QStringLiteral("setStatus: ") + status, QStringLiteral("start spinning"),
                          QStringLiteral("disable overwriteSource"), QStringLiteral("disable selectLUT"),
                          QStringLiteral("disable prepopulate"), QStringLiteral("disable selectConfig"),
                          QStringLiteral("disable generateSOP"), QStringLiteral("disable onlyGenerateSOP"),
                          QStringLiteral("setStatusToolTip: Processing may take a *very* long time...\n\n"
                                         "The task is running on a background thread\n"
                                         "so you can continue to use your computer\n(stop watching this)."),
                          QStringLiteral("show separator"), QStringLiteral("grow to 696"),
                          QStringLiteral("run starts")}));
}

void DropIntakeTest::startsNoRunInAWindowThatWasClosed()
{
    TestRun run;
    ClosedHost host;
    bool started = false;
    prepareWindow({run.state, run.paths, host, run.jobs, run.uuids, run.delays},
                  [&started] { started = true; });
    QVERIFY(!started);
    QCOMPARE(host.calls.last(), QStringLiteral("show separator"));
}

} // namespace dravolin::test

DRAVOLIN_TEST(dravolin::test::DropIntakeTest)
#include "tst_dropintake.moc"
