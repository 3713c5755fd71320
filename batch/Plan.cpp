#include "batch/Plan.h"

#include "base/Files.h"
#include "base/NOXUtils.h"
#include "base/PathText.h"
#include "base/Texts.h"
#include "batch/ConfigurationLines.h"
#include "batch/Places.h"
#include "check/Check.h"
#include "identifiers/UidRoot.h"
#include "processing/Edits.h"

#include <QCryptographicHash>
#include <QHash>
#include <QRegularExpression>
#include <QStringList>
#include <QtEndian>

#include <algorithm>

namespace dravolin {

namespace {

constexpr TagNumber studyTag = 0x0020000d;
constexpr TagNumber identityRemovedTag = 0x00120062;
constexpr TagNumber datesModifiedTag = 0x00280303;

QString markerOf(const CaseRow &row)
{
    QString title = withoutExtension(lastPathComponent(row.table));
    const QString prefix = QStringLiteral("AnonymizationLUT_");
    if (title.startsWith(prefix))
        title = title.mid(prefix.size());
    return tableMarkerPrefix + title + u'>';
}

// DICOM PS3.5 9.1; the window does not look at the components.
bool isUid(const QByteArray &text)
{
    static const QRegularExpression form(QStringLiteral("^(0|[1-9][0-9]*)(\\.(0|[1-9][0-9]*))+$"));
    return form.match(QString::fromLatin1(text)).hasMatch();
}

// Loads configuration and table, and says what is wrong with them.
class RowJudge
{
public:
    RowJudge(const BatchOptions &options, PlannedCase &planned) : m_options(options), m_case(planned) {}

    QStringList judge()
    {
        judgeSource();
        judgeRoot();
        judgeConfiguration();
        judgeTable();
        judgeIdentifiers();
        return m_problems;
    }

private:
    void judgeSource()
    {
        if (!m_case.row.source.isEmpty() && !pathExists(m_case.row.source))
            m_problems.append(Texts::tr("there is no source %1").arg(m_case.row.source));
    }

    void judgeRoot()
    {
        const CaseRow &row = m_case.row;
        if (!row.uidRoot.isEmpty() && (!checkRoot(row.uidRoot, row.caseId).valid || !isUid(studyUidOf(row))))
            m_problems.append(
                Texts::tr("the UID root %1 makes no UID with the case id %2").arg(row.uidRoot, row.caseId));
    }

    void judgeConfiguration()
    {
        const QString path =
            m_case.row.configuration.isEmpty() ? m_options.defaultConfiguration : m_case.row.configuration;
        const std::optional<QString> text = readText(path);
        if (!text) {
            m_problems.append(Texts::tr("the configuration %1 cannot be read, or is not UTF-8").arg(path));
            return;
        }
        m_case.configuration = parseConfiguration(*text);
        for (const QString &tag : edits(m_case.configuration, {}).malformedTags)
            m_problems.append(Texts::tr("the configuration has a line that does nothing: %1").arg(tag));
        QStringList problems = linesOfNoEffect(*text);
        (void)rulesOf(m_case, m_options, &problems);
        for (const QString &problem : problems)
            m_problems.append(Texts::tr("the configuration has a line that does nothing: %1").arg(problem));
    }

    void judgeTable()
    {
        const QString marker = m_case.row.table.isEmpty() ? QString() : markerOf(m_case.row);
        bool used = marker.isEmpty();
        for (const QString &value : m_case.configuration.newValueDict) {
            used = used || value == marker;
            if (value.startsWith(tableMarkerPrefix) && value != marker)
                m_problems.append(
                    Texts::tr("the configuration names the table %1, the row does not").arg(value));
        }
        if (!used)
            m_problems.append(Texts::tr("the configuration does not name the table %1").arg(marker));
        if (!marker.isEmpty())
            loadTable();
    }

    void loadTable()
    {
        const std::optional<LutTable> table = loadLut(m_case.row.table, MissingText::AsWritten);
        if (!table)
            m_problems.append(
                Texts::tr("the table %1 cannot be read, or is not UTF-8").arg(m_case.row.table));
        else if (!table->contains(missingValue))
            m_problems.append(
                Texts::tr("the table %1 has no line for %2").arg(m_case.row.table, missingValue));
        else
            m_case.table = *table;
    }

    void judgeIdentifiers()
    {
        if (m_case.row.identifiers.isEmpty())
            return;
        const std::optional<QString> text = readText(m_case.row.identifiers);
        if (text)
            m_case.identifiers = check::identifiersIn(*text);
        else
            m_problems.append(Texts::tr("the list of identifiers %1 cannot be read, or is not UTF-8")
                                  .arg(m_case.row.identifiers));
    }

