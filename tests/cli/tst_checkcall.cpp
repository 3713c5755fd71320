#include "cli/CheckCall.h"
#include "support/ScratchFolder.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin;
using namespace dravolin::cli;
using namespace dravolin::test;

class TestCheckCall : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesFoldersAndOptions();
    void takesBackups();
    void refusesWrongCalls_data();
    void refusesWrongCalls();
    void printsHelp();

private:
    const ScratchFolder m_scratch;
};

void TestCheckCall::takesFoldersAndOptions()
{
    const QString list = m_scratch.file(QStringLiteral("list"), " Meier \n\n4711 12\n");
    const QString configuration = m_scratch.file(QStringLiteral("configuration"), "0010,0010\tName\n");
    const CheckCall call =
        parseCheckCall({m_scratch.path(), QStringLiteral("/"), QStringLiteral("--identifiers"), list,
                        QStringLiteral("--configuration"), configuration, QStringLiteral("--pixels"),
                        QStringLiteral("--at-least"), QStringLiteral("likely"),
                        QStringLiteral("--report=there"), QStringLiteral("--show-values")});
    QCOMPARE(call.error, QString());
    QCOMPARE(call.options.originals, m_scratch.path());
    QCOMPARE(call.options.result, QStringLiteral("/"));
    QCOMPARE(call.options.identifiers, (QStringList{QStringLiteral("Meier"), QStringLiteral("4711 12")}));
    QCOMPARE(call.options.rules->allTagsToAnonymize, (QStringList{QString(), QStringLiteral("0010,0010")}));
    QCOMPARE(call.atLeast, check::Grade::Likely);
    QCOMPARE(call.reportFolder, QStringLiteral("there"));
    QVERIFY(call.options.pixels && call.showValues && !call.quiet && !call.options.backups);
}

void TestCheckCall::takesBackups()
{
    const CheckCall call =
        parseCheckCall({QStringLiteral("--backups"), m_scratch.path(), QStringLiteral("--quiet")});
    QCOMPARE(call.error, QString());
    QVERIFY(call.options.backups && call.quiet);
    QCOMPARE(call.options.originals, m_scratch.path());
    QCOMPARE(call.options.result, m_scratch.path());
    QCOMPARE(call.atLeast, check::Grade::Possible);
}

void TestCheckCall::refusesWrongCalls_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char16_t *arguments, const char16_t *error) {
        QTest::newRow(name) << QStringView(arguments).toString().split(u' ', Qt::SkipEmptyParts)
                            << QStringView(error).toString();
    };
    const char16_t *const folders = u"it takes the folders ORIGINALS and RESULT, or --backups FOLDER";
    row("nothing", u"", folders);
    row("one folder", u"/", folders);
    row("three folders", u"/ / /", folders);
    row("backups and a folder", u"--backups / /", folders);
    row("no such folder", u"/ /no/such/folder", u"there is no folder '/no/such/folder'");
    row("unknown option", u"/ / --fast", u"Unknown option 'fast'.");
    row("unknown grade", u"/ / --at-least much", u"--at-least takes certain, likely or possible");
    row("no such list", u"/ / --identifiers /no/list",
        u"the list of identifiers cannot be read, or is not UTF-8");
    row("no such configuration", u"/ / --configuration /no/file",
        u"the configuration cannot be read, or is not UTF-8");
}

void TestCheckCall::refusesWrongCalls()
{
    QFETCH(const QStringList, arguments);
    QTEST(parseCheckCall(arguments).error, "expected");
}

void TestCheckCall::printsHelp()
{
    const CheckCall call = parseCheckCall({QStringLiteral("--help")});
    QCOMPARE(call.error, QString());
    QVERIFY(call.help.contains(QStringLiteral("--show-values")));
    QCOMPARE(call.help.section(u'\n', 0, 0),
             QStringLiteral("Usage: dravolin-cli check [options] ORIGINALS RESULT"));
}

DRAVOLIN_TEST(TestCheckCall)
#include "tst_checkcall.moc"
