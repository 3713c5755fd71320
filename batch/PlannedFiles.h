#pragma once

#include <QByteArray>
#include <QDataStream>
#include <QFile>
#include <QString>

namespace dravolin {

// A file of a source, as a look at it tells.
struct PlannedFile
{
    QString path; // relative to the source; the file's own name when the source is a file
    quint64 size = 0;
    qint64 modified = 0; // nanoseconds since 1970
    QByteArray sopInstance;
    QByteArray series;
    bool isDirectory = false; // a DICOMDIR, whatever its name
    QString problem;          // why it will not be done

    bool operator==(const PlannedFile &) const = default;
};

// The files of all cases of a run, case by case, each in the order of the bytes of their paths. They lie in a
// file without a name: memory does not depend on their number, and nothing is left when the program ends. One
// thread.
class PlannedFiles
{
public:
    // Makes the file in a folder that is there, and that no other call works in.
    explicit PlannedFiles(const QString &folder);

    void add(const PlannedFile &file);
    // Where the next one is added.
    [[nodiscard]] qint64 end() const { return m_end; }
    // The file at that place, which moves on to the next one. None is added any more.
    [[nodiscard]] PlannedFile read(qint64 *place);
    // False when something could not be written or read; what was read since then says nothing.
    [[nodiscard]] bool isGood();

private:
    QFile m_file;
    QDataStream m_stream;
    qint64 m_end = 0;
    bool m_good = true;
};

} // namespace dravolin
