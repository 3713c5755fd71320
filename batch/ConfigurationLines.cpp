#include "batch/ConfigurationLines.h"

#include "base/Lines.h"
#include "base/Texts.h"
#include "config/ConfigurationFile.h"
#include "dicom/Dictionary.h"

#include <QList>
#include <QMap>

#include <iterator>
#include <optional>

namespace dravolin {

namespace {

struct Line
{
    int number = 0; // from 1
    QString tag;    // as it is written
    TagNumber attribute = 0;
    std::optional<QString> value;

    [[nodiscard]] bool sets() const { return value && !value->isEmpty(); }
};

// Those that name an attribute.
QList<Line> linesOf(const QString &text)
{
    QList<Line> all;
    int number = 0;
    forEachLine(text, [&](QStringView line) {
        // between CR and LF there is an empty line, which nobody counts
        if (!QStringView(text).first(line.data() - text.data()).endsWith(QLatin1String("\r\n")))
            ++number;
        const TagRules rules = parseConfiguration(line.toString());
        const QString tag = rules.allTagsToAnonymize.value(0);
        if (const std::optional<TagNumber> attribute = tagFromText(tag)) {
            const bool hasValue = rules.newValueDict.contains(tag);
            all.append({number, tag, *attribute,
                        hasValue ? std::optional(rules.newValueDict.value(tag)) : std::nullopt});
        }
    });
    return all;
}

// The attributes that a run sets itself, and how their tags are written.
QMap<TagNumber, QString> fixedTags()
{
    TagRules fixed;
    addFixedTags(fixed, {}, {});
    QMap<TagNumber, QString> tags;
    for (const QString &tag : fixed.allTagsToAnonymize)
        tags.insert(tagFromText(tag).value(), tag);
    return tags;
}

class Judge
{
public:
    QStringList judge(const QList<Line> &all)
    {
        const QList<Line> own = withoutFixed(all);
        QMap<QString, Line> used; // in the order in which they are carried out
        for (const Line &line : own)
            if (line.value || !used.contains(line.tag))
                used.insert(line.tag, line);
        for (const Line &line : own)
            if (used.value(line.tag).number != line.number)
                tell(line, used.value(line.tag));
        compareSpellings(used);
        return m_problems.values();
    }

private:
    void tell(const Line &line, const Line &deciding)
    {
        m_problems.insert(line.number, Texts::tr("%1 in line %2 is decided by line %3")
                                           .arg(tagText(line.attribute))
                                           .arg(line.number)
                                           .arg(deciding.number));
    }

    // Copies in sequences may still be erased by another spelling of the tag.
    QList<Line> withoutFixed(const QList<Line> &all)
    {
        const QMap<TagNumber, QString> fixed = fixedTags();
        QList<Line> others;
        for (const Line &line : all) {
            if (fixed.contains(line.attribute) && (line.sets() || line.tag == fixed.value(line.attribute)))
                m_problems.insert(line.number, Texts::tr("%1 in line %2 is set by the run itself")
                                                   .arg(tagText(line.attribute))
                                                   .arg(line.number));
            else
                others.append(line);
        }
        return others;
    }

    // An attribute whose tag is written in several ways: what is set is lost to any later line, what is
    // erased only to a later erasure.
    void compareSpellings(const QMap<QString, Line> &used)
    {
        QMap<TagNumber, Line> later;
        for (auto line = std::make_reverse_iterator(used.end());
             line != std::make_reverse_iterator(used.begin()); ++line) {
            const auto deciding = later.constFind(line->attribute);
            if (deciding != later.constEnd() && (line->sets() || !deciding->sets()))
                tell(*line, *deciding);
            else
                later.insert(line->attribute, *line);
        }
    }

    QMap<int, QString> m_problems; // by line
};

} // namespace

QStringList linesOfNoEffect(const QString &text)
{
    return Judge().judge(linesOf(text));
}

} // namespace dravolin
