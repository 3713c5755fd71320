#include "app/TestApp.h"
#include "base/Files.h"
#include "support/TestEntry.h"
#include "ui_MainWindow.h"

#include <QSemaphore>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>

using namespace dravolin;
using namespace dravolin::test;
using namespace Qt::StringLiterals;

namespace {

const QString header = QStringLiteral(
    "#!/bin/sh\n#This is a temporary file created by Dravolin. If you are reading this, the file is "
    "garbage that can safely be deleted.\n");
const QString enabledList = QStringLiteral("overwrite table construct config generate only");

// A run from the drop to the summary, in the real window.
class TestMainController : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { useHome(m_home.path()); }
    void init();
    void cleanup()
    {
        m_jobMayEnd.release(1000); // a check that failed must not leave a job waiting
        m_app.reset();
    }

    void dropBecomesARun();
    void windowDuringARun();
    void windowAfterARun();
    void windowGrowsWithItsTopEdgeInPlace();
    void logWindowOpensBehindTheSummary();
    void laterLogReplacesTheEarlierOne();
    void refusedQuestionStartsNothing();
    void invalidRootIsReplacedAndShown();
    void impossibleUidIsRefused();
    void onlyGenerateReadsNoConfiguration();
    void missingTitleLoadsTheFixedTags();
    void secondDropRunsBesideTheFirst();
    void closingEndsTheRunBetweenTwoJobs();
    void emptyDropIsAFullRun();
    void folderNamesOfAnyBytes_data();
    void folderNamesOfAnyBytes();
    void operationsForwardToTheCore();

private:
    [[nodiscard]] QString enabledControls() const;
    void blockJobs();

    QTemporaryDir m_home;
    std::unique_ptr<TestApp> m_app;
    QSemaphore m_jobBegan;
    QSemaphore m_jobMayEnd;
};

void TestMainController::init()
{
    m_app = std::make_unique<TestApp>();
    m_app->start();
    m_app->controls->uidRootTextField->setText(validRoot);
}

QString TestMainController::enabledControls() const
{
    const Ui::MainWindow &c = *m_app->controls;
    QStringList names;
    const auto add = [&](const QWidget *widget, const char *name) {
        if (widget->isEnabled())
            names.append(QString::fromLatin1(name));
    };
    add(c.overWriteSourceCheckbox, "overwrite");
    add(c.selectLUTpopupButton, "table");
    add(c.prepopulateLUTcheckbox, "construct");
    add(c.selectConfigPopupButton, "config");
    add(c.generateSOPCheckbox, "generate");
    add(c.onlyGenerateSOPCheckbox, "only");
    return names.join(u' ');
}

// Every job now waits for m_jobMayEnd after it has released m_jobBegan.
void TestMainController::blockJobs()
{
    m_jobBegan.acquire(m_jobBegan.available());
    m_jobMayEnd.acquire(m_jobMayEnd.available());
    m_app->run.jobs.answer = [this](const Job &) {
        m_jobBegan.release();
        m_jobMayEnd.acquire();
        return JobResult{JobOutcome::Ran, {}};
    };
}

void TestMainController::dropBecomesARun()
{
    m_app->controls->caseIDTextField->setText(QStringLiteral("007"));
    m_app->controls->diagnosisTextField->setText(QStringLiteral(" Anon "));
    const QString folder = m_app->run.makeFolder(QStringLiteral("data/study"));
    m_app->drop({folder});
    QVERIFY(m_app->waitForRuns());

    QCOMPARE(m_app->run.jobs.jobs.size(), 2);
    const auto &job = m_app->run.jobs.jobs.first();
    QCOMPARE(job.job.executable, QStringLiteral("/bin/sh"));
    QCOMPARE(job.job.arguments, QStringList({QStringLiteral("-c"), u'"' + folder + u"/.noxTemp.sh\""_s}));
    QCOMPARE(job.job.folder, folder);
    QCOMPARE(job.job.environment.value(), QStringList{u"DCMDICTPATH="_s + m_app->run.paths.dictionary()});
    QCOMPARE(job.script,
             "#!/bin/sh\n#This is a temporary file created by Dravolin. If you are reading this, the file is "
             u"garbage that can safely be deleted.\n"_s +
                 u"\"%1\" -ie -imt"_s.arg(m_app->run.paths.dcmodify()) +
                 " -ea \"(0008,0050)\" -i \"(0010,0010)=Anon\" -i \"(0010,0020)=007\" -ea \"(0010,0030)\""
                 " -i \"(0010,0040)=O\" -i \"(0020,000d)=1.2.12345678901234567890.7\" -ea \"(0032,4000)\""
                 u" * >.noxTemp.out 2>&1"_s);
    QCOMPARE(m_app->run.jobs.jobs.at(1).job.executable, QStringLiteral("/usr/bin/find"));
    QCOMPARE(m_app->status(), QStringLiteral("\nDone!"));
    QVERIFY(!m_app->controller->logWinController());
}

