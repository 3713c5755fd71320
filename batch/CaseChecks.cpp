#include "batch/CaseChecks.h"

#include "base/FileStamps.h"
#include "base/Files.h"
#include "base/PathText.h"
#include "base/Texts.h"
#include "batch/Evidence.h"
#include "check/FileTree.h"
#include "check/ObjectReader.h"
#include "check/Report.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QJsonDocument>
#include <QUrl>

#include <algorithm>

namespace dravolin {

namespace {

// What the run itself writes into results.
QStringList setValues(const PlannedCase &planned)
{
    const CaseRow &row = planned.row;
    QStringList values = {row.caseId,  row.diagnosis, row.keywords,
                          row.credits, row.uidRoot,   QString::fromLatin1(planned.studyUid)};
    for (const QString &value : planned.table)
        values.append(value);
    values.sort(); // a table has no order
    return values;
}

// The default configuration comes with the program, and what it says about itself as well.
check::OwnTexts ownTextsFor(const PlannedCase &planned, const BatchOptions &batch)
{
    check::OwnTexts texts = ownTexts(batch);
    const QString ofDefault = planned.configuration.newValueDict.value(QStringLiteral("0012,0063"));
    if (planned.row.configuration.isEmpty() && !ofDefault.isEmpty())
        texts.insert(deidentificationMethodTag, ofDefault);
    return texts;
}

check::CheckOptions optionsFor(const PlannedCase &planned, const BatchOptions &batch, const Journal &journal)
{
    check::CheckOptions options;
    options.originals = planned.row.source;
    options.result = planned.row.destination;
    options.identifiers = planned.identifiers;
    options.setValues = setValues(planned);
    options.ownTexts = ownTextsFor(planned, batch);
    options.renamed = [&journal, caseId = planned.row.caseId](const check::RenamedVisit &visit) {
        journal.forEachName(caseId, visit);
    };
    options.rules = planned.configuration;
    options.uids = batch.mapUids;
    options.workers = batch.workers;
    return options;
}

// Names, sizes and times: what somebody has changed, added or taken away since a check is checked again.
void addWhatLiesIn(const QString &folder, QCryptographicHash &hash)
{
    const check::FileTree tree = check::listTree(folder);
    for (qsizetype i = 0; i < tree.files.size(); ++i) {
        const QString file = tree.files[i];
        const FileStamp stamp = fileStamp(joinPath(folder, file)).value_or(FileStamp());
        hash.addData(toBytes(file) + '\t' + QByteArray::number(stamp.size) + '\t' +
                     QByteArray::number(stamp.written) + '\n');
    }
    for (const check::FileTree::Link &link : tree.links)
        hash.addData(toBytes(link.path + u'\t' + link.target) + '\n');
    hash.addData(toBytes((tree.others + tree.unlisted).join(u'\n')));
}

// Everything that decides what a check finds, in one hash.
QByteArray subjectOf(const PlannedCase &planned, const check::CheckOptions &options, const Journal &journal)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    const auto add = [&hash](const QString &line) { hash.addData(toBytes(line) + '\n'); };
    for (const QString &line :
         {QStringLiteral(DRAVOLIN_VERSION), options.originals, options.result, QString::number(options.uids)})
        add(line);
    for (auto rule = options.rules->newValueDict.begin(); rule != options.rules->newValueDict.end(); ++rule)
        add(rule.key() + u'\t' + rule.value());
    for (const QString &line : options.rules->allTagsToAnonymize + options.identifiers + options.setValues +
                                   options.ownTexts.values())
        add(line);
    hash.addData(planned.listing);
    addWhatLiesIn(options.result, hash);
    journal.forEachResult(planned.row.caseId, [&add](const FileRecord &record) {
        add(record.path + u'\t' + record.result + u'\t' + QString::fromLatin1(record.hashAfter));
    });
    return hash.result();
}

} // namespace

QString caseReports(const QString &caseId)
{
    constexpr qsizetype longestName = 200;
    QByteArray name = QUrl::toPercentEncoding(caseId);
    if (name.startsWith('.') || name.size() > longestName)
        name = QCryptographicHash::hash(caseId.toUtf8(), QCryptographicHash::Sha256).toHex();
    return joinPath(QStringLiteral("cases"), QString::fromLatin1(name));
}

CaseChecks::CaseChecks(const Plan &plan, const BatchOptions &options, Journal &journal, const Events &events)
    : m_plan(plan), m_options(options), m_journal(journal), m_events(events), m_findings(plan.cases.size())
{
}

bool CaseChecks::check(qsizetype index)
{
    const PlannedCase &planned = m_plan.cases.at(index);
    const QString &caseId = planned.row.caseId;
    const check::CheckOptions options = optionsFor(planned, m_options, m_journal);
    const QByteArray subject = subjectOf(planned, options, m_journal);
    const QString folder = joinPath(evidenceFolder(m_options.runFolder()), caseReports(caseId));
    const QByteArray known = hasReports(folder) ? m_journal.checked(caseId, subject) : QByteArray();
    if (!known.isEmpty()) {
        m_findings[index] = findingsFrom(QJsonDocument::fromJson(known).object());
        return true;
    }
    m_hasChecked = true;
    m_findings[index] = checkNow(options, folder);
    if (!m_findings[index])
        return false;
    const QByteArray json = QJsonDocument(jsonOf(*m_findings[index])).toJson(QJsonDocument::Compact);
    if (!m_journal.setChecked(caseId, subject, json))
        m_failure = Texts::tr("the journal cannot be written");
    return m_failure.isEmpty();
}

std::optional<CaseFindings> CaseChecks::checkNow(const check::CheckOptions &options, const QString &folder)
{
    m_failure = check::initialiseReader();
    if (!m_failure.isEmpty())
        return std::nullopt;
    check::ReportWriter writer(folder, {options, m_options.atLeast, QDateTime::currentDateTime()});
    check::CheckEvents events;
    events.progress = m_events.progress;
    events.stop = m_events.stop;
    events.findings = [&writer](const QString &file, const QList<check::Finding> &findings,
                                const check::Patterns &patterns) { writer.add(file, findings, patterns); };
    if (!writer.begin()) {
        m_failure = writer.error();
        return std::nullopt;
    }
    const check::CheckReport report = check::check(options, events);
    if (m_events.stop())
        return std::nullopt;
    if (!writer.end(report)) {
        m_failure = writer.error();
        return std::nullopt;
    }
    return findingsOf(report);
}

} // namespace dravolin
