#pragma once

#include "batch/BatchRun.h"
#include "batch/ProjectKey.h"
#include "dicom/ObjectFile.h"
#include "dicom/SourceFile.h"

#include <QMutex>

#include <atomic>
#include <memory>
#include <vector>

namespace dravolin {

// The files of a run that are still to be done, and what becomes of them.
class CaseWork
{
public:
    // Takes out what the journal says was done, when neither source nor rules have changed. All arguments
    // have to outlive it.
    CaseWork(const Plan &plan, const BatchOptions &options, const ProjectKey &key, Journal &journal);

    // The number of files that are to be treated.
    [[nodiscard]] qsizetype open() const { return static_cast<qsizetype>(m_tasks.size()); }
    // Files are in the order of their cases. Where a round of whole cases ends that begins with this file:
    // enough of them for all workers, but no more than the system may still have in memory at its end.
    [[nodiscard]] qsizetype roundEnd(qsizetype begin) const;
    // How many cases, from the first one on, have all their open files before this one.
    [[nodiscard]] qsizetype casesBefore(qsizetype number) const;
    // Treats one of them, from 0; any thread. The result has a temporary name afterwards.
    void treat(qsizetype number);
    [[nodiscard]] bool hasFailed() const { return m_failed; }

    // What follows is for one thread.
    // Makes what was treated since the last time safe, names it and writes it into the journal.
    void save();
    // Adds to the results of a case, all of which are saved, what it needs besides; false after a failure.
    [[nodiscard]] bool finishCase(qsizetype index, const std::function<bool()> &stop);
    [[nodiscard]] QString failure() const { return m_failure; }
    [[nodiscard]] BatchProgress progress() const { return m_progress; }
    [[nodiscard]] QList<CaseCounts> counts() const { return m_counts; }

private:
    struct Task
    {
        size_t ofCase = 0;
        const PlannedFile *file = nullptr;
        QString result; // in the destination
    };
    struct Treated
    {
        const Task *task = nullptr;
        QString temporary;
        TreatedFile file;
    };

    void nameStudies();
    void beginCase(size_t index);
    void beginFile(size_t index, const PlannedFile &file, const QString &result, const FileRecord &known);
    void removeStale(const PlannedCase &planned, const QHash<QString, FileRecord> &known,
                     const QSet<QString> &results);
    [[nodiscard]] Treatment treatmentOf(const PlannedCase &planned);
    [[nodiscard]] QByteArray newUid(const PlannedCase &planned, const QByteArray &old);
    void countKnown(size_t index, const FileRecord &record);
    void countTreated(const Treated &treated, const FileRecord &record);
    [[nodiscard]] FileRecord nameResult(const Treated &treated);
    [[nodiscard]] bool makeFolder(const QString &path);
    void syncDestinations(const std::vector<Treated> &treated);
    void fail(const QString &text);

    const Plan &m_plan;
    const BatchOptions &m_options;
    const ProjectKey &m_key;
    Journal &m_journal;
    std::vector<Treatment> m_treatments; // of the cases
    std::vector<QString> m_sources;      // their folders
    std::vector<Task> m_tasks;
    QHash<QByteArray, QByteArray> m_studies; // new UIDs of the studies that cases hold alone
    QSet<QString> m_folders;                 // that were made for results
    QList<CaseCounts> m_counts;
    BatchProgress m_progress;
    QString m_failure;
    std::atomic<bool> m_failed = false;

    QMutex m_mutex; // guards what follows
    std::vector<Treated> m_treated;
    QHash<QByteArray, QByteArray> m_uids;
};

} // namespace dravolin
