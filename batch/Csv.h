#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// Tables as text, as RFC 4180 has them. Pure functions, any thread.
namespace dravolin {

struct CsvRow
{
    int line = 0; // of the text, from 1, where the row begins
    QStringList fields;

    bool operator==(const CsvRow &) const = default;
};

struct Csv
{
    QList<CsvRow> rows; // without empty lines
    QString problem; // a text for people when a quoted field does not end, or goes on behind its end; "" else
};

// The rows of `text`. Fields are divided by a comma, or by a semicolon or a tab when the first line has more
// of these; LF, CR LF and CR end a row.
[[nodiscard]] Csv parseCsv(const QString &text);

// A field as it is written into a table with commas.
[[nodiscard]] QString csvField(const QString &value);
// A row with its line end, CR LF.
[[nodiscard]] QString csvLine(const QStringList &values);

} // namespace dravolin
