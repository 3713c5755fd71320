#include "batch/Merge.h"

#include "base/Files.h"
#include "base/PathText.h"
#include "base/Texts.h"
#include "batch/CaseList.h"
#include "batch/Csv.h"
#include "batch/Evidence.h"
#include "batch/TableFile.h"

#include <QCryptographicHash>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMap>

#include <algorithm>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <vector>

namespace dravolin {

namespace {

constexpr const char *common[] = {"program",       "listSha256", "privateAttributesRemoved",
                                  "uidsMapped",    "atLeast",    "privateAttributesKept",
                                  "keyFingerprint"};

const QString casesKey = QStringLiteral("cases");

std::filesystem::path nativePath(const QString &path)
{
    return toBytes(path).toStdString();
}

struct Part
{
    QString name;
    QString folder;
    QJsonObject report;
    Descriptor lock; // keeps a call out of it
};

// The tables of all parts, row by row.
class Tables
{
public:
    explicit Tables(const std::vector<Part> &parts) : m_parts(parts) {}

    // Writes `name` with the rows in the order of the cases, whose ids are in that column.
    [[nodiscard]] bool writeByCase(const QString &name, const QString &folder, unsigned mode, int idColumn,
                                   const QStringList &caseIds)
    {
        QHash<QString, QList<QStringList>> rows;
        for (const QStringList &row : rowsOf(name))
            rows[row.value(idColumn)].append(row);
        TableFile table(joinPath(folder, name), mode);
        table.addLine(m_head);
        for (const QString &caseId : caseIds)
            for (const QStringList &row : rows.value(caseId))
                table.addLine(row);
        return m_good && table.finish();
    }

    [[nodiscard]] bool writeUidMap(const QString &folder)
    {
        const QString name = QStringLiteral("uid_map.csv");
        QMap<QByteArray, QString> uids; // in the order of their bytes
        for (const QStringList &row : rowsOf(name))
            uids.insert(row.value(0).toUtf8(), row.value(1));
        TableFile table(joinPath(folder, name), 0600);
        table.addLine(m_head);
        for (auto uid = uids.begin(); uid != uids.end(); ++uid)
            table.addLine({QString::fromUtf8(uid.key()), uid.value()});
        return m_good && table.finish();
    }

private:
    // The rows of all parts without the first ones, which go into m_head.
    QList<QStringList> rowsOf(const QString &name)
    {
        const bool isSecret = name != QStringLiteral("files.csv");
        QList<QStringList> rows;
        for (const Part &part : m_parts) {
            const QString folder = isSecret ? secretFolder(part.folder) : evidenceFolder(part.folder);
            const std::optional<QByteArray> bytes = readBytes(joinPath(folder, name));
            m_good = m_good && bytes;
            const QList<CsvRow> read = parseCsv(fromBytes(bytes.value_or(QByteArray()))).rows;
            for (const CsvRow &row : read.mid(1))
                rows.append(row.fields);
            m_head = read.isEmpty() ? m_head : read.first().fields;
        }
        return rows;
    }

    const std::vector<Part> &m_parts;
    QStringList m_head;
    bool m_good = true;
};

class Merge
{
public:
    Merge(const QString &list, const QString &wholeFolder) : m_list(list), m_folder(wholeFolder) {}

    MergeOutcome run()
    {
        readList();
        openParts();
        compareParts();
        joinCases();
        if (m_outcome.problems.isEmpty() && !write())
            m_outcome.failure = Texts::tr("the evidence in %1 cannot be written").arg(m_folder);
        m_outcome.parts = static_cast<qsizetype>(m_parts.size());
        return m_outcome;
    }

private:
    void refuse(const QString &text) { m_outcome.problems.append(text); }

    void readList()
    {
        const CaseList list = readCaseList(m_list);
        for (const ListProblem &problem : list.problems)
            refuse(problem.text);
        for (const CaseRow &row : list.rows)
            m_caseIds.append(row.caseId);
    }

    void openParts()
    {
        const QString folder = joinPath(m_folder, QStringLiteral("parts"));
        QStringList names = listNames(folder);
        std::sort(names.begin(), names.end());
        for (const QString &name : names)
            openPart(name, joinPath(folder, name));
        if (names.isEmpty())
            refuse(Texts::tr("there is no part in %1").arg(folder));
        if (pathExists(joinPath(m_folder, QStringLiteral("journal.sqlite"))))
            refuse(Texts::tr("the list was also run as a whole, in %1").arg(m_folder));
    }

