#pragma once

#include "batch/Journal.h"

#include <QList>

namespace dravolin {

// The files of a case that the journal knows, in the order of the bytes of their paths; few of them are in
// memory at a time. What is in front of current() may be written to meanwhile. One thread.
class KnownFiles
{
public:
    KnownFiles(const Journal &journal, const QString &caseId);

    // The first one that was not passed; null behind the last one.
    [[nodiscard]] const FileRecord *current() const;
    void pass();
    // Passes all in front of `path`, and gives what is known of it; an empty record for nothing.
    [[nodiscard]] FileRecord find(const QString &path);

private:
    void read(const QString &behind);

    const Journal &m_journal;
    QString m_caseId;
    QList<FileRecord> m_read;
    qsizetype m_next = 0;
};

// Whether the bytes of one path come before those of another.
[[nodiscard]] bool comesBefore(const QString &path, const QString &other);

} // namespace dravolin
