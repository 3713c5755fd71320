#include "check/Folding.h"

#include <QString>

#include <array>
#include <atomic>
#include <mutex>

namespace dravolin::check {

namespace {

enum class Kind : quint8 { Separator, Letter, Digit, Ideograph, Ignored };

struct Folded
{
    std::array<char16_t, 3> letters = {};
    quint8 count = 0;
    Kind kind = Kind::Separator;
};

constexpr quint64 hashStart = 0xCBF29CE484222325U;
constexpr quint64 hashPrime = 0x100000001B3U;
constexpr quint32 digitsOfDate = 8;
constexpr size_t pageSize = 0x100; // units

// Scripts that are written without spaces, or whose particles are joined to a name.
bool isUnspaced(char16_t unit)
{
    return (unit >= 0x0E00 && unit < 0x0E80) || (unit >= 0x1100 && unit < 0x1200) ||
           (unit >= 0x3040 && unit < 0xA000) || (unit >= 0xAC00 && unit < 0xFB00);
}

// Letters that no decomposition takes apart.
QString plainSpelling(char16_t unit)
{
    switch (unit) {
    case u'\u00DF': return QStringLiteral("ss");
    case u'\u00E6': return QStringLiteral("a"); // as ae
    case u'\u00F8':                             // as oe
    case u'\u0153': return QStringLiteral("o");
    case u'\u00F0':
    case u'\u0111': return QStringLiteral("d");
    case u'\u00FE': return QStringLiteral("th");
    case u'\u0142': return QStringLiteral("l");
    case u'\u0131': return QStringLiteral("i");
    default: return QString(QChar(unit));
    }
}

void addLetters(Folded &folded, QChar part)
{
    if (part.isMark())
        return;
    for (const QChar unit : plainSpelling(part.toCaseFolded().unicode())) {
        if (folded.count < folded.letters.size())
            folded.letters[folded.count++] = unit.unicode();
    }
}

Folded foldedUnit(char16_t unit)
{
    const QChar c(unit);
    if (c.isSurrogate() || (isUnspaced(unit) && c.isLetter() && unit < 0xF900 && unit >= 0x3400))
        return {{unit}, 1, Kind::Ideograph};
    Folded folded;
    for (const QChar part : QString(c).normalized(QString::NormalizationForm_KD))
        addLetters(folded, part);
    if (c.isMark() || unit == 0x00AD)
        folded.kind = Kind::Ignored;
    else if (c.isDigit())
        folded = {{static_cast<char16_t>(u'0' + c.digitValue())}, 1, Kind::Digit};
    else if (c.isLetterOrNumber() && folded.count > 0)
        folded.kind = isUnspaced(folded.letters[0]) ? Kind::Ideograph : Kind::Letter;
    return folded;
}

// The units of one row, which are folded when the first of them comes: texts need few of all rows.
class Page
{
public:
    const Folded &at(QChar c)
    {
        if (!m_isMade.load(std::memory_order_acquire))
            make(c.row());
        return m_folded[c.cell()];
    }

private:
    void make(uchar row)
    {
        static std::mutex mutex;
        const std::scoped_lock lock(mutex);
        if (m_isMade.load(std::memory_order_relaxed))
            return;
        for (size_t cell = 0; cell < pageSize; ++cell)
            m_folded[cell] = foldedUnit(static_cast<char16_t>(row * pageSize + cell));
        m_isMade.store(true, std::memory_order_release);
    }

    std::array<Folded, pageSize> m_folded;
    std::atomic<bool> m_isMade = false;
};

const Folded &fold(QChar c)
{
    static std::array<Page, 0x10000 / pageSize> pages;
    return pages[c.row()].at(c);
}

// The hash of a word that grows letter by letter.
class WordHash
{
public:
    void add(const Folded &folded)
    {
        for (quint8 i = 0; i < folded.count; ++i)
            add(folded.letters[i]);
    }
    void add(char16_t letter)
    {
        if (letter == u'e' && (m_last == u'a' || m_last == u'o' || m_last == u'u')) {
            m_last = 0; // the umlaut is spelled out; a second e is one
            return;
        }
        m_hash = (m_hash ^ letter) * hashPrime;
        m_last = letter;
        ++m_letters;
    }
    [[nodiscard]] quint64 hash() const { return m_hash ^ (m_hash >> 32); }
    [[nodiscard]] quint32 letters() const { return m_letters; }

private:
    quint64 m_hash = hashStart;
    quint32 m_letters = 0;
    char16_t m_last = 0;
};

bool continuesNumber(QStringView text, qsizetype at)
{
    return text[at] == u'.' && at + 1 < text.size() && fold(text[at + 1]).kind == Kind::Digit;
}

// The word that begins at `start`, which is neither separator nor mark.
Word wordAt(QStringView text, qsizetype start)
{
    const Kind kind = fold(text[start]).kind;
    WordHash hash;
    quint64 datePrefix = 0;
    qsizetype end = start;
    for (; end < text.size(); ++end) {
        const Folded &folded = fold(text[end]);
        if (folded.kind == kind && (kind != Kind::Ideograph || end == start))
            hash.add(folded);
        else if (kind == Kind::Digit && continuesNumber(text, end))
            hash.add(u'.');
        else if (folded.kind != Kind::Ignored)
            break;
        if (kind == Kind::Digit && hash.letters() == digitsOfDate)
            datePrefix = hash.hash();
    }
    if (hash.letters() == digitsOfDate)
        datePrefix = 0; // the word itself
    return {hash.hash(), datePrefix, start, end, hash.letters(), kind == Kind::Digit, kind == Kind::Ideograph,
            false};
}

} // namespace

void appendWords(QStringView text, std::vector<Word> &words)
{
    qsizetype last = -1;
    for (qsizetype at = 0; at < text.size();) {
        const Kind kind = fold(text[at]).kind;
        if (kind == Kind::Separator || kind == Kind::Ignored) {
            ++at;
            continue;
        }
        Word word = wordAt(text, at);
        word.joined = last == at;
        last = at = word.end;
        words.push_back(word);
    }
}

std::vector<Word> wordsOf(QStringView text)
{
    std::vector<Word> words;
    appendWords(text, words);
    return words;
}

quint64 joinedHash(QStringView first, QStringView second)
{
    WordHash hash;
    for (const QStringView part : {first, second}) {
        for (const QChar c : part) {
            if (const Folded &folded = fold(c); folded.kind == Kind::Letter)
                hash.add(folded);
        }
    }
    return hash.hash();
}

} // namespace dravolin::check
