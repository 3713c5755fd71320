#pragma once

#include "run/jobs/RunContext.h"
#include "support/RecordingHost.h"

#include <QStringList>
#include <QTemporaryDir>

#include <functional>

namespace dravolin::test {

// A JobRunner that starts nothing: it writes down each job, with the script that lies in its folder, and
// gives what `answer` gives (by default: it ran and printed nothing).
class RecordingJobRunner : public JobRunner
{
public:
    struct Recorded
    {
        Job job;
        QString script; // content of .noxTemp.sh in the job's folder at that moment
    };
    std::function<JobResult(const Job &)> answer;
    QList<Recorded> jobs;

    [[nodiscard]] JobResult run(const Job &job) override;
    [[nodiscard]] QStringList folders() const; // of all jobs, in order
};

// Gives the UUIDs of a list, one a call; one call more fails the test.
class FixedUuidSource : public NOXUtils::UuidSource
{
public:
    QStringList uuids;
    [[nodiscard]] QString uniqueString() override;
};

// A complete context over fakes in a temporary tree, with a desktop, a support, an application and a resource
// folder that exist.
class TestRun
{
public:
    TestRun();
    ~TestRun(); // removes the tree, names that are not UTF-8 included
    TestRun(const TestRun &) = delete;
    TestRun &operator=(const TestRun &) = delete;

    [[nodiscard]] QString path(const QString &relative) const; // below the temporary tree
    QString makeFolder(const QString &relative);               // with parents; gives its path
    QString writeFile(const QString &relative, const QString &text = {});

    QTemporaryDir folder;
    AppPaths paths;
    SharedRunState state;
    RecordingHost host;
    RecordingJobRunner jobs;
    FixedUuidSource uuids;
    RunContext context{state, paths, host, jobs, uuids};
};

// Collects what is written to the system log while it lives; nothing is printed.
class LogCatcher
{
public:
    LogCatcher();
    ~LogCatcher();
    [[nodiscard]] static QStringList messages();
};

} // namespace dravolin::test
