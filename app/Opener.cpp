#include "app/Opener.h"

#include "base/PathText.h"
#include "base/SystemLog.h"
#include "run/jobs/JobRunner.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QProcess>
#include <QSet>

namespace dravolin {

namespace {

constexpr int startTimeout = 1000;  // milliseconds for a process to be created, which takes a few
constexpr int answerTimeout = 2000; // milliseconds for a file browser to start and to answer

// The openers that have not ended. Neither they nor the set are destroyed with the program: destroying one
// would kill a browser that is still starting.
QSet<QProcess *> &running()
{
    static auto *const processes = new QSet<QProcess *>;
    return *processes;
}

} // namespace

Opener::Opener(QObject *parent) : QObject(parent)
{
}

void Opener::open(const QString &address)
{
    auto *process = new QProcess;
    running().insert(process);
    process->setProcessChannelMode(QProcess::ForwardedChannels);
    process->setStandardInputFile(QProcess::nullDevice());
    const auto end = [process, address](bool failed) {
        if (failed)
            logMessage(QStringLiteral("Failed to open url: %1").arg(address));
        running().remove(process);
        process->deleteLater();
    };
    QObject::connect(process, &QProcess::errorOccurred, process, [end](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            end(true);
    });
    QObject::connect(process, &QProcess::finished, process,
                     [end](int exitCode, QProcess::ExitStatus) { end(exitCode != 0); });
    const std::lock_guard lock(processStartMutex());
    process->start(QStringLiteral("xdg-open"), {address});
    process->waitForStarted(startTimeout);
}

void Opener::reveal(const QString &path, std::function<void()> then)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        open(parentPath(path));
        then();
        return;
    }
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    const QString url = QString::fromLatin1(toBytes(path).toPercentEncoding("/").prepend("file://"));
    call.setArguments({QStringList{url}, QString()});
    auto *answer = new QDBusPendingCallWatcher(bus.asyncCall(call, answerTimeout), this);
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, this,
                     [this, answer, path, then = std::move(then)] {
                         answer->deleteLater();
                         if (answer->isError())
                             open(parentPath(path));
                         then();
                     });
}

} // namespace dravolin
