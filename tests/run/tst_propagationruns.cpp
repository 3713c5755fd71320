#include "TableRun.h"
#include "support/TestEntry.h"

#include "run/RunDriver.h"

#include <QTest>

using namespace dravolin;
using namespace dravolin::test;

namespace {

QString propagating(int done, int all)
{
    return QStringLiteral("propagated %1/%2 folders").arg(done).arg(all);
}

const QString refused = str("Done...\nEncountered 1 error.\nSee messages logged to console.");

} // namespace

// Whole runs with a selected table.
class TestPropagationRuns : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void propagatesAfterAnonymizing();
    void bindingNothingButItsAttributeStillPropagates();
    void keepsErasingOtherMarkedAttributes();
    void keepsTheSkippedFilesOfEarlierRuns();
    void refusedRunsTouchNothing_data();
    void refusedRunsTouchNothing();
    void fixedAttributesCannotBeBoundByAFile();
    void aMarkerTypedIntoTheWindowBinds();
    void aTableWithoutANameIsNone();
    void keepsPropagatingWhenOnlyGeneratingAfterwards();
    void theLogHoldsTheCounts();
};

void TestPropagationRuns::propagatesAfterAnonymizing()
{
    TableRun run;
    run.switchOn(&Choices::overwriteSource);
    const QString folder = run.makeFolder(str("in"));
    run.file(str("in/a"), "PAT123");
    const QString other = run.file(str("files/b"), "PHANTOM");
    Drop drop = run.dropWithTable({folder}, {other}, str("PAT123\tS1\nPHANTOM\t<skip>\n"));
    performRun(run.context, drop);

    const QStringList expected = loadCalls +
                                 QStringList{status(0, 2),
                                             str("job ~/in"),
                                             status(1, 2),
                                             str("job ~/files"),
                                             str("propagation begins"),
                                             propagating(0, 2),
                                             str("file 1/1"),
                                             str("search a"),
                                             str("job ~/in"),
                                             propagating(1, 2),
                                             str("file 1/1"),
                                             str("search b"),
                                             str("propagation ends"),
                                             str("find ~/in")} +
                                 endCalls(str("Done!\nLUT tag propagated to 1 file.\nSkipped 1 DICOM file."));
    QCOMPARE(run.host.calls, expected);
    const QStringList jobs = run.jobTexts();
    QCOMPARE(jobs.size(), 6);
    QCOMPARE(jobs.at(0), TracedRun::scriptJob(str("~/in"), str(" -ie -imt -nb") + fixedArguments +
                                                               str(" * >.noxTemp.out 2>&1")));
    QCOMPARE(jobs.at(2), str("~/app/resources/dcmdump -M -Un +E -s --search 0010,1000 a\nin ~/in\n"
                             "with DCMDICTPATH=~/app/resources/dicom.dic\npiped"));
    QCOMPARE(jobs.at(3), TracedRun::scriptJob(str("~/in"), str(" -ie -nb -m \"(0010,1000)=S1\" \"a\"  "
                                                               ">.noxTemp.out 2>&1")));
    QCOMPARE(drop.options.theLUTtag, str("0010,1000"));
}

void TestPropagationRuns::bindingNothingButItsAttributeStillPropagates()
{
    TableRun run;
    run.file(str("in/a"), "new");
    Drop drop = run.dropWithTable({run.path(str("in"))}, {}, QString());
    performRun(run.context, drop);
    QCOMPARE(run.state.get(&RunState::allTagsToAnonymize),
             (QStringList{str("0008,0050"), str("0010,0010"), str("0010,0020"), str("0020,000d"),
                          str("0032,4000")}));
    QCOMPARE(run.summary(), str("Done!\nLUT tag propagated to 1 file.\nSkipped 0 DICOM files."));
}

void TestPropagationRuns::keepsErasingOtherMarkedAttributes()
{
    TableRun run;
    run.configure(str("0010,0030\tx\t<LUT_Other>\n0010,1000\tx\t<LUT_Site>\n0010,1001\tx\t<LUT_Site>"));
    Drop drop = run.dropWithTable({run.makeFolder(str("in"))}, {}, QString());
    performRun(run.context, drop);
    // the first equal marker is bound; of the two left the second index hits another key, so that a marker
    // survives and the key behind it loses its value
    QCOMPARE(drop.options.theLUTtag, str("0010,1000"));
    QCOMPARE(run.state.get(&RunState::firstFoundLUTtagInNewValueDict), str("Other"));
    QCOMPARE(run.state.get(&RunState::allTagsToAnonymize),
             (QStringList{str("0008,0050"), str("0010,0010"), str("0010,0020"), str("0010,0030"),
                          str("0010,1001"), str("0020,000d"), str("0032,4000")}));
    QCOMPARE(run.state.get(&RunState::newValueDict).keys(),
             (QStringList{str("0008,0050"), str("0010,0010"), str("0010,0020"), str("0010,1001"),
                          str("0032,4000")}));
    QCOMPARE(run.jobTexts().first(),
             TracedRun::scriptJob(str("~/in"),
                                  str(" -ie -imt -ea \"(0008,0050)\" -ea \"(0010,0010)\" -ea \"(0010,0020)\" "
                                      "-ea \"(0010,0030)\" -i \"(0010,1001)=<LUT_Site>\" -ea \"(0020,000d)\" "
                                      "-ea \"(0032,4000)\" * >.noxTemp.out 2>&1")));
}

