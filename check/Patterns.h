#pragma once

#include "check/Folding.h"
#include "check/IdentifyingAttributes.h"
#include "check/WordTable.h"

#include <QByteArray>
#include <QString>

#include <deque>
#include <memory_resource>
#include <optional>
#include <span>
#include <unordered_map>
#include <vector>

namespace dravolin::check {

// Strongest first.
enum class Grade : quint8 { Certain, Likely, Possible };

// For people: "certain", "likely", "possible".
[[nodiscard]] QString nameOf(Grade grade);
// The grade of that name; nothing for any other text.
[[nodiscard]] std::optional<Grade> gradeNamed(const QString &name);

// What decides about finding a value.
struct PatternTraits
{
    ValueClass valueClass = ValueClass::FreeText;
    Grade grade = Grade::Possible;
    bool digits : 1 = false; // nothing else
    bool ideographs : 1 = false;
    bool component : 1 = false; // a part of a person's name
    Tag source = 0;             // the attribute that the value came from; 0 for none
    quint32 letters = 0;        // folded letters and digits
};

// A value that is searched for, or a part of it.
struct Pattern : PatternTraits
{
    QByteArray value; // as it was written, UTF-8
};

// One spelling of a value, found in a text.
struct Match
{
    quint32 pattern = 0; // the index of the pattern
    Grade grade = Grade::Possible;
};

// Where a text comes from, as far as it says how much a match is worth.
enum class TextKind { Text, Numbers, Bytes };

// The values that are searched for. Patterns are made from values by the functions of check/Values.h; the
// words of a text are compared with all of them at once, in a time that does not depend on their number. Two
// words count as the same when their 64-bit hashes are. Filling it is one thread's work at a time; find() may
// be called from any thread once nothing is added any more.
class Patterns
{
public:
    // The index of the pattern of exactly these words, which are some: a new one, or the one that was there,
    // which takes over what is stronger in `pattern`.
    quint32 add(const Pattern &pattern, std::span<const Word> words);
    // Another spelling of a pattern, unless these words are a pattern already.
    void addSpelling(quint32 pattern, std::span<const Word> words);
    // The index of a new pattern without words of its own, as for a whole name.
    quint32 addNamed(const Pattern &pattern);
    // The two components, close to each other, are the whole name `whole`.
    void addPair(quint32 first, quint32 second, quint32 whole);

    // What of it stands in the words of one text; each pattern at most once, and no component of a whole name
    // that was found.
    [[nodiscard]] std::vector<Match> find(std::span<const Word> words, TextKind kind) const;

    [[nodiscard]] Pattern at(quint32 index) const;
    [[nodiscard]] const PatternTraits &traits(quint32 index) const { return m_patterns[index]; }
    [[nodiscard]] size_t size() const { return m_patterns.size(); }
    [[nodiscard]] bool hasIdeographs() const { return m_ideographs; }

    static constexpr quint32 none = WordTable::none;

private:
    struct KeptPattern : PatternTraits
    {
        quint32 length = 0; // of the value
        const char *value = nullptr;
    };
    struct Hit
    {
        quint32 pattern = none;
        size_t word = 0; // the last one
    };

    [[nodiscard]] KeptPattern kept(const Pattern &pattern);
    quint32 &patternOf(std::span<const Word> words);
    [[nodiscard]] std::vector<Hit> hits(std::span<const Word> words) const;
    [[nodiscard]] bool fits(const PatternTraits &pattern, std::span<const Word> words, size_t first,
                            size_t last) const;
    void findPairs(std::vector<Hit> &hits) const;
    void findDatePrefix(const Word &word, size_t at, std::vector<Hit> &hits) const;

    std::deque<KeptPattern> m_patterns;
    std::pmr::monotonic_buffer_resource m_values; // of all of them; they stay where they are
    WordTable m_words;
    std::unordered_map<quint64, quint32> m_pairs; // two components, the lower index first
    bool m_ideographs = false;
};

} // namespace dravolin::check