void TestMainController::windowDuringARun()
{
    blockJobs();
    m_app->drop({m_app->run.makeFolder(QStringLiteral("data/study"))});
    QTRY_COMPARE(m_jobBegan.available(), 1);
    const Ui::MainWindow &c = *m_app->controls;
    QCOMPARE(enabledControls(), QString());
    QVERIFY(c.dragDropView->isEnabled());
    QVERIFY(c.createUIDrootButton->isEnabled());
    for (const QLineEdit *edit : {c.uidRootTextField, c.caseIDTextField, c.diagnosisTextField,
                                  c.keywordsTextField, c.creditsTextField})
        QVERIFY(edit->isEnabled());
    QVERIFY(c.spIndicator->isSpinning());
    QVERIFY(c.horLine->isVisible());
    QCOMPARE(
        c.outputTextField->toolTip(),
        QStringLiteral("Processing may take a *very* long time...\n\nThe task is running on a background "
                       "thread\nso you can continue to use your computer\n(stop watching this)."));
    QCOMPARE(m_app->status(), QStringLiteral("\nWorking... 0/1 folders"));
    m_jobMayEnd.release();
    QTRY_COMPARE(m_jobBegan.available(), 2);
    QCOMPARE(m_app->status(), QStringLiteral("\nWorking... 1/1 folders"));
    m_jobMayEnd.release();
    QVERIFY(m_app->waitForRuns());
}

void TestMainController::windowAfterARun()
{
    const Ui::MainWindow &c = *m_app->controls;
    QVERIFY(c.horLine->isHidden());
    QCOMPARE(enabledControls(), QString(enabledList).remove(QStringLiteral(" table")));
    m_app->drop({m_app->run.makeFolder(QStringLiteral("data/study"))});
    QVERIFY(m_app->waitForRuns());
    QCOMPARE(enabledControls(), QString(enabledList).remove(QStringLiteral(" table")));
    QVERIFY(!c.spIndicator->isSpinning());
    QVERIFY(c.horLine->isVisible());
    QCOMPARE(c.outputTextField->toolTip(), QString());

    // with tables the pop-up is enabled when a run ends, not before
    m_app->run.writeFile(QStringLiteral("home/Desktop/AnonymizationLUT_A.txt"));
    m_app->controller->getLUTpathsAndPopulateButton();
    QCOMPARE(enabledControls(), QString(enabledList).remove(QStringLiteral(" table")));
    m_app->drop({m_app->run.makeFolder(QStringLiteral("data/study"))});
    QVERIFY(m_app->waitForRuns());
    QCOMPARE(enabledControls(), enabledList);
}

void TestMainController::windowGrowsWithItsTopEdgeInPlace()
{
    QWidget &window = m_app->controller->window();
    const QRect before = window.geometry();
    QVERIFY(window.minimumSizeHint().height() < 640);
    m_app->drop({});
    QVERIFY(m_app->waitForRuns());
    QCOMPARE(window.geometry(), QRect(before.x(), before.y(), before.width(), 696));
    window.resize(before.width(), 720);
    m_app->drop({});
    QVERIFY(m_app->waitForRuns());
    QCOMPARE(window.geometry(), QRect(before.x(), before.y(), before.width(), 696));
}

