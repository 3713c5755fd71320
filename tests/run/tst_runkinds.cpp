#include "RunTrace.h"
#include "support/TestEntry.h"

#include "base/Files.h"
#include "run/RunDriver.h"

#include <QTest>
#include <QTranslator>

using namespace dravolin;
using namespace dravolin::test;

namespace {

// Cancels while the first folder's progress is on its way.
class CancellingHost : public RecordingHost
{
public:
    void progress(const Progress &progress) override
    {
        RecordingHost::progress(progress);
        throw RunCancelled();
    }
};

// Marks every text that is looked up under the application's context.
class MarkingTranslator : public QTranslator
{
public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char *context, const char *text, const char *, int) const override
    {
        return qstrcmp(context, "Texts") == 0 ? u'#' + QString::fromUtf8(text) : QString();
    }
};

} // namespace

class TestRunKinds : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyGeneratingReadsNoConfiguration_data();
    void onlyGeneratingReadsNoConfiguration();
    void keepsTheTagsOfTheLastRunWhenOnlyGenerating();
    void keepsPropagatingWhenOnlyGenerating();
    void onlyGeneratingCleansAndCountsLikeEveryRun();
    void constructionNeitherAnonymizesNorSearches();
    void refusesAnEmptyTagList_data();
    void refusesAnEmptyTagList();
    void aRefusedRunEndsWithOneError();
    void endsAtOnceWhenItIsCancelled();
    void looksUpItsTexts();
};

void TestRunKinds::onlyGeneratingReadsNoConfiguration_data()
{
    QTest::addColumn<bool>("generate");
    QTest::addColumn<bool>("overwrite");
    QTest::addColumn<QString>("options");
    QTest::newRow("with new UIDs, keeping backups") << true << false << str(" -ie -imt -gin");
    QTest::newRow("with new UIDs, overwriting") << true << true << str(" -ie -imt -nb -gin");
    QTest::newRow("without new UIDs: no change is asked for") << false << false << str(" -ie -imt");
}

void TestRunKinds::onlyGeneratingReadsNoConfiguration()
{
    QFETCH(bool, generate);
    QFETCH(bool, overwrite);
    QFETCH(QString, options);
    const LogCatcher log;
    TracedRun run;
    run.configure(str("0008,0080X\n0008,0080\tSite\t<LUT_Site>\n"));
    run.host.fields.uidRoot = str("bad"); // no run would compose with it silently
    run.switchOn(&Choices::onlyGenerateSOP);
    if (generate)
        run.switchOn(&Choices::generateSOP);
    if (overwrite)
        run.switchOn(&Choices::overwriteSource);
    run.makeFolder(str("in"));
    run.makeFolder(str("files"));
    run.printed[str("~/in")] = "./DICOMDIR\n";
    Drop drop = run.drop({run.path(str("in"))}, {run.path(str("files/1"))});

    performRun(run.context, drop);

    QCOMPARE(run.jobTexts(),
             QStringList({TracedRun::scriptJob(str("~/in"), options + str(" * >.noxTemp.out 2>&1")),
                          TracedRun::scriptJob(str("~/files"), options + str(" \"1\" >.noxTemp.out 2>&1"))}));
    QCOMPARE(run.host.calls, QStringList({status(0, 2), str("job ~/in"), status(1, 2), str("job ~/files")}) +
                                 endCalls(str("\nDone!")));
    QCOMPARE(run.state.get(&RunState::allTagsToAnonymize), QStringList());
    QCOMPARE(run.state.get(&RunState::firstFoundLUTtagInNewValueDict), QString());
    QCOMPARE(LogCatcher::messages(), QStringList());
}

void TestRunKinds::keepsTheTagsOfTheLastRunWhenOnlyGenerating()
{
    const LogCatcher log;
    TracedRun run;
    const QStringList tags = {str("0010,0020"), str("malformed")};
    const NewValueDict values = {{str("0010,0020"), str("ANON")}, {str("0010,0040"), str("<LUT_Sex>")}};
    run.state.set(&RunState::allTagsToAnonymize, tags);
    run.state.set(&RunState::newValueDict, values);
    run.switchOn(&Choices::onlyGenerateSOP);
    run.switchOn(&Choices::generateSOP);
    Drop drop = run.drop({run.makeFolder(str("in"))}, {});

    performRun(run.context, drop);

    QCOMPARE(run.jobTexts(),
             QStringList(TracedRun::scriptJob(str("~/in"), str(" -ie -imt -gin * >.noxTemp.out 2>&1"))));
    QCOMPARE(run.state.get(&RunState::allTagsToAnonymize), tags);
    QCOMPARE(run.state.get(&RunState::newValueDict), values);
    QCOMPARE(LogCatcher::messages(), QStringList());
}

