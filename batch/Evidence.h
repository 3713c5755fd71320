#pragma once

#include "batch/BatchRun.h"

#include <QByteArray>
#include <QJsonObject>

// What a run leaves behind about itself.
namespace dravolin {

// The folder in a run's folder that nobody else may see: the key, and what links old to new.
[[nodiscard]] QString secretFolder(const QString &runFolder);
// The folder in a run's folder that can be passed on.
[[nodiscard]] QString evidenceFolder(const QString &runFolder);

struct EvidenceSources
{
    const Plan &plan;
    const BatchOptions &options;
    Journal &journal;
    QByteArray keyFingerprint; // tells keys apart, and nothing else about them
};

// Writes, over those of an earlier call: evidence/report.json and report.html, what was done by which rules
// and what the check says, with counts a case; evidence/files.csv, every result with the hashes of source and
// result; secret/uid_map.csv and secret/patient_map.csv with the columns id_old and id_new;
// secret/not_done.csv, the files without a result by their names in the source. Reports of cases that are not
// in the plan are removed. Nothing is written when it would say the same again. False when something could
// not be written.
[[nodiscard]] bool writeEvidence(const EvidenceSources &sources, const BatchOutcome &outcome);

// Whether both reports, of a run or of a case, are in a folder.
[[nodiscard]] bool hasReports(const QString &folder);

// Removes what says that all is done, before results of a case are no longer what it speaks of: the run's
// reports and files.csv, and the reports of the case.
void withdrawReports(const QString &caseId, const QString &evidence);

// Removes the reports of cases that are not among these from a folder of evidence, and nothing else that lies
// there. False when one stays.
[[nodiscard]] bool removeOtherReports(const QStringList &caseIds, const QString &evidence);

// Writes both reports into a folder, with the time of now.
[[nodiscard]] bool writeReports(QJsonObject report, const QString &folder);
// report.json, without the time.
[[nodiscard]] QJsonObject evidenceReport(const EvidenceSources &sources, const BatchOutcome &outcome);
// What report.json says together: whether everything is done and nothing was found.
[[nodiscard]] check::Verdict verdictOf(const QJsonObject &report);
// report.html, from report.json.
[[nodiscard]] QString evidencePage(const QJsonObject &report);

} // namespace dravolin
