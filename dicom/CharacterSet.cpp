#include "dicom/CharacterSet.h"

#include "base/CharacterSets.h"
#include "dicom/Syntax.h"

#include <dcmtk/config/osconfig.h>
#include <dcmtk/dcmdata/dcspchrs.h>

#include <QByteArrayList>

#include <algorithm>

namespace dravolin {

namespace {

constexpr char escape = '\x1b';

bool isAscii(const QByteArray &bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [](char c) { return c > 0 && c != escape; });
}

bool hasHighBytes(const QByteArray &bytes)
{
    return std::any_of(bytes.begin(), bytes.end(), [](char c) { return c < 0; });
}

// The first of several, by its name without code extensions.
QByteArray firstOf(const QByteArray &characterSet)
{
    return characterSet.split('\\').first().trimmed().replace("ISO 2022 IR", "ISO_IR");
}

// Nothing when they do not fit.
std::optional<QByteArray> converted(DcmSpecificCharacterSet &conversion, const QByteArray &bytes,
                                    const char *delimiters)
{
    OFString result;
    if (conversion.convertString(bytes.constData(), static_cast<size_t>(bytes.size()), result, delimiters)
            .bad())
        return std::nullopt;
    return QByteArray(result.data(), static_cast<qsizetype>(result.size()));
}

// For what DCMTK has no conversion for, or a wrong one.
std::optional<QByteArray> decoded(const QByteArray &value, const QByteArray &characterSet)
{
    const QByteArray first = firstOf(characterSet);
    const bool beginsWithAscii = first.isEmpty() || first == "ISO_IR 6";
    const CharacterSets sets(characterSet);
    if (!sets.areKnown() || (beginsWithAscii && hasHighBytes(value)))
        return std::nullopt;
    const QString text = sets.decode(value);
    return text.contains(QChar::ReplacementCharacter) ? std::nullopt : std::optional(text.toUtf8());
}

} // namespace

std::optional<QByteArray> encodeText(const QString &text, const QByteArray &characterSet)
{
    const QByteArray utf8 = text.toUtf8();
    const QByteArray target = firstOf(characterSet);
    if (isAscii(utf8) || target == utf8CharacterSet)
        return utf8;
    if (target.isEmpty())
        return std::nullopt;
    DcmSpecificCharacterSet conversion;
    return conversion.selectCharacterSet(utf8CharacterSet, target.constData()).good()
               ? converted(conversion, utf8, "")
               : std::nullopt;
}

std::optional<QByteArray> utf8Text(const QByteArray &value, const QByteArray &characterSet, bool isName)
{
    if (isAscii(value))
        return value;
    DcmSpecificCharacterSet conversion;
    // DCMTK makes a yen sign of what divides values there
    const bool isJapanese = firstOf(characterSet) == "ISO_IR 13";
    return !isJapanese && conversion.selectCharacterSet(characterSet.constData(), utf8CharacterSet).good()
               ? converted(conversion, value, isName ? "\\^=" : "\\")
               : decoded(value, characterSet);
}

} // namespace dravolin
