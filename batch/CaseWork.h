#pragma once

#include "batch/BatchRun.h"
#include "batch/KnownFiles.h"
#include "batch/ProjectKey.h"
#include "batch/ResultNames.h"
#include "dicom/ObjectFile.h"
#include "dicom/SourceFile.h"

#include <QMutex>

#include <atomic>
#include <memory>
#include <vector>

namespace dravolin {

// The files of a run that are still to be done, and what becomes of them. They come in rounds: enough of them
// for all workers, but no more cases than the system may still have in memory when the check reads them. From
// its first round until it is left a case keeps other calls out of its destination.
class CaseWork
{
public:
    // Makes the destinations. All arguments have to outlive it.
    CaseWork(const Plan &plan, PlannedFiles &files, const BatchOptions &options, const ProjectKey &key,
             Journal &journal);

    // Takes the next files, in the order of their cases and paths, but those that the journal says were done,
    // when neither source nor rules have changed. The last round is the one that ends all cases. Fails at a
    // destination that another call works in, or has filled since the list was judged.
    void beginRound();
    [[nodiscard]] qsizetype filesOfRound() const { return static_cast<qsizetype>(m_tasks.size()); }
    // How many cases, from the first one on, have no file behind this round.
    [[nodiscard]] qsizetype casesEnded() const { return m_ended; }
    // Whether any file had to be treated, or a DICOMDIR to be made.
    [[nodiscard]] bool hasMadeAnything() const { return m_taken > 0 || m_hasMade; }
    // Treats a file of the round, from 0; any thread. The result has a temporary name afterwards.
    void treat(qsizetype number);
    [[nodiscard]] bool hasFailed() const { return m_failed; }

    // What follows is for one thread.
    // Makes what was treated since the last time safe, names it and writes it into the journal.
    void save();
    // Adds to the results of a case, all of which are saved, what it needs besides; false after a failure.
    [[nodiscard]] bool finishCase(qsizetype index, const std::function<bool()> &stop);
    // Lets other calls into the destination of a case, which is finished and checked.
    void leaveCase(qsizetype index) { m_locks[static_cast<size_t>(index)] = Descriptor(); }
    [[nodiscard]] QString failure() const { return m_failure; }
    [[nodiscard]] BatchProgress progress() const { return m_progress; }
    [[nodiscard]] QList<CaseCounts> counts() const { return m_counts; }

private:
    struct Task
    {
        size_t ofCase = 0;
        PlannedFile file;
        QString result;       // in the destination
        qsizetype number = 0; // of the run
    };
    struct Treated
    {
        const Task *task = nullptr;
        QString temporary;
        TreatedFile file;
    };

    // A case up to the file that is taken next.
    struct OpenCase
    {
        qint64 place; // in the PlannedFiles
        qsizetype left;
        ResultNames names;
        KnownFiles known;
        bool changes = false; // what it had is not all that it will have
    };

    void nameStudies();
    void makeDestinations();
    void takeRound();
    void openCase();
    [[nodiscard]] bool beginCase();
    void takeFile();
    [[nodiscard]] bool isDone(const FileRecord &known, const PlannedFile &file, const QString &result) const;
    void removeStale(const PlannedCase &planned);
    [[nodiscard]] Treatment treatmentOf(const PlannedCase &planned);
    [[nodiscard]] QByteArray newUid(const QByteArray &old);
    void countKnown(size_t index, const FileRecord &record);
    void countTreated(const Treated &treated, const FileRecord &record);
    [[nodiscard]] FileRecord nameResult(const Treated &treated);
    [[nodiscard]] bool makeFolder(const QString &path);
    void fail(const QString &text);

    const Plan &m_plan;
    PlannedFiles &m_files;
    const BatchOptions &m_options;
    const ProjectKey &m_key;
    Journal &m_journal;
    std::vector<Treatment> m_treatments; // of the cases
    std::vector<QString> m_sources;      // their folders
    std::vector<Descriptor> m_locks;     // of their destinations
    std::vector<Task> m_tasks;           // of the round
    quint64 m_bytes = 0;                 // of them
    qsizetype m_taken = 0;               // into all rounds
    bool m_hasMade = false;              // a DICOMDIR
    qsizetype m_ended = 0;
    std::optional<OpenCase> m_open;          // whose files are being taken
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
