#include "dicom/Dictionary.h"

#include <dcmtk/config/osconfig.h>
#include <dcmtk/dcmdata/dcdict.h>
#include <dcmtk/dcmdata/dctag.h>

#include <algorithm>

namespace dravolin {

QByteArray letters(Vr representation)
{
    QByteArray bytes(1, static_cast<char>(representation >> 8));
    return bytes.append(static_cast<char>(representation & 0xff));
}

bool dictionaryIsLoaded()
{
    return dcmDataDict.isDictionaryLoaded();
}

Vr dictionaryVr(TagNumber tag)
{
    if (isPrivate(tag))
        return elementOf(tag) >= 0x10 && elementOf(tag) <= 0xff ? vr('L', 'O') : Vr(0);
    const DcmTag known(groupOf(tag), elementOf(tag));
    switch (known.getEVR()) {
    case EVR_UNKNOWN:
    case EVR_UNKNOWN2B:
    case EVR_UN: return 0;
    case EVR_ox:
    case EVR_px:
    case EVR_lt: return vr('O', 'W');
    case EVR_xs: return vr('U', 'S');
    case EVR_up: return vr('U', 'L');
    default: break;
    }
    const char *name = known.getVRName();
    return vr(name[0], name[1]);
}

std::optional<TagNumber> tagFromText(const QString &text)
{
    const auto isDigit = [](QChar c) {
        return (c >= u'0' && c <= u'9') || (c.toLower() >= u'a' && c.toLower() <= u'f');
    };
    const QString digits = text.startsWith(u'+') ? u'0' + text.mid(1) : text;
    if (digits.size() != 9 || digits.at(4) != u',' ||
        std::count_if(digits.begin(), digits.end(), isDigit) != 8)
        return std::nullopt;
    return digits.left(4).toUInt(nullptr, 16) << 16 | digits.right(4).toUInt(nullptr, 16);
}

QString tagText(TagNumber tag)
{
    return QStringLiteral("(%1,%2)")
        .arg(groupOf(tag), 4, 16, QLatin1Char('0'))
        .arg(elementOf(tag), 4, 16, QLatin1Char('0'));
}

bool isText(Vr representation)
{
    switch (representation) {
    case vr('S', 'H'):
    case vr('L', 'O'):
    case vr('S', 'T'):
    case vr('L', 'T'):
    case vr('U', 'C'):
    case vr('U', 'T'):
    case vr('P', 'N'): return true;
    default: return false;
    }
}

bool hasLongHeader(Vr representation)
{
    switch (representation) {
    case vr('A', 'E'):
    case vr('A', 'S'):
    case vr('A', 'T'):
    case vr('C', 'S'):
    case vr('D', 'A'):
    case vr('D', 'S'):
    case vr('D', 'T'):
    case vr('F', 'D'):
    case vr('F', 'L'):
    case vr('I', 'S'):
    case vr('L', 'O'):
    case vr('L', 'T'):
    case vr('P', 'N'):
    case vr('S', 'H'):
    case vr('S', 'L'):
    case vr('S', 'S'):
    case vr('S', 'T'):
    case vr('T', 'M'):
    case vr('U', 'I'):
    case vr('U', 'L'):
    case vr('U', 'S'): return false;
    default: return true;
    }
}

} // namespace dravolin
