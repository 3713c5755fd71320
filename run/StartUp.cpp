#include "run/StartUp.h"

#include "base/SystemLog.h"
#include "run/jobs/JobRunner.h"

#include <QCoreApplication>
#include <QTranslator>

#include <csignal>
#include <pwd.h>
#include <unistd.h>

namespace dravolin {

namespace {

QtMessageHandler usualHandler = nullptr;

void writeUnlessStuck(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type == QtFatalMsg || canWriteToStandardError())
        usualHandler(type, context, message);
}

} // namespace

void prepareProcess()
{
    if (qEnvironmentVariableIsEmpty("HOME")) {
        if (const passwd *user = ::getpwuid(::geteuid()))
            qputenv("HOME", user->pw_dir);
    }
    std::signal(SIGPIPE, SIG_IGN);
    usualHandler = qInstallMessageHandler(writeUnlessStuck);
}

void startUp(const AppPaths &paths, const QLocale &locale)
{
    allowLongArgumentLists();
    auto *const texts = new QTranslator(QCoreApplication::instance());
    if (texts->load(locale, QStringLiteral("dravolin"), QStringLiteral("_"), paths.resourceFolder))
        QCoreApplication::installTranslator(texts);
}

} // namespace dravolin
