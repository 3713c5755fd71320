#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>
#include <atomic>
#include <ctime>
#include <thread>

// How long a thread is kept from going on.
namespace dravolin::bench {

// Beats each millisecond and keeps the longest time between two beats.
class Heartbeat
{
public:
    Heartbeat()
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        m_timer.setInterval(1);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { beat(); });
        m_since.start();
        m_timer.start();
    }
    [[nodiscard]] double longestMilliseconds() const { return m_longest; }

private:
    void beat()
    {
        m_longest = std::max(m_longest, static_cast<double>(m_since.nsecsElapsed()) / 1e6);
        m_since.restart();
    }

    QTimer m_timer;
    QElapsedTimer m_since;
    double m_longest = 0;
};

// The same in a thread that does nothing else: how long the machine itself keeps a thread waiting.
class MachineNoise
{
public:
    MachineNoise() : m_thread([this] { beat(); }) {}
    ~MachineNoise() { stop(); }
    MachineNoise(const MachineNoise &) = delete;
    MachineNoise &operator=(const MachineNoise &) = delete;

    double stop()
    {
        m_stop = true;
        if (m_thread.joinable())
            m_thread.join();
        return m_longest;
    }

private:
    void beat()
    {
        while (!m_stop) {
            QElapsedTimer since;
            since.start();
            const timespec millisecond = {0, 1'000'000};
            ::nanosleep(&millisecond, nullptr);
            m_longest = std::max(m_longest, static_cast<double>(since.nsecsElapsed()) / 1e6);
        }
    }

    std::atomic<bool> m_stop = false;
    double m_longest = 0;
    std::thread m_thread;
};

} // namespace dravolin::bench
