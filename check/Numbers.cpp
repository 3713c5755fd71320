#include "check/Numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <type_traits>

namespace dravolin::check {

namespace {

constexpr qsizetype mostNumbers = 64; // longer rows are curves and tables
constexpr double largestWhole = 1e15; // a float beyond that has no last digit

template <typename Number>
void append(Number number, QString &text)
{
    std::array<char, 24> digits;
    const std::to_chars_result end = std::to_chars(digits.begin(), digits.end(), number);
    text += QLatin1String(digits.data(), end.ptr - digits.data());
    text += u' ';
}

template <typename Number>
QString decimals(QByteArrayView bytes)
{
    constexpr auto width = static_cast<qsizetype>(sizeof(Number));
    QString text;
    for (qsizetype i = 0; i < std::min(bytes.size() / width, mostNumbers); ++i) {
        Number number;
        std::memcpy(&number, bytes.data() + i * width, sizeof(Number));
        if constexpr (std::is_floating_point_v<Number>) {
            const double value = number;
            if (std::abs(value) < largestWhole && std::trunc(value) == value)
                append(static_cast<qint64>(value), text);
        } else {
            append(number, text);
        }
    }
    return text;
}

} // namespace

QString decimalText(QByteArrayView bytes, NumberForm form)
{
    switch (form) {
    case NumberForm::None: return {};
    case NumberForm::Unsigned16: return decimals<quint16>(bytes);
    case NumberForm::Signed16: return decimals<qint16>(bytes);
    case NumberForm::Unsigned32: return decimals<quint32>(bytes);
    case NumberForm::Signed32: return decimals<qint32>(bytes);
    case NumberForm::Unsigned64: return decimals<quint64>(bytes);
    case NumberForm::Signed64: return decimals<qint64>(bytes);
    case NumberForm::Float32: return decimals<float>(bytes);
    case NumberForm::Float64: return decimals<double>(bytes);
    }
    return {};
}

} // namespace dravolin::check
