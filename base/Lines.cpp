#include "base/Lines.h"

namespace dravolin {

bool isNewline(QChar c)
{
    const char16_t u = c.unicode();
    return (u >= 0x0A && u <= 0x0D) || u == 0x85 || u == 0x2028 || u == 0x2029;
}

namespace {

// As many characters as one vector instruction compares.
constexpr qsizetype blockSize = 8;

// Whether the block holds nothing but what is printed as ASCII, with no newline therefore. Without a branch,
// so that the compiler makes it a few vector instructions.
bool isPrintedAscii(const QChar *block)
{
    unsigned outside = 0;
    for (qsizetype i = 0; i < blockSize; ++i)
        outside |= static_cast<char16_t>(block[i].unicode() - 0x0E) >= 0x80 - 0x0E;
    return outside == 0;
}

} // namespace

qsizetype indexOfNewline(QStringView text, qsizetype from)
{
    const QChar *const end = text.cend();
    const QChar *at = text.cbegin() + from;
    while (end - at >= blockSize && isPrintedAscii(at))
        at += blockSize;
    while (at != end && !isNewline(*at))
        ++at;
    return at - text.cbegin();
}

QList<QStringView> lines(QStringView text)
{
    QList<QStringView> result;
    forEachLine(text, [&result](QStringView line) { result.append(line); });
    return result;
}

} // namespace dravolin
