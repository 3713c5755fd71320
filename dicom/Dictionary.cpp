#include "dicom/Dictionary.h"

#include <algorithm>

namespace dravolin {

namespace {

struct Attribute
{
    TagNumber tag;
    Vr representation;
};

// Groups and elements from those of one tag to those of another.
struct Range
{
    enum Parity { Any, Even, Odd };

    [[nodiscard]] bool holds(TagNumber tag) const
    {
        return isIn(groupOf(tag), groupOf(first), groupOf(last), groups) &&
               isIn(elementOf(tag), elementOf(first), elementOf(last), elements);
    }
    static bool isIn(quint16 number, quint16 from, quint16 to, Parity parity)
    {
        return number >= from && number <= to && (parity == Any || (number % 2 == 1) == (parity == Odd));
    }

    TagNumber first;
    TagNumber last;
    Parity groups;
    Parity elements;
    Vr representation;
};

// in ascending order
constexpr Attribute attributes[] = {
#define ATTRIBUTE(tag, first, second) {tag, vr(first, second)},
#define RANGE(first, last, groups, elements, one, two)
#include "dicom/DictionaryTable.inc"
#undef ATTRIBUTE
#undef RANGE
};

constexpr Range ranges[] = {
#define ATTRIBUTE(tag, first, second)
#define RANGE(first, last, groups, elements, one, two)                                                       \
    {first, last, Range::groups, Range::elements, vr(one, two)},
#include "dicom/DictionaryTable.inc"
#undef ATTRIBUTE
#undef RANGE
};

} // namespace

QByteArray letters(Vr representation)
{
    QByteArray bytes(1, static_cast<char>(representation >> 8));
    return bytes.append(static_cast<char>(representation & 0xff));
}

Vr dictionaryVr(TagNumber tag)
{
    if (isPrivate(tag))
        return elementOf(tag) >= 0x10 && elementOf(tag) <= 0xff ? vr('L', 'O') : Vr(0);
    const auto *known = std::ranges::lower_bound(attributes, tag, {}, &Attribute::tag);
    if (known != std::end(attributes) && known->tag == tag)
        return known->representation;
    const auto *range = std::ranges::find_if(ranges, [tag](const Range &one) { return one.holds(tag); });
    return range == std::end(ranges) ? Vr(0) : range->representation;
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
