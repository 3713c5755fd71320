#include "batch/CaseWork.h"

#include "base/Files.h"
#include "base/PathText.h"
#include "base/Texts.h"
#include "batch/CaseDirectory.h"
#include "batch/CaseRules.h"
#include "batch/Destination.h"
#include "batch/Evidence.h"
#include "batch/StaleResults.h"

#include <QMutexLocker>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <utility>

namespace dravolin {

CaseWork::CaseWork(const Plan &plan, PlannedFiles &files, const BatchOptions &options, const ProjectKey &key,
                   Journal &journal)
    : m_plan(plan), m_files(files), m_options(options), m_key(key), m_journal(journal)
{
    const auto count = static_cast<size_t>(plan.cases.size());
    m_treatments.reserve(count); // rules are pointed to
    m_locks.resize(count);
    m_progress.allCases = plan.cases.size();
    nameStudies();
    for (const PlannedCase &planned : plan.cases) {
        m_counts.emplaceBack().caseId = planned.row.caseId;
        m_treatments.push_back(treatmentOf(planned));
        m_sources.push_back(planned.sourceFolder());
        m_progress.allFiles += planned.files;
    }
    makeDestinations();
}

void CaseWork::nameStudies()
{
    for (const QList<PlannedCase> *some : {&m_plan.cases, &m_plan.others})
        for (const PlannedCase &planned : *some)
            if (!planned.studyUid.isEmpty())
                for (const QByteArray &study : planned.studies)
                    m_studies.insert(study, planned.studyUid);
}

// All of them before the first one gets a result: what cannot be made is told at once.
void CaseWork::makeDestinations()
{
    for (const PlannedCase &planned : m_plan.cases)
        if (const QString problem = makeDestination(planned.row.destination); !problem.isEmpty())
            fail(problem);
}

void CaseWork::removeStale(const PlannedCase &planned)
{
    const StaleResults stale = staleResults(planned, m_files, m_key, m_journal);
    if (!stale.results.isEmpty())
        withdrawReports(planned.row.caseId, evidenceFolder(m_options.runFolder()));
    for (const QString &result : stale.results)
        removeFile(joinPath(planned.row.destination, result));
    for (const QString &path : stale.gone)
        if (!m_journal.remove(planned.row.caseId, path))
            fail(Texts::tr("the journal cannot be written"));
}

bool CaseWork::finishCase(qsizetype index, const std::function<bool()> &stop)
{
    const CaseDirectory made = makeDirectoryOf(m_plan.cases.at(index), m_key, m_journal, stop);
    m_counts[index].hasDirectory = made.isThere;
    m_counts[index].notInDirectory = made.leftOut;
    m_hasMade = m_hasMade || made.isNew;
    if (!made.problem.isEmpty())
        fail(made.problem);
    return !m_failed;
}

void CaseWork::beginRound()
{
    m_tasks.clear();
    m_bytes = 0;
    const bool isSafe = m_journal.together([this] {
        takeRound();
        return !m_failed;
    });
    if (!isSafe && !m_failed)
        fail(Texts::tr("the journal cannot be written"));
    if (!m_files.isGood())
        fail(Texts::tr("the folder %1 cannot be written to").arg(m_options.runFolder()));
}

void CaseWork::takeRound()
{
    constexpr size_t enoughFiles = 2000;
    constexpr quint64 enoughBytes = 256 * 1024 * 1024;
    constexpr qsizetype enoughCases =
        500; // each keeps a folder open, and a process may often open 1024 files
    const qsizetype lastCase = m_ended + enoughCases;
    while (m_ended < m_plan.cases.size() && !m_failed) {
        if (m_open && m_open->left == 0) {
            m_open.reset();
            ++m_ended;
        } else if (m_tasks.size() >= enoughFiles ||
                   (!m_open && (m_bytes >= enoughBytes || m_ended == lastCase))) {
            break; // within a case a round would only make workers wait for each other
        } else if (m_open) {
            takeFile();
        } else {
            openCase();
        }
    }
}

void CaseWork::openCase()
{
    const PlannedCase &planned = m_plan.cases.at(m_ended);
    if (!beginCase())
        return;
    removeStale(planned);
    for (const QByteArray &study : planned.studies)
        if (!planned.studyUid.isEmpty())
            m_uids.insert(study, planned.studyUid);
    KnownFiles known(m_journal, planned.row.caseId);
    if (planned.files == 0 && known.current()) // a share that is not mounted, as a rule
        m_counts[m_ended].notDone.append(
            {QStringLiteral("./"), 0, 0, {}, {}, {}, Texts::tr("is empty now; what was made of it stays")});
    m_open.emplace(
        OpenCase{planned.firstFile, planned.files, {m_key, planned.directory.has_value()}, std::move(known)});
}

// The journal knows the case before it has a result: a later call takes the destination for its own.
bool CaseWork::beginCase()
{
    const PlannedCase &planned = m_plan.cases.at(m_ended);
    const auto index = static_cast<size_t>(m_ended);
    QString problem;
    const bool isOwn = m_journal.casesIn(planned.row.destination).contains(planned.row.caseId);
    m_locks[index] = takeDestination(planned.row.destination, isOwn, &problem);
    const QByteArray rules = rulesHash(m_treatments[index].rules, planned.table, m_options, planned.studyUid);
    if (problem.isEmpty() && !m_journal.begin(planned.row, rules))
        problem = Texts::tr("the journal cannot be written");
    if (!problem.isEmpty())
        fail(problem);
    return problem.isEmpty();
}

void CaseWork::takeFile()
{
    const PlannedFile file = m_files.read(&m_open->place);
    --m_open->left;
    const auto index = static_cast<size_t>(m_ended);
    if (file.isDirectory || !file.problem.isEmpty()) {
        countKnown(index, {file.path, file.size, file.modified, {}, {}, {}, file.problem});
        return;
    }
    const QString result = m_open->names.next(file);
    if (const FileRecord known = m_open->known.find(file.path); isDone(known, file, result)) {
        countKnown(index, known);
        return;
    }
    if (!std::exchange(m_open->changes, true))
        withdrawReports(m_plan.cases.at(m_ended).row.caseId, evidenceFolder(m_options.runFolder()));
    m_bytes += file.size;
    m_tasks.push_back({index, file, result, m_taken++});
}

bool CaseWork::isDone(const FileRecord &known, const PlannedFile &file, const QString &result) const
{
    return known.size == file.size && known.modified == file.modified && known.result == result &&
           pathExists(joinPath(m_plan.cases.at(m_ended).row.destination, result));
}

Treatment CaseWork::treatmentOf(const PlannedCase &planned)
{
    Treatment treatment = treatmentByRules(planned, m_options);
    if (m_options.mapUids)
        treatment.newUid = [this](const QByteArray &old) { return newUid(old); };
    if (m_options.moveDates)
        treatment.daysBack = [this, &planned](const QByteArray &patientId) {
            return m_key.daysBack(patientOf(planned, patientId));
        };
    return treatment;
}

// A study that a case holds alone has the UID that the window gives it, wherever it is named.
QByteArray CaseWork::newUid(const QByteArray &old)
{
    QByteArray result = m_studies.value(old);
    if (result.isEmpty())
        result = m_key.newUid(old);
    const QMutexLocker locker(&m_mutex);
    m_uids.insert(old, result);
    return result;
}

void CaseWork::treat(qsizetype number)
{
    const Task &task = m_tasks[static_cast<size_t>(number)];
    const PlannedCase &planned = m_plan.cases.at(static_cast<qsizetype>(task.ofCase));
    Treated treated;
    treated.task = &task;
    treated.temporary = joinPath(planned.row.destination, temporaryName(task.number));
    treated.file = treatFile(joinPath(m_sources[task.ofCase], task.file.path), treated.temporary,
                             m_treatments[task.ofCase]);
    const QMutexLocker locker(&m_mutex);
    m_treated.push_back(std::move(treated));
}

void CaseWork::save()
{
    std::vector<Treated> treated;
    QHash<QByteArray, QByteArray> uids;
    {
        const QMutexLocker locker(&m_mutex);
        treated.swap(m_treated);
        uids.swap(m_uids);
    }
    if (treated.empty() && uids.isEmpty())
        return;
    QSet<QString> folders;
    for (const Treated &one : treated)
        folders.insert(parentPath(one.temporary));
    if (const QString problem = syncFolders(folders); !problem.isEmpty())
        fail(problem);
    QList<QPair<QString, FileRecord>> records;
    for (const Treated &one : treated) {
        const FileRecord record = nameResult(one);
        records.append({m_plan.cases.at(static_cast<qsizetype>(one.task->ofCase)).row.caseId, record});
        countTreated(one, record);
    }
    if (!m_journal.add(records, uids))
        fail(Texts::tr("the journal cannot be written"));
}

FileRecord CaseWork::nameResult(const Treated &treated)
{
    const Task &task = *treated.task;
    FileRecord record = {
        task.file.path,          treated.file.facts.size, treated.file.facts.modified, task.result,
        treated.file.hashBefore, treated.file.hashAfter,  treated.file.facts.problem};
    const CaseRow &row = m_plan.cases.at(static_cast<qsizetype>(task.ofCase)).row;
    const QString target = joinPath(row.destination, task.result);
    if (record.problem.isEmpty() &&
        (!makeFolder(parentPath(target)) ||
         std::rename(systemPath(treated.temporary).constData(), systemPath(target).constData()) != 0)) {
        record.problem =
            Texts::tr("cannot be given its name: %1").arg(QString::fromLocal8Bit(std::strerror(errno)));
        removeFile(treated.temporary);
    }
    if (!record.problem.isEmpty()) {
        removeFile(target); // of other rules, or of what the source was
        record.result.clear();
    }
    return record;
}

bool CaseWork::makeFolder(const QString &path)
{
    constexpr qsizetype mostFolders = 1000;
    if (m_folders.contains(path))
        return true;
    if (!createFolder(path))
        return false;
    if (m_folders.size() == mostFolders)
        m_folders.clear();
    m_folders.insert(path);
    return true;
}

void CaseWork::countKnown(size_t index, const FileRecord &record)
{
    CaseCounts &counts = m_counts[static_cast<qsizetype>(index)];
    ++m_progress.files;
    if (!record.problem.isEmpty())
        counts.notDone.append(record);
    else if (record.result.isEmpty())
        ++counts.directories;
    else
        ++counts.done;
}

void CaseWork::countTreated(const Treated &treated, const FileRecord &record)
{
    countKnown(treated.task->ofCase, record);
    const bool isMoved = treated.file.movedToUtf8 && record.problem.isEmpty();
    m_counts[static_cast<qsizetype>(treated.task->ofCase)].movedToUtf8 += isMoved ? 1 : 0;
    m_progress.bytes += treated.file.sizeBefore;
}

void CaseWork::fail(const QString &text)
{
    m_failure = text;
    m_failed = true;
}

} // namespace dravolin
