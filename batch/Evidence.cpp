#include "batch/Evidence.h"

#include "base/Files.h"
#include "base/PathText.h"
#include "batch/Csv.h"
#include "dicom/SourceFile.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace dravolin {

namespace {

// A file that is written a line at a time and takes its name at the end.
class TableFile
{
public:
    TableFile(const QString &path, unsigned mode)
        : m_path(path), m_temporary(path + QStringLiteral(".part")),
          m_file(::open(systemPath(m_temporary).constData(),
                        O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, mode))
    {
    }

    void add(const QByteArray &bytes)
    {
        constexpr qsizetype enough = 65536;
        m_buffer += bytes;
        if (m_buffer.size() > enough)
            flush();
    }
    void addLine(const QStringList &values) { add(toBytes(csvLine(values))); }

    // False when any of it could not be written.
    [[nodiscard]] bool finish()
    {
        flush();
        return m_good && ::fsync(m_file.get()) == 0 &&
               ::rename(systemPath(m_temporary).constData(), systemPath(m_path).constData()) == 0;
    }

private:
    void flush()
    {
        const auto size = static_cast<size_t>(m_buffer.size());
        m_good = m_good && m_file.isOpen() &&
                 ::write(m_file.get(), m_buffer.constData(), size) == static_cast<ssize_t>(size);
        m_buffer.clear();
    }

    QString m_path;
    QString m_temporary;
    Descriptor m_file;
    QByteArray m_buffer;
    bool m_good = true;
};

QString hashOfFile(const QString &path)
{
    const QByteArray bytes = readBytes(path).value_or(QByteArray());
    return QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex());
}

bool writeFiles(const Plan &plan, const QString &folder, const Journal &journal)
{
    TableFile table(joinPath(folder, QStringLiteral("files.csv")), 0644);
    table.addLine({QStringLiteral("case_id"), QStringLiteral("result"), QStringLiteral("sha256_before"),
                   QStringLiteral("sha256_after")});
    for (const PlannedCase &planned : plan.cases) {
        QList<FileRecord> records = journal.files(planned.row.caseId).values();
        std::sort(records.begin(), records.end(),
                  [](const FileRecord &one, const FileRecord &other) { return one.result < other.result; });
        for (const FileRecord &record : records)
            if (!record.result.isEmpty())
                table.addLine({planned.row.caseId, record.result, QString::fromLatin1(record.hashBefore),
                               QString::fromLatin1(record.hashAfter)});
    }
    return table.finish();
}

const QStringList mapHead = {QStringLiteral("id_old"), QStringLiteral("id_new")};

bool writeUidMap(const QString &folder, const Journal &journal)
{
    TableFile table(joinPath(folder, QStringLiteral("uid_map.csv")), 0600);
    table.addLine(mapHead);
    journal.forEachUid([&table](const QByteArray &old, const QByteArray &replacement) {
        table.addLine({QString::fromLatin1(old), QString::fromLatin1(replacement)});
    });
    return table.finish();
}

bool writePatientMap(const Plan &plan, const QString &folder)
{
    TableFile table(joinPath(folder, QStringLiteral("patient_map.csv")), 0600);
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
    TableFile table(joinPath(folder, QStringLiteral("not_done.csv")), 0600);
    table.addLine({QStringLiteral("case_id"), QStringLiteral("source"), QStringLiteral("reason")});
    for (const CaseCounts &count : counts)
        for (const FileRecord &record : count.notDone)
            table.addLine({count.caseId, record.path, record.problem});
    return table.finish();
}

QJsonObject caseObject(const PlannedCase &planned, const CaseCounts &counts, const BatchOptions &options)
{
    const CaseRow &row = planned.row;
    QJsonObject object = {
        {QStringLiteral("case_id"), row.caseId},
        {QStringLiteral("destination"), row.destination},
        {QStringLiteral("configuration_sha256"),
         hashOfFile(row.configuration.isEmpty() ? options.defaultConfiguration : row.configuration)},
        {QStringLiteral("done"), counts.done},
        {QStringLiteral("not_done"), counts.notDone.size()},
        {QStringLiteral("dicomdirs_left_out"), counts.directories},
        {QStringLiteral("studies"), planned.studies.size()},
        {QStringLiteral("patients"), planned.patients.size()},
    };
    if (!row.table.isEmpty())
        object.insert(QStringLiteral("table_sha256"), hashOfFile(row.table));
    return object;
}

bool writeReport(const Plan &plan, const BatchOptions &options, const QList<CaseCounts> &counts,
                 const QString &folder)
{
    QJsonArray cases;
    for (qsizetype i = 0; i < counts.size(); ++i)
        cases.append(caseObject(plan.cases.at(i), counts.at(i), options));
    const QJsonObject report = {
        {QStringLiteral("program"), QStringLiteral("Dravolin ") + QLatin1String(DRAVOLIN_VERSION)},
        {QStringLiteral("list_sha256"), hashOfFile(options.list)},
        {QStringLiteral("private_attributes_removed"), options.removePrivate},
        {QStringLiteral("private_attributes_kept"), options.keptPrivate.size()},
        {QStringLiteral("uids_mapped"), options.mapUids},
        {QStringLiteral("secret"), secretFolder(options.runFolder)},
        {QStringLiteral("cases"), cases},
    };
    TableFile file(joinPath(folder, QStringLiteral("report.json")), 0644);
    file.add(QJsonDocument(report).toJson());
    return file.finish();
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

bool writeEvidence(const Plan &plan, const BatchOptions &options, const Journal &journal,
                   const QList<CaseCounts> &counts)
{
    const QString evidence = evidenceFolder(options.runFolder);
    const QString secret = secretFolder(options.runFolder);
    return createFolder(evidence) && writeFiles(plan, evidence, journal) &&
           writeReport(plan, options, counts, evidence) && writeUidMap(secret, journal) &&
           writePatientMap(plan, secret) && writeNotDone(counts, secret);
}

} // namespace dravolin
