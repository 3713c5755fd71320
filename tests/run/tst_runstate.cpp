#include "run/jobs/RunState.h"
#include "support/TestEntry.h"

#include <QTest>

#include <array>
#include <thread>

using namespace dravolin;

class TestRunState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void beginsEmpty();
    void getsSetsAddsAndUpdates();
    void givesCopies();
    void twoThreadsLoseNothing();
};

void TestRunState::beginsEmpty()
{
    const RunState state;
    QCOMPARE(state.errCount, 0U);
    QCOMPARE(state.totalFolders, 0U);
    QCOMPARE(state.folderCount, 0U);
    QCOMPARE(state.usingLUT, false);
    QCOMPARE(state.numLUTadaptedFiles, 0U);
    QCOMPARE(state.numLUTskippedFiles, 0U);
    QVERIFY(state.LUTtagSet.isEmpty());
    QVERIFY(state.AllFoldersNames.isEmpty());
    QVERIFY(state.DICOMDIRpaths.isEmpty());
    QCOMPARE(state.output, QString());
    QVERIFY(state.allTagsToAnonymize.isEmpty());
    QVERIFY(state.newValueDict.isEmpty());
    QVERIFY(state.selectedLUTdict.isEmpty());
    QCOMPARE(state.firstFoundLUTtagInNewValueDict, QString());
    QCOMPARE(state.LUTconstructionTag, QString());
    QVERIFY(state.allConfigPaths.isEmpty());
    QVERIFY(state.allLUTsPaths.isEmpty());
    QCOMPARE(state.jobs, JobTally());
}

void TestRunState::getsSetsAddsAndUpdates()
{
    SharedRunState state;
    state.set(&RunState::output, QStringLiteral("a"));
    state.add(&RunState::errCount, 2);
    state.add(&RunState::errCount, 3);
    const quint64 seen = state.update([](RunState &all) {
        all.output += QStringLiteral("b");
        return all.errCount;
    });
    QCOMPARE(seen, 5U);
    QCOMPARE(state.get(&RunState::output), QStringLiteral("ab"));
    QCOMPARE(state.get(&RunState::errCount), 5U);
}

void TestRunState::givesCopies()
{
    SharedRunState state;
    state.set(&RunState::AllFoldersNames, QStringList{QStringLiteral("a")});
    const QStringList before = state.get(&RunState::AllFoldersNames);
    state.update([](RunState &all) { all.AllFoldersNames.clear(); });
    QCOMPARE(before, QStringList{QStringLiteral("a")});
}

void TestRunState::twoThreadsLoseNothing()
{
    constexpr int times = 20000;
    SharedRunState state;
    const auto count = [&state] {
        for (int i = 0; i < times; ++i) {
            state.add(&RunState::folderCount, 1);
            state.update([](RunState &all) { all.output += u'x'; });
            (void)state.get(&RunState::output);
        }
    };
    std::array<std::thread, 2> threads = {std::thread(count), std::thread(count)};
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(state.get(&RunState::folderCount), quint64{2 * times});
    QCOMPARE(state.get(&RunState::output).size(), 2 * times);
}

DRAVOLIN_TEST(TestRunState)
#include "tst_runstate.moc"
