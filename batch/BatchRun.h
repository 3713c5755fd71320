#pragma once

#include "batch/CaseFindings.h"
#include "batch/Journal.h"
#include "batch/Plan.h"

#include <QList>
#include <QString>

#include <functional>
#include <optional>

// Carrying out a list of cases.
namespace dravolin {

struct BatchProgress
{
    qsizetype files = 0; // done in this call, or found done
    qsizetype allFiles = 0;
    quint64 bytes = 0;     // of these files
    qsizetype checked = 0; // files of source and destination, in the check of a case that goes on
    qsizetype toCheck = 0; // all of these; 0 while files are treated
    qsizetype cases = 0;   // done and checked
    qsizetype allCases = 0;
};

struct CaseCounts
{
    QString caseId;
    qsizetype done = 0;        // with a result, from this call or an earlier one
    qsizetype directories = 0; // DICOMDIRs of the source; the result gets one of its own
    qsizetype notInDirectory = 0;
    qsizetype movedToUtf8 = 0; // in this call
    QList<FileRecord> notDone; // with a problem
};

struct BatchOutcome
{
    QList<ListProblem> problems; // the list or the call is wrong; nothing was done
    bool interrupted = false;
    bool nothingToDo = false; // everything had been done before
    QList<CaseCounts> cases;
    QList<std::optional<CaseFindings>> findings; // of the cases; nothing for one that was not checked
    qint64 checkMilliseconds = 0;
    QString failure; // what kept the run from going on, such as a journal that cannot be written
};

struct BatchEvents
{
    std::function<void(const BatchProgress &)> progress; // several times a second, one thread at a time
    std::function<bool()> stop;                          // called from any thread; true ends the run early
};

// Plans without writing anything. The journal of an earlier call is not looked at.
[[nodiscard]] Plan planBatch(const BatchOptions &options, const std::function<bool()> &stop);

// Carries the list out and checks each case by value, or goes on where an earlier call was. Sources are only
// read. A result gets its name when its bytes are safe on the disk; the journal knows it after that. Evidence
// (batch/Evidence.h) is written at the end, unless the call was stopped or failed. Two calls with one run
// folder exclude each other, and so do two with one destination while its case is done and checked.
[[nodiscard]] BatchOutcome runBatch(const BatchOptions &options, const BatchEvents &events);

} // namespace dravolin
