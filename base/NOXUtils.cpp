#include "base/NOXUtils.h"

#include <algorithm>

namespace dravolin::NOXUtils {

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t' || (c.unicode() >= 0xA0 && c.category() == QChar::Separator_Space);
}

QStringView trimmed(QStringView text)
{
    while (!text.isEmpty() && isBlank(text.front()))
        text = text.sliced(1);
    while (!text.isEmpty() && isBlank(text.back()))
        text.chop(1);
    return text;
}

QString stringByTrimmingLeadingAndTrailingspaces(QStringView text)
{
    return trimmed(text).toString();
}

QString reverseString(QStringView text)
{
    QString reversed = text.toString();
    std::reverse(reversed.begin(), reversed.end());
    return reversed;
}

QString withoutLeadingZeros(const QString &text)
{
    qsizetype zeros = 0;
    while (zeros < text.size() && text.at(zeros) == u'0')
        ++zeros;
    return text.sliced(zeros);
}

QString pluralSuffix(quint64 number)
{
    return number == 1 ? QString() : QStringLiteral("s");
}

} // namespace dravolin::NOXUtils