void TestPropagationRuns::keepsTheSkippedFilesOfEarlierRuns()
{
    TableRun run;
    for (const char *name : {"in/a", "in/b", "in/c"})
        run.file(str(name), "PHANTOM");
    for (const int sum : {3, 6}) {
        Drop drop = run.dropWithTable({run.path(str("in"))}, {}, str("PHANTOM\t<skip>\n"));
        performRun(run.context, drop);
        QCOMPARE(run.summary(), QStringLiteral("Done!\nLUT tag propagated to 0 files.\n"
                                               "Skipped %1 DICOM files.")
                                    .arg(sum));
    }
}

void TestPropagationRuns::refusedRunsTouchNothing_data()
{
    QTest::addColumn<QString>("configuration");
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("refusal");
    QTest::newRow("no marker") << str("0010,1000\tx\t<LUT_Other>\n") << str("<missing>\tX\n")
                               << str("refuse NoTagForTable: Site");
    QTest::newRow("the table has vanished")
        << str("0010,1000\tx\t<LUT_Site>") << QString() << str("refuse TableUnreadable: Site");
    QTest::newRow("no <missing>") << str("0010,1000\tx\t<LUT_Site>") << str("A\tB\n")
                                  << str("refuse TableWithoutMissing: Site");
}

void TestPropagationRuns::refusedRunsTouchNothing()
{
    QFETCH(QString, configuration);
    QFETCH(QString, table);
    TableRun run;
    run.configure(configuration);
    run.file(str("in/a"), "A");
    Drop drop = run.dropWithTable({run.path(str("in"))}, {}, QString());
    removeFile(drop.options.selectedLUTpath);
    if (!table.isEmpty())
        run.writeFile(str("home/Desktop/AnonymizationLUT_Site.txt"), table);
    performRun(run.context, drop);
    QVERIFY(run.jobs.jobs.isEmpty());
    QTEST(run.host.calls.at(loadCalls.size()), "refusal");
    QCOMPARE(run.host.calls.mid(loadCalls.size() + 1), endCalls(refused));
    QCOMPARE(run.host.judgements.last().refused, true);
    QCOMPARE(run.state.get(&RunState::usingLUT), false);
    QCOMPARE(run.state.get(&RunState::errCount), quint64(0));
}

void TestPropagationRuns::fixedAttributesCannotBeBoundByAFile()
{
    TableRun run;
    run.configure(str("0010,0020\tPatient ID\t<LUT_Site>"));
    Drop drop = run.dropWithTable({run.makeFolder(str("in"))}, {}, QString());
    performRun(run.context, drop);
    QCOMPARE(run.host.calls.at(loadCalls.size()), str("refuse NoTagForTable: Site"));
    QCOMPARE(run.summary(), refused);
}

void TestPropagationRuns::aMarkerTypedIntoTheWindowBinds()
{
    TableRun run;
    run.configure(QString());
    run.host.fields.diagnosis = str(" <LUT_Site>\t");
    Drop drop = run.dropWithTable({run.makeFolder(str("in"))}, {}, QString());
    performRun(run.context, drop);
    QCOMPARE(drop.options.theLUTtag, str("0010,0010"));
}

void TestPropagationRuns::aTableWithoutANameIsNone()
{
    TableRun run;
    Drop drop = run.dropWithTable({run.makeFolder(str("in"))}, {}, QString());
    drop.options.selectedLUT.clear();
    performRun(run.context, drop);
    QCOMPARE(run.state.get(&RunState::usingLUT), false);
    QCOMPARE(run.host.calls.last(), endCall(str("\nDone!")));
    QCOMPARE(run.jobTexts().first(),
             TracedRun::scriptJob(str("~/in"),
                                  str(" -ie -imt -ea \"(0008,0050)\" -ea \"(0010,0010)\" -ea \"(0010,0020)\" "
                                      "-ea \"(0010,1000)\" -i \"(0020,000d)=") +
                                      validRoot + str("\" -ea \"(0032,4000)\" * >.noxTemp.out 2>&1")));
}

void TestPropagationRuns::keepsPropagatingWhenOnlyGeneratingAfterwards()
{
    TableRun run;
    run.file(str("in/a"), "PHANTOM");
    Drop first = run.dropWithTable({run.path(str("in"))}, {}, str("PHANTOM\t<skip>\n"));
    performRun(run.context, first);
    run.switchOn(&Choices::onlyGenerateSOP);
    run.found.clear(); // without an attribute the search finds nothing
    run.jobs.jobs.clear();
    run.host.calls.clear();
    Drop second = run.drop({run.path(str("in"))}, {});
    performRun(run.context, second);
    QCOMPARE(run.jobTexts(),
             (QStringList{TracedRun::scriptJob(str("~/in"), str(" -ie -imt * >.noxTemp.out 2>&1")),
                          str("~/app/resources/dcmdump -M -Un +E -s --search  a\nin ~/in\n"
                              "with DCMDICTPATH=~/app/resources/dicom.dic\npiped")}));
    QCOMPARE(run.summary(), str("Done!\nLUT tag propagated to 0 files.\nSkipped 1 DICOM file."));
}

void TestPropagationRuns::theLogHoldsTheCounts()
{
    TableRun run;
    const QString file = run.file(str("in/a"), "A");
    run.toolOutput[str("~/in")] = str("E: modifying tag in file a: x\nE: There was 1 error\n");
    Drop drop = run.dropWithTable({}, {file}, QString());
    performRun(run.context, drop);
    QCOMPARE(run.host.calls.last(),
             endCall(str("\nDone. 2 files with errors."),
                     str("E: modifying tag in file a: x\n\nE: modifying tag in file a: x\n\n\n\n"
                         "LUT tag propagated to 1 file.\nSkipped 0 DICOM files.\n\n")));
}

DRAVOLIN_TEST(TestPropagationRuns)
#include "tst_propagationruns.moc"