void TestMainController::logWindowOpensBehindTheSummary()
{
    const QString folder = m_app->run.makeFolder(QStringLiteral("data/study"));
    m_app->run.jobs.answer = [](const Job &job) {
        if (job.executable == QStringLiteral("/bin/sh"))
            (void)writeText(joinPath(job.folder, QStringLiteral(".noxTemp.out")),
                            QStringLiteral("E: unable to load file x.txt: bad\nE: There was 1 error\n"));
        return JobResult{JobOutcome::Ran, "./DICOMDIR\n"};
    };
    m_app->drop({folder});
    QVERIFY(m_app->waitForRuns());
    QCOMPARE(m_app->status(), QStringLiteral("\nDone. 1 file with errors."));
    QTRY_VERIFY(m_app->controller->logWinController());
    QVERIFY(m_app->controller->logWinController()->window()->isVisible());
    QCOMPARE(m_app->controller->logWinController()->logTextView()->toPlainText(),
             QStringLiteral("E: unable to load file x.txt: bad\n\nMind you: DICOMDIR files were found.\n"
                            "They do not contain DICOM tags to anonymize but still contain PHI:\n"
                            "./DICOMDIR\n\n"));
}

void TestMainController::laterLogReplacesTheEarlierOne()
{
    m_app->controller->showLogWindowWithLogText(QStringLiteral("one"));
    const QPointer<QWidget> first = m_app->controller->logWinController()->window();
    m_app->controller->showLogWindowWithLogText(QStringLiteral("two"));
    QVERIFY(!first);
    QCOMPARE(m_app->controller->logWinController()->logTextView()->toPlainText(), QStringLiteral("two"));

    const std::unique_ptr<QThread> other(
        QThread::create([this] { m_app->controller->showLogWindowWithLogText(QStringLiteral("three")); }));
    other->start();
    QVERIFY(other->wait(5000)); // it does not wait for the main thread
    QTRY_COMPARE(m_app->controller->logWinController()->logTextView()->toPlainText(),
                 QStringLiteral("three"));
}

void TestMainController::refusedQuestionStartsNothing()
{
    QTest::mouseClick(m_app->controls->overWriteSourceCheckbox, Qt::LeftButton, {}, {8, 8});
    QVERIFY(m_app->controls->overWriteSourceCheckbox->isChecked());
    m_app->presenter.answers = {AlertButton::Default};
    m_app->drop({m_app->run.makeFolder(QStringLiteral("data/study"))});
    QCOMPARE(m_app->presenter.alerts.size(), 1);
    QCOMPARE(m_app->presenter.alerts.first().title, QStringLiteral("About to anonymize your data"));
    QVERIFY(!m_app->controller->runIsUnderWay());
    QCOMPARE(m_app->status(), QString());
    QVERIFY(m_app->run.jobs.jobs.isEmpty());

    m_app->presenter.answers = {AlertButton::Alternate};
    m_app->drop({m_app->run.makeFolder(QStringLiteral("data/study"))});
    QVERIFY(m_app->waitForRuns());
    QCOMPARE(m_app->status(), QStringLiteral("\nDone!"));
    QVERIFY(m_app->run.jobs.jobs.first().script.contains(QStringLiteral(" -ie -imt -nb -ea ")));
}

void TestMainController::invalidRootIsReplacedAndShown()
{
    m_app->controls->uidRootTextField->setText(QStringLiteral("1.2.3"));
    m_app->run.uuids.uuids = {QStringLiteral("FFFFFFFF-FFFF-FFFF-FFFF-FFFFFFFFFFFF")};
    m_app->drop({m_app->run.makeFolder(QStringLiteral("data/study"))});
    QVERIFY(m_app->waitForRuns());
    QCOMPARE(m_app->controls->uidRootTextField->text(),
             QStringLiteral("2.25.340282366920938463463374607431768211455"));
    QCOMPARE(m_app->controls->rootValidLabel->text(), QStringLiteral("UID may be valid"));
    QVERIFY(m_app->run.jobs.jobs.first().script.contains(
        QStringLiteral("-i \"(0020,000d)=2.25.340282366920938463463374607431768211455\"")));
}

