#include "app/TestApp.h"
#include "support/TestEntry.h"
#include "ui_MainWindow.h"

#include <QTest>

#include <mutex>

using namespace dravolin;
using test::TestApp;

namespace {

// Notes where scripts are run; for several runs at once.
class NotedFolders : public JobRunner
{
public:
    [[nodiscard]] JobResult run(const Job &job) override
    {
        const std::lock_guard lock(m_mutex);
        m_folders.append(job.folder);
        return {.outcome = JobOutcome::Ran};
    }
    [[nodiscard]] QStringList sorted()
    {
        const std::lock_guard lock(m_mutex);
        QStringList folders = m_folders;
        folders.sort();
        return folders;
    }

private:
    std::mutex m_mutex;
    QStringList m_folders;
};

} // namespace

// Drops that come while the window still makes ready for another.
class TestDropsBeside : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { test::useHome(m_home.path()); }
    void eachRunsThoughTheWindowGrowsAgain();
    void noneRunsWhenTheWindowGoesAwayWhileItGrows();

private:
    QTemporaryDir m_home;
};

void TestDropsBeside::eachRunsThoughTheWindowGrowsAgain()
{
    NotedFolders jobs;
    TestApp app;
    app.jobs = &jobs;
    app.delays.windowGrowth = 300;
    app.start();
    app.controls->uidRootTextField->setText(test::validRoot);
    app.controls->onlyGenerateSOPCheckbox->setChecked(true); // one job for each folder
    QStringList folders;
    for (const char *name : {"data/1", "data/2", "data/3", "data/4"}) {
        folders.append(app.run.makeFolder(QString::fromLatin1(name)));
        app.drop({folders.last()});
    }
    QTRY_COMPARE(jobs.sorted(), folders);
    QTRY_COMPARE(app.controls->dragDropView->accessibleDescription(), QStringLiteral("anonymize"));
    QVERIFY(app.controls->overWriteSourceCheckbox->isEnabled());
    QVERIFY(app.waitForRuns());
}

void TestDropsBeside::noneRunsWhenTheWindowGoesAwayWhileItGrows()
{
    NotedFolders jobs;
    TestApp app;
    app.jobs = &jobs;
    app.delays.windowGrowth = 60'000;
    app.start();
    app.controls->uidRootTextField->setText(test::validRoot);
    app.drop({app.run.makeFolder(QStringLiteral("data/1"))});
    QVERIFY(!app.controls->overWriteSourceCheckbox->isEnabled());
    app.controller.reset();
    QCoreApplication::processEvents();
    QCOMPARE(jobs.sorted(), QStringList());
}

DRAVOLIN_TEST(TestDropsBeside)
#include "tst_dropsbeside.moc"
