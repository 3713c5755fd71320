#include "RunTrace.h"
#include "support/TestEntry.h"

#include "run/RunDriver.h"

#include <QSemaphore>
#include <QTest>

#include <thread>

using namespace dravolin;
using namespace dravolin::test;

namespace {

// One run of two that share their state; window, jobs and files are its own.
class OneOfTwo : public TracedRun
{
public:
    explicit OneOfTwo(SharedRunState &shared) : m_shared(shared) { configure(QString()); }

    void perform(const QStringList &folders)
    {
        m_shared.set(&RunState::allConfigPaths, state.get(&RunState::allConfigPaths));
        Drop dropped = drop(folders, {});
        performRun({m_shared, paths, host, jobs, uuids}, dropped);
    }

private:
    SharedRunState &m_shared;
};

} // namespace

class TestParallelRuns : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsNoGuardBetweenRuns();
    void freelyInterleavedRunsDoAllTheirJobs();
};

// The first run's first job waits until the second run has come to its end: what the second counts and resets
// is seen by the first.
void TestParallelRuns::keepsNoGuardBetweenRuns()
{
    SharedRunState shared;
    OneOfTwo first(shared);
    OneOfTwo second(shared);
    first.makeFolder(str("in/Sub"));
    second.makeFolder(str("in/Other"));
    second.toolOutput[str("~/in")] = str("E: of the second\n");
    QSemaphore firstIsWorking;
    QSemaphore secondIsDone;
    const auto answer = first.jobs.answer;
    first.jobs.answer = [&](const Job &job) {
        if (job.folder == first.path(str("in/Sub"))) {
            firstIsWorking.release();
            secondIsDone.acquire();
        }
        return answer(job);
    };

    std::thread thread([&first] { first.perform({first.path(str("in"))}); });
    firstIsWorking.acquire();
    std::thread other([&second] { second.perform({second.path(str("in"))}); });
    other.join();
    secondIsDone.release();
    thread.join();

    QCOMPARE(second.host.calls, loadCalls +
                                    QStringList({status(0, 4), str("job ~/in/Other"), status(1, 4),
                                                 str("job ~/in"), status(2, 4), str("find ~/in")}) +
                                    endCalls(str("\nDone, with 1 error."), str("E: of the second\n\n")));
    QCOMPARE(first.host.calls, loadCalls +
                                   QStringList({status(0, 2), str("job ~/in/Sub"), status(1, 0),
                                                str("job ~/in"), status(2, 0), str("find ~/in")}) +
                                   endCalls(str("\nDone!")));
}

void TestParallelRuns::freelyInterleavedRunsDoAllTheirJobs()
{
    constexpr int folders = 200;
    SharedRunState shared;
    OneOfTwo runs[] = {OneOfTwo(shared), OneOfTwo(shared)};
    QStringList dropped[2];
    QStringList expected[2];
    for (int run = 0; run < 2; ++run) {
        for (int i = 0; i < folders; ++i)
            dropped[run].append(runs[run].makeFolder(QStringLiteral("in/%1").arg(i)));
        expected[run] = dropped[run] + dropped[run]; // a script in each, then a search in each
    }

    std::thread first([&] { runs[0].perform(dropped[0]); });
    runs[1].perform(dropped[1]);
    first.join();

    for (int run = 0; run < 2; ++run) {
        QCOMPARE(runs[run].jobs.folders(), expected[run]);
        QCOMPARE(runs[run].host.calls.last(), endCall(str("\nDone!")));
    }
    shared.update([](const RunState &state) {
        QCOMPARE(state.allTagsToAnonymize.size(), qsizetype(6)); // the window's five and an empty line's
        QCOMPARE(state.output, QString());
        QCOMPARE(state.AllFoldersNames, QStringList());
    });
}

DRAVOLIN_TEST(TestParallelRuns)
#include "tst_parallelruns.moc"
