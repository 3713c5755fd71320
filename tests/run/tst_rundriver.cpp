#include "RunTrace.h"
#include "support/TestEntry.h"

#include "run/Configuration.h"
#include "run/RunDriver.h"

#include <QTest>

#include <new>

using namespace dravolin;
using namespace dravolin::test;

class TestRunDriver : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anonymizesFoldersThenFilesAndSearchesDicomdirs();
    void loadsTheSelectedConfiguration_data();
    void loadsTheSelectedConfiguration();
    void nothingOfAnEarlierLoadSurvives();
    void replacesABadRootForTheRunOnly();
    void tagsThatLostTheirMarkerAreErased();
    void aNameAloneSelectsATable();
    void keepsAllFilesInTheFolderOfTheFirst();
    void keepsProgressBehindForIndividualFiles();
    void anEmptyDropRunsToItsEnd();
    void aRunWithoutMemoryEnds();
    void aRunWithoutAThreadEnds();
};

void TestRunDriver::anonymizesFoldersThenFilesAndSearchesDicomdirs()
{
    TracedRun run;
    run.configure(str("0008,0080\tInstitution\tHidden Clinic\n0010,0030\tBirth Date\t..\n"));
    run.host.fields.diagnosis = str(" Carcinoma ");
    run.host.fields.caseId = str("0042");
    run.host.fields.credits = str("Dr. A");
    run.switchOn(&Choices::overwriteSource);
    run.makeFolder(str("in/Zeta/Sub"));
    run.makeFolder(str("in/alpha"));
    run.writeFile(str("in/alpha/DICOMDIR"));
    run.printed[str("~/in/alpha")] = "./DICOMDIR\n./sub/DICOMDIR\n";
    run.toolOutput = {{str("~/in/Zeta/Sub"), str("W: one\n")},
                      {str("~/in/Zeta"), str("E: two\n")},
                      {str("~/in/alpha"), str("E: unable to load file sub: x\nE: There was 1 error\n")},
                      {str("~/in/Files"), str("E: unable to load file ") +
                                              run.path(str("in/files")).toLower() + str(": not\n")}};
    run.makeFolder(str("in/Files"));
    Drop drop = run.drop({run.path(str("in/Zeta")), run.path(str("in/alpha"))},
                         {run.path(str("in/Files/b.dcm")), run.path(str("in/Files/a.dcm"))});
    performRun(run.context, drop);

    const QString tags =
        str(" -i \"(0008,0050)=Dr. A\" -i \"(0008,0080)=Hidden Clinic\" -i \"(0010,0010)=Carcinoma\""
            " -i \"(0010,0020)=0042\" -ea \"(0010,0030)\" -i \"(0020,000d)=") +
        validRoot + str(".42\" -ea \"(0032,4000)\"");
    const QString glob = str(" -ie -imt -nb") + tags + str(" * >.noxTemp.out 2>&1");
    QCOMPARE(run.jobTexts(),
             QStringList(
                 {TracedRun::scriptJob(str("~/in/Zeta/Sub"), glob),
                  TracedRun::scriptJob(str("~/in/Zeta"), glob), TracedRun::scriptJob(str("~/in/alpha"), glob),
                  TracedRun::scriptJob(str("~/in/Files"), str(" -ie -imt -nb") + tags +
                                                              str(" \"b.dcm\" \"a.dcm\" >.noxTemp.out 2>&1")),
                  TracedRun::findJob(str("~/in/Zeta")), TracedRun::findJob(str("~/in/alpha"))}));
    QCOMPARE(run.host.calls,
             loadCalls +
                 QStringList({status(0, 4), str("job ~/in/Zeta/Sub"), status(1, 4), str("job ~/in/Zeta"),
                              status(2, 4), status(2, 4), str("job ~/in/alpha"), status(3, 4),
                              str("job ~/in/Files"), str("find ~/in/Zeta"), str("find ~/in/alpha")}) +
                 endCalls(str("\nDone. 18446744073709551615 files with errors."),
                          str("E: two\n\nMind you: DICOMDIR files were found.\n"
                              "They do not contain DICOM tags to anonymize but still contain PHI:\n"
                              "./DICOMDIR\n./sub/DICOMDIR\n\n")));
}

