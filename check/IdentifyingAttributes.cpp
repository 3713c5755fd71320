#include "check/IdentifyingAttributes.h"

#include "base/Texts.h"

#include <algorithm>

namespace dravolin::check {

namespace {

struct Attribute
{
    Tag tag;
    ValueClass valueClass;
};

using enum ValueClass;

constexpr Attribute attributes[] = {
#include "check/IdentifyingAttributes.inc"
};

} // namespace

std::optional<ValueClass> classOf(Tag tag)
{
    const auto *const found = std::lower_bound(std::begin(attributes), std::end(attributes), tag,
                                               [](const Attribute &a, Tag wanted) { return a.tag < wanted; });
    if (found == std::end(attributes) || found->tag != tag)
        return std::nullopt;
    return found->valueClass;
}

QString nameOf(ValueClass valueClass)
{
    switch (valueClass) {
    case Person: return Texts::tr("person");
    case Identifier: return Texts::tr("identifier");
    case Listed: return Texts::tr("list of identifiers");
    case Contact: return Texts::tr("contact");
    case Uid: return Texts::tr("UID");
    case Institution: return Texts::tr("institution");
    case Place: return Texts::tr("place");
    case Date: return Texts::tr("date");
    case Device: return Texts::tr("device");
    case FreeText: return Texts::tr("free text");
    case FileName: return Texts::tr("file or folder name");
    }
    return {};
}

QString tagText(Tag tag)
{
    QString text = QStringLiteral("(0000,0000)");
    for (const qsizetype place : {9, 8, 7, 6, 4, 3, 2, 1}) {
        text[place] = QChar(u"0123456789abcdef"[tag & 0xF]);
        tag >>= 4;
    }
    return text;
}

} // namespace dravolin::check
