#include "app/AlertSheetRunner.h"
#include "app/TestApp.h"
#include "base/Files.h"
#include "support/TestEntry.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

using namespace dravolin;
using test::LogCatcher;
using test::TestRun;

namespace {

// While it is lowered, this process can open one more file, but not the two ends of a pipe.
class FileLimit
{
public:
    FileLimit() { ::getrlimit(RLIMIT_NOFILE, &m_before); }
    ~FileLimit() { restore(); }
    FileLimit(const FileLimit &) = delete;
    FileLimit &operator=(const FileLimit &) = delete;

    void restore() const { ::setrlimit(RLIMIT_NOFILE, &m_before); }
    void lower() const
    {
        const int lowest = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
        ::close(lowest);
        const rlimit scarce = {static_cast<rlim_t>(lowest) + 1, m_before.rlim_max};
        if (lowest < 0 || ::setrlimit(RLIMIT_NOFILE, &scarce) != 0)
            qFatal("the limit could not be lowered");
    }

private:
    rlimit m_before = {};
};

// Real processes; the file handles run out before the search in the file "b".
class ScarceJobRunner : public JobRunner
{
public:
    [[nodiscard]] JobResult run(const Job &job) override
    {
        if (job.pipeOutput) // one search a file
            searched.append(job.arguments.last());
        if (job.arguments.last() == QStringLiteral("b"))
            limit.lower();
        const JobResult result = m_processes.run(job);
#ifdef __SANITIZE_ADDRESS__
        limit.restore(); // the sanitizer needs a pipe of its own when it looks at an object's type
#endif
        return result;
    }
    FileLimit limit;
    QStringList searched;

private:
    PosixJobRunner m_processes;
};

// The text of a question with its buttons.
QString described(const QMessageBox &box)
{
    QStringList parts = {box.text(), box.informativeText()};
    for (const QAbstractButton *button : box.buttons())
        parts.append(button->text());
    return parts.join(u'|');
}

} // namespace

// A process that may open no more files while a table is propagated.
class TestFileHandles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void tellsTheUserAndClosesTheWindow_data();
    void tellsTheUserAndClosesTheWindow();

private:
    QTemporaryDir m_home;
};

void TestFileHandles::initTestCase()
{
    test::useHome(m_home.path());
}

void TestFileHandles::tellsTheUserAndClosesTheWindow_data()
{
    QTest::addColumn<QString>("answer");
    QTest::newRow("the default button") << QStringLiteral("OK");
    QTest::newRow("the other button") << QStringLiteral("Quit");
}

void TestFileHandles::tellsTheUserAndClosesTheWindow()
{
    QFETCH(QString, answer);
    TestRun run;
    for (const char *tool : {"app/resources/dcmdump", "app/resources/dcmodify"}) {
        const QString path = run.writeFile(
            QString::fromUtf8(tool), QStringLiteral("#!/bin/sh\necho '(0010,1000) LO [A]   # 2, 1 x'\n"));
        QVERIFY(makeExecutable(path));
    }
    run.writeFile(QStringLiteral("home/Desktop/AnonymizationConfiguration_Test.txt"),
                  QStringLiteral("0010,1000\tOther IDs\t<LUT_Site>"));
    run.writeFile(QStringLiteral("home/Desktop/AnonymizationLUT_Site.txt"),
                  QStringLiteral("<missing>\tX\nA\tS1\n"));
    const QStringList files = {run.writeFile(QStringLiteral("in/a")), run.writeFile(QStringLiteral("in/b")),
                               run.writeFile(QStringLiteral("in/c"))};

    const LogCatcher log;
    ScarceJobRunner jobs;
    MessageBoxPresenter presenter;
    MainController controller(AppPorts{run.paths, jobs, run.uuids, presenter, Delays{0, 0, 0, 0}});
    Ui::MainWindow &controls = controller.controls();
    const QSignalSpy closed(&controller, &MainController::closed);
    connect(&controller, &MainController::closed, this, [&controller] { controller.closeGate(); });
    controller.initAndShow();
    QTRY_COMPARE(controls.selectConfigPopupButton->count(), 1);
    controls.uidRootTextField->setText(test::validRoot);
    controls.selectLUTpopupButton->setCurrentIndex(1);
    controls.overWriteSourceCheckbox->setChecked(false);

    QString shown;
    QTimer answering;
    connect(&answering, &QTimer::timeout, this, [&] {
        auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        answering.stop();
        shown = described(*box);
        for (QAbstractButton *button : box->buttons()) {
            if (button->text() == answer)
                button->click();
        }
    });
    answering.start(5);
    controller.handleDroppedPaths(files);
    QTRY_COMPARE(closed.size(), 1);
    QTRY_VERIFY(!controller.runIsUnderWay());

    QCOMPARE(shown,
             QStringLiteral("Ran out of file handles!|Please try and process your data in slightly smaller "
                            "batches.\n\nNevertheless, this should not have happened. If it reoccurs, "
                            "please let me know.|OK|Quit"));
    QVERIFY(!controller.window().isVisible());
    QCOMPARE(LogCatcher::messages().count(QStringLiteral("Running out of fileHandles")), 1);
    QCOMPARE(jobs.searched, QStringList({QStringLiteral("a"), QStringLiteral("b")}));
    QCOMPARE(controller.state().get(&RunState::numLUTadaptedFiles), 1U);
}

DRAVOLIN_TEST(TestFileHandles)
#include "tst_filehandles.moc"