void TestRunKinds::keepsPropagatingWhenOnlyGenerating()
{
    TracedRun run;
    run.state.set(&RunState::usingLUT, true);
    run.state.set(&RunState::numLUTskippedFiles, quint64(2));
    run.switchOn(&Choices::onlyGenerateSOP);
    Drop drop;
    performRun(run.context, drop);
    QCOMPARE(run.state.get(&RunState::usingLUT), true);
    QCOMPARE(run.host.calls.last(),
             endCall(str("Done!\nLUT tag propagated to 0 files.\nSkipped 2 DICOM files.")));
}

void TestRunKinds::onlyGeneratingCleansAndCountsLikeEveryRun()
{
    TracedRun run;
    run.switchOn(&Choices::onlyGenerateSOP);
    const QString stale = run.writeFile(str("in/Sub/.noxTemp.out"), str("E: stale\n"));
    Drop drop = run.drop({run.path(str("in"))}, {});
    performRun(run.context, drop);
    QVERIFY(!pathExists(stale));
    QCOMPARE(run.host.calls,
             QStringList({status(0, 2), str("job ~/in/Sub"), status(1, 2), str("job ~/in"), status(2, 2)}) +
                 endCalls(str("\nDone!")));
}

void TestRunKinds::constructionNeitherAnonymizesNorSearches()
{
    TracedRun run;
    run.configure(str("0010,0020\tID\t<LUT_ID>\n"));
    run.state.set(&RunState::LUTconstructionTag, str("0010,0020"));
    run.switchOn(&Choices::prepopulate);
    run.makeFolder(str("in/Sub"));
    RunOptions options;
    QCOMPARE(processDroppedItems(run.context, {run.path(str("in"))}, {run.path(str("in/1"))}, options),
             quint64(0));
    QCOMPARE(run.host.calls.first(loadCalls.size()), loadCalls);
    QCOMPARE(run.host.calls.count(status(0, 3)), 0);
    QCOMPARE(run.host.calls.count(str("find ~/in")), 0);
    QCOMPARE(run.state.get(&RunState::AllFoldersNames), QStringList());
    for (const RecordingJobRunner::Recorded &recorded : std::as_const(run.jobs.jobs))
        QCOMPARE(recorded.script.indexOf(run.paths.dcmodify()), qsizetype(-1));
}

void TestRunKinds::refusesAnEmptyTagList_data()
{
    QTest::addColumn<QStringList>("tags");
    QTest::addColumn<bool>("usingLUT");
    QTest::addColumn<bool>("refused");
    QTest::newRow("nothing to anonymize") << QStringList() << false << true;
    QTest::newRow("a table is all there is") << QStringList() << true << false;
    QTest::newRow("a tag") << QStringList(str("0010,0020")) << false << false;
    QTest::newRow("the empty tag is a tag") << QStringList(QString()) << false << false;
}

void TestRunKinds::refusesAnEmptyTagList()
{
    QFETCH(QStringList, tags);
    QFETCH(bool, usingLUT);
    QFETCH(bool, refused);
    TestRun run;
    run.state.set(&RunState::allTagsToAnonymize, tags);
    run.state.set(&RunState::usingLUT, usingLUT);
    QCOMPARE(refusesEmptyTagList(run.context, str("/home/c %1.txt")), refused);
    const QString refusal = str("refuse NoTags: /home/c %1.txt");
    QCOMPARE(run.host.calls, refused ? QStringList(refusal) : QStringList());
}

void TestRunKinds::aRefusedRunEndsWithOneError()
{
    TestRun run;
    QVERIFY(refusesEmptyTagList(run.context, QString()));
    run.state.set(&RunState::errCount, quint64(1));
    run.host.calls.clear();
    parseLog(run.context);
    QCOMPARE(run.host.calls, endCalls(str("Done...\nEncountered 1 error.\nSee messages logged to console.")));
    QCOMPARE(run.state.get(&RunState::errCount), quint64(0));
}

void TestRunKinds::endsAtOnceWhenItIsCancelled()
{
    TracedRun run;
    run.configure(QString());
    CancellingHost host;
    host.fields = run.host.fields;
    host.chosen.configuration = run.host.chosen.configuration;
    Drop drop = run.drop({run.makeFolder(str("in"))}, {});
    const RunContext context = {run.state, run.paths, host, run.jobs, run.uuids};
    QVERIFY_THROWS_EXCEPTION(RunCancelled, performRun(context, drop));
    QCOMPARE(host.calls, loadCalls + QStringList(status(0, 1)));
    QCOMPARE(run.jobTexts(), QStringList());
}

void TestRunKinds::looksUpItsTexts()
{
    MarkingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    TracedRun run;
    run.configure(QString());
    Drop drop = run.drop({run.makeFolder(str("in"))}, {});
    performRun(run.context, drop);
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(run.host.calls.last(), endCall(str("#\nDone!")));
}

DRAVOLIN_TEST(TestRunKinds)
#include "tst_runkinds.moc"
