#include "run/jobs/ScriptJob.h"
#include "support/ScratchFolder.h"
#include "support/TestEntry.h"

#include <QTest>

#include <atomic>
#include <thread>
#include <vector>

using namespace dravolin;
using test::ScratchFolder;

namespace {

// Executes the script itself, not a shell that executes it.
class WithoutShell : public JobRunner
{
public:
    [[nodiscard]] JobResult run(const Job &job) override
    {
        return PosixJobRunner().run(
            {joinPath(job.folder, scriptFileName), {}, job.folder, job.environment, false});
    }
};

const QString redirection = QStringLiteral(" >.noxTemp.out 2>&1");

} // namespace

// Jobs of several runs beside each other.
class TestScriptJobThreads : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void threadsBesideEachOtherKeepTheirJobsApart();
    void scriptIsNeverBusyWhileOtherChildrenStart();

private:
    std::unique_ptr<ScratchFolder> m_scratch;
    AppPaths m_paths;
    QString m_folder;
};

void TestScriptJobThreads::init()
{
    m_scratch = std::make_unique<ScratchFolder>();
    m_paths.resourceFolder = m_scratch->folder(QStringLiteral("resources"));
    m_folder = m_scratch->folder(QStringLiteral("s1"));
}

void TestScriptJobThreads::threadsBesideEachOtherKeepTheirJobsApart()
{
    constexpr int threadCount = 4;
    constexpr int times = 50;
    std::atomic<int> good = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < threadCount; ++i) {
        const QString folder = m_scratch->folder(QStringLiteral("t%1").arg(i));
        threads.emplace_back([this, folder, &good] {
            PosixJobRunner jobs;
            for (int time = 0; time < times; ++time) {
                const QString number = QString::number(time);
                if (runScriptJob(jobs, m_paths, folder, QStringLiteral("echo ") + number + redirection)
                        .output == number + u'\n')
                    ++good;
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(good.load(), threadCount * times);
}

// One thread starts children that take long to come up (a long argument list has to be copied) and that must
// not inherit a script which another thread has open at that moment. The other one executes its script at
// once, without a shell between, so that a script that somebody still holds open for writing shows.
void TestScriptJobThreads::scriptIsNeverBusyWhileOtherChildrenStart()
{
    std::atomic<bool> done = false;
    std::thread other([&done] {
        const Job slow = {QStringLiteral("/bin/true"), QStringList(16, QString(120000, u'x')),
                          QStringLiteral("/"), QStringList(), false};
        while (!done)
            (void)PosixJobRunner().run(slow);
    });
    WithoutShell jobs;
    int good = 0;
    constexpr int times = 100;
    const QString longScript = QStringLiteral("exit\n") + QString(1000000, u'#'); // takes long to be written
    for (int time = 0; time < times; ++time)
        good += runScriptJob(jobs, m_paths, m_folder, longScript).ran ? 1 : 0;
    done = true;
    other.join();
    QCOMPARE(good, times);
}

DRAVOLIN_TEST(TestScriptJobThreads)
#include "tst_scriptjobthreads.moc"
