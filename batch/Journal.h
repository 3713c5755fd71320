#pragma once

#include "batch/CaseList.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QPair>
#include <QSqlDatabase>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>
#include <memory>

// What a run has done so far, in an SQLite file: after a crash the same call goes on where it was.
namespace dravolin {

// What became of a file of a source.
struct FileRecord
{
    QString path;     // in the source
    quint64 size = 0; // of the source, as it was
    qint64 modified = 0;
    QString result; // path in the destination; "" when it was not done
    QByteArray hashBefore;
    QByteArray hashAfter;
    QString problem;

    bool operator==(const FileRecord &) const = default;
};

// One thread, the one that opened it.
class Journal
{
public:
    // Opens or makes the file; null on failure, and `problem` gets a text for people.
    [[nodiscard]] static std::unique_ptr<Journal> open(const QString &path, QString *problem);
    ~Journal();
    Journal(const Journal &) = delete;
    Journal &operator=(const Journal &) = delete;

    // The ids of the cases that were begun with that destination.
    [[nodiscard]] QStringList casesIn(const QString &destination) const;
    // Begins a case, or goes on with it. With other rules than last time, said by their hash, or another
    // destination its files count as to be done anew.
    bool begin(const CaseRow &row, const QByteArray &rules);
    // Takes a file out.
    bool remove(const QString &caseId, const QString &path);
    // So many files of a case at most, the first ones behind a path in the order of the bytes of paths.
    [[nodiscard]] QList<FileRecord> files(const QString &caseId, const QString &behind, int most) const;

    // Calls `visit` with the paths and hashes of every file of a case that has a result, by result.
    void forEachResult(const QString &caseId, const std::function<void(const FileRecord &)> &visit) const;

    // Calls `visit` with the path of every such file and that of its result, in another order.
    void forEachName(const QString &caseId,
                     const std::function<void(const QString &path, const QString &result)> &visit) const;

    // Makes the changes to the journal that `changes` makes, all of them or, when it gives false, none; gives
    // whether they are safe. One by one, each would wait for the disk. Not in another call of its own.
    bool together(const std::function<bool()> &changes);

    // All of it or nothing is written; on return it is safe.
    bool add(const QList<QPair<QString, FileRecord>> &filesOfCases,
             const QHash<QByteArray, QByteArray> &uids);

    // Calls `visit` with every new UID and its old one.
    void
    forEachUid(const std::function<void(const QByteArray &old, const QByteArray &replacement)> &visit) const;

    // What came of the check of a case, when it was one of the same subject; "" else.
    [[nodiscard]] QByteArray checked(const QString &caseId, const QByteArray &subject) const;
    bool setChecked(const QString &caseId, const QByteArray &subject, const QByteArray &findings);

    // A value that the run keeps; "" when it was never set.
    [[nodiscard]] QByteArray value(const QString &name) const;
    bool setValue(const QString &name, const QByteArray &value);

private:
    explicit Journal(const QString &connection) : m_connection(connection) {}
    [[nodiscard]] QSqlDatabase database() const { return QSqlDatabase::database(m_connection); }
    bool run(const QString &statement, const QVariantList &values = {}) const;
    bool makeTables();

    QString m_connection;
    mutable QString m_error; // of the first statement that failed
};

} // namespace dravolin
