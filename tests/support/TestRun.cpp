#include "support/TestRun.h"

#include "base/Files.h"
#include "run/jobs/ScriptJob.h"

#include <QTest>

#include <filesystem>
#include <mutex>

namespace dravolin::test {

namespace {

std::mutex logMutex;
QStringList logged;
QtMessageHandler previousHandler = nullptr;

void collect(QtMsgType, const QMessageLogContext &, const QString &text)
{
    const std::lock_guard lock(logMutex);
    logged.append(text);
}

} // namespace

JobResult RecordingJobRunner::run(const Job &job)
{
    jobs.append({job, readText(joinPath(job.folder, scriptFileName)).value_or(QString())});
    return answer ? answer(job) : JobResult{JobOutcome::Ran, {}};
}

QStringList RecordingJobRunner::folders() const
{
    QStringList result;
    for (const Recorded &recorded : jobs)
        result.append(recorded.job.folder);
    return result;
}

QString FixedUuidSource::uniqueString()
{
    if (uuids.isEmpty())
        QTest::qFail("a UUID that nobody expected to be asked for", __FILE__, __LINE__);
    return uuids.isEmpty() ? QStringLiteral("00000000-0000-0000-0000-000000000000") : uuids.takeFirst();
}

TestRun::TestRun()
{
    paths.resourceFolder = makeFolder(QStringLiteral("app/resources"));
    paths.applicationFolder = path(QStringLiteral("app"));
    paths.desktopFolder = makeFolder(QStringLiteral("home/Desktop"));
    paths.applicationSupportFolders = {makeFolder(QStringLiteral("home/share"))};
}

TestRun::~TestRun()
{
    std::error_code ignored;
    std::filesystem::remove_all(folder.path().toStdString(), ignored);
}

QString TestRun::path(const QString &relative) const
{
    return joinPath(folder.path(), relative);
}

QString TestRun::makeFolder(const QString &relative)
{
    if (!createFolder(path(relative)))
        QTest::qFail("a folder could not be made", __FILE__, __LINE__);
    return path(relative);
}

QString TestRun::writeFile(const QString &relative, const QString &text)
{
    const bool written = createFolder(parentPath(path(relative))) && writeText(path(relative), text);
    if (!written)
        QTest::qFail("a file could not be written", __FILE__, __LINE__);
    return path(relative);
}

LogCatcher::LogCatcher()
{
    const std::lock_guard lock(logMutex);
    logged.clear();
    previousHandler = qInstallMessageHandler(collect);
}

LogCatcher::~LogCatcher()
{
    qInstallMessageHandler(previousHandler);
}

QStringList LogCatcher::messages()
{
    const std::lock_guard lock(logMutex);
    return logged;
}

} // namespace dravolin::test
