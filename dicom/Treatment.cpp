#include "dicom/Treatment.h"

#include "base/Texts.h"
#include "dicom/Values.h"

#include <algorithm>
#include <array>

namespace dravolin {

namespace {

constexpr std::array<TagNumber, 17> classesAndSyntaxes = {
    0x00020002, 0x00020010, 0x00020012, // of the file
    0x00041510, 0x00041512, 0x0004151a, // of a directory's records
    0x00080016, 0x0008001a, 0x0008001b, 0x00080062, 0x00081150, 0x0008115a,
    0x00083002, 0x0008010c, 0x00080117, 0x00080118, // coding schemes, context groups, mapping resources
    0x04000010,
};

QString valueOf(const Edit &edit)
{
    return edit.value == QStringLiteral("\"\"") ? QString() : edit.value;
}

bool isPixelData(TagNumber tag)
{
    return tag == 0x7fe00008 || tag == 0x7fe00009 || tag == 0x7fe00010; // of floats, of doubles, of integers
}

// What makes a rule one that cannot be carried out; "" when nothing does.
QString problemWith(TagNumber tag, const Edit &edit)
{
    constexpr TagNumber sopClass = 0x00080016;
    constexpr TagNumber sopInstance = 0x00080018;
    if (tag == sopClass || tag == sopInstance)
        return Texts::tr("%1 cannot be the same in all files").arg(tagText(tag));
    if (groupOf(tag) <= 2 || elementOf(tag) == 0)
        return Texts::tr("%1 is written anew in every file").arg(tagText(tag));
    if (isPixelData(tag))
        return Texts::tr("%1 is pixel data, which is never altered").arg(tagText(tag));
    if (edit.kind == Edit::Kind::EraseEverywhere)
        return {};
    const Vr representation = dictionaryVr(tag);
    if (representation == 0)
        return Texts::tr("%1 is not known, so no value can be written for it").arg(tagText(tag));
    if (!valueBytes(representation, {}, valueOf(edit).toUtf8()))
        return Texts::tr("\"%1\" is no value for %2").arg(edit.value, tagText(tag));
    return {};
}

AttributeRule ruleFor(const Edit &edit, bool withTable)
{
    if (edit.kind == Edit::Kind::EraseEverywhere)
        return {AttributeRule::Kind::Erase, {}};
    if (withTable && edit.value.startsWith(tableMarkerPrefix))
        return {AttributeRule::Kind::FromTable, {}};
    return {AttributeRule::Kind::Set, valueOf(edit)};
}

} // namespace

AttributeRules attributeRules(const QList<Edit> &edits, bool withTable, QStringList *problems)
{
    AttributeRules rules;
    for (const Edit &edit : edits) {
        if (edit.kind == Edit::Kind::NewSopInstanceUid)
            continue;
        const std::optional<TagNumber> tag = tagFromText(edit.tag);
        const QString problem = tag ? problemWith(*tag, edit) : Texts::tr("\"%1\" is no tag").arg(edit.tag);
        if (!problem.isEmpty()) {
            problems->append(problem);
            continue;
        }
        AttributeRule rule = ruleFor(edit, withTable);
        if (rules.contains(*tag) && rules.value(*tag).kind == AttributeRule::Kind::Erase)
            rule.copies = AttributeRule::Copies::Erase;
        rules.insert(*tag, rule);
    }
    return rules;
}

QString privateName(quint16 group, const QString &creator, quint8 element)
{
    return QStringLiteral("%1,\"%2\",%3")
        .arg(QString::number(group, 16).rightJustified(4, u'0'), creator,
             QString::number(element, 16).rightJustified(2, u'0'));
}

bool namesNoInstance(TagNumber tag)
{
    return std::find(classesAndSyntaxes.begin(), classesAndSyntaxes.end(), tag) != classesAndSyntaxes.end();
}

} // namespace dravolin
