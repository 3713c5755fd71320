#pragma once

#include "config/ConfigurationFile.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <Qt>

// What is to be done to an object, apart from how it is said to a tool. Pure functions, any thread.
namespace dravolin {

struct Edit
{
    enum class Kind {
        NewSopInstanceUid, // no tag, no value
        Insert,            // sets the value at the top level, whether the attribute is there or not
        Modify,            // sets the value at the top level where the attribute is there
        EraseEverywhere    // takes the attribute away at every level; no value
    };
    Kind kind = Kind::EraseEverywhere;
    QString tag; // gggg,eeee as the configuration has it
    QString value;

    bool operator==(const Edit &) const = default;
};

// The two check boxes that decide about edits.
struct EditChoices
{
    Qt::CheckState generateSOP = Qt::Unchecked;
    Qt::CheckState onlyGenerateSOP = Qt::Unchecked;
};

struct Edits
{
    QList<Edit> list;          // in the order in which they are carried out
    QStringList malformedTags; // neither empty nor of nine characters, in list order; they make no edit
};

// The edits that `rules` and `choices` ask for. Tags of nine UTF-16 units with a value that is not empty are
// inserted, the others erased; with "only generate" there is nothing but the new SOP Instance UID, if any.
[[nodiscard]] Edits edits(const TagRules &rules, const EditChoices &choices);

// The edits as dcmodify's arguments in a shell command, each with a blank in front. Tags and values stand
// between double quotes as they are: the shell sees quotes, dollars and backquotes in them.
[[nodiscard]] QString shellText(const QList<Edit> &edits);

// The same as arguments for a process that is started without a shell; every value arrives as it is.
[[nodiscard]] QStringList argumentList(const QList<Edit> &edits);

} // namespace dravolin
