#include "check/Rules.h"

#include "base/NOXUtils.h"
#include "check/Remedy.h"

namespace dravolin::check {

namespace {

std::optional<Tag> tagOf(const QString &text)
{
    if (text.size() != tagLength || text[4] != u',')
        return std::nullopt;
    bool isGroup = false;
    bool isElement = false;
    const Tag group = text.first(4).toUInt(&isGroup, 16);
    const Tag element = text.sliced(5).toUInt(&isElement, 16);
    return isGroup && isElement ? std::optional((group << 16) | element) : std::nullopt;
}

QString withoutPadding(QString text)
{
    while (text.endsWith(QChar::Null) || text.endsWith(u' '))
        text.chop(1);
    return text;
}

// Whole numbers come as decimal digits with spaces between; other bytes have no text to be compared with.
bool isSame(const Element &element, const QString &text, QString wanted)
{
    if (element.kind == Element::Kind::Bytes) {
        wanted.replace(u'\\', u' ');
        const QStringList numbers = text.split(u' ', Qt::SkipEmptyParts);
        return numbers.size() != wanted.split(u' ').size() || numbers.join(u' ') == wanted;
    }
    return withoutPadding(text) == withoutPadding(wanted);
}

} // namespace

Rules::Rules(const TagRules &rules)
{
    for (const QString &entry : rules.allTagsToAnonymize) {
        const std::optional<Tag> tag = tagOf(NOXUtils::stringByTrimmingLeadingAndTrailingspaces(entry));
        if (!tag || isSetByTheWindow(*tag))
            continue;
        const QString value = rules.newValueDict.value(entry);
        m_rules[*tag] = value.isEmpty() ? std::nullopt : std::optional(value);
    }
}

bool Rules::isTakenAway(Tag tag) const
{
    const auto rule = m_rules.find(tag);
    return rule != m_rules.end() && !rule->second;
}

void Rules::compare(const Element &element, const QString &text, QList<Deviation> &deviations) const
{
    if (element.bytes.isEmpty())
        return;
    for (const PathStep &step : element.path) {
        if (isTakenAway(step.sequence))
            deviations.append({step.sequence, pathText(element.path, element.tag), false});
    }
    const auto rule = m_rules.find(element.tag);
    if (rule == m_rules.end())
        return;
    const std::optional<QString> &value = rule->second;
    // a table decides about the value
    if (value && (value->startsWith(tableMarkerPrefix) || isSame(element, text, *value)))
        return;
    deviations.append({element.tag, pathText(element.path, element.tag), value.has_value()});
}

QStringList Rules::values() const
{
    QStringList values;
    for (const auto &[tag, value] : m_rules) {
        if (value && !value->startsWith(tableMarkerPrefix))
            values.append(*value);
    }
    return values;
}

} // namespace dravolin::check
