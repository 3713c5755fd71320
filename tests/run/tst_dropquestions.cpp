#include "run/DropIntake.h"
#include "support/TestEntry.h"
#include "support/TestRun.h"

#include <QTest>

using namespace dravolin;
using namespace dravolin::test;

namespace {

const QString validRoot = QStringLiteral("1.2.826.0.1.3680043.10.1234");
const QString uidAlert = QStringLiteral("refuse InvalidStudyInstanceUid: ");
const QString largeDropAlert = QStringLiteral("ask LargeDrop");
const QString overwriteAlert = QStringLiteral("ask OverwriteSource");
const QStringList validCheck = {rootCall(validRoot)};

QStringList fileNames(qsizetype count)
{
    QStringList paths;
    for (qsizetype i = 0; i < count; ++i)
        paths.append(QStringLiteral("/data/image%1.dcm").arg(i));
    return paths;
}

// Changes every choice while the first question is up.
class FickleHost : public RecordingHost
{
public:
    [[nodiscard]] bool ask(Question question) override
    {
        chosen.overwriteSource = Qt::Unchecked;
        chosen.table = QStringLiteral("Other");
        return RecordingHost::ask(question);
    }
};

} // namespace

class TestDropQuestions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void asksAboutManyFilesOnlyWithoutAFolder_data();
    void asksAboutManyFilesOnlyWithoutAFolder();
    void backupsAreMadeUnlessTheSourcesAreOverwritten_data();
    void backupsAreMadeUnlessTheSourcesAreOverwritten();
    void readsTheChoicesBeforeAnyQuestion();
    void checksTheRootWhateverKindOfRunIsChosen_data();
    void checksTheRootWhateverKindOfRunIsChosen();
    void replacesABadRootOnceAndGoesOn();
    void stopsWhenTheReplacedRootIsBadToo();
    void asksInOrderAndStopsAtTheFirstNo_data();
    void asksInOrderAndStopsAtTheFirstNo();
    void keepsAskingAboutOverwritingWhenConstructing();
    void anEmptyDropIsARunWithItsQuestions();
};

void TestDropQuestions::asksAboutManyFilesOnlyWithoutAFolder_data()
{
    QTest::addColumn<qsizetype>("files");
    QTest::addColumn<bool>("withFolder");
    QTest::addColumn<bool>("large");
    QTest::newRow("nothing") << qsizetype(0) << false << false;
    QTest::newRow("512 files") << qsizetype(512) << false << false;
    QTest::newRow("513 files") << qsizetype(513) << false << true;
    QTest::newRow("513 files and a folder") << qsizetype(513) << true << false;
    QTest::newRow("5000 files") << qsizetype(5000) << false << true;
}

void TestDropQuestions::asksAboutManyFilesOnlyWithoutAFolder()
{
    QFETCH(qsizetype, files);
    QFETCH(bool, withFolder);
    QFETCH(bool, large);
    TestRun run;
    run.host.fields.uidRoot = validRoot;
    if (large)
        run.host.answers = {true};
    QStringList paths = fileNames(files);
    if (withFolder)
        paths.insert(files / 2, run.makeFolder(QStringLiteral("folder")));

    QCOMPARE(isLargeDrop(sortDroppedPaths(paths)), large);
    const std::optional<Drop> drop = takeDrop(run.context, paths);

    QVERIFY(drop);
    QCOMPARE(drop->individualFiles, fileNames(files));
    QCOMPARE(run.host.calls, large ? validCheck + QStringList(largeDropAlert) : validCheck);
}

void TestDropQuestions::backupsAreMadeUnlessTheSourcesAreOverwritten_data()
{
    QTest::addColumn<Qt::CheckState>("overwrite");
    QTest::addColumn<bool>("backups");
    QTest::addColumn<QStringList>("questions");
    QTest::newRow("off") << Qt::Unchecked << true << QStringList();
    QTest::newRow("on") << Qt::Checked << false << QStringList(overwriteAlert);
}

void TestDropQuestions::backupsAreMadeUnlessTheSourcesAreOverwritten()
{
    QFETCH(Qt::CheckState, overwrite);
    QFETCH(QStringList, questions);
    TestRun run;
    run.host.fields.uidRoot = validRoot;
    run.host.chosen.overwriteSource = overwrite;
    if (!questions.isEmpty())
        run.host.answers = {true};

    const std::optional<Drop> drop = takeDrop(run.context, fileNames(1));

    QVERIFY(drop);
    QTEST(drop->options.createBAKfiles, "backups");
    QCOMPARE(run.host.calls, validCheck + questions);
}

void TestDropQuestions::readsTheChoicesBeforeAnyQuestion()
{
    TestRun run;
    FickleHost host;
    host.fields.uidRoot = validRoot;
    host.chosen.overwriteSource = Qt::Checked;
    host.chosen.table = QStringLiteral("Site");
    host.answers = {true, true};
    run.state.set(&RunState::allLUTsPaths,
                  TitleToPath{{QStringLiteral("Site"), QStringLiteral("/t/site")},
                              {QStringLiteral("Other"), QStringLiteral("/t/other")}});
    const RunContext context = {run.state, run.paths, host, run.jobs, run.uuids};

    const std::optional<Drop> drop = takeDrop(context, fileNames(513));

    QVERIFY(drop);
    QCOMPARE(drop->options.selectedLUT, QStringLiteral("Site"));
    QCOMPARE(drop->options.selectedLUTpath, QStringLiteral("/t/site"));
    QCOMPARE(drop->options.createBAKfiles, false);
    QCOMPARE(host.calls, validCheck + QStringList({largeDropAlert, overwriteAlert}));
}

