#include "run/StartUp.h"

#include "base/FileHandleReserve.h"
#include "base/SystemLog.h"
#include "run/jobs/JobRunner.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
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

bool install(const QLocale &locale, const QString &table, const QString &folder)
{
    auto *const texts = new QTranslator(QCoreApplication::instance());
    return texts->load(locale, table, QStringLiteral("_"), folder) &&
           QCoreApplication::installTranslator(texts);
}

} // namespace

void prepareProcess()
{
    if (qEnvironmentVariableIsEmpty("HOME")) {
        if (const passwd *user = ::getpwuid(::geteuid()))
            qputenv("HOME", user->pw_dir);
    }
    std::signal(SIGPIPE, SIG_IGN);
    FileHandleReserve::makeRoom();
    usualHandler = qInstallMessageHandler(writeUnlessStuck);
}

bool useLanguage(const QString &language, const QString &folder)
{
    const QLocale locale(language);
    if (!install(locale, QStringLiteral("dravolin"), folder))
        return false;
    // the toolkit's own texts, those of its file chooser for instance; it may not have them
    (void)install(locale, QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    return true;
}

void startUp(const AppPaths &paths, const QStringList &languages)
{
    allowLongArgumentLists();
    for (const QString &language : languages) {
        // the texts themselves are English: whoever prefers it to a language behind it has no table
        if (QLocale(language).language() == QLocale::English ||
            useLanguage(language, paths.translationsFolder()))
            return;
    }
}

} // namespace dravolin
