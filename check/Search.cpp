#include "check/Search.h"

#include "base/PathText.h"
#include "check/CommonWords.h"

#include <algorithm>

namespace dravolin::check {

namespace {

// Bytes are searched piece by piece, so that a large file does not take many times its size.
constexpr qsizetype pieceSize = 262144;
constexpr qsizetype pieceOverlap = 2048; // longer than a value that identifies somebody
constexpr qsizetype fewestBytes = 4;     // that may hold one
constexpr qsizetype fewestOfUtf16 = 6;   // the same in UTF-16

// Where the piece behind the one at `start` begins: at a blank or a control character, which no letter of
// several bytes holds.
qsizetype nextPiece(QByteArrayView bytes, qsizetype start)
{
    const qsizetype end = start + pieceSize;
    if (end >= bytes.size())
        return bytes.size();
    for (qsizetype at = end; at > start + pieceSize / 2; --at) {
        if (static_cast<unsigned char>(bytes[at]) <= ' ')
            return at;
    }
    return end;
}

bool hasHighBytes(QByteArrayView bytes)
{
    return std::any_of(bytes.cbegin(), bytes.cend(),
                       [](char byte) { return static_cast<unsigned char>(byte) >= 0x80; });
}

TextKind kindOf(Element::Kind kind)
{
    return kind == Element::Kind::Numbers ? TextKind::Numbers : TextKind::Text;
}

Place placeOf(const Element &element)
{
    return {
        Place::Kind::Attribute, element.tag, element.path.empty() ? 0 : element.path.front().sequence, {}};
}

// A DICOMDIR's records have to have attributes that objects may lack; their values are made up then.
bool isInDirectory(const Element &element)
{
    constexpr Tag records = 0x00041220;
    return !element.path.empty() && element.path.front().sequence == records;
}

} // namespace

Searcher::Searcher(const Patterns &patterns, const Rules *rules, bool searchPixels, OwnTexts ownTexts)
    : m_patterns(patterns), m_rules(rules), m_searchPixels(searchPixels), m_ownTexts(std::move(ownTexts))
{
}

void Searcher::searchText(QStringView text, TextKind kind)
{
    m_words.clear();
    appendWords(text, m_words);
    const std::vector<Match> matches = m_patterns.find(m_words, kind);
    m_matches.insert(m_matches.end(), matches.cbegin(), matches.cend());
}

void Searcher::takeMatches(const Place &place, QList<Finding> &findings)
{
    std::sort(m_matches.begin(), m_matches.end(), [](const Match &a, const Match &b) {
        return a.pattern != b.pattern ? a.pattern < b.pattern : a.grade < b.grade;
    });
    const auto last = std::unique(m_matches.begin(), m_matches.end(),
                                  [](const Match &a, const Match &b) { return a.pattern == b.pattern; });
    for (auto match = m_matches.begin(); match != last; ++match)
        findings.append({place, *match});
    m_matches.clear();
}

void Searcher::searchBytes(QByteArrayView bytes, const Place &place, const CharacterSets &sets,
                           QList<Finding> &findings)
{
    if (bytes.size() < fewestBytes)
        return takeMatches(place, findings);
    QByteArray escapes; // in force where a piece begins
    for (qsizetype start = 0; start < bytes.size();) {
        const qsizetype next = nextPiece(bytes, start);
        searchPiece(bytes.sliced(start, std::min(next + pieceOverlap, bytes.size()) - start), escapes, sets);
        if (next < bytes.size())
            escapes = escapesInForce(escapes + bytes.sliced(start, next - start).toByteArray());
        start = next;
    }
    takeMatches(place, findings);
}

void Searcher::searchPiece(QByteArrayView bytes, const QByteArray &escapes, const CharacterSets &sets)
{
    searchText(decodeGuessing(bytes), TextKind::Bytes);
    if (!escapes.isEmpty() || bytes.contains('\x1B') || (sets.isOfItsOwn() && hasHighBytes(bytes)))
        searchText(sets.decode(escapes + bytes.toByteArray()), TextKind::Bytes);
    if (bytes.size() >= fewestOfUtf16 && (m_patterns.hasIdeographs() || bytes.contains('\0'))) {
        for (const qsizetype offset : {0, 1}) {
            searchText(decodeUtf16(bytes, offset, ByteOrder::LittleEndian), TextKind::Bytes);
            searchText(decodeUtf16(bytes, offset, ByteOrder::BigEndian), TextKind::Bytes);
        }
    }
}

bool Searcher::isOwnText(Tag tag, const QString &text) const
{
    const auto own = m_ownTexts.constFind(tag);
    return own != m_ownTexts.constEnd() && text.trimmed() == *own;
}

void Searcher::searchElement(const Element &element, SearchedFile &result)
{
    const qsizetype known = result.findings.size();
    QString text;
    if (element.kind == Element::Kind::Bytes) {
        text = decimalText(element.bytes, element.numbers);
        searchText(text, TextKind::Numbers);
        searchBytes(element.bytes, placeOf(element), element.sets, result.findings);
    } else {
        text = element.sets.decode(element.bytes);
        searchText(text, kindOf(element.kind));
        // what is written is often not in the set that the object names
        if (hasHighBytes(element.bytes))
            searchText(decodeGuessing(element.bytes), TextKind::Text);
        takeMatches(placeOf(element), result.findings);
        if (result.findings.size() > known && isOwnText(element.tag, text))
            result.findings.resize(known);
        if (result.findings.size() == known && classOf(element.tag) && (m_words.empty() || isDummy(m_words)))
            ++result.emptied;
    }
    if (m_rules && !isInDirectory(element))
        m_rules->compare(element, text, result.deviations);
    if (result.findings.size() == known)
        return;
    const QString path = pathText(element.path, element.tag);
    for (qsizetype i = known; i < result.findings.size(); ++i)
        result.findings[i].place.path = path;
}

void Searcher::searchPath(const QString &path, QList<Finding> &findings)
{
    const QStringList names = path.split(u'/');
    for (qsizetype i = 0; i < names.size(); ++i) {
        searchText(decodeGuessing(toBytes(names[i])), TextKind::Text);
        const bool isLast = i + 1 == names.size();
        takeMatches({isLast ? Place::Kind::FileName : Place::Kind::FolderName, 0, 0, {}}, findings);
    }
}

SearchedFile Searcher::search(LoadedFile file, const QString &path)
{
    SearchedFile result;
    readLoaded(file, [&](const Element &element) { searchElement(element, result); });
    const auto bytes = [&](QByteArrayView some, Place::Kind kind) {
        searchBytes(some, {kind, 0, 0, {}}, {}, result.findings);
    };
    switch (file.record.state) {
    case FileRecord::State::Object:
        bytes(file.preamble(), Place::Kind::Preamble);
        bytes(file.behindEnd(), Place::Kind::BehindEnd);
        if (m_searchPixels)
            bytes(file.pixelData(), Place::Kind::PixelData);
        break;
    case FileRecord::State::NoObject: bytes(file.bytes, Place::Kind::NoObject); break;
    case FileRecord::State::Damaged: bytes(file.bytes, Place::Kind::Damaged); break;
    case FileRecord::State::Unreadable: break;
    }
    searchPath(path, result.findings);
    result.record = file.record;
    return result;
}

QList<Finding> Searcher::searchLink(const QString &path, const QString &target)
{
    QList<Finding> findings;
    searchPath(path, findings);
    searchText(decodeGuessing(toBytes(target)), TextKind::Text);
    takeMatches({Place::Kind::LinkTarget, 0, 0, {}}, findings);
    return findings;
}

} // namespace dravolin::check
