#include "config/ConfigurationFile.h"

#include "base/Files.h"
#include "base/NOXUtils.h"
#include "config/Columns.h"
#include "base/Lines.h"

#include <algorithm>
#include <optional>

namespace dravolin {

namespace {

struct TagRule
{
    QString tag;
    std::optional<QString> value;
};

// intended: a value of dots alone means "no replacement"; dots beside other characters stay
QString cleanedValue(QStringView column)
{
    const QStringView value = NOXUtils::trimmed(column);
    const bool onlyDots = std::all_of(value.begin(), value.end(), [](QChar c) { return c == u'.'; });
    return onlyDots ? QString() : value.toString();
}

// LutFile.cpp has the same column rule, made for speed.
TagRule parseLine(QStringView line)
{
    const QList<QStringView> byTabs = line.split(u'\t');
    const QList<QStringView> bySpaces = byTabs.first().split(columnSpaces);
    const bool spaceLayout = bySpaces.size() > byTabs.size();
    const QList<QStringView> &columns = spaceLayout ? bySpaces : byTabs;

    TagRule rule{NOXUtils::stringByTrimmingLeadingAndTrailingspaces(columns.first()), std::nullopt};
    if (columns.size() >= 3) {
        rule.value = cleanedValue(columns.last());
    } else if (!spaceLayout && columns.size() == 2) {
        const QList<QStringView> pieces = columns.last().split(columnSpaces);
        if (pieces.size() >= 2)
            rule.value = cleanedValue(pieces.last());
    }
    return rule;
}

void sortWithoutDuplicates(QStringList &tags)
{
    std::sort(tags.begin(), tags.end());
    tags.erase(std::unique(tags.begin(), tags.end()), tags.end());
}

} // namespace

TagRules parseConfiguration(const QString &text)
{
    TagRules rules;
    forEachLine(text, [&rules](QStringView line) {
        const QStringView trimmed = NOXUtils::trimmed(line);
        if (trimmed.startsWith(u'#'))
            return;
        const TagRule rule = parseLine(trimmed);
        if (rule.value)
            rules.newValueDict.insert(rule.tag, *rule.value);
        rules.allTagsToAnonymize.append(rule.tag);
    });
    sortWithoutDuplicates(rules.allTagsToAnonymize);
    return rules;
}

TagRules loadConfiguration(const QString &path)
{
    const std::optional<QString> text = readText(path);
    return text ? parseConfiguration(*text) : TagRules();
}

void addFixedTags(TagRules &rules, const CaseTexts &texts, const QString &studyInstanceUid)
{
    const auto trimmed = [](const QString &text) {
        return NOXUtils::stringByTrimmingLeadingAndTrailingspaces(text);
    };
    // intended: the file may say what it likes about these five, the window wins
    const NewValueDict fixed = {
        {QStringLiteral("0010,0010"), trimmed(texts.diagnosis)},
        {QStringLiteral("0010,0020"), trimmed(texts.caseId)},
        {QStringLiteral("0020,000d"), studyInstanceUid}, // lower-case d; "0020,000D" would be another tag
        {QStringLiteral("0008,0050"), trimmed(texts.credits)},
        {QStringLiteral("0032,4000"), trimmed(texts.keywords)},
    };
    rules.newValueDict.insert(fixed);
    rules.allTagsToAnonymize += fixed.keys();
    sortWithoutDuplicates(rules.allTagsToAnonymize);
}

std::optional<QString> firstTagWithTableMarker(const NewValueDict &values)
{
    const auto found = std::find_if(values.cbegin(), values.cend(),
                                    [](const QString &value) { return value.startsWith(tableMarkerPrefix); });
    return found == values.cend() ? std::nullopt : std::optional(found.key());
}

} // namespace dravolin
