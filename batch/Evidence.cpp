#include "batch/Evidence.h"

#include "base/Files.h"
#include "base/PathText.h"
#include "batch/CaseChecks.h"
#include "batch/TableFile.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QJsonDocument>

#include <algorithm>
#include <filesystem>
#include <span>

namespace dravolin {

namespace {

const QString reportNames[] = {QStringLiteral("report.html"), QStringLiteral("report.json")};
const QString filesName = QStringLiteral("files.csv");
const QString uidMapName = QStringLiteral("uid_map.csv");
const QString patientMapName = QStringLiteral("patient_map.csv");
const QString notDoneName = QStringLiteral("not_done.csv");
const QString evidenceNames[] = {reportNames[0], reportNames[1], filesName};
const QString secretNames[] = {uidMapName, patientMapName, notDoneName};

bool writeFiles(const EvidenceSources &sources, const QString &folder)
{
    TableFile table(joinPath(folder, filesName), 0644);
    table.addLine({QStringLiteral("case_id"), QStringLiteral("result"), QStringLiteral("sha256_before"),
                   QStringLiteral("sha256_after")});
    for (const PlannedCase &planned : sources.plan.cases) {
        const QString &caseId = planned.row.caseId;
        sources.journal.forEachResult(caseId, [&](const FileRecord &record) {
            table.addLine({caseId, record.result, QString::fromLatin1(record.hashBefore),
                           QString::fromLatin1(record.hashAfter)});
        });
    }
    return table.finish();
}

const QStringList mapHead = {QStringLiteral("id_old"), QStringLiteral("id_new")};

bool writeUidMap(const QString &folder, const Journal &journal)
{
    TableFile table(joinPath(folder, uidMapName), 0600);
    table.addLine(mapHead);
    journal.forEachUid([&table](const QByteArray &old, const QByteArray &replacement) {
        table.addLine({QString::fromLatin1(old), QString::fromLatin1(replacement)});
    });
    return table.finish();
}

bool writePatientMap(const Plan &plan, const QString &folder)
{
    TableFile table(joinPath(folder, patientMapName), 0600);
    table.addLine(mapHead);
    for (const PlannedCase &planned : plan.cases) {
        QList<QByteArray> patients = planned.patients.values();
        std::sort(patients.begin(), patients.end());
        for (const QByteArray &patient : patients)
            table.addLine({fromBytes(patient), planned.row.caseId});
    }
    return table.finish();
}

bool writeNotDone(const QList<CaseCounts> &counts, const QString &folder)
{
    TableFile table(joinPath(folder, notDoneName), 0600);
    table.addLine({QStringLiteral("case_id"), QStringLiteral("source"), QStringLiteral("reason")});
    for (const CaseCounts &count : counts)
        for (const FileRecord &record : count.notDone)
            table.addLine({count.caseId, record.path, record.problem});
    return table.finish();
}

bool areThere(const QString &folder, std::span<const QString> names)
{
    return std::ranges::all_of(names,
                               [&](const QString &name) { return pathExists(joinPath(folder, name)); });
}

} // namespace

QString secretFolder(const QString &runFolder)
{
    return joinPath(runFolder, QStringLiteral("secret"));
}

QString evidenceFolder(const QString &runFolder)
{
    return joinPath(runFolder, QStringLiteral("evidence"));
}

bool writeReports(QJsonObject report, const QString &folder)
{
    report.insert(QStringLiteral("time"), QDateTime::currentDateTime().toString(Qt::ISODate));
    TableFile json(joinPath(folder, QStringLiteral("report.json")), 0644);
    json.add(QJsonDocument(report).toJson());
    TableFile page(joinPath(folder, QStringLiteral("report.html")), 0644);
    page.add(toBytes(evidencePage(report)));
    return json.finish() && page.finish();
}

bool hasReports(const QString &folder)
{
    return areThere(folder, reportNames);
}

void withdrawReports(const QString &caseId, const QString &evidence)
{
    for (const QString &name : evidenceNames)
        removeFile(joinPath(evidence, name));
    for (const QString &name : reportNames)
        removeFile(joinPath(joinPath(evidence, caseReports(caseId)), name));
}

bool removeOtherReports(const QStringList &caseIds, const QString &evidence)
{
    QSet<QString> kept;
    for (const QString &caseId : caseIds)
        kept.insert(lastPathComponent(caseReports(caseId)));
    const QString cases = joinPath(evidence, QStringLiteral("cases"));
    bool done = true;
    for (const QString &name : listNames(cases)) {
        const QString other = joinPath(cases, name);
        if (kept.contains(name) || !isFolder(other))
            continue;
        for (const QString &report : reportNames) {
            removeFile(joinPath(other, report));
            done = done && !pathExists(joinPath(other, report));
        }
        std::error_code notEmpty; // somebody's own files stay
        std::filesystem::remove(systemPath(other).toStdString(), notEmpty);
    }
    return done;
}

bool writeEvidence(const EvidenceSources &sources, const BatchOutcome &outcome)
{
    const QString evidence = evidenceFolder(sources.options.runFolder());
    const QString secret = secretFolder(sources.options.runFolder());
    QStringList caseIds;
    for (const PlannedCase &planned : sources.plan.cases)
        caseIds.append(planned.row.caseId);
    if (!removeOtherReports(caseIds, evidence))
        return false;
    const QString written = QStringLiteral("evidence"); // a hash of the report that is there
    const QJsonObject report = evidenceReport(sources, outcome);
    const QByteArray hash =
        QCryptographicHash::hash(QJsonDocument(report).toJson(), QCryptographicHash::Sha256);
    if (outcome.nothingToDo && sources.journal.value(written) == hash && areThere(evidence, evidenceNames) &&
        areThere(secret, secretNames))
        return true;
    return sources.journal.setValue(written, {}) && createFolder(evidence) && writeFiles(sources, evidence) &&
           writeReports(report, evidence) && writeUidMap(secret, sources.journal) &&
           writePatientMap(sources.plan, secret) && writeNotDone(outcome.cases, secret) &&
           sources.journal.setValue(written, hash);
}

} // namespace dravolin
