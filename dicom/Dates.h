#pragma once

#include "dicom/Dictionary.h"

#include <QByteArray>

// Moving dates by days, as the value representations DA and DT write them (DICOM PS3.5, 6.2). Pure functions,
// any thread.
namespace dravolin {

// Whether values of the attribute are dates of somebody or something. The versions of code tables and
// templates are dates as well, but say which table is meant.
[[nodiscard]] bool isDateOfAnEvent(TagNumber tag, Vr representation);

// The values of an element, each moved back by `days`; times, fractions and time zones stay. A date without
// its day or month is moved as its first day and stays as short as it was. What is no date becomes empty:
// nobody knows what else it tells.
[[nodiscard]] QByteArray datesMovedBack(const QByteArray &values, int days);

} // namespace dravolin