void TestMainController::impossibleUidIsRefused()
{
    m_app->controls->caseIDTextField->setText(QStringLiteral("12.5"));
    m_app->run.uuids.uuids = {QStringLiteral("00000000-0000-0000-0000-000000000001")};
    m_app->presenter.answers = {AlertButton::Default};
    m_app->drop({m_app->run.makeFolder(QStringLiteral("data/study"))});
    QCOMPARE(m_app->presenter.alerts.size(), 1);
    QCOMPARE(m_app->presenter.alerts.first().title, QStringLiteral("Study Instance UID would be invalid"));
    QVERIFY(!m_app->controller->runIsUnderWay());
    QCOMPARE(m_app->controls->uidRootTextField->text(), QStringLiteral("2.25.1"));
    QCOMPARE(m_app->controls->rootValidLabel->text(), QStringLiteral("Root is invalid, will be replaced"));
}

void TestMainController::onlyGenerateReadsNoConfiguration()
{
    QTest::mouseClick(m_app->controls->onlyGenerateSOPCheckbox, Qt::LeftButton, {}, {8, 8});
    m_app->drop({m_app->run.makeFolder(QStringLiteral("data/study"))});
    QVERIFY(m_app->waitForRuns());
    QCOMPARE(m_app->run.jobs.jobs.size(), 1); // and no search for DICOMDIR files
    QVERIFY(m_app->run.jobs.jobs.first().script.endsWith(
        QStringLiteral("\" -ie -imt -gin * >.noxTemp.out 2>&1")));
    QVERIFY(m_app->controller->state().get(&RunState::allTagsToAnonymize).isEmpty());
}

void TestMainController::missingTitleLoadsTheFixedTags()
{
    m_app->controls->selectConfigPopupButton->clear();
    m_app->drop({m_app->run.makeFolder(QStringLiteral("data/study"))});
    QVERIFY(m_app->waitForRuns());
    QCOMPARE(m_app->controller->state().get(&RunState::allTagsToAnonymize),
             QStringLiteral("0008,0050 0010,0010 0010,0020 0020,000d 0032,4000").split(u' '));
    QCOMPARE(m_app->status(), QStringLiteral("\nDone!"));
}

void TestMainController::secondDropRunsBesideTheFirst()
{
    blockJobs();
    m_app->drop({m_app->run.makeFolder(QStringLiteral("data/one"))});
    QTRY_COMPARE(m_jobBegan.available(), 1);
    // the recording of jobs is not made for two threads: the second run meets another answer first
    m_app->controls->onlyGenerateSOPCheckbox->setChecked(true);
    m_app->drop({});
    QTRY_COMPARE(m_app->status(), QStringLiteral("\nDone!")); // the second is over
    QVERIFY(m_app->controller->runIsUnderWay());              // the first is not
    m_jobMayEnd.release(10);
    QVERIFY(m_app->waitForRuns());
}

void TestMainController::closingEndsTheRunBetweenTwoJobs()
{
    blockJobs();
    const QString folder = m_app->run.makeFolder(QStringLiteral("data/study"));
    m_app->run.makeFolder(QStringLiteral("data/study/a"));
    m_app->drop({folder});
    QTRY_COMPARE(m_jobBegan.available(), 1);
    QSignalSpy closed(m_app->controller.get(), &MainController::closed);
    m_app->controller->window().close();
    QCOMPARE(closed.size(), 1);
    QCOMPARE(QSettings(QStringLiteral("Dravolin"), QStringLiteral("Dravolin"))
                 .value(QStringLiteral("uidRoot"))
                 .toString(),
             validRoot);
    m_jobMayEnd.release(10);
    m_app->controller.reset(); // closes the gate and waits for the thread
    QCOMPARE(m_app->run.jobs.folders(), QStringList{folder + u"/a"_s});
}

void TestMainController::emptyDropIsAFullRun()
{
    m_app->drop({});
    QVERIFY(m_app->waitForRuns());
    QCOMPARE(m_app->status(), QStringLiteral("\nDone!"));
    QVERIFY(m_app->run.jobs.jobs.isEmpty());
    // five fixed tags, two of the file, and the empty one behind its last line break
    QCOMPARE(m_app->controller->state().get(&RunState::allTagsToAnonymize).size(), 8);
}

