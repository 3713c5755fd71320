#include "dicom/Dates.h"

#include "dicom/Syntax.h"

#include <QByteArrayList>
#include <QDate>
#include <QRegularExpression>

#include <algorithm>

namespace dravolin {

namespace {

QString moved(const QString &value, int days)
{
    // with dots between the parts as they were written before DICOM
    static const QRegularExpression form(QStringLiteral(
        "^(\\d{4})(?:(\\.?)(\\d{2})(?:\\2(\\d{2})(\\d{2}(?:\\d{2}(?:\\d{2}(?:\\.\\d{1,6})?)?)?)?)?)?"
        "([+-]\\d{4})?$"));
    const QRegularExpressionMatch match = form.match(value);
    const auto part = [&match](int number) { return std::max(match.captured(number).toInt(), 1); };
    const QDate date =
        match.hasMatch() ? QDate(match.captured(1).toInt(), part(3), part(4)).addDays(-days) : QDate();
    constexpr int lastYear = 9999;
    if (!date.isValid() || date.year() < 1 || date.year() > lastYear)
        return {};
    const QString dot = match.captured(2);
    const auto digits = [](int number, int width) {
        return QString::number(number).rightJustified(width, u'0');
    };
    QString text = digits(date.year(), 4);
    if (match.hasCaptured(3))
        text += dot + digits(date.month(), 2);
    if (match.hasCaptured(4))
        text += dot + digits(date.day(), 2);
    return text + match.captured(5) + match.captured(6);
}

} // namespace

bool isDateOfAnEvent(TagNumber tag, Vr representation)
{
    constexpr TagNumber versions[] = {0x00080106, 0x00080107, 0x0040db06, 0x0040db07};
    const bool isDate = representation == vr('D', 'A') || representation == vr('D', 'T');
    return isDate && std::find(std::begin(versions), std::end(versions), tag) == std::end(versions);
}

QByteArray datesMovedBack(const QByteArray &values, int days)
{
    QByteArrayList all = withoutPadding(values).split('\\');
    for (QByteArray &value : all)
        value = moved(QString::fromLatin1(value.trimmed()), days).toLatin1();
    return all.join('\\');
}

} // namespace dravolin
