#include "app/MainThreadGate.h"
#include "support/TestEntry.h"
#include "support/TestRun.h"

#include <QCoreApplication>
#include <QTest>
#include <QThread>

#include <atomic>
#include <memory>
#include <new>

using namespace dravolin;

namespace {

class TestMainThreadGate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void runsAtOnceOnTheMainThread();
    void runsOnTheMainThreadForOthers();
    void givesValues();
    void closedGateTurnsAway();
    void closingWakesWaiters();
    void closingLeavesWorkThatHasBegunToItsEnd();
    void manyThreadsInterleave();
    void workWithoutMemoryIsLeft();

private:
    [[nodiscard]] static std::unique_ptr<QThread> started(const std::function<void()> &work)
    {
        std::unique_ptr<QThread> thread(QThread::create(work));
        thread->start();
        return thread;
    }
};

void TestMainThreadGate::runsAtOnceOnTheMainThread()
{
    MainThreadGate gate;
    bool ran = false;
    QVERIFY(gate.run([&] { ran = true; }));
    QVERIFY(ran);
    gate.close();
    QVERIFY(gate.run([&] { ran = false; }));
    QVERIFY(!ran);
}

void TestMainThreadGate::runsOnTheMainThreadForOthers()
{
    MainThreadGate gate;
    std::atomic<QThread *> ranOn = nullptr;
    std::atomic<bool> result = false;
    const auto thread = started([&] { result = gate.run([&] { ranOn = QThread::currentThread(); }); });
    QTRY_VERIFY(thread->isFinished());
    QVERIFY(result);
    QCOMPARE(ranOn.load(), QCoreApplication::instance()->thread());
}

void TestMainThreadGate::givesValues()
{
    MainThreadGate gate;
    std::atomic<int> value = 0;
    const auto thread = started([&] { value = gate.get([] { return 42; }).value_or(-1); });
    QTRY_VERIFY(thread->isFinished());
    QCOMPARE(value.load(), 42);
}

void TestMainThreadGate::closedGateTurnsAway()
{
    MainThreadGate gate;
    gate.close();
    std::atomic<bool> ran = false;
    std::atomic<bool> result = true;
    const auto thread = started([&] { result = gate.run([&] { ran = true; }); });
    QVERIFY(thread->wait(5000));
    QVERIFY(!result);
    QVERIFY(!ran);
    std::atomic<bool> gotValue = true;
    const auto getter = started([&] { gotValue = gate.get([] { return 1; }).has_value(); });
    QVERIFY(getter->wait(5000));
    QVERIFY(!gotValue);
}

void TestMainThreadGate::closingWakesWaiters()
{
    MainThreadGate gate;
    std::atomic<bool> ran = false;
    std::atomic<bool> result = true;
    const auto thread = started([&] { result = gate.run([&] { ran = true; }); });
    QVERIFY(!thread->wait(50)); // nobody runs the event loop: it waits
    gate.close();
    QVERIFY(thread->wait(5000));
    QVERIFY(!result);
    QCoreApplication::processEvents();
    QVERIFY(!ran);
}

void TestMainThreadGate::closingLeavesWorkThatHasBegunToItsEnd()
{
    MainThreadGate gate;
    QThread *waiting = nullptr;
    bool wentOn = true;
    std::atomic<bool> result = false;
    const auto thread = started([&] {
        result = gate.run([&] {
            gate.close();
            wentOn = waiting->wait(50); // the work is still at the thread's own variables
        });
    });
    waiting = thread.get();
    QTRY_VERIFY(thread->isFinished());
    QVERIFY(!wentOn);
    QVERIFY(result);
}

void TestMainThreadGate::workWithoutMemoryIsLeft()
{
    MainThreadGate gate;
    std::atomic<bool> result = false;
    const test::LogCatcher log;
    const auto thread = started([&] { result = gate.run([] { throw std::bad_alloc(); }); });
    QTRY_VERIFY(thread->isFinished());
    QVERIFY(result);
    QCOMPARE(test::LogCatcher::messages(), QStringList(QStringLiteral("Not enough memory")));
}

void TestMainThreadGate::manyThreadsInterleave()
{
    MainThreadGate gate;
    int count = 0; // touched on the main thread only
    std::vector<std::unique_ptr<QThread>> threads;
    for (int i = 0; i < 4; ++i)
        threads.push_back(started([&] {
            for (int k = 0; k < 100; ++k)
                (void)gate.run([&] { ++count; });
        }));
    for (const auto &thread : threads)
        QTRY_VERIFY(thread->isFinished());
    QCOMPARE(count, 400);
}

} // namespace

DRAVOLIN_TEST(TestMainThreadGate)
#include "tst_mainthreadgate.moc"
