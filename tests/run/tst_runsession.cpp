#include "RunTrace.h"
#include "support/TestEntry.h"

#include "base/Files.h"
#include "run/RunDriver.h"

#include <QTest>

using namespace dravolin;
using namespace dravolin::test;

class TestRunSession : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsNoCountOfErrors_data();
    void keepsNoCountOfErrors();
    void logsAMalformedTagOnceAFolder();
    void removesStaleOutputInDroppedTreesAlone();
    void keepsDicomdirsForTheSession();
    void keepsTheSkippedFilesOfEarlierRuns();
};

void TestRunSession::keepsNoCountOfErrors_data()
{
    QTest::addColumn<QString>("configuration");
    QTest::addColumn<QStringList>("unstartable");
    QTest::addColumn<quint64>("counted");
    QTest::newRow("none") << QString() << QStringList() << quint64(0);
    QTest::newRow("a malformed tag in three jobs") << str("0008,00800") << QStringList() << quint64(3);
    QTest::newRow("jobs that do not start")
        << QString() << QStringList({str("~/in/Sub"), str("~/files")}) << quint64(2);
    QTest::newRow("both") << str("0008,0080X\n12") << QStringList({str("~/in/Sub"), str("~/in")})
                          << quint64(8);
}

void TestRunSession::keepsNoCountOfErrors()
{
    QFETCH(QString, configuration);
    QFETCH(QStringList, unstartable);
    const LogCatcher log;
    TracedRun run;
    run.configure(configuration);
    run.unstartable = unstartable;
    run.makeFolder(str("in/Sub"));
    run.makeFolder(str("files"));
    Drop drop = run.drop({run.path(str("in"))}, {run.path(str("files/1"))});
    QCOMPARE(processDroppedItems(run.context, drop.folders, drop.individualFiles, drop.options), quint64(0));
    QTEST(run.state.get(&RunState::errCount), "counted");
    run.host.calls.clear();

    performRun(run.context, drop); // though what the run before has counted is still there

    QCOMPARE(run.host.calls.last(), endCall(str("\nDone!")));
    QCOMPARE(run.state.get(&RunState::errCount), quint64(0));
}

void TestRunSession::logsAMalformedTagOnceAFolder()
{
    const LogCatcher log;
    TracedRun run;
    run.configure(str("0008,0080X\n"));
    run.makeFolder(str("in/Sub"));
    Drop drop = run.drop({run.path(str("in"))}, {});
    performRun(run.context, drop);
    QCOMPARE(LogCatcher::messages(), QStringList({str("Ignoring malformed tag: 0008,0080X"),
                                                  str("Ignoring malformed tag: 0008,0080X")}));
}

void TestRunSession::removesStaleOutputInDroppedTreesAlone()
{
    TracedRun run;
    run.configure(QString());
    const QString inTree = run.writeFile(str("in/Sub/.noxTemp.out"), str("E: stale in the tree\n"));
    const QString inTop = run.writeFile(str("in/.noxTemp.out"), str("E: stale at the top\n"));
    const QString script = run.writeFile(str("in/Sub/.noxTemp.sh"), str("rm -rf /\n"));
    run.writeFile(str("files/.noxTemp.out"), str("E: stale beside files\n"));
    Drop drop = run.drop({run.path(str("in"))}, {run.path(str("files/1"))});
    performRun(run.context, drop);
    QVERIFY(!pathExists(inTree) && !pathExists(inTop) && !pathExists(script));
    QCOMPARE(run.host.calls.last(), endCall(str("\nDone, with 1 error."), str("E: stale beside files\n\n")));
}

void TestRunSession::keepsDicomdirsForTheSession()
{
    TracedRun run;
    run.configure(QString());
    run.makeFolder(str("in"));
    run.printed[str("~/in")] = "./DICOMDIR\n";
    Drop drop = run.drop({run.path(str("in"))}, {});
    const QString note =
        str("Mind you: DICOMDIR files were found.\n"
            "They do not contain DICOM tags to anonymize but still contain PHI:\n./DICOMDIR\n");
    performRun(run.context, drop);
    QCOMPARE(run.host.calls.last(), endCall(str("\nDone, with 0 errors."), note + u'\n'));
    performRun(run.context, drop);
    QCOMPARE(run.host.calls.last(), endCall(str("\nDone, with 0 errors."), note + str("./DICOMDIR\n\n")));
    Drop empty;
    performRun(run.context, empty);
    QCOMPARE(run.host.calls.last(), endCall(str("\nDone, with 0 errors."), note + str("./DICOMDIR\n\n")));
}

void TestRunSession::keepsTheSkippedFilesOfEarlierRuns()
{
    TracedRun run;
    run.configure(QString());
    run.state.set(&RunState::numLUTskippedFiles, quint64(3));
    Drop drop = run.drop({run.makeFolder(str("in"))}, {});
    performRun(run.context, drop);
    QCOMPARE(run.state.get(&RunState::numLUTskippedFiles), quint64(3));
}

DRAVOLIN_TEST(TestRunSession)
#include "tst_runsession.moc"