void TestMainController::folderNamesOfAnyBytes_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("double quote") << QByteArray("a\"b");
    QTest::newRow("single quote") << QByteArray("a'b");
    QTest::newRow("dollar") << QByteArray("a$HOME");
    QTest::newRow("backquote") << QByteArray("a`ls`");
    QTest::newRow("line break") << QByteArray("a\nb");
    QTest::newRow("not UTF-8") << QByteArray("a\xFF\xC3");
    QTest::newRow("blanks and percent") << QByteArray(" a %20 ");
    QTest::newRow("leading dash") << QByteArray("-rf");
}

void TestMainController::folderNamesOfAnyBytes()
{
    QFETCH(QByteArray, name);
    const QString folder = m_app->run.makeFolder(QStringLiteral("data/") + fromBytes(name));
    m_app->drop({folder});
    QVERIFY(m_app->waitForRuns());
    QCOMPARE(m_app->run.jobs.folders(), QStringList({folder, folder}));
    QVERIFY(m_app->run.jobs.jobs.first().script.endsWith(QStringLiteral(" * >.noxTemp.out 2>&1")));
}

void TestMainController::operationsForwardToTheCore()
{
    MainController &controller = *m_app->controller;
    const QString folder = m_app->run.makeFolder(QStringLiteral("data/study"));
    const QStringList fixed = QStringLiteral("0008,0050 0010,0010 0010,0020 0020,000d 0032,4000").split(u' ');
    QCOMPARE(controller.loadTagsToAnonymizeFromPath(QString()), fixed);
    QCOMPARE(controller.getConfigsAtPath(m_app->run.paths.desktopFolder),
             (TitleToPath{{QStringLiteral("Test"), m_app->configurationPath()}}));
    QCOMPARE(controller.getLUTsAtPath(m_app->run.paths.desktopFolder), TitleToPath());
    QCOMPARE(controller.recursivelyCountOfFolderInFolderTree(folder), 1);
    const QStringList tags = {QStringLiteral("0010,0010"), QStringLiteral("0010,0030")};
    controller.state().set(&RunState::newValueDict, NewValueDict{{tags.first(), QStringLiteral("ANON")}});
    const QString prefix = header + u'"' + m_app->run.paths.dcmodify() +
                           u"\" -ie -imt -nb -i \"(0010,0010)=ANON\" -ea \"(0010,0030)\""_s;
    QCOMPARE(controller.anonymizeTagsForDICOMFilesInFolderWithOptions(tags, folder, {}), 0);
    QCOMPARE(m_app->run.jobs.jobs.last().script, prefix + u" * >.noxTemp.out 2>&1"_s);
    QCOMPARE(controller.anonymizeTagsInDICOMFilesInFolderWithOptions(tags, {u"/d/a"_s}, folder, {}), 0);
    QCOMPARE(m_app->run.jobs.jobs.last().script, prefix + u" \"a\" >.noxTemp.out 2>&1"_s);
    QCOMPARE(controller.recursivelyAnonymizeTagsForDICOMFilesInFolderTreeWithOptions(tags, folder, {}), 0);
    QCOMPARE(m_app->run.jobs.jobs.last().script, prefix + u" * >.noxTemp.out 2>&1"_s);
    const QString missing = folder + u"/missing"_s;
    QCOMPARE(controller.anonymizeTagsForDICOMFilesInFolderWithOptions(tags, missing, {}), 1);
    QCOMPARE(controller.anonymizeTagsInDICOMFilesInFolderWithOptions(tags, {u"/d/a"_s}, missing, {}), 1);
    m_app->run.jobs.answer = [](const Job &) { return JobResult{JobOutcome::Ran, "./DICOMDIR\n"}; };
    QCOMPARE(controller.findDICOMDIRsAtPath(folder), QStringList(u"./DICOMDIR"_s));
    RunOptions options;
    options.selectedLUT = QStringLiteral("None"); // no marker: refused
    QCOMPARE(controller.processDICOMfoldersAndIndividualFilesWithOptions({}, {}, options), 1);
    controller.state().set(&RunState::errCount, quint64(2));
    controller.parseLog();
    QCOMPARE(m_app->status(),
             QStringLiteral("Done...\nEncountered 2 errors.\nSee messages logged to console."));
}

} // namespace

DRAVOLIN_TEST(TestMainController)
#include "tst_maincontroller.moc"
