#include "app/MainThreadGate.h"

#include "base/SystemLog.h"

#include <QCoreApplication>
#include <QEvent>
#include <QThread>

#include <new>

namespace dravolin {

MainThreadGate::MainThreadGate(QObject *parent) : QObject(parent)
{
}

bool MainThreadGate::onMainThread() const
{
    return QThread::currentThread() == thread();
}

bool MainThreadGate::run(const std::function<void()> &work)
{
    if (onMainThread()) {
        work();
        return true;
    }
    Handover handover{work};
    std::unique_lock lock(m_mutex);
    if (m_closed)
        return false;
    m_queue.push_back(&handover);
    lock.unlock(); // the main thread, once woken, is not to find it locked
    QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    lock.lock();
    m_changed.wait(lock, [&] { return handover.done || (m_closed && !handover.begun); });
    return handover.done;
}

void MainThreadGate::close()
{
    const std::lock_guard lock(m_mutex);
    m_closed = true;
    m_queue.clear();
    m_changed.notify_all();
}

bool MainThreadGate::isClosed() const
{
    const std::lock_guard lock(m_mutex);
    return m_closed;
}

bool MainThreadGate::event(QEvent *event)
{
    if (event->type() != QEvent::User)
        return QObject::event(event);
    runQueued();
    return true;
}

void MainThreadGate::runQueued()
{
    std::unique_lock lock(m_mutex);
    while (!m_queue.empty()) {
        Handover *const handover = m_queue.front();
        m_queue.pop_front();
        handover->begun = true;
        lock.unlock();
        try {
            handover->work();
        } catch (const std::bad_alloc &) {
            logMessage(QStringLiteral("Not enough memory"));
        }
        lock.lock();
        handover->done = true;
        lock.unlock(); // from here on the handover may be gone
        m_changed.notify_all();
        lock.lock();
    }
}

} // namespace dravolin
