#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

// The parts of a run, done by several calls, as one.
namespace dravolin {

struct MergeOutcome
{
    QStringList problems; // texts for people; nothing was written
    qsizetype parts = 0;
    QStringList missing; // ids of cases that no part has
    QJsonObject report;  // the one that was written
    QString failure;     // what could not be written
};

// Joins what the parts in `wholeFolder`/parts have left behind, case by case in the order of the list: the
// evidence into `wholeFolder`/evidence, the maps into `wholeFolder`/secret, in the same bytes as from a run
// in one call. The parts have to come from this list, with one key, one version and the same options, and
// none of them may be at work. A case that is in none of them is in the report as not checked.
[[nodiscard]] MergeOutcome mergeParts(const QString &list, const QString &wholeFolder);

} // namespace dravolin
