#pragma once

#include "check/ObjectReader.h"
#include "check/Patterns.h"

#include <QList>
#include <QSet>
#include <QString>

#include <array>
#include <map>

// What was found, where, and how it is told. None of it prints a value unless it is asked to.
namespace dravolin::check {

// Where a value stands in a file.
struct Place
{
    enum class Kind {
        Attribute,
        Preamble,
        BehindEnd,
        NoObject,
        Damaged,
        PixelData,
        FileName,
        FolderName,
        LinkTarget
    };
    Kind kind = Kind::Attribute;
    Tag tag = 0;       // of an attribute
    Tag outermost = 0; // the sequence of the top level that holds it; 0 for none
    QString path;      // of an attribute: (0040,0275)[0].(0032,1060)
};

// (gggg,eeee)[0].(gggg,eeee), or "file name", "preamble", ...
[[nodiscard]] QString textOf(const Place &place);

struct Finding
{
    Place place;
    Match match;
};

// B‥‥‥r, 8 characters; of a text of fewer than six characters only their number is told.
[[nodiscard]] QString masked(const QString &value);

// A relative path with each name masked in which one of the patterns stands.
[[nodiscard]] QString maskedPath(const QString &path, const Patterns &patterns);

// All findings in one kind of place.
struct FindingGroup
{
    Place place;  // of the first one
    QString name; // the attribute's name, or the place
    Grade worst = Grade::Possible;
    quint64 files = 0;
    std::array<quint64, 3> filesOf = {}; // by grade, a file counts with its worst
    QString sources = {}; // names of attributes or classes that the values came from, the first few
    QString line = {};    // of a configuration, which takes the attribute away; may be empty
    QString advice = {};  // what to do where no line helps
};

// Collects findings file by file. One thread at a time.
class FindingGroups
{
public:
    explicit FindingGroups(const Patterns &patterns) : m_patterns(patterns) {}

    // All findings in one file.
    void add(const QList<Finding> &findings);

    // Worst first, then the ones in most files.
    [[nodiscard]] QList<FindingGroup> groups() const;
    // Files that have findings, by the worst grade of each.
    [[nodiscard]] const std::array<quint64, 3> &files() const { return m_files; }

private:
    struct Key
    {
        Place::Kind kind;
        Tag tag;
        Tag outermost; // only where it decides about the advice
        auto operator<=>(const Key &) const = default;
    };
    struct Collected
    {
        FindingGroup group;
        QSet<Tag> known = {};          // what its sources have been told of
        quint64 file = 0;              // the last one that has findings, counted from 1
        Grade worst = Grade::Possible; // in it
    };
    [[nodiscard]] static Key keyOf(const Place &place);
    void count(Collected &collected, const Match &match) const;

    const Patterns &m_patterns;
    std::map<Key, Collected> m_groups;
    quint64 m_file = 0; // those with findings so far
    std::array<quint64, 3> m_files = {};
};

// "Patient's Name", or the class of a value that no attribute gave.
[[nodiscard]] QString sourceText(const PatternTraits &pattern);

} // namespace dravolin::check
