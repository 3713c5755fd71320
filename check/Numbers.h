#pragma once

#include <QByteArrayView>
#include <QString>

namespace dravolin::check {

// How a VR without text writes its numbers, in the byte order of this machine.
enum class NumberForm {
    None,
    Unsigned16,
    Signed16,
    Unsigned32,
    Signed32,
    Unsigned64,
    Signed64,
    Float32,
    Float64
};

// The whole numbers among the first ones of a value, as text with blanks between; "" for None. Any thread.
[[nodiscard]] QString decimalText(QByteArrayView bytes, NumberForm form);

} // namespace dravolin::check
