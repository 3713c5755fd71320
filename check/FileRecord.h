#pragma once

#include "check/ByteWalk.h"
#include "check/ObjectReader.h"

#include <QByteArray>
#include <QString>

// One file of either side: its bytes while it is looked at, and what is kept of it afterwards. Any thread.
namespace dravolin::check {

// What is kept of a file. Hashes are of this run of the program; 0 for nothing.
struct FileRecord
{
    enum class State { Object, NoObject, Damaged, Unreadable };
    State state = State::Unreadable;
    QString reason; // of Damaged and Unreadable, for people
    quint64 bytes = 0;
    quint64 content = 0;  // hash of all bytes
    quint64 pixels = 0;   // hash of the pixel data, frame by frame
    quint64 instance = 0; // hash of the SOP Instance UID
    QString mayShow;      // why its pixels may show text, for people; "" for no reason
};

struct LoadedFile
{
    FileRecord record;
    QByteArray bytes; // none when it is Unreadable
    Walk walk;

    // 128 bytes, or none.
    [[nodiscard]] QByteArrayView preamble() const;
    // Those that no data set holds.
    [[nodiscard]] QByteArrayView behindEnd() const;
    [[nodiscard]] QByteArrayView pixelData() const;
};

// Reads the file at `path`, which is a regular file of at most 1 GiB, and takes the first look at it.
[[nodiscard]] LoadedFile loadFile(const QString &path);
// The first look at a file's bytes.
[[nodiscard]] LoadedFile lookAt(QByteArray bytes);

// Reads the object that it holds, if it holds one; a file that GDCM does not read as a whole becomes Damaged.
void readLoaded(LoadedFile &file, const ElementVisit &visit);

} // namespace dravolin::check
