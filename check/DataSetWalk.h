#pragma once

#include "check/ByteWalk.h"

namespace dravolin::check {

// Goes through a data set's bytes in the syntax of `result` and notes there what lies where and how much it
// holds, or the reason why it is damaged. Gives the place behind the last byte that was understood.
[[nodiscard]] qsizetype walkDataSet(QByteArrayView dataSet, Walk &result);

} // namespace dravolin::check
