#include "dicom/ElementReader.h"

#include "base/Texts.h"

#include <algorithm>

namespace dravolin {

namespace {

constexpr quint16 delimiterGroup = 0xfffe;
constexpr TagNumber itemTag = 0xfffee000;
constexpr TagNumber itemDelimiter = 0xfffee00d;
constexpr TagNumber sequenceDelimiter = 0xfffee0dd;
constexpr quint32 undefined32 = 0xffffffff;
constexpr Notation implicitLittle = {.explicitVr = false, .bigEndian = false};

constexpr qsizetype shortHeader = 8;
constexpr qsizetype longHeader = 12;
// zeros behind a data set fill the last block of a disk or tape
constexpr quint64 mostPadding = 65536;

bool isUpperCase(char c)
{
    return c >= 'A' && c <= 'Z';
}

TagNumber tagAt(const Notation &notation, QByteArrayView bytes)
{
    return static_cast<TagNumber>(notation.number16(bytes.data())) << 16 |
           notation.number16(bytes.data() + 2);
}

} // namespace

ElementReader::ElementReader(SourceFile &file, quint64 begin, quint64 end, const Notation &notation)
    : m_file(file), m_position(begin), m_end(end), m_notation(notation)
{
}

ElementReader::Token ElementReader::next()
{
    m_depth = static_cast<size_t>(
        std::count_if(m_open.begin(), m_open.end(), [](const Container &open) { return !open.isItem; }));
    if (!m_open.empty() && m_position == m_open.back().end)
        return close();
    if (m_open.empty() && (m_position == m_end || onlyZerosFollow()))
        return Token::End;
    if (!m_open.empty() && !m_open.back().isItem)
        return readInSequence();
    return readElement();
}

bool ElementReader::leaveSequence()
{
    const size_t outside = m_open.size() - 1;
    if (const quint64 end = m_open.back().end; end != undefinedLength) {
        m_open.pop_back();
        m_position = end;
        return true;
    }
    while (m_open.size() > outside) {
        if (const Token token = next(); token == Token::Damaged || token == Token::End)
            return false;
    }
    return true;
}

ElementReader::Token ElementReader::damaged(const QString &how)
{
    m_problem = how;
    return Token::Damaged;
}

ElementReader::Token ElementReader::close()
{
    const Container closed = m_open.back();
    m_open.pop_back();
    m_current = closed.header;
    m_depth -= closed.isItem ? 0 : 1;
    return closed.isItem ? Token::ItemEnd : Token::SequenceEnd;
}

ElementReader::Token ElementReader::open(bool isItem, const Notation &inside)
{
    if (m_open.size() >= 2 * deepestNesting)
        return damaged(Texts::tr("is nested more than %1 deep").arg(deepestNesting));
    quint64 end = undefinedLength;
    if (m_current.length != undefinedLength) {
        end = m_current.end();
        if (end > limit())
            return damaged(Texts::tr("%1 is longer than what holds it").arg(tagText(m_current.tag)));
    }
    m_open.push_back({m_current, isItem, inside, end});
    m_position = m_current.value;
    return isItem ? Token::Item : Token::Sequence;
}

ElementReader::Token ElementReader::readInSequence()
{
    const Notation inside = notation();
    const QByteArrayView bytes = m_file.view(m_position, shortHeader);
    if (bytes.size() < shortHeader || m_position + shortHeader > limit())
        return damaged(Texts::tr("ends in the middle of a sequence"));
    const TagNumber tag = tagAt(inside, bytes);
    const quint32 length = inside.number32(bytes.data() + 4);
    if (tag == sequenceDelimiter && m_open.back().end == undefinedLength) {
        m_position += shortHeader;
        return close();
    }
    if (tag != itemTag)
        return damaged(Texts::tr("has %1 where an item of a sequence should begin").arg(tagText(tag)));
    m_current = {.tag = tag,
                 .notation = inside,
                 .start = m_position,
                 .value = m_position + shortHeader,
                 .length = length == undefined32 ? undefinedLength : length,
                 .lengthField = m_position + 4};
    return open(true, inside);
}

ElementReader::Token ElementReader::readElement()
{
    const QByteArrayView bytes = m_file.view(m_position, longHeader);
    if (bytes.size() < shortHeader)
        return damaged(Texts::tr("ends in the middle of an element"));
    const TagNumber tag = tagAt(notation(), bytes);
    if (tag == itemDelimiter && !m_open.empty() && m_open.back().end == undefinedLength) {
        m_position += shortHeader;
        return close();
    }
    if (groupOf(tag) == delimiterGroup)
        return damaged(Texts::tr("has %1 outside a sequence").arg(tagText(tag)));
    m_current = {.tag = tag, .notation = notation(), .start = m_position};
    if (!readHeader(bytes))
        return damaged(Texts::tr("has an unreadable header at %1").arg(tagText(tag)));
    if (!isSequence())
        return stepOverValue();
    // what is inside UN is written so whatever the transfer syntax (DICOM PS3.5, 6.2.2)
    return open(false, m_current.written == vr('U', 'N') ? implicitLittle : m_current.notation);
}

bool ElementReader::readHeader(QByteArrayView bytes)
{
    Element &element = m_current;
    if (element.notation.explicitVr) {
        if (!isUpperCase(bytes.at(4)) || !isUpperCase(bytes.at(5)))
            return false;
        element.written = vr(bytes.at(4), bytes.at(5));
        if (hasLongHeader(element.written) && bytes.size() < longHeader)
            return false;
        readExplicitHeader(bytes);
    } else {
        element.length = element.notation.number32(bytes.data() + 4);
        element.lengthField = element.start + 4;
        element.value = element.start + shortHeader;
    }
    if (element.length == undefined32)
        element.length = undefinedLength;
    const bool unknown = element.written == 0 || element.written == vr('U', 'N');
    element.representation = unknown ? dictionaryVr(element.tag) : element.written;
    return true;
}

void ElementReader::readExplicitHeader(QByteArrayView bytes)
{
    const bool isLong = hasLongHeader(m_current.written);
    m_current.length = isLong ? m_current.notation.number32(bytes.data() + 8)
                              : m_current.notation.number16(bytes.data() + 6);
    m_current.lengthField = m_current.start + (isLong ? 8 : 6);
    m_current.value = m_current.start + static_cast<quint64>(isLong ? longHeader : shortHeader);
}

bool ElementReader::isSequence() const
{
    const Element &element = m_current;
    if (element.length == undefinedLength)
        return element.written == vr('S', 'Q') || element.written == vr('U', 'N') ||
               (element.written == 0 && element.representation != vr('O', 'W'));
    return element.representation == vr('S', 'Q');
}

ElementReader::Token ElementReader::stepOverValue()
{
    m_position = m_current.value;
    if (m_current.length == undefinedLength) {
        if (!stepOverFragments())
            return damaged(
                Texts::tr("ends in the middle of the fragments of %1").arg(tagText(m_current.tag)));
        m_current.encapsulated = true;
        m_current.length = m_position - m_current.value;
        return Token::Element;
    }
    if (m_current.end() > limit())
        return damaged(Texts::tr("ends in the middle of %1").arg(tagText(m_current.tag)));
    m_position = m_current.end();
    return Token::Element;
}

bool ElementReader::stepOverFragments()
{
    const Notation inside = m_current.notation;
    while (true) {
        const QByteArrayView bytes = m_file.view(m_position, shortHeader);
        if (bytes.size() < shortHeader)
            return false;
        const TagNumber tag = tagAt(inside, bytes);
        const quint32 length = inside.number32(bytes.data() + 4);
        m_position += shortHeader;
        if (tag == sequenceDelimiter)
            return m_position <= limit();
        if (tag != itemTag || length == undefined32 || m_position + length > limit())
            return false;
        m_position += length;
    }
}

// Where the innermost container of a known length ends.
quint64 ElementReader::limit() const
{
    const auto known = std::find_if(m_open.rbegin(), m_open.rend(),
                                    [](const Container &open) { return open.end != undefinedLength; });
    return known == m_open.rend() ? m_end : known->end;
}

bool ElementReader::onlyZerosFollow()
{
    constexpr qsizetype tagSize = 4;
    const quint64 rest = m_end - m_position;
    const auto isZero = [](char byte) { return byte == '\0'; };
    const QByteArrayView tag = m_file.view(m_position, tagSize);
    if (rest > mostPadding || !std::all_of(tag.begin(), tag.end(), isZero))
        return false;
    const QByteArray bytes = m_file.read(m_position, static_cast<qsizetype>(rest));
    return quint64(bytes.size()) == rest && std::all_of(bytes.begin(), bytes.end(), isZero);
}

} // namespace dravolin
