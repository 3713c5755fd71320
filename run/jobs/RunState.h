#pragma once

#include "config/ConfigurationDiscovery.h"
#include "config/ConfigurationFile.h"
#include "config/LutFile.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <mutex>
#include <utility>

namespace dravolin {

// Everything that a run counts and collects. It lives as long as the application.
struct RunState
{
    quint64 errCount = 0;
    quint64 totalFolders = 0; // denominator of the progress texts
    quint64 folderCount = 0;  // numerator of the progress texts
    bool usingLUT = false;    // the run propagates a table after anonymizing
    quint64 numLUTadaptedFiles = 0;
    quint64 numLUTskippedFiles = 0;
    QSet<QString> LUTtagSet;     // values collected by table construction
    QStringList AllFoldersNames; // lower-cased; the tool complains about them and need not be believed
    QStringList DICOMDIRpaths;   // intended: never emptied while the program runs
    QString output;              // what the tools of this run printed
    QStringList allTagsToAnonymize;
    NewValueDict newValueDict;
    LutTable selectedLUTdict;
    QString firstFoundLUTtagInNewValueDict; // intended: set once, then kept while the program runs
    QString LUTconstructionTag;
    TitleToPath allConfigPaths;
    TitleToPath allLUTsPaths;
    qsizetype max_arg_len = 262144; // characters (UTF-16 units) in one command line; never changes
};

// The one RunState, shared by the main thread and by every run. Each access is safe by itself, so that two
// runs beside each other interleave and cannot break it; nothing holds the lock between two accesses.
class SharedRunState
{
public:
    template <typename Field>
    [[nodiscard]] Field get(Field RunState::*field) const
    {
        const std::lock_guard lock(m_mutex);
        return m_state.*field;
    }

    template <typename Field, typename Value>
    void set(Field RunState::*field, Value &&value)
    {
        const std::lock_guard lock(m_mutex);
        m_state.*field = std::forward<Value>(value);
    }

    void add(quint64 RunState::*counter, quint64 amount)
    {
        const std::lock_guard lock(m_mutex);
        m_state.*counter += amount;
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
