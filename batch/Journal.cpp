#include "batch/Journal.h"

#include "base/PathText.h"
#include "base/Texts.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QUuid>

#include <algorithm>

namespace dravolin {

namespace {

// Journals without a number have the same tables.
constexpr int ownVersion = 1;

constexpr const char *settings[] = {"PRAGMA journal_mode=WAL", "PRAGMA synchronous=FULL"};

constexpr const char *tables[] = {
    "CREATE TABLE IF NOT EXISTS kept (name TEXT PRIMARY KEY, value BLOB) WITHOUT ROWID",
    "CREATE TABLE IF NOT EXISTS cases (id TEXT PRIMARY KEY, destination BLOB, rules BLOB) WITHOUT ROWID",
    ("CREATE TABLE IF NOT EXISTS files (id TEXT, path BLOB, size INTEGER, modified INTEGER, result TEXT, "
     "before BLOB, after BLOB, problem TEXT, PRIMARY KEY (id, path)) WITHOUT ROWID"),
    "CREATE TABLE IF NOT EXISTS uids (old BLOB PRIMARY KEY, new BLOB) WITHOUT ROWID",
    "CREATE TABLE IF NOT EXISTS checks (id TEXT PRIMARY KEY, subject BLOB, findings BLOB) WITHOUT ROWID",
};

QSqlQuery prepared(const QSqlDatabase &database, const QString &statement, const QVariantList &values)
{
    QSqlQuery query(database);
    query.setForwardOnly(true);
    if (!query.prepare(statement))
        return query;
    for (const QVariant &value : values)
        query.addBindValue(value);
    query.exec();
    return query;
}

int versionOf(const QSqlDatabase &database)
{
    QSqlQuery query = prepared(database, QStringLiteral("PRAGMA user_version"), {});
    return query.next() ? query.value(0).toInt() : 0;
}

// With other values, without preparing it once more.
bool runAgain(QSqlQuery &query, const QVariantList &values)
{
    for (qsizetype i = 0; i < values.size(); ++i)
        query.bindValue(static_cast<int>(i), values.at(i));
    return query.exec();
}

} // namespace

std::unique_ptr<Journal> Journal::open(const QString &path, QString *problem)
{
    const QString connection = QUuid::createUuid().toString();
    std::unique_ptr<Journal> journal(new Journal(connection));
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
    database.setDatabaseName(path);
    bool done = database.open();
    const int version = done ? versionOf(database) : 0;
    if (version > ownVersion) {
        *problem = Texts::tr("the journal %1 was written by a later version of this program").arg(path);
        return nullptr;
    }
    for (const char *setting : settings)
        done = done && journal->run(QString::fromLatin1(setting));
    if (done && (version == ownVersion || journal->together([&] { return journal->makeTables(); })))
        return journal;
    *problem = Texts::tr("the journal %1 cannot be used: %2")
                   .arg(path, journal->m_error.isEmpty() ? database.lastError().text() : journal->m_error);
    return nullptr;
}

bool Journal::makeTables()
{
    return std::ranges::all_of(tables,
                               [this](const char *table) { return run(QString::fromLatin1(table)); }) &&
           run(QStringLiteral("PRAGMA user_version=%1").arg(ownVersion));
}

Journal::~Journal()
{
    database().close();
    QSqlDatabase::removeDatabase(m_connection);
}

QStringList Journal::casesIn(const QString &destination) const
{
    QStringList ids;
    QSqlQuery query = prepared(database(), QStringLiteral("SELECT id FROM cases WHERE destination = ?"),
                               {toBytes(destination)});
    while (query.next())
        ids.append(query.value(0).toString());
    return ids;
}

bool Journal::begin(const CaseRow &row, const QByteArray &rules)
{
    const bool same =
        prepared(database(),
                 QStringLiteral("SELECT 1 FROM cases WHERE id = ? AND destination = ? AND rules = ?"),
                 {row.caseId, toBytes(row.destination), rules})
            .next();
    return same || (run(QStringLiteral("UPDATE files SET modified = -1 WHERE id = ?"), {row.caseId}) &&
                    run(QStringLiteral("INSERT OR REPLACE INTO cases VALUES (?, ?, ?)"),
                        {row.caseId, toBytes(row.destination), rules}));
}

void Journal::forEachResult(const QString &caseId, const std::function<void(const FileRecord &)> &visit) const
{
    QSqlQuery query = prepared(database(),
                               QStringLiteral("SELECT path, result, before, after FROM files "
                                              "WHERE id = ? AND result <> '' ORDER BY result"),
                               {caseId});
    FileRecord record;
    while (query.next()) {
        record.path = fromBytes(query.value(0).toByteArray());
        record.result = query.value(1).toString();
        record.hashBefore = query.value(2).toByteArray().toHex();
        record.hashAfter = query.value(3).toByteArray().toHex();
        visit(record);
    }
}

void Journal::forEachName(const QString &caseId,
                          const std::function<void(const QString &path, const QString &result)> &visit) const
{
    QSqlQuery query = prepared(
        database(), QStringLiteral("SELECT path, result FROM files WHERE id = ? AND result <> ''"), {caseId});
    while (query.next())
        visit(fromBytes(query.value(0).toByteArray()), query.value(1).toString());
}

bool Journal::remove(const QString &caseId, const QString &path)
{
    return run(QStringLiteral("DELETE FROM files WHERE id = ? AND path = ?"), {caseId, toBytes(path)});
}

QList<FileRecord> Journal::files(const QString &caseId, const QString &behind, int most) const
{
    QList<FileRecord> found;
    QSqlQuery query =
        prepared(database(),
                 QStringLiteral("SELECT path, size, modified, result, before, after, problem FROM files "
                                "WHERE id = ? AND path > ? ORDER BY path LIMIT ?"),
                 {caseId, behind.isEmpty() ? QByteArray("") : toBytes(behind), most}); // none is NULL
    while (query.next())
        found.append({fromBytes(query.value(0).toByteArray()), query.value(1).toULongLong(),
                      query.value(2).toLongLong(), query.value(3).toString(),
                      query.value(4).toByteArray().toHex(), query.value(5).toByteArray().toHex(),
                      query.value(6).toString()});
    return found;
}

bool Journal::add(const QList<QPair<QString, FileRecord>> &filesOfCases,
                  const QHash<QByteArray, QByteArray> &uids)
{
    return together([&] {
        bool done = true;
        QSqlQuery query(database());
        query.prepare(QStringLiteral("INSERT OR REPLACE INTO files VALUES (?, ?, ?, ?, ?, ?, ?, ?)"));
        for (const auto &[id, file] : filesOfCases)
            done = done && runAgain(query, {id, toBytes(file.path), file.size, file.modified, file.result,
                                            QByteArray::fromHex(file.hashBefore),
                                            QByteArray::fromHex(file.hashAfter), file.problem});
        query.prepare(QStringLiteral("INSERT OR REPLACE INTO uids VALUES (?, ?)"));
        for (auto uid = uids.begin(); uid != uids.end(); ++uid)
            done = done && runAgain(query, {uid.key(), uid.value()});
        return done;
    });
}

bool Journal::together(const std::function<bool()> &changes)
{
    const bool done = run(QStringLiteral("BEGIN IMMEDIATE")) && changes();
    return run(done ? QStringLiteral("COMMIT") : QStringLiteral("ROLLBACK")) && done;
}

void Journal::forEachUid(
    const std::function<void(const QByteArray &old, const QByteArray &replacement)> &visit) const
{
    QSqlQuery query = prepared(database(), QStringLiteral("SELECT old, new FROM uids ORDER BY old"), {});
    while (query.next())
        visit(query.value(0).toByteArray(), query.value(1).toByteArray());
}

QByteArray Journal::checked(const QString &caseId, const QByteArray &subject) const
{
    QSqlQuery query =
        prepared(database(), QStringLiteral("SELECT findings FROM checks WHERE id = ? AND subject = ?"),
                 {caseId, subject});
    return query.next() ? query.value(0).toByteArray() : QByteArray();
}

bool Journal::setChecked(const QString &caseId, const QByteArray &subject, const QByteArray &findings)
{
    return run(QStringLiteral("INSERT OR REPLACE INTO checks VALUES (?, ?, ?)"), {caseId, subject, findings});
}

QByteArray Journal::value(const QString &name) const
{
    QSqlQuery query = prepared(database(), QStringLiteral("SELECT value FROM kept WHERE name = ?"), {name});
    return query.next() ? query.value(0).toByteArray() : QByteArray();
}

bool Journal::setValue(const QString &name, const QByteArray &value)
{
    return run(QStringLiteral("INSERT OR REPLACE INTO kept VALUES (?, ?)"), {name, value});
}

bool Journal::run(const QString &statement, const QVariantList &values) const
{
    const QSqlError error = prepared(database(), statement, values).lastError();
    if (error.isValid() && m_error.isEmpty())
        m_error = error.databaseText().isEmpty() ? error.text() : error.databaseText();
    return !error.isValid();
}

} // namespace dravolin
