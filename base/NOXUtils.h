#pragma once

#include <QString>
#include <QStringView>

// String helpers of the whole program. Pure functions, callable from any thread; none of them fails.
namespace dravolin::NOXUtils {

// True for a horizontal tab and the Unicode space separators (Zs); line breaks are not blanks.
[[nodiscard]] bool isBlank(QChar c);

// `text` without blanks at both ends. The view points into the argument.
[[nodiscard]] QStringView trimmed(QStringView text);

// The same as a new string.
[[nodiscard]] QString stringByTrimmingLeadingAndTrailingspaces(QStringView text);

// `text` reversed by 16-bit units; the halves of a surrogate pair come out swapped.
[[nodiscard]] QString reverseString(QStringView text);

// `text` without its leading "0" characters; zeros alone give the empty string.
[[nodiscard]] QString withoutLeadingZeros(const QString &text);

// "" for exactly 1, "s" for every other number, 0 included.
[[nodiscard]] QString pluralSuffix(quint64 number);

} // namespace dravolin::NOXUtils
