#include "dicom/ValueChange.h"

#include "base/Texts.h"
#include "dicom/CharacterSet.h"
#include "dicom/Dates.h"
#include "dicom/Values.h"

#include <QByteArrayList>

#include <algorithm>

namespace dravolin {

namespace {

using Kind = AttributeRule::Kind;
using Copies = AttributeRule::Copies;

constexpr TagNumber characterSetTag = 0x00080005;
constexpr TagNumber trailingPadding = 0xfffcfffc;
// so that no value fills the memory; text that people wrote is far shorter
constexpr quint64 longestValue = 4 * 1024 * 1024;
const char registeredPrefix[] = "1.2.840.10008.";

// Whether that value representation is one of characters, or of bytes that may be some.
bool mayHoldCharacters(Vr written)
{
    switch (written) {
    case vr('A', 'E'):
    case vr('A', 'S'):
    case vr('C', 'S'):
    case vr('D', 'A'):
    case vr('D', 'S'):
    case vr('D', 'T'):
    case vr('I', 'S'):
    case vr('O', 'B'):
    case vr('T', 'M'):
    case vr('U', 'R'): return true;
    default: return isText(written);
    }
}

// UI, DA or DT for what is a UID or a date, even where the file calls it something else.
Vr meaningOf(const Element &element)
{
    const Vr known = mayHoldCharacters(element.written) ? dictionaryVr(element.tag) : Vr(0);
    const bool decides = known == vr('U', 'I') || known == vr('D', 'A') || known == vr('D', 'T');
    return decides ? known : element.representation;
}

ValueChange::Result problem(const QString &text)
{
    ValueChange::Result result;
    result.problem = text;
    return result;
}

ValueChange::Result value(const Element &element, const QByteArray &bytes)
{
    ValueChange::Result result;
    result.value = bytes;
    // what an unknown attribute is cannot be told better than its writer did
    result.representation = element.representation != 0 ? element.representation : vr('U', 'N');
    return result;
}

ValueChange::Result erased()
{
    ValueChange::Result result;
    result.erase = true;
    return result;
}

} // namespace

AttributeRules ValueChange::rules() const
{
    AttributeRules rules = m_treatment.rules;
    if (m_toUtf8)
        rules.insert(characterSetTag, {Kind::Set, QString::fromLatin1(utf8CharacterSet)});
    return rules;
}

ValueChange::Result ValueChange::apply(ElementReader &reader, const Element &element,
                                       const Surroundings &around)
{
    if (element.tag == trailingPadding || erasesPrivate(element.tag, around))
        return erased();
    if (m_toUtf8 && element.tag == characterSetTag)
        return value(element, utf8CharacterSet);
    if (const auto rule = m_treatment.rules.constFind(element.tag); rule != m_treatment.rules.constEnd()) {
        const bool isCopy = rule->kind == Kind::Set && reader.depth() > 0;
        if (isCopy && rule->copies == Copies::Erase)
            return erased();
        if (!isCopy || rule->copies == Copies::Set)
            return byRule(reader, element, *rule, around.characterSet);
    }
    const Vr meaning = meaningOf(element);
    if (m_treatment.newUid && meaning == vr('U', 'I') && !namesNoInstance(element.tag))
        return mappedUids(reader, element);
    if (m_daysBack != 0 && isDateOfAnEvent(element.tag, meaning))
        return movedDates(reader, element);
    if (m_toUtf8 && isText(element.representation))
        return movedText(reader, element, around.characterSet);
    return {};
}

ValueChange::Result ValueChange::byRule(ElementReader &reader, const Element &element,
                                        const AttributeRule &rule, const QByteArray &characterSet)
{
    switch (rule.kind) {
    case Kind::Erase: return erased();
    case Kind::Set: return newValue(element, rule.value, characterSet);
    case Kind::FromTable: return fromTable(reader, element, characterSet);
    }
    return {};
}

ValueChange::Result ValueChange::inserted(TagNumber tag, const AttributeRule &rule, const Notation &notation,
                                          const QByteArray &characterSet)
{
    return newValue({.tag = tag, .representation = dictionaryVr(tag), .notation = notation}, rule.value,
                    characterSet);
}

bool ValueChange::erasesSequence(const Element &element, const Surroundings &around) const
{
    // a rule with a value for what the file calls a sequence: its value is no longer anything that is known
    return m_treatment.rules.contains(element.tag) || erasesPrivate(element.tag, around);
}

bool ValueChange::erasesPrivate(TagNumber tag, const Surroundings &around) const
{
    if (!m_treatment.removePrivate || !isPrivate(tag))
        return false;
    const QString creator = around.creators.value(privateBlock(tag));
    const QSet<QString> &kept = m_treatment.keptPrivate;
    if (elementOf(tag) > 0xff)
        return !kept.contains(privateName(groupOf(tag), creator, static_cast<quint8>(elementOf(tag) & 0xff)));
    const QString block = privateName(groupOf(tag), creator, 0).chopped(2);
    return std::none_of(kept.begin(), kept.end(),
                        [&](const QString &name) { return name.startsWith(block); });
}

ValueChange::Result ValueChange::newValue(const Element &element, const QString &text,
                                          const QByteArray &characterSet)
{
    QByteArray bytes = text.toUtf8();
    if (isText(element.representation)) {
        const std::optional<QByteArray> encoded =
            encodeText(text, m_toUtf8 ? QByteArray(utf8CharacterSet) : characterSet);
        m_needsUtf8 = m_needsUtf8 || !encoded;
        if (!encoded)
            return problem(Texts::tr("has a character set that cannot hold \"%1\"").arg(text));
        bytes = *encoded;
    }
    const std::optional<QByteArray> written = valueBytes(element.representation, element.notation, bytes);
    if (!written)
        return problem(Texts::tr("\"%1\" is no value for %2").arg(text, tagText(element.tag)));
    return value(element, *written);
}

ValueChange::Result ValueChange::fromTable(ElementReader &reader, const Element &element,
                                           const QByteArray &characterSet)
{
    if (element.length > longestValue)
        return problem(Texts::tr("%1 is too long to be looked up").arg(tagText(element.tag)));
    const QByteArray bytes = withoutPadding(reader.value());
    const std::optional<QByteArray> text =
        utf8Text(bytes, characterSet, element.representation == vr('P', 'N'));
    const QString old = text ? QString::fromUtf8(*text) : QString();
    const QString found = m_treatment.table.value(old);
    const QString chosen = found.isEmpty() ? m_treatment.table.value(missingValue) : found;
    if (chosen == skippedValue)
        return m_toUtf8 ? movedText(reader, element, characterSet) : Result();
    return newValue(element, chosen, characterSet);
}

ValueChange::Result ValueChange::mappedUids(ElementReader &reader, const Element &element) const
{
    if (element.length > longestValue)
        return problem(Texts::tr("%1 is too long for UIDs").arg(tagText(element.tag)));
    QByteArrayList uids = withoutPadding(reader.value()).split('\\');
    bool changed = false;
    for (QByteArray &uid : uids) {
        const QByteArray old = withoutPadding(uid.trimmed());
        if (old.isEmpty() || old.startsWith(registeredPrefix))
            continue;
        uid = m_treatment.newUid(old);
        changed = true;
    }
    return changed ? value(element, uids.join('\\')) : Result();
}

ValueChange::Result ValueChange::movedDates(ElementReader &reader, const Element &element) const
{
    if (element.length > longestValue)
        return problem(Texts::tr("%1 is too long for dates").arg(tagText(element.tag)));
    return element.length == 0 ? Result() : value(element, datesMovedBack(reader.value(), m_daysBack));
}

ValueChange::Result ValueChange::movedText(ElementReader &reader, const Element &element,
                                           const QByteArray &characterSet) const
{
    if (element.length > longestValue)
        return problem(Texts::tr("%1 is too long to be moved to UTF-8").arg(tagText(element.tag)));
    const QByteArray bytes = reader.value();
    const std::optional<QByteArray> text =
        utf8Text(bytes, characterSet, element.representation == vr('P', 'N'));
    if (!text)
        return problem(Texts::tr("%1 holds text that cannot be moved to UTF-8").arg(tagText(element.tag)));
    return *text == bytes ? Result() : value(element, *text);
}

} // namespace dravolin
