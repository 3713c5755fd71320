#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>

namespace dravolin {

// Texts for people: Texts::tr("English text") looks the text up in the application's string table, with the
// English text as its key, and gives it back where the table does not have it. Any thread.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Texts)
};

// What Texts::tr is to be given as the number by which a translation chooses its plural form. It stands for
// numbers of any size: the forms of all languages repeat with the last six digits.
[[nodiscard]] int pluralNumber(quint64 number);

// `text` with the first number and its English plural suffix in place of "%1" and "%2", the second number
// and its suffix in place of "%3" and "%4". Translations have forms of their own instead of the suffixes.
[[nodiscard]] QString withCounts(QString text, const QList<quint64> &numbers);

} // namespace dravolin
