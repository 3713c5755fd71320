#include "Fuzz.h"

#include "config/LutFile.h"

#include <algorithm>

using namespace dravolin;
using fuzz::require;

// A look-up table: the rows that bytes make, beside the rule said in another way.

namespace {

constexpr qsizetype blockSize = 65536; // what is decoded at a time

std::optional<LutTable> slowly(const QByteArray &bytes)
{
    const std::optional<QString> text = decodeUtf8(bytes);
    if (!text || text->isEmpty())
        return std::nullopt;
    LutTable table;
    forEachLine(*text, [&table](QStringView line) {
        const QStringView trimmed = NOXUtils::trimmed(line);
        const QList<QStringView> byTabs = trimmed.split(u'\t');
        const QList<QStringView> bySpaces = byTabs.first().split(columnSpaces);
        const QList<QStringView> &fields = bySpaces.size() > byTabs.size() ? bySpaces : byTabs;
        if (!trimmed.startsWith(u'#') && fields.size() > 1)
            table.insert(NOXUtils::stringByTrimmingLeadingAndTrailingspaces(fields.first()),
                         NOXUtils::stringByTrimmingLeadingAndTrailingspaces(fields.last()));
    });
    if (table.contains(missingValue)) {
        const QString value = table.value(missingValue).toLower();
        table[missingValue] = value == QStringLiteral("<supply missing value replacement, eg: unknown>")
                                  ? QStringLiteral("Unknown")
                                  : value;
    }
    return table;
}

// The rows of `table` whose texts can be written as columns, as a file.
QByteArray written(const LutTable &table, LutTable &expected)
{
    QString text = QStringLiteral("#\n");
    for (auto row = table.begin(); row != table.end(); ++row) {
        if (row->isEmpty())
            continue;
        const qsizetype tabs = row.key().split(columnSpaces).size();
        text += row.key() + QString(tabs, u'\t') + *row + u'\n';
        expected.insert(row.key(), row.key() == missingValue ? row->toLower() : *row);
    }
    return text.toUtf8();
}

void requireSameWhenWritten(const LutTable &table)
{
    LutTable expected;
    require(parseLut(written(table, expected)) == expected, "written and read, the table is the same");
}

void requireRowsForValues(const LutTable &table)
{
    QStringList values;
    for (const QString &value : table.keys()) {
        if (value != missingValue && !value.contains(columnSpaces))
            values.append(value);
    }
    LutTable expected = {{missingValue, QStringLiteral("Unknown")}};
    for (qsizetype i = 0; i < values.size(); ++i)
        expected.insert(values.at(i), QStringLiteral("Subject_%1").arg(i + 1, 3, 10, QChar(u'0')));
    require(parseLut(lutText(QStringLiteral("0010,0010"), values).toUtf8()) == expected,
            "every value of a constructed table gets its row");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes = fuzz::bytesOf(data, size);
    const std::optional<LutTable> table = parseLut(bytes);
    require(table == slowly(bytes), "the fields are the first and the last");
    if (!table)
        return 0;
    for (auto row = table->begin(); row != table->end(); ++row) {
        require(fuzz::isTrimmedLine(row.key()) && !row.key().isEmpty(), "a key is a trimmed text");
        require(fuzz::isTrimmedLine(*row), "a value is a trimmed text");
    }
    requireSameWhenWritten(*table);
    requireRowsForValues(*table);
    if (!bytes.startsWith('#'))
        return 0;
    // a comment in front that puts the end of the first block into the input
    const qsizetype inFront = blockSize - bytes.size() / 2;
    require(parseLut(QByteArray(inFront - 1, '#') + '\n' + bytes) == table, "blocks do not matter");
    return 0;
}
