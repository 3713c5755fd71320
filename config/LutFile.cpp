#include "config/LutFile.h"

#include "base/Files.h"
#include "base/NOXUtils.h"
#include "config/Columns.h"
#include "base/Lines.h"

#include <QStringDecoder>

#include <array>
#include <charconv>

namespace dravolin {

namespace {

// so that a table of a million rows is never held as decoded text as a whole
constexpr qsizetype blockSize = 65536;
constexpr qsizetype shortValue = 8;
constexpr qsizetype usualRowSize = 32;

const QString missingTemplate = QStringLiteral("<supply missing value replacement, eg: Unknown>");

const QString header = QStringLiteral(
    "#\n"
    "# The format of this file is simple:\n"
    "#\n"
    "# <old_value>[one_or_more_tabs]<new_value>\n"
    "#\n"
    "#\n"
    "# The first line *must* contain the <missing> value replacement.\n"
    "# Enter anything to replace the missing value with.\n"
    "# Note that you can enter <skip> to leave the value un-anonymized.\n"
    "#\n"
    "# Lines starting with # are considered to be comments\n"
    "# !! Please make sure to use [tabs] (or a minimum of three spaces) to separate the fields in a row !!\n"
    "# !! Please make sure there are no tabs or spaces after the last field in a row !!\n"
    "#\n"
    "# Note that propagating a LUT may take a lot of time,\n"
    "# up to several mins/GB for non-4D data sets, even for data sets on an SSD.\n"
    "#\n"
    "#\n"
    "# This LUT file was prepopulated using tag (%1)\n"
    "#\n"
    "#\n"
    "# THE ABOVE MESSAGE *MAY NOT* BE REMOVED\n"
    "#\n"
    "%2\t\t%3\n");

struct Row
{
    QStringView key;
    QStringView value;
};

// The first and the last field: the column rule of ConfigurationFile.cpp without a list for each line, and
// without its second layout. The spaces count in the first column alone, and only when they make more fields
// there than the tabs make in the whole line.
std::optional<Row> fieldsOf(QStringView line)
{
    const qsizetype firstTab = line.indexOf(u'\t');
    const QStringView firstColumn = firstTab < 0 ? line : line.first(firstTab);
    const qsizetype tabs = firstTab < 0 ? 0 : line.sliced(firstTab).count(u'\t');

    qsizetype separators = 0;
    qsizetype firstSeparator = -1;
    qsizetype behindLast = 0;
    for (qsizetype at = firstColumn.indexOf(columnSpaces); at >= 0;
         at = firstColumn.indexOf(columnSpaces, behindLast)) {
        if (separators++ == 0)
            firstSeparator = at;
        behindLast = at + columnSpaces.size();
    }
    if (separators > tabs)
        return Row{firstColumn.first(firstSeparator), firstColumn.sliced(behindLast)};
    if (tabs == 0)
        return std::nullopt;
    return Row{firstColumn, line.sliced(line.lastIndexOf(u'\t') + 1)};
}

void addLine(LutTable &table, QStringView line)
{
    const QStringView trimmed = NOXUtils::trimmed(line);
    if (trimmed.startsWith(u'#'))
        return;
    if (const std::optional<Row> row = fieldsOf(trimmed))
        table.insert(NOXUtils::stringByTrimmingLeadingAndTrailingspaces(row->key),
                     NOXUtils::stringByTrimmingLeadingAndTrailingspaces(row->value));
}

void addLines(LutTable &table, QStringView text)
{
    forEachLine(text, [&table](QStringView line) { addLine(table, line); });
}

// The length of the next block of whole lines; at least one line, however long.
qsizetype blockLength(QByteArrayView bytes)
{
    if (bytes.size() <= blockSize)
        return bytes.size();
    qsizetype newline = bytes.lastIndexOf('\n', blockSize - 1);
    if (newline < 0)
        newline = bytes.indexOf('\n', blockSize);
    return newline < 0 ? bytes.size() : newline + 1;
}

void tidyMissingValue(LutTable &table, MissingText wanted)
{
    const auto missing = table.find(missingValue);
    if (missing == table.end())
        return;
    const QString text = missing.value().toLower();
    if (text == missingTemplate.toLower())
        missing.value() = QStringLiteral("Unknown");
    else if (wanted == MissingText::LowerCase)
        missing.value() = text; // intended: keywords and names too
}

void appendRow(QString &text, QStringView value, qsizetype position)
{
    std::array<char, 20> digits = {};
    const auto end = std::to_chars(digits.begin(), digits.end(), position).ptr;
    text += value;
    // intended: two tabs from eight characters on, whatever the width of a tab
    text += value.size() < shortValue ? QLatin1String("\t\t\tSubject_") : QLatin1String("\t\tSubject_");
    for (qsizetype digit = end - digits.begin(); digit < 3; ++digit)
        text += u'0';
    text += QLatin1String(digits.data(), end - digits.begin());
    text += u'\n';
}

} // namespace

std::optional<LutTable> parseLut(const QByteArray &bytes, MissingText missing)
{
    QByteArrayView rest(bytes);
    if (!rest.isValidUtf8())
        return std::nullopt;
    if (rest.startsWith(byteOrderMark))
        rest = rest.sliced(byteOrderMark.size());
    if (rest.isEmpty())
        return std::nullopt;

    LutTable table;
    // a mark is a character like any other behind the beginning of the file
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    QString block;
    while (!rest.isEmpty()) {
        const qsizetype length = blockLength(rest);
        block = decoder(rest.first(length));
        addLines(table, block);
        rest = rest.sliced(length);
    }
    tidyMissingValue(table, missing);
    return table;
}

std::optional<LutTable> loadLut(const QString &path, MissingText missing)
{
    const std::optional<QByteArray> bytes = readBytes(path);
    return bytes ? parseLut(*bytes, missing) : std::nullopt;
}

QString lutText(const QString &tag, const QStringList &values)
{
    QString text = header.arg(tag, missingValue, missingTemplate);
    text.reserve(text.size() + values.size() * usualRowSize);
    for (qsizetype i = 0; i < values.size(); ++i)
        appendRow(text, values.at(i), i + 1);
    return text;
}

} // namespace dravolin
