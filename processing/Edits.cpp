#include "processing/Edits.h"

#include "base/NOXUtils.h"

namespace dravolin {

namespace {

// dcmodify's option, and what the edit gives it; "" for an option without one.
struct Argument
{
    QString option;
    QString operand;
};

Argument argumentOf(const Edit &edit)
{
    switch (edit.kind) {
    case Edit::Kind::NewSopInstanceUid: return {QStringLiteral("-gin"), {}};
    case Edit::Kind::Insert:
        return {QStringLiteral("-i"), u'(' + edit.tag + QStringLiteral(")=") + edit.value};
    case Edit::Kind::Modify:
        return {QStringLiteral("-m"), u'(' + edit.tag + QStringLiteral(")=") + edit.value};
    case Edit::Kind::EraseEverywhere: return {QStringLiteral("-ea"), u'(' + edit.tag + u')'};
    }
    return {};
}

} // namespace

Edits edits(const TagRules &rules, const EditChoices &choices)
{
    Edits edits;
    if (choices.generateSOP == Qt::Checked)
        edits.list.append({.kind = Edit::Kind::NewSopInstanceUid, .tag = {}, .value = {}});
    if (choices.onlyGenerateSOP != Qt::Unchecked)
        return edits;
    for (const QString &entry : rules.allTagsToAnonymize) {
        const QString tag = NOXUtils::stringByTrimmingLeadingAndTrailingspaces(entry);
        if (tag.size() == tagLength) {
            const QString value = rules.newValueDict.value(tag);
            edits.list.append(
                {value.isEmpty() ? Edit::Kind::EraseEverywhere : Edit::Kind::Insert, tag, value});
        } else if (!tag.isEmpty()) {
            edits.malformedTags.append(tag);
        }
    }
    return edits;
}

QString shellText(const QList<Edit> &edits)
{
    QString text;
    for (const Edit &edit : edits) {
        const Argument argument = argumentOf(edit);
        text += u' ' + argument.option;
        // intended: the shell sees quotes, dollars and backquotes of a value as they are
        if (!argument.operand.isEmpty())
            text += QStringLiteral(" \"") + argument.operand + u'"';
    }
    return text;
}

QStringList argumentList(const QList<Edit> &edits)
{
    QStringList arguments;
    for (const Edit &edit : edits) {
        const Argument argument = argumentOf(edit);
        arguments.append(argument.option);
        if (!argument.operand.isEmpty())
            arguments.append(argument.operand);
    }
    return arguments;
}

} // namespace dravolin
