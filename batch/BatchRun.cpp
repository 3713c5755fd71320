#include "batch/BatchRun.h"

#include "base/Files.h"
#include "base/PathText.h"
#include "base/Texts.h"
#include "batch/CaseChecks.h"
#include "batch/CaseWork.h"
#include "batch/Evidence.h"
#include "batch/ProjectKey.h"
#include "batch/Workers.h"
#include "dicom/LibraryLog.h"
#include "dicom/SourceFile.h"

#include <QElapsedTimer>

#include <sys/file.h>
#include <sys/stat.h>
#include <fcntl.h>

namespace dravolin {

namespace {

// The journal names sources and destinations, and the folder may have been there, open to others.
void keepForOwner(const QString &path)
{
    const Descriptor made(
        ::open(systemPath(path).constData(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600));
    (void)::chmod(systemPath(path).constData(), 0600);
}

// Keeps a second call out of the run's folder as long as it lives.
Descriptor lockFolder(const BatchOptions &options, QString *problem)
{
    const QString folder = options.runFolder();
    for (const QString &made : {options.wholeFolder, secretFolder(options.wholeFolder), parentPath(folder),
                                folder, secretFolder(folder)})
        (void)::mkdir(systemPath(made).constData(), 0700);
    Descriptor lock(::open(systemPath(joinPath(folder, QStringLiteral("lock"))).constData(),
                           O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (!lock.isOpen())
        *problem = Texts::tr("the folder %1 cannot be written to").arg(folder);
    else if (::flock(lock.get(), LOCK_EX | LOCK_NB) != 0)
        *problem = Texts::tr("another call is at work in %1").arg(folder);
    return lock;
}

BatchOutcome refused(const QString &text)
{
    BatchOutcome outcome;
    outcome.problems.append({0, text});
    return outcome;
}

QByteArray fingerprint(const ProjectKey &key)
{
    return key.newUid("fingerprint");
}

// One call, with everything that it needs open.
class BatchCall
{
public:
    BatchCall(const BatchOptions &options, const BatchEvents &events, Journal &journal)
        : m_options(options), m_events(events), m_journal(journal)
    {
    }

    BatchOutcome run()
    {
        silenceLibrary();
        Plan plan = judgeList(m_options,
                              [this](const QString &destination) { return m_journal.casesIn(destination); });
        m_outcome.problems = plan.problems;
        const std::optional<ProjectKey> key = plan.problems.isEmpty() ? openKey() : std::nullopt;
        if (!key)
            return m_outcome;
        PlannedFiles files(m_options.runFolder());
        scanSources(plan, m_options.workers, &files, m_events.stop);
        if (!m_events.stop())
            work(plan, files, *key);
        m_outcome.interrupted = m_events.stop();
        return m_outcome;
    }

private:
    std::optional<ProjectKey> openKey()
    {
        QString problem;
        const QString name = QStringLiteral("key");
        const QByteArray known = m_journal.value(name);
        std::optional<ProjectKey> key;
        if (known.isEmpty() || pathExists(m_options.key))
            key = ProjectKey::readOrMake(m_options.key, &problem);
        else
            problem = Texts::tr("the run was begun with another key than %1, which does not exist")
                          .arg(m_options.key);
        if (key && !known.isEmpty() && known != fingerprint(*key))
            problem = Texts::tr("the run was begun with another key than %1").arg(m_options.key);
        if (key && known.isEmpty() && !m_journal.setValue(name, fingerprint(*key)))
            problem = Texts::tr("the journal cannot be written");
        if (!problem.isEmpty())
            m_outcome.problems.append({0, problem});
        return problem.isEmpty() ? key : std::nullopt;
    }

    void work(const Plan &plan, PlannedFiles &files, const ProjectKey &key)
    {
        CaseWork work(plan, files, m_options, key, m_journal);
        const CaseChecks::Events events = {[this](const check::CheckProgress &now) { tellCheck(now); },
                                           m_events.stop};
        CaseChecks checks(plan, m_options, m_journal, events);
        workAndCheck(work, checks);
        m_outcome.cases = work.counts();
        m_outcome.findings = checks.findings();
        m_outcome.failure = work.failure() + checks.failure();
        m_outcome.nothingToDo =
            m_outcome.failure.isEmpty() && !work.hasMadeAnything() && !checks.hasChecked();
        if (m_events.stop() || !m_outcome.failure.isEmpty())
            return;
        if (!writeEvidence({plan, m_options, m_journal, fingerprint(key)}, m_outcome))
            m_outcome.failure = Texts::tr("the evidence in %1 cannot be written").arg(m_options.runFolder());
    }

    // In rounds, so that the check finds their files in the system's memory.
    void workAndCheck(CaseWork &work, CaseChecks &checks)
    {
        const auto isToEnd = [&] { return m_events.stop() || work.hasFailed(); };
        while (m_casesDone < work.progress().allCases && !isToEnd()) {
            work.beginRound();
            workThrough(
                work.filesOfRound(), m_options.workers, [&](qsizetype number) { work.treat(number); },
                isToEnd,
                [&] {
                    work.save();
                    tell(work.progress());
                });
            for (; m_casesDone < work.casesEnded() && !isToEnd(); ++m_casesDone) {
                if (!work.finishCase(m_casesDone, m_events.stop) || !isChecked(checks))
                    return;
                work.leaveCase(m_casesDone);
            }
        }
    }

    bool isChecked(CaseChecks &checks)
    {
        QElapsedTimer timer;
        timer.start();
        const bool isDone = checks.check(m_casesDone);
        m_outcome.checkMilliseconds += timer.elapsed();
        return isDone;
    }

    void tell(const BatchProgress &progress)
    {
        m_progress = progress;
        m_progress.cases = m_casesDone;
        if (m_events.progress)
            m_events.progress(m_progress);
    }

    void tellCheck(const check::CheckProgress &now) const
    {
        BatchProgress progress = m_progress;
        progress.cases = m_casesDone;
        progress.checked = now.files;
        progress.toCheck = now.allFiles;
        if (m_events.progress)
            m_events.progress(progress);
    }

    const BatchOptions &m_options;
    const BatchEvents &m_events;
    Journal &m_journal;
    BatchOutcome m_outcome;
    BatchProgress m_progress;
    qsizetype m_casesDone = 0; // and checked
};

// Judges the list before the run's folder is made.
Plan judgeBefore(const BatchOptions &options)
{
    QString problem;
    const QString path = joinPath(options.runFolder(), QStringLiteral("journal.sqlite"));
    const std::unique_ptr<Journal> journal = pathExists(path) ? Journal::open(path, &problem) : nullptr;
    if (!problem.isEmpty()) {
        Plan plan;
        plan.problems.append({0, problem});
        return plan;
    }
    return judgeList(options, [&](const QString &destination) {
        return journal ? journal->casesIn(destination) : QStringList();
    });
}

} // namespace

Plan planBatch(const BatchOptions &options, const std::function<bool()> &stop)
{
    silenceLibrary();
    Plan plan = judgeBefore(options);
    if (plan.problems.isEmpty())
        scanSources(plan, options.workers, nullptr, stop);
    return plan;
}

BatchOutcome runBatch(const BatchOptions &options, const BatchEvents &events)
{
    if (const Plan plan = judgeBefore(options); !plan.problems.isEmpty()) {
        BatchOutcome outcome;
        outcome.problems = plan.problems;
        return outcome;
    }
    QString problem;
    const Descriptor lock = lockFolder(options, &problem);
    if (!problem.isEmpty())
        return refused(problem);
    const QString path = joinPath(options.runFolder(), QStringLiteral("journal.sqlite"));
    keepForOwner(path);
    const std::unique_ptr<Journal> journal = Journal::open(path, &problem);
    if (!journal)
        return refused(problem);
    return BatchCall(options, events, *journal).run();
}

} // namespace dravolin
