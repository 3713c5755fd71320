#include "RunTrace.h"
#include "support/TestEntry.h"

#include "run/OutputAnalysis.h"

#include <QTest>

namespace dravolin::test {

class ParseLogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheSummaryAndRestoresTheControls_data();
    void showsTheSummaryAndRestoresTheControls();
    void schedulesTheLogWindowBeforeTheSummary();
    void theTablePopUpIsEnabledOnlyWithTables();
    void resetsTheCountersOfTheRun();
    void keepsWhatOutlivesTheRun();
    void theSummaryWaitsHalfASecond();
};

void ParseLogTest::showsTheSummaryAndRestoresTheControls_data()
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

void ParseLogTest::showsTheSummaryAndRestoresTheControls()
{
    QFETCH(Qt::CheckState, construct);
    QFETCH(bool, usingLUT);
    QFETCH(QString, summary);
    TestRun run;
    run.host.checkStates[CheckBox::Prepopulate] = construct;
    run.state.set(&RunState::usingLUT, usingLUT);
    run.state.set(&RunState::numLUTadaptedFiles, quint64(7));
    run.state.set(&RunState::numLUTskippedFiles, quint64(1));
    run.state.set(&RunState::output, str("W: a warning\nE: There was 1 error\n"));
    parseLog(run.context);
    QCOMPARE(run.host.calls, endCalls(summary));
}

void ParseLogTest::schedulesTheLogWindowBeforeTheSummary()
{
    TestRun run;
    run.state.set(&RunState::output,
                  str("E: modifying tag in file a.dcm: Corrupted data\nE: There was 1 error\n"));
    parseLog(run.context);
    QCOMPARE(run.host.calls,
             QStringList(str("log window: E: modifying tag in file a.dcm: Corrupted data\n\n")) +
                 endCalls(str("\nDone. 1 file with errors.")));
}

void ParseLogTest::theTablePopUpIsEnabledOnlyWithTables()
{
    TestRun run;
    parseLog(run.context);
    QCOMPARE(run.host.calls, endCalls(str("\nDone!"), false));
    run.host.calls.clear();
    run.state.set(&RunState::allLUTsPaths, TitleToPath{{str("Site"), str("/t/site")}});
    parseLog(run.context);
    QCOMPARE(run.host.calls, endCalls(str("\nDone!"), true));
}

void ParseLogTest::resetsTheCountersOfTheRun()
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

void ParseLogTest::keepsWhatOutlivesTheRun()
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
    QCOMPARE(run.host.calls.last(endCalls(QString()).size()), endCalls(str("\nDone, with 0 errors.")));
}

void ParseLogTest::theSummaryWaitsHalfASecond()
{
    const Delays delays;
    QCOMPARE(delays.beforeSummary, 500);
    QCOMPARE(delays.beforeLogWindow, 510); // just behind the summary
    QCOMPARE(delays.windowGrowth, 250);
    QCOMPARE(delays.beforeConfigurationScan, 250);
}

} // namespace dravolin::test

DRAVOLIN_TEST(dravolin::test::ParseLogTest)
#include "tst_parselog.moc"
