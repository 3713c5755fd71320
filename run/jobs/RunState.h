#pragma once

#include "config/ConfigurationDiscovery.h"
#include "config/ConfigurationFile.h"
#include "config/LutFile.h"
#include "run/jobs/RunJudgement.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <mutex>
#include <utility>

namespace dravolin {

// What belongs to one run; empty again when it has ended. Two runs beside each other share it.
struct RunTally
{
    quint64 errCount = 0;
    quint64 totalFolders = 0;    // denominator of the progress texts
    quint64 folderCount = 0;     // numerator of the progress texts
    QSet<QString> LUTtagSet;     // values collected by table construction
    QStringList AllFoldersNames; // lower-cased; the tool complains about them and need not be believed
    QString output;              // what the tools of this run printed
    JobTally jobs;
    FileCounts files;
    QSet<QString> unchangedFiles; // paths; only of a run with a table
};

// What is kept from run to run while the program runs.
struct SessionState
{
    bool usingLUT = false; // the run propagates a table after anonymizing
    quint64 numLUTadaptedFiles = 0;
    quint64 numLUTskippedFiles = 0;
    QStringList DICOMDIRpaths; // intended: never emptied while the program runs
    LutTable selectedLUTdict;
    QString firstFoundLUTtagInNewValueDict; // intended: set once, then kept while the program runs
    QString LUTconstructionTag;
    TitleToPath allConfigPaths;
    TitleToPath allLUTsPaths;
};

// All of it, with the tags and new values of the configuration that was loaded last.
struct RunState : TagRules, SessionState, RunTally
{
};

// The one RunState, shared by the main thread and by every run. Each access is safe by itself, so that two
// runs beside each other interleave and cannot break it; nothing holds the lock between two accesses.
class SharedRunState
{
public:
    template <typename Part, typename Field>
    [[nodiscard]] Field get(Field Part::*field) const
    {
        const std::lock_guard lock(m_mutex);
        return m_state.*field;
    }

    // The tags and their new values, of one moment.
    [[nodiscard]] TagRules rules() const
    {
        const std::lock_guard lock(m_mutex);
        return m_state;
    }

    template <typename Part, typename Field, typename Value>
    void set(Field Part::*field, Value &&value)
    {
        const std::lock_guard lock(m_mutex);
        m_state.*field = std::forward<Value>(value);
    }

    void setRules(TagRules rules)
    {
        const std::lock_guard lock(m_mutex);
        static_cast<TagRules &>(m_state) = std::move(rules);
    }

    template <typename Part>
    void add(quint64 Part::*counter, quint64 amount)
    {
        const std::lock_guard lock(m_mutex);
        m_state.*counter += amount;
    }

    // Ends the run's part and gives what it was.
    RunTally takeTally()
    {
        const std::lock_guard lock(m_mutex);
        return std::exchange(static_cast<RunTally &>(m_state), RunTally());
    }

    // Several fields in one step. `change` gets the state; it must not call back into this object.
    template <typename Change>
    auto update(Change &&change)
    {
        const std::lock_guard lock(m_mutex);
        return change(m_state);
    }

private:
    mutable std::mutex m_mutex;
    RunState m_state;
};

} // namespace dravolin
