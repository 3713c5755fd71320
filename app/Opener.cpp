#include "app/Opener.h"

#include "config/FileSystem.h"
#include "identifiers/SystemLog.h"
#include "run/jobs/JobRunner.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QProcess>

namespace dravolin {

namespace {

constexpr int startTimeout = 1000;  // milliseconds for a process to be created, which takes a few
constexpr int answerTimeout = 2000; // milliseconds for a file browser to start and to answer

void logFailure(const QString &url)
{
    logMessage(QStringLiteral("Failed to open url: %1").arg(url));
}

} // namespace

Opener::Opener(QObject *parent) : QObject(parent)
{
}

void Opener::openUrl(const QString &url)
{
    // without a parent: destroying it with the program would kill a browser that is still starting
    auto *process = new QProcess;
    process->setProcessChannelMode(QProcess::ForwardedChannels);
    process->setStandardInputFile(QProcess::nullDevice());
    QObject::connect(process, &QProcess::errorOccurred, process,
                     [process, url](QProcess::ProcessError error) {
                         if (error != QProcess::FailedToStart)
                             return;
                         logFailure(url);
                         process->deleteLater();
                     });
    QObject::connect(process, &QProcess::finished, process,
                     [process, url](int exitCode, QProcess::ExitStatus) {
                         if (exitCode != 0)
                             logFailure(url);
                         process->deleteLater();
                     });
    const std::lock_guard lock(processStartMutex());
    process->start(QStringLiteral("xdg-open"), {url});
    process->waitForStarted(startTimeout);
}

void Opener::reveal(const QString &path, std::function<void()> then)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        openUrl(parentPath(path));
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
                             openUrl(parentPath(path));
                         then();
                     });
}

} // namespace dravolin
