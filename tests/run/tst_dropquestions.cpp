#include "run/DropIntake.h"
#include "support/TestEntry.h"
#include "support/TestRun.h"

#include <QTest>

namespace dravolin::test {

namespace {

const QString validRoot = QStringLiteral("1.2.826.0.1.3680043.10.1234");
const QString uidAlert = QStringLiteral(
    "alert: Study Instance UID would be invalid|The combination of the CaseID and the UID root would "
    "result in the creation of an invalid Study Instance UID.\nThis is now allowed.\n\nOnly digits "
    "and '.' are allowed, and the total maximum length is 64 characters.\n|OK|");
const QString largeDropAlert = QStringLiteral("alert: Large number of individual files dropped|You dropped a "
                                              "large number of individual files: processing is "
                                              "faster if you drop the enclosing folder.\n\nIf this enclosing "
                                              "folder contains subfolders that should not be "
                                              "anonymized, consider temporarily placing the individual files "
                                              "in a new folder and drop that.\n\nContinue with "
                                              "dropped files?\n|No, I'll retry|Yes, get on with it!");
const QString overwriteAlert = QStringLiteral(
    "alert: About to anonymize your data|Your source data will be overwritten. Continue?|No, Cancel|"
    "Ok, Overwrite source data");
const QStringList validCheck = {QStringLiteral("setText uidRoot: ") + validRoot,
                                QStringLiteral("setRootValidity: UID may be valid")};

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
    AlertButton runModalAlert(const ModalAlert &alert) override
    {
        checkStates[CheckBox::OverwriteSource] = Qt::Unchecked;
        lut = {2, QStringLiteral("Other")};
        return RecordingHost::runModalAlert(alert);
    }
};

} // namespace

class DropQuestionsTest : public QObject
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
    void everyQuestionIsEscapedByItsDefaultButton();
    void keepsAskingAboutOverwritingWhenConstructing();
    void anEmptyDropIsARunWithItsQuestions();
};

void DropQuestionsTest::asksAboutManyFilesOnlyWithoutAFolder_data()
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

void DropQuestionsTest::asksAboutManyFilesOnlyWithoutAFolder()
{
    QFETCH(qsizetype, files);
    QFETCH(bool, withFolder);
    QFETCH(bool, large);
    TestRun run;
    run.host.texts[TextField::UidRoot] = validRoot;
    if (large)
        run.host.answers = {AlertButton::Alternate};
    QStringList paths = fileNames(files);
    if (withFolder)
        paths.insert(files / 2, run.makeFolder(QStringLiteral("folder")));

    QCOMPARE(isLargeDrop(sortDroppedPaths(paths)), large);
    const std::optional<Drop> drop = takeDrop(run.context, paths);

    QVERIFY(drop);
    QCOMPARE(drop->individualFiles, fileNames(files));
    QCOMPARE(run.host.calls, large ? validCheck + QStringList(largeDropAlert) : validCheck);
}

void DropQuestionsTest::backupsAreMadeUnlessTheSourcesAreOverwritten_data()
{
    QTest::addColumn<Qt::CheckState>("overwrite");
    QTest::addColumn<bool>("backups");
    QTest::addColumn<QStringList>("questions");
    QTest::newRow("off") << Qt::Unchecked << true << QStringList();
    QTest::newRow("on") << Qt::Checked << false << QStringList(overwriteAlert);
}

void DropQuestionsTest::backupsAreMadeUnlessTheSourcesAreOverwritten()
{
    QFETCH(Qt::CheckState, overwrite);
    QFETCH(QStringList, questions);
    TestRun run;
    run.host.texts[TextField::UidRoot] = validRoot;
    run.host.checkStates[CheckBox::OverwriteSource] = overwrite;
    if (!questions.isEmpty())
        run.host.answers = {AlertButton::Alternate};

    const std::optional<Drop> drop = takeDrop(run.context, fileNames(1));

    QVERIFY(drop);
    QTEST(drop->options.createBAKfiles, "backups");
    QCOMPARE(run.host.calls, validCheck + questions);
}

