#pragma once

#include "dicom/ElementReader.h"
#include "dicom/ObjectNames.h"
#include "dicom/Patches.h"
#include "dicom/Treatment.h"

#include <QByteArray>
#include <QString>

// Works out what a treatment changes in a data set.
namespace dravolin {

struct Rewriting
{
    QString problem; // a text for people; "" when there is none
    Patches patches;
    bool movedToUtf8 = false; // because a new value would not go into the object's own character set
    ObjectNames names;        // of the result
};

// The data set from `begin` to `end` of `file`. Lengths of the sequences, items and groups that hold a change
// are changed with it; nothing else is. `daysBack` is what the treatment has for the object's patient. Reads
// no pixel data. Any thread.
[[nodiscard]] Rewriting rewriting(SourceFile &file, quint64 begin, quint64 end, const Notation &notation,
                                  const Treatment &treatment, int daysBack = 0);

} // namespace dravolin
