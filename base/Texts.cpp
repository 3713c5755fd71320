#include "base/Texts.h"

#include "base/NOXUtils.h"

namespace dravolin {

int pluralNumber(quint64 number)
{
    constexpr quint64 period = 1000000;
    return static_cast<int>(number < period ? number : period + number % period);
}

QString withCounts(QString text, const QList<quint64> &numbers)
{
    int marker = 0;
    const auto fill = [&](const QString &value) { text.replace(u'%' + QString::number(++marker), value); };
    for (const quint64 number : numbers) {
        fill(QString::number(number));
        fill(NOXUtils::pluralSuffix(number));
    }
    return text;
}

} // namespace dravolin
