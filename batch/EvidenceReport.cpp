#include "batch/Evidence.h"

#include "base/Files.h"
#include "batch/CaseChecks.h"
#include "check/Findings.h"

#include <QCryptographicHash>
#include <QJsonArray>

namespace dravolin {

namespace {

QString hashOfFile(const QString &path)
{
    const QByteArray bytes = readBytes(path).value_or(QByteArray());
    return QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex());
}

QJsonObject caseObject(const PlannedCase &planned, const CaseCounts &counts, const BatchOptions &options)
{
    const CaseRow &row = planned.row;
    QJsonObject object = {
        {QStringLiteral("caseId"), row.caseId},
        {QStringLiteral("configurationSha256"),
         hashOfFile(row.configuration.isEmpty() ? options.defaultConfiguration : row.configuration)},
        {QStringLiteral("done"), counts.done},
        {QStringLiteral("notDone"), counts.notDone.size()},
        {QStringLiteral("dicomdirs"), counts.directories},
        {QStringLiteral("notInDicomdir"), counts.notInDirectory},
        {QStringLiteral("studies"), planned.studies.size()},
        {QStringLiteral("patients"), planned.patients.size()},
        {QStringLiteral("reports"), caseReports(row.caseId)},
    };
    if (!row.table.isEmpty())
        object.insert(QStringLiteral("tableSha256"), hashOfFile(row.table));
    if (!row.identifiers.isEmpty())
        object.insert(QStringLiteral("identifiersSearched"), planned.identifiers.size());
    return object;
}

} // namespace

QJsonObject evidenceReport(const EvidenceSources &sources, const BatchOutcome &outcome)
{
    const BatchOptions &options = sources.options;
    QJsonArray cases;
    for (qsizetype i = 0; i < outcome.cases.size(); ++i) {
        QJsonObject object = caseObject(sources.plan.cases.at(i), outcome.cases.at(i), options);
        if (outcome.findings.at(i))
            object.insert(QStringLiteral("check"), jsonOf(*outcome.findings.at(i)));
        cases.append(object);
    }
    QJsonObject report = {
        {QStringLiteral("format"), 1},
        {QStringLiteral("program"), QStringLiteral("Dravolin ") + QLatin1String(DRAVOLIN_VERSION)},
        {QStringLiteral("listSha256"), hashOfFile(options.list)},
        {QStringLiteral("privateAttributesRemoved"), options.removePrivate},
        {QStringLiteral("privateAttributesKept"), options.keptPrivate.size()},
        {QStringLiteral("uidsMapped"), options.mapUids},
        {QStringLiteral("datesMoved"), options.moveDates},
        {QStringLiteral("keyFingerprint"), QString::fromLatin1(sources.keyFingerprint)},
        {QStringLiteral("atLeast"), check::nameOf(options.atLeast)},
        {QStringLiteral("secret"), QStringLiteral("../secret")},
        {QStringLiteral("cases"), cases},
    };
    if (!options.shard.isAll())
        report.insert(QStringLiteral("part"),
                      QStringLiteral("%1/%2").arg(options.shard.number).arg(options.shard.count));
    return report;
}

check::Verdict verdictOf(const QJsonObject &report)
{
    using check::Verdict;
    const check::Grade atLeast = check::gradeNamed(report.value(QStringLiteral("atLeast")).toString())
                                     .value_or(check::Grade::Possible);
    Verdict verdict = Verdict::Clean;
    for (const auto &value : report.value(QStringLiteral("cases")).toArray()) {
        const QJsonObject object = value.toObject();
        const QJsonObject checked = object.value(QStringLiteral("check")).toObject();
        const Verdict one = checked.isEmpty() ? Verdict::Incomplete : findingsFrom(checked).verdict(atLeast);
        if (one == Verdict::Found)
            return one;
        if (one == Verdict::Incomplete || object.value(QStringLiteral("notDone")).toInteger() > 0)
            verdict = Verdict::Incomplete;
    }
    return verdict;
}

} // namespace dravolin