    const BatchOptions &m_options;
    PlannedCase &m_case;
    QStringList m_problems;
};

// Of a destination that is not empty.
QStringList problemsOfUse(const CaseRow &row, const QStringList &casesThere)
{
    if (casesThere.contains(row.caseId))
        return {};
    if (casesThere.isEmpty())
        return {Texts::tr("the destination %1 is in use").arg(row.destination)};
    return {
        Texts::tr("the destination %1 holds what this run has made of the case %2; empty it first, or take "
                  "another")
            .arg(row.destination, casesThere.join(QStringLiteral(", ")))};
}

bool isInUse(const QString &destination)
{
    return pathExists(destination) && (!isFolder(destination) || !listNames(destination).isEmpty());
}

} // namespace

bool Shard::holds(const QString &caseId) const
{
    const QByteArray hash = QCryptographicHash::hash(caseId.toUtf8(), QCryptographicHash::Sha256);
    return qFromBigEndian<quint64>(hash.constData()) % static_cast<quint64>(count) ==
           static_cast<quint64>(number - 1);
}

QString BatchOptions::runFolder() const
{
    const QString part = QStringLiteral("parts/%1-of-%2").arg(shard.number).arg(shard.count);
    return shard.isAll() ? wholeFolder : joinPath(wholeFolder, part);
}

QString PlannedCase::sourceFolder() const
{
    return isFolder(row.source) ? row.source : parentPath(row.source);
}

Plan judgeList(const BatchOptions &options, const CasesIn &casesIn)
{
    const CaseList list = readCaseList(options.list);
    Plan plan;
    plan.problems = list.problems;
    QHash<QByteArray, int> studyLines; // by their new UIDs
    for (const CaseRow &row : list.rows) {
        PlannedCase planned;
        planned.row = row;
        QStringList problems = RowJudge(options, planned).judge();
        const bool isOurs = options.shard.holds(row.caseId);
        if (isOurs && isInUse(row.destination))
            problems.append(problemsOfUse(row, casesIn(row.destination)));
        if (!row.uidRoot.isEmpty()) {
            const QByteArray study = studyUidOf(row);
            const auto line = studyLines.value(study, row.line);
            studyLines.insert(study, line);
            if (line != row.line)
                problems.append(
                    Texts::tr("its UID root and case id make the same Study Instance UID as those of line %1")
                        .arg(line));
        }
        for (const QString &problem : problems)
            plan.problems.append({row.line, problem});
        if (isOurs)
            plan.cases.append(planned);
        else if (!row.uidRoot.isEmpty())
            plan.others.append(planned);
    }
    plan.problems.append(placeProblems(list.rows, options));
    std::stable_sort(plan.problems.begin(), plan.problems.end(),
                     [](const ListProblem &one, const ListProblem &other) { return one.line < other.line; });
    return plan;
}

QByteArray studyUidOf(const CaseRow &row)
{
    const QString root = withoutTrailingDot(checkRoot(row.uidRoot, row.caseId).trimmedRoot);
    return studyInstanceUid(root, row.caseId).toLatin1();
}

QMap<TagNumber, QString> ownTexts(const BatchOptions &options)
{
    QMap<TagNumber, QString> texts;
    if (options.removePrivate && options.mapUids) {
        // with the dates it has the 64 characters that the attribute holds
        const QString method = QStringLiteral("Dravolin: configured attributes, private attributes, UIDs");
        texts.insert(deidentificationMethodTag,
                     options.moveDates ? method + QStringLiteral(", dates") : method);
        texts.insert(identityRemovedTag, QStringLiteral("YES"));
    }
    if (options.moveDates)
        texts.insert(datesModifiedTag, QStringLiteral("MODIFIED"));
    return texts;
}

AttributeRules rulesOf(const PlannedCase &planned, const BatchOptions &options, QStringList *problems)
{
    TagRules rules = planned.configuration;
    const CaseRow &row = planned.row;
    addFixedTags(rules, {row.diagnosis, row.caseId, row.credits, row.keywords},
                 QString::fromLatin1(planned.studyUid));
    AttributeRules result = attributeRules(edits(rules, {}).list, !row.table.isEmpty(), problems);
    if (planned.studyUid.isEmpty())
        result.remove(studyTag); // the empty text would erase it
    else if (options.mapUids && result.value(studyTag).copies == AttributeRule::Copies::Set)
        result[studyTag].copies = AttributeRule::Copies::AsWithoutRule; // they may name other studies
    const QMap<TagNumber, QString> texts = ownTexts(options);
    for (auto text = texts.begin(); text != texts.end(); ++text)
        if (!result.contains(text.key()))
            result.insert(text.key(), {AttributeRule::Kind::Set, text.value()});
    return result;
}

} // namespace dravolin
