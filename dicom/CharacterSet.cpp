#include "dicom/CharacterSet.h"

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

// The first of several, by its name without code extensions.
QByteArray firstOf(const QByteArray &characterSet)
{
    return characterSet.split('\\').first().trimmed().replace("ISO 2022 IR", "ISO_IR");
}

std::optional<QByteArray> converted(const QByteArray &bytes, const QByteArray &from, const QByteArray &to,
                                    const char *delimiters)
{
    DcmSpecificCharacterSet conversion;
    OFString result;
    if (conversion.selectCharacterSet(from.constData(), to.constData()).bad() ||
        conversion.convertString(bytes.constData(), static_cast<size_t>(bytes.size()), result, delimiters)
            .bad())
        return std::nullopt;
    return QByteArray(result.data(), static_cast<qsizetype>(result.size()));
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
    return converted(utf8, utf8CharacterSet, target, "");
}

std::optional<QByteArray> utf8Text(const QByteArray &value, const QByteArray &characterSet, bool isName)
{
    if (isAscii(value))
        return value;
    return converted(value, characterSet, utf8CharacterSet, isName ? "\\^=" : "\\");
}

} // namespace dravolin
