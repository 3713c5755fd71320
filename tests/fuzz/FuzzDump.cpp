#include "Fuzz.h"

#include "processing/LutPropagation.h"

using namespace dravolin;
using fuzz::require;

// A line of the search for an attribute: the value in it, and the command that gives it another one.

namespace {

// The value of a file as the line shows it.
QString lineWith(const QString &value)
{
    return QStringLiteral("(0010,1000) LO [") + value +
           QStringLiteral("]                        #   6, 1 RetiredOtherPatientIDs\n");
}

// intended: of a value with blanks its first word without the last character
QString seenOf(const QString &value)
{
    const qsizetype blank = value.indexOf(u' ');
    return blank < 0 ? value : value.first(std::max<qsizetype>(blank - 1, 0));
}

void requirePieces(const QString &printed)
{
    const std::optional<QString> value = searchedValue(printed);
    require(value.has_value() == (printed.count(u' ') >= 2), "a value is the third of the pieces");
    if (!value)
        return;
    const QString piece = printed.section(u' ', 2, 2);
    require(piece.startsWith(u'[') ? piece.size() - value->size() == std::min<qsizetype>(piece.size(), 2)
                                   : piece == *value,
            "of a piece in brackets the inside");
    require(piece.contains(*value), "a value is a part of what was printed");
}

void requireCommand(const QString &value, const QString &newValue)
{
    const LutTable table = {{value, newValue}};
    const QString propagated = propagatedValue(table, value);
    require(propagated == (newValue.isEmpty() ? missingValue : newValue), "a table's value is used");
    require(propagatedValue({}, value) == missingValue, "a value without a row is missing");
    if (!fuzz::isPlainInQuotes(propagated) || !fuzz::isPlainInQuotes(value))
        return;
    const QString command =
        propagationCommand(QStringLiteral("/tools/dcmodify"), QStringLiteral("0010,1000"), propagated, value);
    const QStringList expected = {QStringLiteral("/tools/dcmodify"),
                                  QStringLiteral("-ie"),
                                  QStringLiteral("-nb"),
                                  QStringLiteral("-m"),
                                  QStringLiteral("(0010,1000)=") + propagated,
                                  value,
                                  QStringLiteral(">.noxTemp.out"),
                                  QStringLiteral("2>&1")};
    require(fuzz::shellWords(command) == expected, "a shell sees the value and the name as one word each");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes = fuzz::bytesOf(data, size);
    const QString printed = decodeUtf8(bytes).value_or(QString());
    requirePieces(printed);
    require(searchedValue(lineWith(printed)) == seenOf(printed), "the value of a line is found");
    requireCommand(printed.section(u'\n', 0, 0), printed.section(u'\n', 1));
    return 0;
}