    void openPart(const QString &name, const QString &folder)
    {
        Part part = {name, folder, {}, Descriptor()};
        part.lock = Descriptor(::open(systemPath(joinPath(folder, QStringLiteral("lock"))).constData(),
                                      O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
        const std::optional<QByteArray> json =
            readBytes(joinPath(evidenceFolder(folder), QStringLiteral("report.json")));
        part.report = QJsonDocument::fromJson(json.value_or(QByteArray())).object();
        if (part.lock.isOpen() && ::flock(part.lock.get(), LOCK_SH | LOCK_NB) != 0)
            refuse(Texts::tr("another call is at work in %1").arg(folder));
        else if (part.report.isEmpty())
            refuse(Texts::tr("the part %1 is not finished: it has no report").arg(name));
        else
            m_parts.push_back(std::move(part));
    }

    void compareParts()
    {
        const QByteArray list = readBytes(m_list).value_or(QByteArray());
        const QByteArray hash = QCryptographicHash::hash(list, QCryptographicHash::Sha256).toHex();
        for (const Part &part : m_parts) {
            if (part.report.value(QStringLiteral("listSha256")).toString().toLatin1() != hash)
                refuse(Texts::tr("the part %1 was made from another list, or the list has changed since")
                           .arg(part.name));
            for (const char *member : common)
                if (part.report.value(QLatin1String(member)) !=
                    m_parts.front().report.value(QLatin1String(member)))
                    refuse(Texts::tr("the parts %1 and %2 differ in %3")
                               .arg(m_parts.front().name, part.name, QLatin1String(member)));
        }
    }

    void joinCases()
    {
        QHash<QString, QJsonValue> found;
        for (const Part &part : m_parts) {
            for (const auto &value : part.report.value(casesKey).toArray()) {
                const QString caseId = value[QStringLiteral("caseId")].toString();
                if (found.contains(caseId))
                    refuse(Texts::tr("the case %1 is in two parts").arg(caseId));
                found.insert(caseId, value);
            }
        }
        QJsonArray cases;
        for (const QString &caseId : std::as_const(m_caseIds)) {
            if (!found.contains(caseId))
                m_outcome.missing.append(caseId);
            cases.append(found.value(caseId, QJsonObject{{QStringLiteral("caseId"), caseId}}));
        }
        m_outcome.report = m_parts.empty() ? QJsonObject() : m_parts.front().report;
        m_outcome.report.remove(QStringLiteral("part"));
        m_outcome.report.insert(casesKey, cases);
    }

    [[nodiscard]] bool write()
    {
        const QString evidence = evidenceFolder(m_folder);
        const QString secret = secretFolder(m_folder);
        (void)::mkdir(systemPath(secret).constData(), 0700);
        Tables tables(m_parts);
        return createFolder(evidence) && copyReports(evidence) && removeOtherReports(m_caseIds, evidence) &&
               tables.writeByCase(QStringLiteral("files.csv"), evidence, 0644, 0, m_caseIds) &&
               tables.writeByCase(QStringLiteral("patient_map.csv"), secret, 0600, 1, m_caseIds) &&
               tables.writeByCase(QStringLiteral("not_done.csv"), secret, 0600, 0, m_caseIds) &&
               tables.writeUidMap(secret) && writeReports(m_outcome.report, evidence);
    }

    // Those of the cases.
    [[nodiscard]] bool copyReports(const QString &evidence) const
    {
        namespace fs = std::filesystem;
        std::error_code error;
        for (const Part &part : m_parts) {
            const fs::path from = nativePath(joinPath(evidenceFolder(part.folder), casesKey));
            if (fs::exists(from))
                fs::copy(from, nativePath(joinPath(evidence, casesKey)),
                         fs::copy_options::recursive | fs::copy_options::overwrite_existing, error);
            if (error)
                return false;
        }
        return true;
    }

    const QString &m_list;
    const QString &m_folder;
    QStringList m_caseIds;
    std::vector<Part> m_parts;
    MergeOutcome m_outcome;
};

} // namespace

MergeOutcome mergeParts(const QString &list, const QString &wholeFolder)
{
    return Merge(list, wholeFolder).run();
}

} // namespace dravolin
