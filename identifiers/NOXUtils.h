#pragma once

#include <QList>
#include <QString>
#include <QStringView>

// String helpers of the whole program. Pure functions, callable from any thread; none of them fails.
namespace dravolin::NOXUtils {

// A source of fresh random UUIDs; the only seam between identifiers and chance.
class UuidSource
{
public:
    virtual ~UuidSource() = default;
    // A new UUID at every call: 36 characters, 8-4-4-4-12 upper-case hexadecimal digits joined by "-".
    [[nodiscard]] virtual QString uniqueString() = 0;
};

// Random (version 4) UUIDs of RFC 4122 from the platform's generator. Callable from any thread.
class RandomUuidSource : public UuidSource
{
public:
    [[nodiscard]] QString uniqueString() override;
};

// The 32 hexadecimal digits of `uuid` (any case, with or without "-") as one unsigned big-endian number in
// base 10: no sign, no leading zeros, "0" for zero, at most 39 digits (ITU-T X.667, DICOM PS3.5 B.2).
[[nodiscard]] QString decimalRepresentationOfUUID(const QString &uuid);

// True for a horizontal tab and the Unicode space separators (Zs); line breaks are not blanks.
[[nodiscard]] bool isBlank(QChar c);

// True for LF, VT, FF, CR, U+0085, U+2028 and U+2029.
[[nodiscard]] bool isNewline(QChar c);

// `text` without blanks at both ends. The view points into the argument.
[[nodiscard]] QStringView trimmed(QStringView text);

// The same as a new string.
[[nodiscard]] QString stringByTrimmingLeadingAndTrailingspaces(QStringView text);

// `text` reversed by 16-bit units; the halves of a surrogate pair come out swapped.
[[nodiscard]] QString reverseString(QStringView text);

// `text` without its leading "0" characters; zeros alone give the empty string.
[[nodiscard]] QString withoutLeadingZeros(const QString &text);

// The index of the first newline character of `text` at or behind `from`, or its size when there is none. Made
// for texts of many megabytes.
[[nodiscard]] qsizetype indexOfNewline(QStringView text, qsizetype from);

// `text` cut at every newline character; CR LF gives an empty line between the two, an empty text one empty
// line. The views point into the argument.
[[nodiscard]] QList<QStringView> lines(QStringView text);

// "" for exactly 1, "s" for every other number, 0 included.
[[nodiscard]] QString pluralSuffix(quint64 number);

} // namespace dravolin::NOXUtils
