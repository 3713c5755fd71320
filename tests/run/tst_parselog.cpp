#include "RunTrace.h"
#include "support/TestEntry.h"

#include "run/RunDriver.h"

#include <QTest>

using namespace dravolin;
using namespace dravolin::test;

class TestParseLog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsTheSummary_data();
    void tellsTheSummary();
    void tellsTheLogText();
    void resetsTheCountersOfTheRun();
    void keepsWhatOutlivesTheRun();
    void givesBackWhatItTold();
};

void TestParseLog::tellsTheSummary_data()
{
    QTest::addColumn<Qt::CheckState>("construct");
    QTest::addColumn<bool>("usingLUT");
    QTest::addColumn<QString>("summary");
    QTest::newRow("anonymization") << Qt::Unchecked << false << str("\nDone!");
    QTest::newRow("construction") << Qt::Checked << true
                                  << str("\nDone constructing LUT. File placed on Desktop.");
    QTest::newRow("propagation") << Qt::Unchecked << true
                                 << str("Done!\nLUT tag propagated to 7 files.\nSkipped 1 DICOM file.");
}

void TestParseLog::tellsTheSummary()
{
    QFETCH(Qt::CheckState, construct);
    QFETCH(bool, usingLUT);
    QFETCH(QString, summary);
    TestRun run;
    run.host.chosen.prepopulate = construct;
    run.state.set(&RunState::usingLUT, usingLUT);
    run.state.set(&RunState::numLUTadaptedFiles, quint64(7));
    run.state.set(&RunState::numLUTskippedFiles, quint64(1));
    run.state.set(&RunState::output, str("W: a warning\nE: There was 1 error\n"));
    parseLog(run.context);
    QCOMPARE(run.host.calls, endCalls(summary));
}

void TestParseLog::tellsTheLogText()
{
    TestRun run;
    run.state.set(&RunState::output,
                  str("E: modifying tag in file a.dcm: Corrupted data\nE: There was 1 error\n"));
    parseLog(run.context);
    QCOMPARE(run.host.calls, endCalls(str("\nDone. 1 file with errors."),
                                      str("E: modifying tag in file a.dcm: Corrupted data\n\n")));
}

void TestParseLog::resetsTheCountersOfTheRun()
{
    TestRun run;
    run.state.update([](RunState &state) {
        state.output = str("W: x\n");
        state.errCount = 1;
        state.totalFolders = 9;
        state.folderCount = 8;
        state.AllFoldersNames = {str("sub")};
        state.LUTtagSet = {str("4711")};
    });
    parseLog(run.context);
    run.state.update([](const RunState &state) {
        QCOMPARE(state.output, QString());
        QCOMPARE(state.errCount, quint64(0));
        QCOMPARE(state.totalFolders, quint64(0));
        QCOMPARE(state.folderCount, quint64(0));
        QCOMPARE(state.AllFoldersNames, QStringList());
        QCOMPARE(state.LUTtagSet, QSet<QString>());
    });
}

void TestParseLog::keepsWhatOutlivesTheRun()
{
    TestRun run;
    const QStringList tags = {str("0010,0020")};
    run.state.update([&tags](RunState &state) {
        state.DICOMDIRpaths = {str("./DICOMDIR")};
        state.usingLUT = true;
        state.numLUTadaptedFiles = 2;
        state.numLUTskippedFiles = 3;
        state.firstFoundLUTtagInNewValueDict = str("ID");
        state.LUTconstructionTag = str("0010,0020");
        state.allTagsToAnonymize = tags;
        state.newValueDict = {{str("0010,0020"), str("x")}};
        state.selectedLUTdict = {{str("a"), str("b")}};
    });
    parseLog(run.context);
    run.state.update([&tags](const RunState &state) {
        QCOMPARE(state.DICOMDIRpaths, QStringList(str("./DICOMDIR")));
        QCOMPARE(state.usingLUT, true);
        QCOMPARE(state.numLUTadaptedFiles, quint64(2));
        QCOMPARE(state.numLUTskippedFiles, quint64(3));
        QCOMPARE(state.firstFoundLUTtagInNewValueDict, str("ID"));
        QCOMPARE(state.LUTconstructionTag, str("0010,0020"));
        QCOMPARE(state.allTagsToAnonymize, tags);
        QCOMPARE(state.newValueDict, (NewValueDict{{str("0010,0020"), str("x")}}));
        QCOMPARE(state.selectedLUTdict, (LutTable{{str("a"), str("b")}}));
    });
    QCOMPARE(run.host.judgements.last().summary, str("\nDone, with 0 errors."));
}

void TestParseLog::givesBackWhatItTold()
{
    TestRun run;
    const JobTally jobs = {.ran = 3, .couldNotStart = 1, .exitStatuses = {{0, 2}, {139, 1}}};
    run.state.update([&jobs](RunState &state) {
        state.output = str("E: bad\n");
        state.errCount = 1;
        state.jobs = jobs;
    });
    const RunJudgement judgement = parseLog(run.context);
    QCOMPARE(judgement.summary, str("\nDone, with 1 error."));
    QCOMPARE(judgement.logText, str("E: bad\n\n"));
    QCOMPARE(judgement.wantsLogWindow, true);
    QCOMPARE(judgement.refused, true);
    QVERIFY(judgement.jobs == jobs);
    QVERIFY(run.host.judgements.last().jobs == jobs);
    QVERIFY(run.state.get(&RunState::jobs) == JobTally());
}

DRAVOLIN_TEST(TestParseLog)
#include "tst_parselog.moc"
