#pragma once

#include "dicom/ObjectNames.h"
#include "dicom/Treatment.h"

#include <QByteArray>
#include <QString>

// DICOM files as a whole.
namespace dravolin {

struct ObjectFacts
{
    QString problem; // why the file cannot be treated, a text for people; "" when it can
    // a directory of other files (DICOMDIR), whatever its name: not an object that can be treated
    bool isDirectory = false;
    quint64 size = 0;    // of the file, even of one that cannot be opened
    qint64 modified = 0; // nanoseconds since 1970
    ObjectNames names;   // the class is that of the file meta information when the data set has none
};

// The names of the object in the file at `path`, a text of base/PathText.h. Reads little more than the first
// elements. Any thread.
[[nodiscard]] ObjectFacts readFacts(const QString &path);

struct TreatedFile
{
    ObjectFacts facts; // names are those of the result
    bool movedToUtf8 = false;
    quint64 sizeBefore = 0;
    quint64 sizeAfter = 0;
    QByteArray hashBefore; // SHA-256 in hexadecimal digits
    QByteArray hashAfter;
};

// Treats the object in the file `source`, which is only read, and writes the result to `target`, which must
// not exist. The data set keeps every byte that the treatment does not change, pixel data is neither read nor
// decoded; what is in front of the data set is written anew. After a problem `target` does not exist. Any
// thread; memory does not depend on the size of the file.
[[nodiscard]] TreatedFile treatFile(const QString &source, const QString &target, const Treatment &treatment);

} // namespace dravolin
