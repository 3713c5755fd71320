#pragma once

#include <QObject>

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <type_traits>

namespace dravolin {

// Hands work to the main thread and waits for it; the only way from a run's thread to the window. Lives on
// the main thread. Qt's blocking queued calls are not used: at the end of the event loop they hang.
class MainThreadGate : public QObject
{
    Q_OBJECT

public:
    explicit MainThreadGate(QObject *parent = nullptr);

    // Any thread. On the main thread runs `work` at once; elsewhere queues it and returns when it is done.
    // False when the gate was closed before the work began: it then never runs. Work for which memory does
    // not suffice is left where it is, with a message in the system log.
    [[nodiscard]] bool run(const std::function<void()> &work);

    // The same with a value; nothing when the gate was closed.
    template <typename Function>
    [[nodiscard]] auto get(Function &&function) -> std::optional<std::invoke_result_t<Function>>
    {
        std::optional<std::invoke_result_t<Function>> value;
        if (!run([&] { value = function(); }))
            value.reset();
        return value;
    }

    // Main thread, once, when the application ends: drops what is queued and wakes all waiters.
    void close();
    // Any thread.
    [[nodiscard]] bool isClosed() const;

    [[nodiscard]] bool onMainThread() const;

protected:
    bool event(QEvent *event) override;

private:
    struct Handover
    {
        const std::function<void()> &work;
        bool begun = false;
        bool done = false;
    };

    void runQueued();

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<Handover *> m_queue; // each lives on its waiter's stack
    bool m_closed = false;
};

} // namespace dravolin
