#pragma once

#include "batch/CaseList.h"
#include "batch/PlannedFiles.h"
#include "check/Patterns.h"
#include "config/ConfigurationFile.h"
#include "config/LutFile.h"
#include "dicom/Treatment.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QSet>
#include <QString>

#include <functional>
#include <optional>

// What a run over a list of cases would do.
namespace dravolin {

// The cases of a list that one of several calls does, each of which may run on a machine of its own.
struct Shard
{
    int number = 1; // from 1
    int count = 1;

    bool operator==(const Shard &) const = default;
    [[nodiscard]] bool isAll() const { return count == 1; }
    // Decided by the id alone, the same everywhere.
    [[nodiscard]] bool holds(const QString &caseId) const;
};

// What holds for all cases of a run.
struct BatchOptions
{
    QString list;        // absolute path of the list of cases
    QString wholeFolder; // absolute; all calls for the list put what they leave behind there
    QString key;         // absolute path of the key file
    Shard shard;
    QString defaultConfiguration;
    bool removePrivate = true;
    QSet<QString> keptPrivate; // as in Treatment
    bool mapUids = true;
    bool moveDates = false;
    int workers = 1;
    check::Grade atLeast = check::Grade::Possible; // findings below it are told, but decide nothing

    // The call's own folder, for journal and evidence: that of the whole, or parts/I-of-N in it.
    [[nodiscard]] QString runFolder() const;
};

struct PlannedCase
{
    CaseRow row;
    TagRules configuration;
    LutTable table;
    QStringList identifiers; // searched for by the check, too
    qint64 firstFile = 0;    // its place in the run's PlannedFiles
    qsizetype files = 0;
    QList<PlannedFile> troubled;          // those of them that will not be done
    std::optional<PlannedFile> directory; // the first DICOMDIR
    QByteArray listing;                   // a hash of the paths, sizes and times of all of them
    qsizetype folders = 0;
    bool isIncomplete = false; // not all of these could be listed
    quint64 bytes = 0;
    QSet<QByteArray> studies;
    QSet<QByteArray> patients; // the Patient IDs in the source, as they are written there
    // the new Study Instance UID that the window would give it, or another case of the same study; "" when it
    // is mapped
    QByteArray studyUid;

    [[nodiscard]] QString sourceFolder() const;
};

struct Plan
{
    QList<PlannedCase> cases;
    QList<PlannedCase> others; // of other shards, when their studies get UIDs of their own
    QList<ListProblem> problems;
};

// The ids of the cases that the same run has begun with a destination.
using CasesIn = std::function<QStringList(const QString &destination)>;

// Judges every row of the list, those of other shards included, without looking into the sources: all
// problems at once. A destination that exists has to be the same case's, or empty. Writes nothing.
[[nodiscard]] Plan judgeList(const BatchOptions &options, const CasesIn &casesIn);

// The Study Instance UID that the window would give a case with a root.
[[nodiscard]] QByteArray studyUidOf(const CaseRow &row);

// Looks at every file of the sources, several at a time, and fills in what that tells. The files themselves
// go to `files`, which may be null; a folder that cannot be listed is one of them, with a slash behind its
// path, "./" for the source, and with the reason. `stop` ends it early.
void scanSources(Plan &plan, int workers, PlannedFiles *files, const std::function<bool()> &stop);

inline constexpr TagNumber deidentificationMethodTag = 0x00120063;

// What results say about how they were made, by attribute, unless the configuration decides it.
[[nodiscard]] QMap<TagNumber, QString> ownTexts(const BatchOptions &options);

// The rules of a case, the five fixed attributes and what tells that an object was treated among them.
// Problems with lines of the configuration are added to `problems`.
[[nodiscard]] AttributeRules rulesOf(const PlannedCase &planned, const BatchOptions &options,
                                     QStringList *problems);

} // namespace dravolin
