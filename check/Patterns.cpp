#include "check/Patterns.h"

#include "base/Texts.h"

#include <algorithm>

namespace dravolin::check {

namespace {

constexpr size_t pairDistance = 8;        // words between the components of one name
constexpr quint32 shortestInBytes = 4;    // letters; fewer stand in any bytes by chance
constexpr quint32 shortestIdeographs = 3; // of a component in bytes, as above
constexpr quint32 surelyNoNumber = 8;     // digits; fewer may be a measured value

bool isWholeWord(ValueClass valueClass)
{
    return valueClass != ValueClass::Person && valueClass != ValueClass::Date;
}

bool startsApart(std::span<const Word> words, size_t at)
{
    return at >= words.size() || !words[at].joined || words[at].ideograph ||
           (at > 0 && words[at - 1].ideograph);
}

quint64 pairKey(quint32 first, quint32 second)
{
    return (quint64{std::min(first, second)} << 32) | std::max(first, second);
}

Grade gradeIn(const PatternTraits &pattern, TextKind kind)
{
    if (kind == TextKind::Numbers && pattern.digits && pattern.letters < surelyNoNumber)
        return Grade::Possible;
    return pattern.grade;
}

bool isTooShortFor(const PatternTraits &pattern, TextKind kind)
{
    return kind == TextKind::Bytes &&
           pattern.letters < (pattern.ideographs ? shortestIdeographs : shortestInBytes);
}

} // namespace

QString nameOf(Grade grade)
{
    switch (grade) {
    case Grade::Certain: return Texts::tr("certain");
    case Grade::Likely: return Texts::tr("likely");
    case Grade::Possible: return Texts::tr("possible");
    }
    return {};
}

std::optional<Grade> gradeNamed(const QString &name)
{
    for (const Grade grade : {Grade::Certain, Grade::Likely, Grade::Possible})
        if (nameOf(grade) == name)
            return grade;
    return std::nullopt;
}

Pattern Patterns::at(quint32 index) const
{
    const KeptPattern &pattern = m_patterns[index];
    return {pattern, QByteArray(pattern.value, pattern.length)};
}

Patterns::KeptPattern Patterns::kept(const Pattern &pattern)
{
    const auto length = static_cast<quint32>(pattern.value.size());
    char *const value = static_cast<char *>(m_values.allocate(length, alignof(char)));
    std::copy_n(pattern.value.cbegin(), length, value);
    return {pattern, length, value};
}

quint32 &Patterns::patternOf(std::span<const Word> words)
{
    quint64 state = 0;
    for (size_t i = 0; i + 1 < words.size(); ++i) {
        state = mixed(state, words[i].hash);
        m_words.goOn(state);
    }
    return m_words.patternOf(mixed(state, words.back().hash));
}

quint32 Patterns::add(const Pattern &pattern, std::span<const Word> words)
{
    quint32 &index = patternOf(words);
    if (index == none) {
        index = addNamed(pattern);
    } else if (KeptPattern &known = m_patterns[index]; pattern.valueClass < known.valueClass) {
        const Grade grade = std::min(known.grade, pattern.grade);
        known = kept(pattern);
        known.grade = grade;
    } else {
        known.grade = std::min(known.grade, pattern.grade);
        known.component = known.component && pattern.component;
    }
    return index;
}

void Patterns::addSpelling(quint32 pattern, std::span<const Word> words)
{
    if (quint32 &index = patternOf(words); index == none)
        index = pattern;
}

quint32 Patterns::addNamed(const Pattern &pattern)
{
    m_patterns.push_back(kept(pattern));
    m_ideographs = m_ideographs || pattern.ideographs;
    return static_cast<quint32>(m_patterns.size() - 1);
}

void Patterns::addPair(quint32 first, quint32 second, quint32 whole)
{
    m_pairs.try_emplace(pairKey(first, second), whole);
}

bool Patterns::fits(const PatternTraits &pattern, std::span<const Word> words, size_t first,
                    size_t last) const
{
    return !isWholeWord(pattern.valueClass) || (startsApart(words, first) && startsApart(words, last + 1));
}

void Patterns::findDatePrefix(const Word &word, size_t at, std::vector<Hit> &hits) const
{
    if (word.datePrefix == 0)
        return;
    const quint32 pattern = m_words.find(mixed(0, word.datePrefix)).value_or(WordTable::Entry()).pattern;
    if (pattern != none && m_patterns[pattern].valueClass == ValueClass::Date)
        hits.push_back({pattern, at});
}

std::vector<Patterns::Hit> Patterns::hits(std::span<const Word> words) const
{
    std::vector<Hit> hits;
    for (size_t first = 0; first < words.size(); ++first) {
        findDatePrefix(words[first], first, hits);
        quint64 state = 0;
        for (size_t last = first; last < words.size(); ++last) {
            state = mixed(state, words[last].hash);
            const std::optional<WordTable::Entry> found = m_words.find(state);
            if (!found)
                break;
            if (found->pattern != none && fits(m_patterns[found->pattern], words, first, last))
                hits.push_back({found->pattern, last});
            if (!found->goesOn)
                break;
        }
    }
    return hits;
}

void Patterns::findPairs(std::vector<Hit> &hits) const
{
    if (m_pairs.empty())
        return;
    const size_t count = hits.size();
    std::vector<quint32> parts;
    for (size_t i = 0; i < count; ++i) {
        for (size_t j = i + 1; j < count && hits[j].word <= hits[i].word + pairDistance; ++j) {
            const auto whole = m_pairs.find(pairKey(hits[i].pattern, hits[j].pattern));
            if (whole == m_pairs.end())
                continue;
            hits.push_back({whole->second, hits[j].word});
            parts.push_back(hits[i].pattern);
            parts.push_back(hits[j].pattern);
        }
    }
    std::sort(parts.begin(), parts.end());
    std::erase_if(hits, [&parts](const Hit &hit) {
        return std::binary_search(parts.cbegin(), parts.cend(), hit.pattern);
    });
}

std::vector<Match> Patterns::find(std::span<const Word> words, TextKind kind) const
{
    std::vector<Hit> found = hits(words);
    if (found.empty())
        return {};
    findPairs(found);
    std::sort(found.begin(), found.end(), [](const Hit &a, const Hit &b) { return a.pattern < b.pattern; });
    std::vector<Match> matches;
    for (const Hit &hit : found) {
        const PatternTraits &pattern = m_patterns[hit.pattern];
        if (isTooShortFor(pattern, kind)) // only now: it may have been a part of a whole name
            continue;
        if (matches.empty() || matches.back().pattern != hit.pattern)
            matches.push_back({hit.pattern, gradeIn(pattern, kind)});
    }
    return matches;
}

} // namespace dravolin::check
