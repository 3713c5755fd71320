#pragma once

#include "dicom/SourceFile.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace dravolin {

// A file that is written piece by piece beside its place and takes its name at the end: it is there as a
// whole or not at all. One thread.
class TableFile
{
public:
    // `mode` as for open(2).
    TableFile(const QString &path, unsigned mode);

    void add(const QByteArray &bytes);
    // A row of a table with commas.
    void addLine(const QStringList &values);
    // False when any of it could not be written.
    [[nodiscard]] bool finish();

private:
    void flush();

    QString m_path;
    QString m_temporary;
    Descriptor m_file;
    QByteArray m_buffer;
    bool m_good = true;
};

} // namespace dravolin
