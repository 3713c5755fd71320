#include "check/Spellings.h"

#include <QRegularExpression>

#include <algorithm>

namespace dravolin::check {

namespace {

constexpr qsizetype tellingParts = 3;

QStringList monthNames(int month)
{
    static const QStringList english = {
        QStringLiteral("january"), QStringLiteral("february"), QStringLiteral("march"),
        QStringLiteral("april"),   QStringLiteral("may"),      QStringLiteral("june"),
        QStringLiteral("july"),    QStringLiteral("august"),   QStringLiteral("september"),
        QStringLiteral("october"), QStringLiteral("november"), QStringLiteral("december")};
    static const QStringList german = {
        QStringLiteral("januar"),  QStringLiteral("februar"),  QStringLiteral("m\u00E4rz"),
        QStringLiteral("april"),   QStringLiteral("mai"),      QStringLiteral("juni"),
        QStringLiteral("juli"),    QStringLiteral("august"),   QStringLiteral("september"),
        QStringLiteral("oktober"), QStringLiteral("november"), QStringLiteral("dezember")};
    QStringList names = {english[month - 1], english[month - 1].first(3), german[month - 1],
                         german[month - 1].first(3)};
    names.removeDuplicates();
    return names;
}

QStringList withAndWithoutZero(int number)
{
    QStringList texts = {QString::number(number)};
    if (number < 10)
        texts.prepend(u'0' + texts.first());
    return texts;
}

void addNumeric(QStringList &forms, const QString &year, const QString &month, const QString &day)
{
    for (const QChar separator : {u' ', u'.'}) {
        forms.append(year + separator + month + separator + day);
        forms.append(day + separator + month + separator + year);
        forms.append(month + separator + day + separator + year);
    }
}

} // namespace

QList<NameParts> namePartsOf(const QString &name)
{
    static const QRegularExpression blanks(QStringLiteral("[\\s,;]+"));
    QList<NameParts> groups;
    for (const QString &group : name.split(u'=')) {
        QStringList parts = group.contains(u'^') ? group.split(u'^') : group.split(blanks);
        parts = parts.first(std::min(parts.size(), tellingParts));
        std::transform(parts.cbegin(), parts.cend(), parts.begin(),
                       [](const QString &part) { return part.trimmed(); });
        parts.removeAll(QString());
        if (!parts.isEmpty())
            groups.append({group.trimmed(), parts});
    }
    return groups;
}

QDate dateOf(const QString &value)
{
    static const QRegularExpression form(QStringLiteral("^\\s*(\\d{4})\\.?(\\d\\d)\\.?(\\d\\d)"));
    const QRegularExpressionMatch match = form.match(value);
    return {match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt()};
}

bool isExactTime(const QString &value)
{
    static const QRegularExpression form(QStringLiteral("^\\s*\\d{6}\\.\\d{2,6}\\s*$"));
    return form.match(value).hasMatch();
}

QStringList spellingsOf(QDate date)
{
    const QString year = QString::number(date.year()).rightJustified(4, u'0');
    QStringList forms = {date.toString(u"yyyyMMdd"), date.toString(u"ddMMyyyy")};
    for (const QString &day : withAndWithoutZero(date.day())) {
        for (const QString &month : withAndWithoutZero(date.month()))
            addNumeric(forms, year, month, day);
        for (const QString &month : monthNames(date.month())) {
            forms.append(day + u' ' + month + u' ' + year);
            forms.append(month + u' ' + day + u' ' + year);
            forms.append(year + u' ' + month + u' ' + day);
        }
    }
    return forms;
}

} // namespace dravolin::check
