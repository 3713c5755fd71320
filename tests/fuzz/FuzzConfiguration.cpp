#include "Fuzz.h"

#include "config/ConfigurationFile.h"
#include "processing/Edits.h"

#include <algorithm>

using namespace dravolin;
using fuzz::require;

// A configuration: the rules that a text makes, and what is to be done by them.

namespace {

void requireOrder(const TagRules &rules)
{
    const QStringList &tags = rules.allTagsToAnonymize;
    require(std::is_sorted(tags.begin(), tags.end()), "tags are sorted");
    require(std::adjacent_find(tags.begin(), tags.end()) == tags.end(), "each tag is listed once");
    for (const QString &tag : rules.newValueDict.keys())
        require(std::binary_search(tags.begin(), tags.end(), tag), "a tag with a value is listed");
}

void requireCleanTexts(const TagRules &rules)
{
    for (const QString &tag : rules.allTagsToAnonymize) {
        require(fuzz::isTrimmedLine(tag) && !tag.contains(u'\t'), "a tag is one trimmed column");
        require(!tag.startsWith(u'#'), "a comment makes no tag");
    }
    for (const QString &value : rules.newValueDict) {
        require(fuzz::isTrimmedLine(value) && !value.contains(u'\t'), "a value is one trimmed column");
        require(value.isEmpty() || value.count(u'.') != value.size(), "dots alone are no value");
    }
}

// The rules as a text of columns between tabs: as many as keep spaces within a tag from making columns.
QString rendered(const TagRules &rules)
{
    QStringList lines;
    for (const QString &tag : rules.allTagsToAnonymize) {
        const auto value = rules.newValueDict.find(tag);
        const qsizetype pieces = tag.split(columnSpaces).size();
        if (value == rules.newValueDict.end())
            lines.append(pieces == 1 ? tag : tag + QStringLiteral("\tname"));
        else
            lines.append(tag + QString(std::max<qsizetype>(pieces, 2), u'\t') +
                         (value->isEmpty() ? QStringLiteral(".") : *value));
    }
    return lines.join(u'\n');
}

void requireSameWhenWritten(const TagRules &rules)
{
    if (rules.allTagsToAnonymize.isEmpty())
        return;
    const TagRules again = parseConfiguration(rendered(rules));
    require(again.allTagsToAnonymize == rules.allTagsToAnonymize, "written and read, the tags are the same");
    require(again.newValueDict == rules.newValueDict, "written and read, the values are the same");
}

void requireAnEditForEachTag(const TagRules &rules)
{
    const Edits made = edits(rules, {});
    const bool hasEmpty = rules.allTagsToAnonymize.contains(QString());
    require(made.list.size() + made.malformedTags.size() + (hasEmpty ? 1 : 0) ==
                rules.allTagsToAnonymize.size(),
            "a tag makes an edit or is told to be malformed");
    for (const Edit &edit : made.list) {
        require(edit.value == rules.newValueDict.value(edit.tag), "an edit has its tag's value");
        require((edit.kind == Edit::Kind::Insert) == !edit.value.isEmpty(), "a value is inserted");
    }
}

void requireFirstMarker(const NewValueDict &values)
{
    std::optional<QString> first;
    for (auto value = values.begin(); value != values.end() && !first; ++value) {
        if (value->startsWith(tableMarkerPrefix))
            first = value.key();
    }
    require(firstTagWithTableMarker(values) == first, "the first marker in order is found");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::optional<QString> text = decodeUtf8(fuzz::bytesOf(data, size));
    if (!text)
        return -1;
    TagRules rules = parseConfiguration(*text);
    requireOrder(rules);
    requireCleanTexts(rules);
    requireSameWhenWritten(rules);
    requireAnEditForEachTag(rules);
    requireFirstMarker(rules.newValueDict);

    const qsizetype tags = rules.allTagsToAnonymize.size();
    addFixedTags(rules, {*text, *text, *text, *text}, *text);
    requireOrder(rules);
    require(rules.allTagsToAnonymize.size() <= tags + 5, "five tags come from the window");
    requireAnEditForEachTag(rules);
    return 0;
}