void TestRunDriver::loadsTheSelectedConfiguration_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QStringList>("tags");
    const QStringList fixed = {str("0008,0050"), str("0010,0010"), str("0010,0020"), str("0020,000d"),
                               str("0032,4000")};
    QTest::newRow("selected") << str("CT") << QStringList(str("0008,0000")) + fixed;
    QTest::newRow("another") << str("MR") << QStringList(str("0008,0001")) + fixed;
    QTest::newRow("no title yet") << QString() << fixed;
    QTest::newRow("a title without a path") << str("US") << fixed;
    QTest::newRow("a file that is gone") << str("Gone") << fixed;
    QTest::newRow("a file that is not UTF-8") << str("Bad") << fixed;
}

void TestRunDriver::loadsTheSelectedConfiguration()
{
    QFETCH(QString, title);
    TracedRun run;
    run.state.set(
        &RunState::allConfigPaths,
        TitleToPath{{str("CT"), run.writeFile(str("ct.txt"), str("0008,0000"))},
                    {str("MR"), run.writeFile(str("mr.txt"), str("0008,0001"))},
                    {str("Gone"), run.path(str("gone.txt"))},
                    {str("Bad"), run.writeFile(str("bad.txt"), str("0008,0002\n") + QChar(0xDCE9))}});
    run.host.chosen.configuration = title;
    RunOptions options;
    QCOMPARE(processDroppedItems(run.context, {}, {}, options), quint64(0));
    QTEST(run.state.get(&RunState::allTagsToAnonymize), "tags");
    QCOMPARE(run.host.calls, loadCalls);
}

void TestRunDriver::nothingOfAnEarlierLoadSurvives()
{
    TracedRun run;
    run.state.set(&RunState::allTagsToAnonymize, QStringList(str("0009,0009")));
    run.state.set(&RunState::newValueDict, NewValueDict{{str("0009,0009"), str("old")}});
    run.host.fields.keywords = str("lung");

    loadTagsToAnonymize(run.context,
                        run.writeFile(str("c.txt"), str("0010,0020\tID\tmine\n0008,0080\t\tA\n")));

    QCOMPARE(run.state.get(&RunState::allTagsToAnonymize),
             QStringList({QString(), str("0008,0050"), str("0008,0080"), str("0010,0010"), str("0010,0020"),
                          str("0020,000d"), str("0032,4000")})); // the empty one from behind the last newline
    QCOMPARE(run.state.get(&RunState::newValueDict), (NewValueDict{{str("0008,0050"), QString()},
                                                                   {str("0008,0080"), str("A")},
                                                                   {str("0010,0010"), QString()},
                                                                   {str("0010,0020"), QString()},
                                                                   {str("0020,000d"), validRoot},
                                                                   {str("0032,4000"), str("lung")}}));
}

void TestRunDriver::replacesABadRootForTheRunOnly()
{
    TracedRun run;
    run.host.fields.uidRoot = str("1.2.3");
    run.uuids.uuids = {str("00000000-0000-0000-0000-00000000002A")};
    run.configure(QString());
    RunOptions options;
    QCOMPARE(processDroppedItems(run.context, {}, {}, options), quint64(0));
    QCOMPARE(run.state.get(&RunState::newValueDict).value(str("0020,000d")), str("2.25.42"));
    QCOMPARE(run.host.calls, QStringList(rootCall(str("1.2.3"), false)));
}

void TestRunDriver::tagsThatLostTheirMarkerAreErased()
{
    TracedRun run;
    run.configure(str("0008,0080\tSite\t<LUT_Site>\n"));
    const QString folder = run.makeFolder(str("in"));
    Drop drop = run.drop({folder}, {});
    performRun(run.context, drop);
    QCOMPARE(run.jobTexts(),
             QStringList(
                 {TracedRun::scriptJob(
                      str("~/in"), str(" -ie -imt -ea \"(0008,0050)\" -ea \"(0008,0080)\" -ea \"(0010,0010)\""
                                       " -ea \"(0010,0020)\" -i \"(0020,000d)=") +
                                       validRoot + str("\" -ea \"(0032,4000)\" * >.noxTemp.out 2>&1")),
                  TracedRun::findJob(str("~/in"))}));
    QCOMPARE(run.state.get(&RunState::firstFoundLUTtagInNewValueDict), str("Site"));
}