void DropQuestionsTest::readsTheChoicesBeforeAnyQuestion()
{
    TestRun run;
    FickleHost host;
    host.texts[TextField::UidRoot] = validRoot;
    host.checkStates[CheckBox::OverwriteSource] = Qt::Checked;
    host.lut = {1, QStringLiteral("Site")};
    host.answers = {AlertButton::Alternate, AlertButton::Alternate};
    run.state.set(&RunState::allLUTsPaths,
                  TitleToPath{{QStringLiteral("Site"), QStringLiteral("/t/site")},
                              {QStringLiteral("Other"), QStringLiteral("/t/other")}});
    const RunContext context = {run.state, run.paths, host, run.jobs, run.uuids, run.delays};

    const std::optional<Drop> drop = takeDrop(context, fileNames(513));

    QVERIFY(drop);
    QCOMPARE(drop->options.selectedLUT, QStringLiteral("Site"));
    QCOMPARE(drop->options.selectedLUTpath, QStringLiteral("/t/site"));
    QCOMPARE(drop->options.createBAKfiles, false);
    QCOMPARE(host.calls, validCheck + QStringList({largeDropAlert, overwriteAlert}));
}

void DropQuestionsTest::checksTheRootWhateverKindOfRunIsChosen_data()
{
    QTest::addColumn<CheckBox>("box");
    QTest::newRow("construction") << CheckBox::Prepopulate;
    QTest::newRow("generate") << CheckBox::GenerateSOP;
    QTest::newRow("only generate") << CheckBox::OnlyGenerateSOP;
}

void DropQuestionsTest::checksTheRootWhateverKindOfRunIsChosen()
{
    QFETCH(CheckBox, box);
    TestRun run;
    run.host.texts[TextField::UidRoot] = validRoot;
    run.host.checkStates[box] = Qt::Checked;
    QVERIFY(takeDrop(run.context, fileNames(1)));
    QCOMPARE(run.host.calls, validCheck);
}

void DropQuestionsTest::replacesABadRootOnceAndGoesOn()
{
    TestRun run;
    run.host.texts[TextField::UidRoot] = QStringLiteral(" 1.2.3 ");
    run.uuids.uuids = {QStringLiteral("FFFFFFFF-FFFF-FFFF-FFFF-FFFFFFFFFFFF")};
    const QString newRoot = QStringLiteral("2.25.340282366920938463463374607431768211455");

    QVERIFY(takeDrop(run.context, fileNames(1)));

    const QString set = QStringLiteral("setText uidRoot: ");
    const QString valid = QStringLiteral("setRootValidity: UID may be valid");
    QCOMPARE(run.host.calls,
             QStringList({set + QStringLiteral("1.2.3"),
                          QStringLiteral("setRootValidity: Root is invalid, will be replaced"), set + newRoot,
                          set + newRoot, valid, set + newRoot, valid})); // the generation checks, too
    QCOMPARE(run.uuids.uuids, QStringList());
}

void DropQuestionsTest::stopsWhenTheReplacedRootIsBadToo()
{
    TestRun run;
    run.host.texts[TextField::CaseId] = QStringLiteral("12a"); // no root fits this one
    run.host.texts[TextField::UidRoot] = validRoot;
    run.host.checkStates[CheckBox::OverwriteSource] = Qt::Checked;
    run.uuids.uuids = {QStringLiteral("FFFFFFFF-FFFF-FFFF-FFFF-FFFFFFFFFFFF")};
    run.host.answers = {AlertButton::Default};

    QVERIFY(!takeDrop(run.context, fileNames(513)));

    const QString set = QStringLiteral("setText uidRoot: ");
    const QString invalid = QStringLiteral("setRootValidity: Root is invalid, will be replaced");
    const QString newRoot = QStringLiteral("2.25.340282366920938463463374607431768211455");
    QCOMPARE(run.host.calls, QStringList({set + validRoot, invalid, set + newRoot, set + newRoot, invalid,
                                          set + newRoot, invalid, uidAlert}));
    QVERIFY(run.jobs.jobs.isEmpty());
}

