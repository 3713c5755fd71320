#include "check/Values.h"

#include "base/PathText.h"
#include "check/CommonWords.h"
#include "check/Spellings.h"

#include <algorithm>

namespace dravolin::check {

namespace {

constexpr quint32 fewestLetters = 2;
constexpr quint32 fewestDigits = 3;
constexpr quint32 shortWord = 4;       // letters; anything shorter is possible at most
constexpr quint32 shortIdentifier = 5; // letters and digits
constexpr quint32 longWord = 8;
constexpr quint32 shortUid = 10;
constexpr size_t mostWords = 32; // of a long text; its beginning stands for all of it
const QDate firstDummyDate(1900, 1, 1);
const QString registeredRoot = QStringLiteral("1.2.840.10008.");

quint64 combined(const std::vector<Word> &words)
{
    quint64 state = 1;
    for (const Word &word : words)
        state = mixed(state, word.hash);
    return state;
}

Grade gradeOf(const Pattern &pattern, const std::vector<Word> &words)
{
    const bool mingled = std::any_of(words.cbegin(), words.cend(), [](const Word &w) { return w.digits; }) &&
                         std::any_of(words.cbegin(), words.cend(), [](const Word &w) { return !w.digits; });
    switch (pattern.valueClass) {
    case ValueClass::Person:
        return isCommon(words) || (pattern.letters < shortWord && !pattern.ideographs) ? Grade::Possible
                                                                                       : Grade::Likely;
    case ValueClass::Identifier:
    case ValueClass::Contact:
        return pattern.letters < shortIdentifier || isCommon(words) ? Grade::Possible : Grade::Certain;
    case ValueClass::Listed: return pattern.letters < shortWord ? Grade::Possible : Grade::Certain;
    case ValueClass::Uid: return pattern.letters < shortUid ? Grade::Possible : Grade::Certain;
    case ValueClass::Institution:
        return words.size() > 1 || (pattern.letters >= longWord && !isCommon(words)) ? Grade::Likely
                                                                                     : Grade::Possible;
    case ValueClass::Place: return words.size() > 1 && mingled ? Grade::Likely : Grade::Possible;
    case ValueClass::Device: return mingled && pattern.letters >= longWord ? Grade::Likely : Grade::Possible;
    case ValueClass::Date:
    case ValueClass::FreeText:
    case ValueClass::FileName: return Grade::Possible;
    }
    return Grade::Possible;
}

Pattern patternOf(ValueClass valueClass, Tag source, const QString &value, const std::vector<Word> &words)
{
    Pattern pattern{{.valueClass = valueClass, .digits = true, .source = source}, toBytes(value)};
    for (const Word &word : words) {
        pattern.letters += word.letters;
        pattern.digits = pattern.digits && word.digits;
        pattern.ideographs = pattern.ideographs || word.ideograph;
    }
    pattern.grade = gradeOf(pattern, words);
    return pattern;
}

bool isSearchable(const Pattern &pattern)
{
    if (pattern.ideographs)
        return pattern.letters > 0;
    return pattern.letters >= (pattern.digits ? fewestDigits : fewestLetters);
}

// A counter or a name that a program gave: IM000001, 00012.
bool isCounter(const Word &word, quint32 lettersBefore, QStringView text)
{
    if (!word.digits)
        return word.letters < shortWord;
    const QStringView number = text.sliced(word.start, word.end - word.start);
    const auto digit = std::find_if(number.cbegin(), number.cend(), [](QChar c) { return c != u'0'; });
    return (word.joined && lettersBefore < shortWord) || number.cend() - digit < shortIdentifier;
}

} // namespace

bool Values::isNew(quint64 key)
{
    const qsizetype known = m_seen.size();
    m_seen.insert(key);
    return m_seen.size() > known;
}

bool Values::isLeftOut(const std::vector<Word> &words) const
{
    return isDummy(words) || m_leftOut.contains(combined(words));
}

void Values::leaveOut(const QString &value)
{
    m_leftOut.insert(combined(wordsOf(value)));
}

void Values::add(ValueClass valueClass, Tag source, const QString &text)
{
    if (valueClass == ValueClass::FreeText || valueClass == ValueClass::Place) {
        addOne(valueClass, source, text); // a backslash is part of a text
        return;
    }
    for (const QString &value : text.split(u'\\'))
        addOne(valueClass, source, value);
}

void Values::addOne(ValueClass valueClass, Tag source, const QString &value)
{
    std::vector<Word> words = wordsOf(value);
    const quint64 key = mixed(combined(words), static_cast<quint64>(valueClass));
    if (words.empty() || isLeftOut(words) || !isNew(key))
        return;
    if (valueClass == ValueClass::Date && !isExactTime(value))
        return addDate(source, value);
    if (valueClass == ValueClass::Person)
        return addPerson(source, value);
    if (valueClass == ValueClass::Uid && value.startsWith(registeredRoot))
        return;
    words.resize(std::min(words.size(), mostWords));
    const Pattern pattern = patternOf(valueClass, source, value.trimmed(), words);
    const bool term = valueClass == ValueClass::FreeText && isCommon(words);
    const bool isShort =
        valueClass >= ValueClass::Device && pattern.letters < shortWord && !pattern.ideographs;
    if (!isSearchable(pattern) || isShort || term) {
        ++m_tooShort;
        return;
    }
    m_patterns.add(pattern, words);
    ++m_searched;
    ++m_byClass[static_cast<size_t>(valueClass)];
}

quint32 Values::addNamePart(Tag source, const QString &part)
{
    const std::vector<Word> words = wordsOf(part);
    Pattern pattern = patternOf(ValueClass::Person, source, part, words);
    pattern.component = true;
    if (!isSearchable(pattern) || isLeftOut(words))
        return Patterns::none;
    for (const Word &word : words) { // of a double name
        const QString single = part.sliced(word.start, word.end - word.start);
        if (words.size() > 1 && word.letters >= shortWord && !word.ideograph && !word.digits)
            addNamePart(source, single);
    }
    return m_patterns.add(pattern, words);
}

void Values::addJoined(const Pattern &whole, const QString &first, const QString &second)
{
    if (whole.ideographs || whole.letters < longWord)
        return;
    for (const quint64 hash : {joinedHash(first, second), joinedHash(second, first)}) {
        const Word word{.hash = hash, .letters = whole.letters};
        m_patterns.add(whole, {&word, 1});
    }
}

void Values::addPerson(Tag source, const QString &name)
{
    bool any = false;
    for (const NameParts &group : namePartsOf(name)) {
        Pattern whole = patternOf(ValueClass::Person, source, group.whole, wordsOf(group.parts.join(u' ')));
        whole.grade = whole.letters >= shortIdentifier || whole.ideographs ? Grade::Certain : Grade::Likely;
        std::vector<quint32> parts;
        for (const QString &part : group.parts)
            parts.push_back(addNamePart(source, part));
        std::erase(parts, Patterns::none);
        any = any || !parts.empty();
        if (parts.size() < 2)
            continue;
        addJoined(whole, group.parts[0], group.parts[1]);
        const quint32 index = m_patterns.addNamed(whole);
        // two given names are nobody's whole name, but without ^ any part may be the family name
        const size_t firsts = group.whole.contains(u'^') ? 1 : parts.size();
        for (size_t i = 0; i < firsts; ++i) {
            for (size_t j = i + 1; j < parts.size(); ++j)
                m_patterns.addPair(parts[i], parts[j], index);
        }
    }
    ++(any ? m_searched : m_tooShort);
    m_byClass[static_cast<size_t>(ValueClass::Person)] += any ? 1 : 0;
}

void Values::addDate(Tag source, const QString &value)
{
    const QDate date = dateOf(value);
    if (!date.isValid() || date <= firstDummyDate)
        return;
    const std::vector<Word> words = wordsOf(date.toString(u"yyyyMMdd"));
    const quint32 index = m_patterns.add(patternOf(ValueClass::Date, source, value.first(8), words), words);
    for (const QString &spelling : spellingsOf(date))
        m_patterns.addSpelling(index, wordsOf(spelling));
    ++m_searched;
    ++m_byClass[static_cast<size_t>(ValueClass::Date)];
}

void Values::addListed(const QString &line)
{
    addOne(ValueClass::Listed, 0, line);
    if (line.contains(u'^'))
        addPerson(0, line);
}

void Values::addPath(const QString &path)
{
    for (const QString &name : path.split(u'/'))
        addFileName(name);
}

void Values::addFileName(const QString &name)
{
    const std::vector<Word> words = wordsOf(name);
    if (std::count_if(words.cbegin(), words.cend(), [](const Word &w) { return w.ideograph; }) > 1)
        addOne(ValueClass::FileName, 0, withoutExtension(name));
    quint32 lettersBefore = 0;
    for (const Word &word : words) {
        const bool telling =
            !word.ideograph && !isCounter(word, lettersBefore, name) && !isCommon({&word, 1});
        lettersBefore = word.digits ? shortWord : word.letters;
        if (telling)
            addOne(ValueClass::FileName, 0, name.sliced(word.start, word.end - word.start));
    }
}

} // namespace dravolin::check
