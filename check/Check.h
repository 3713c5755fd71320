#pragma once

#include "check/Findings.h"
#include "check/Pairing.h"
#include "check/PathList.h"
#include "check/Rules.h"
#include "check/Search.h"
#include "check/Values.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

// Proof by value: takes the identifying values out of the originals and searches them everywhere in the
// result.
namespace dravolin::check {

using RenamedVisit = std::function<void(const QString &original, const QString &result)>;

struct CheckOptions
{
    QString originals;       // a folder, or one file
    QString result;          // a folder; with backups the same one
    bool backups = false;    // the originals are the NAME.bak beside the results NAME
    QStringList identifiers; // values to be searched for besides
    QStringList setValues;   // written by whoever made the result: they tell nothing
    OwnTexts ownTexts;       // they tell nothing, whatever words are in them
    // Calls its argument with each original that was renamed, once, and what its result is called; both
    // relative. These names were made for the result and tell nothing. May be null.
    std::function<void(const RenamedVisit &)> renamed;
    std::optional<TagRules> rules;
    bool uids = true; // are searched for
    bool pixels = false;
    int workers = 1;
};

// How far a check is. Files and bytes of both sides.
struct CheckProgress
{
    bool searching = false; // else it reads the originals
    qsizetype files = 0;
    qsizetype allFiles = 0;
    quint64 bytes = 0;
};

// What can be told while it goes on; called one at a time from any of the check's threads.
struct CheckEvents
{
    std::function<void(const CheckProgress &)> progress;
    // Every finding of one file, in the order of files; `file` is its relative path.
    std::function<void(const QString &file, const QList<Finding> &findings, const Patterns &patterns)>
        findings;
    // True ends the check before the next file; what it then returns says nothing.
    std::function<bool()> stop;
};

// A file that was not checked, or not as a whole.
struct UncheckedFile
{
    enum class Side { Original, Result };
    Side side = Side::Result;
    QString path;
    QString reason;
};

struct TagCount
{
    QString tag; // (gggg,eeee)
    QString name;
    bool wanted = false; // another value than the rule sets, else an attribute that it takes away
    quint64 files = 0;
};

struct CheckReport
{
    std::shared_ptr<const Values> values;
    PathList originalFiles;
    PathList resultFiles;
    quint64 originalObjects = 0;
    quint64 resultObjects = 0;
    quint64 bytes = 0;
    QList<FindingGroup> groups;
    std::array<quint64, 3> files = {}; // with findings, by the worst grade of each
    QList<UncheckedFile> unchecked;
    Pairing pairing;
    QList<TagCount> deviations;                     // from the configuration
    quint64 emptied = 0;                            // identifying attributes without a value or with a dummy
    QList<std::pair<QString, QString>> mayShowText; // path and reason

    // Something was found that is at least of this grade, or is not as the configuration says.
    [[nodiscard]] bool found(Grade atLeast) const;
    // Not everything was checked, or nothing was there to be checked.
    [[nodiscard]] bool incomplete() const;
};

// The values in a list of identifiers, one a line.
[[nodiscard]] QStringList identifiersIn(const QString &text);

// Runs the check; returns when it is done. The folders are only read. After a failure of initialiseReader()
// no object is checked as a whole.
[[nodiscard]] CheckReport check(const CheckOptions &options, const CheckEvents &events);

} // namespace dravolin::check
