#pragma once

#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>

// The ways in which one value is written. Pure functions, any thread; none of them fails.
namespace dravolin::check {

// The parts of a person's name that tell one from another: family, given and middle name of one of the name's
// groups; title and suffix are left out. A name without ^ is taken as its words.
struct NameParts
{
    QString whole;
    QStringList parts; // family name first
};

// The groups (alphabetic, ideographic, phonetic) of one name that have any part.
[[nodiscard]] QList<NameParts> namePartsOf(const QString &name);

// The date at the beginning of a DA or DT value (YYYYMMDD, or YYYY.MM.DD as it was written of old); not valid
// when there is none.
[[nodiscard]] QDate dateOf(const QString &value);

// True for a time of day with its fraction of a second, which stands nowhere by chance.
[[nodiscard]] bool isExactTime(const QString &value);

// The usual written forms of a date. What stands between day, month and year is a blank, or a dot between
// digits; other separators count as a blank.
[[nodiscard]] QStringList spellingsOf(QDate date);

} // namespace dravolin::check
