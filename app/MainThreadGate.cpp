#include "app/MainThreadGate.h"

#include <QCoreApplication>
#include <QEvent>
#include <QThread>

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
    QCoreApplication::postEvent(this, new QEvent(QEvent::User));
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
        handover->work();
        lock.lock();
        handover->done = true;
        m_changed.notify_all();
    }
}

} // namespace dravolin