void TestDropQuestions::checksTheRootWhateverKindOfRunIsChosen_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("construction") << 0;
    QTest::newRow("generate") << 1;
    QTest::newRow("only generate") << 2;
}

void TestDropQuestions::checksTheRootWhateverKindOfRunIsChosen()
{
    QFETCH(int, kind);
    TestRun run;
    run.host.fields.uidRoot = validRoot;
    constexpr Qt::CheckState Choices::*boxes[] = {&Choices::prepopulate, &Choices::generateSOP,
                                                  &Choices::onlyGenerateSOP};
    run.host.chosen.*boxes[kind] = Qt::Checked;
    QVERIFY(takeDrop(run.context, fileNames(1)));
    QCOMPARE(run.host.calls, validCheck);
}

void TestDropQuestions::replacesABadRootOnceAndGoesOn()
{
    TestRun run;
    run.host.fields.uidRoot = QStringLiteral(" 1.2.3 ");
    run.uuids.uuids = {QStringLiteral("FFFFFFFF-FFFF-FFFF-FFFF-FFFFFFFFFFFF")};
    const QString newRoot = QStringLiteral("2.25.340282366920938463463374607431768211455");

    QVERIFY(takeDrop(run.context, fileNames(1)));

    QCOMPARE(run.host.calls, QStringList({rootCall(QStringLiteral("1.2.3"), false), rootCall(newRoot),
                                          rootCall(newRoot)})); // the generation checks, too
    QCOMPARE(run.uuids.uuids, QStringList());
}

void TestDropQuestions::stopsWhenTheReplacedRootIsBadToo()
{
    TestRun run;
    run.host.fields.caseId = QStringLiteral("12a"); // no root fits this one
    run.host.fields.uidRoot = validRoot;
    run.host.chosen.overwriteSource = Qt::Checked;
    run.uuids.uuids = {QStringLiteral("FFFFFFFF-FFFF-FFFF-FFFF-FFFFFFFFFFFF")};

    QVERIFY(!takeDrop(run.context, fileNames(513)));

    const QString newRoot = QStringLiteral("2.25.340282366920938463463374607431768211455");
    QCOMPARE(run.host.calls, QStringList({rootCall(validRoot, false), rootCall(newRoot, false),
                                          rootCall(newRoot, false), uidAlert}));
    QVERIFY(run.jobs.jobs.isEmpty());
}

void TestDropQuestions::asksInOrderAndStopsAtTheFirstNo_data()
{
    QTest::addColumn<QList<bool>>("answers");
    QTest::addColumn<QStringList>("questions");
    QTest::addColumn<bool>("starts");
    const bool no = false;
    const bool yes = true;
    QTest::newRow("retry") << QList{no} << QStringList{largeDropAlert} << false;
    QTest::newRow("get on, cancel") << QList{yes, no} << QStringList{largeDropAlert, overwriteAlert} << false;
    QTest::newRow("get on, overwrite")
        << QList{yes, yes} << QStringList{largeDropAlert, overwriteAlert} << true;
}

void TestDropQuestions::asksInOrderAndStopsAtTheFirstNo()
{
    QFETCH(QStringList, questions);
    QFETCH(QList<bool>, answers);
    TestRun run;
    run.host.fields.uidRoot = validRoot;
    run.host.chosen.overwriteSource = Qt::Checked;
    run.host.answers = answers;

    const bool starts = takeDrop(run.context, fileNames(513)).has_value();

    QTEST(starts, "starts");
    QCOMPARE(run.host.calls, validCheck + questions);
    QVERIFY(run.host.answers.isEmpty());
}

void TestDropQuestions::keepsAskingAboutOverwritingWhenConstructing()
{
    TestRun run;
    run.host.fields.uidRoot = validRoot;
    run.host.chosen.overwriteSource = Qt::Checked;
    run.host.chosen.prepopulate = Qt::Checked;
    run.host.answers = {true};
    QVERIFY(takeDrop(run.context, fileNames(1)));
    QCOMPARE(run.host.calls, validCheck + QStringList(overwriteAlert));
}

void TestDropQuestions::anEmptyDropIsARunWithItsQuestions()
{
    TestRun run;
    run.host.fields.uidRoot = validRoot;
    run.host.chosen.overwriteSource = Qt::Checked;
    run.host.answers = {true};

    const std::optional<Drop> drop = takeDrop(run.context, {});

    QVERIFY(drop);
    QCOMPARE(drop->folders + drop->individualFiles, QStringList());
    QCOMPARE(run.host.calls, validCheck + QStringList(overwriteAlert));
}

DRAVOLIN_TEST(TestDropQuestions)
#include "tst_dropquestions.moc"
