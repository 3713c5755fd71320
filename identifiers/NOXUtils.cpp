#include "identifiers/NOXUtils.h"

#include "identifiers/BigInt.h"

#include <QUuid>

#include <algorithm>

namespace dravolin::NOXUtils {

QString RandomUuidSource::uniqueString()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
}

QString decimalRepresentationOfUUID(const QString &uuid)
{
    QString digits = uuid;
    digits.remove(u'-');
    return BigInt::createFromStringAndRadix(digits, 16).toStringWithRadix(10);
}

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t' || (c.unicode() >= 0xA0 && c.category() == QChar::Separator_Space);
}

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

QList<QStringView> lines(QStringView text)
{
    QList<QStringView> result;
    for (qsizetype start = 0; start <= text.size();) {
        const qsizetype end = indexOfNewline(text, start);
        result.append(text.sliced(start, end - start));
        start = end + 1;
    }
    return result;
}

QString pluralSuffix(quint64 number)
{
    return number == 1 ? QString() : QStringLiteral("s");
}

} // namespace dravolin::NOXUtils