void DropQuestionsTest::asksInOrderAndStopsAtTheFirstNo_data()
{
    QTest::addColumn<QList<AlertButton>>("answers");
    QTest::addColumn<QStringList>("questions");
    QTest::addColumn<bool>("starts");
    const AlertButton no = AlertButton::Default;
    const AlertButton yes = AlertButton::Alternate;
    QTest::newRow("retry") << QList{no} << QStringList{largeDropAlert} << false;
    QTest::newRow("get on, cancel") << QList{yes, no} << QStringList{largeDropAlert, overwriteAlert} << false;
    QTest::newRow("get on, overwrite")
        << QList{yes, yes} << QStringList{largeDropAlert, overwriteAlert} << true;
}

void DropQuestionsTest::asksInOrderAndStopsAtTheFirstNo()
{
    QFETCH(QStringList, questions);
    QFETCH(QList<AlertButton>, answers);
    TestRun run;
    run.host.texts[TextField::UidRoot] = validRoot;
    run.host.checkStates[CheckBox::OverwriteSource] = Qt::Checked;
    run.host.answers = answers;

    const bool starts = takeDrop(run.context, fileNames(513)).has_value();

    QTEST(starts, "starts");
    QCOMPARE(run.host.calls, validCheck + questions);
    QVERIFY(run.host.answers.isEmpty());
}

void DropQuestionsTest::everyQuestionIsEscapedByItsDefaultButton()
{
    TestRun run;
    run.host.texts[TextField::UidRoot] = validRoot;
    run.host.checkStates[CheckBox::OverwriteSource] = Qt::Checked;
    run.host.answers = {AlertButton::Alternate, AlertButton::Alternate, AlertButton::Default};
    run.uuids.uuids = {QStringLiteral("FFFFFFFF-FFFF-FFFF-FFFF-FFFFFFFFFFFF")};
    QVERIFY(takeDrop(run.context, fileNames(513)));
    run.host.texts[TextField::CaseId] = QStringLiteral("12a");
    QVERIFY(!takeDrop(run.context, fileNames(513)));

    QCOMPARE(run.host.alerts.size(), 3);
    for (const ModalAlert &alert : std::as_const(run.host.alerts))
        QCOMPARE(alert.escape, AlertButton::Default);
}

void DropQuestionsTest::keepsAskingAboutOverwritingWhenConstructing()
{
    TestRun run;
    run.host.texts[TextField::UidRoot] = validRoot;
    run.host.checkStates[CheckBox::OverwriteSource] = Qt::Checked;
    run.host.checkStates[CheckBox::Prepopulate] = Qt::Checked;
    run.host.answers = {AlertButton::Alternate};
    QVERIFY(takeDrop(run.context, fileNames(1)));
    QCOMPARE(run.host.calls, validCheck + QStringList(overwriteAlert));
}

void DropQuestionsTest::anEmptyDropIsARunWithItsQuestions()
{
    TestRun run;
    run.host.texts[TextField::UidRoot] = validRoot;
    run.host.checkStates[CheckBox::OverwriteSource] = Qt::Checked;
    run.host.answers = {AlertButton::Alternate};

    const std::optional<Drop> drop = takeDrop(run.context, {});

    QVERIFY(drop);
    QCOMPARE(drop->folders + drop->individualFiles, QStringList());
    QCOMPARE(run.host.calls, validCheck + QStringList(overwriteAlert));
}

} // namespace dravolin::test

DRAVOLIN_TEST(dravolin::test::DropQuestionsTest)
#include "tst_dropquestions.moc"
