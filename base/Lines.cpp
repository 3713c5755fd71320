#include "base/Lines.h"

namespace dravolin {

bool isNewline(QChar c)
{
    const char16_t u = c.unicode();
    return (u >= 0x0A && u <= 0x0D) || u == 0x85 || u == 0x2028 || u == 0x2029;
}

qsizetype indexOfNewline(QStringView text, qsizetype from)
{
    const QChar *const end = text.cend();
    const QChar *at = text.cbegin() + from;
    // one test passes over almost everything that is printed
    while (at != end && ((at->unicode() > 0x0D && at->unicode() < 0x80) || !isNewline(*at)))
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
