#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

// The anonymization configuration: which attributes to erase or to overwrite, and with what.
// Pure but for loadConfiguration, which reads one file; any thread; nothing here fails.
namespace dravolin {

// The new values by tag. A QMap, so that keys and values come in one order, by code unit: it decides which
// table marker is found first, and the order of the tag list decides the order of a command's arguments.
using NewValueDict = QMap<QString, QString>;

// The length of a tag, gggg,eeee; nothing else of it is checked anywhere.
inline constexpr qsizetype tagLength = 9;

// The beginning of a value that names a look-up table.
inline const QString tableMarkerPrefix = QStringLiteral("<LUT_");

struct TagRules
{
    QStringList allTagsToAnonymize; // no duplicates, sorted by code unit
    NewValueDict newValueDict;      // only tags that have a value; an empty value erases like none
};

// The case data of the main window, as the fields hold them.
struct CaseTexts
{
    QString diagnosis;
    QString caseId;
    QString credits;
    QString keywords;
    QString uidRoot = {};
};

// The rules that the lines of `text` make. A line's columns are separated by tabs or by exactly three spaces;
// the first is the tag (gggg,eeee, not checked here), the last of three or more the new value. Lines that
// begin with "#" are comments; an empty line makes the empty tag.
[[nodiscard]] TagRules parseConfiguration(const QString &text);

// The rules of the file at `path`; none when it is missing, cannot be read or is not UTF-8.
[[nodiscard]] TagRules loadConfiguration(const QString &path);

// Adds the five attributes whose values come from the window, over anything that the file said.
void addFixedTags(TagRules &rules, const CaseTexts &texts, const QString &studyInstanceUid);

// The tag of the first value that begins with the table marker's prefix; nothing when there is none.
[[nodiscard]] std::optional<QString> firstTagWithTableMarker(const NewValueDict &values);

} // namespace dravolin