void TestRunDriver::aNameAloneSelectsATable()
{
    TracedRun run;
    run.configure(QString());
    run.state.set(&RunState::usingLUT, true);
    RunOptions options;
    options.selectedLUTpath = str("/t/site"); // without a title there is no table
    QCOMPARE(processDroppedItems(run.context, {}, {}, options), quint64(0));
    QCOMPARE(run.state.get(&RunState::usingLUT), false);
    QVERIFY(!options.theLUTtag);
    QCOMPARE(run.host.calls, loadCalls);
}

void TestRunDriver::keepsAllFilesInTheFolderOfTheFirst()
{
    TracedRun run;
    run.configure(QString());
    run.makeFolder(str("in/Second"));
    run.makeFolder(str("in/First"));
    const QStringList files = {run.path(str("in/Second/2.dcm")), run.path(str("in/First/1.dcm")),
                               run.path(str("in/Third/3 3.dcm"))};
    RunOptions options;
    QCOMPARE(processDroppedItems(run.context, {}, files, options), quint64(0));
    QCOMPARE(run.jobTexts(),
             QStringList(TracedRun::scriptJob(
                 str("~/in/Second"), str(" -ie -imt -nb") + fixedArguments +
                                         str(" \"2.dcm\" \"1.dcm\" \"3 3.dcm\" >.noxTemp.out 2>&1"))));
    QCOMPARE(run.state.get(&RunState::AllFoldersNames), QStringList(run.path(str("in/Second")).toLower()));
    QCOMPARE(run.host.calls, loadCalls + QStringList(str("job ~/in/Second")));
}

void TestRunDriver::keepsProgressBehindForIndividualFiles()
{
    TracedRun run;
    run.configure(QString());
    const QString folder = run.makeFolder(str("in"));
    run.makeFolder(str("files"));
    RunOptions options;
    QCOMPARE(processDroppedItems(run.context, {folder}, {run.path(str("files/1")), run.path(str("files/2"))},
                                 options),
             quint64(0));
    QCOMPARE(run.host.calls, loadCalls + QStringList({status(0, 2), str("job ~/in"), status(1, 2),
                                                      str("job ~/files"), str("find ~/in")}));
    QCOMPARE(run.state.get(&RunState::folderCount), quint64(1));
    QCOMPARE(run.state.get(&RunState::totalFolders), quint64(2));
}

void TestRunDriver::anEmptyDropRunsToItsEnd()
{
    TracedRun run;
    run.configure(QString());
    Drop drop = run.drop({}, {});
    performRun(run.context, drop);
    QCOMPARE(run.host.calls, loadCalls + endCalls(str("\nDone!")));
    QCOMPARE(run.jobTexts(), QStringList());
}

void TestRunDriver::aRunWithoutMemoryEnds()
{
    TracedRun run;
    run.configure(QString());
    const QString folder = run.makeFolder(str("in"));
    run.jobs.answer = [](const Job &) -> JobResult { throw std::bad_alloc(); };
    Drop drop = run.drop({folder}, {});
    const LogCatcher log;
    performRun(run.context, drop);
    const QString summary = str("Done...\nEncountered 1 error.\nSee messages logged to console.");
    QCOMPARE(run.host.calls, loadCalls + QStringList(status(0, 1)) + endCalls(summary));
    QCOMPARE(LogCatcher::messages(), QStringList(str("Not enough memory to go on with the run")));
    QCOMPARE(run.state.get(&RunState::totalFolders), quint64(0));
}

void TestRunDriver::aRunWithoutAThreadEnds()
{
    TracedRun run;
    const LogCatcher log;
    QVERIFY(giveUpRun(run.context).refused);
    QCOMPARE(run.host.calls, endCalls(str("Done...\nEncountered 1 error.\nSee messages logged to console.")));
    QCOMPARE(LogCatcher::messages(), QStringList(str("Could not start a thread for the run")));
    QCOMPARE(run.state.get(&RunState::errCount), quint64(0));
}

DRAVOLIN_TEST(TestRunDriver)
#include "tst_rundriver.moc"
