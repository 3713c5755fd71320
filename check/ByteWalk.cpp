#include "check/ByteWalk.h"

#include "base/Texts.h"
#include "check/Inflate.h"
#include "check/WalkBytes.h"

#include <QByteArrayView>

namespace dravolin::check {

namespace {

constexpr qsizetype preambleSize = 128;
constexpr qsizetype magicSize = 4;
constexpr quint32 itemTag = 0xFFFEE000;
constexpr quint32 itemEndTag = 0xFFFEE00D;
constexpr quint32 sequenceEndTag = 0xFFFEE0DD;
constexpr quint32 pixelTag = 0x7FE00010;
constexpr quint32 syntaxTag = 0x00020010;
constexpr quint32 metaGroup = 0x0002;
constexpr quint32 undefined = 0xFFFFFFFF;

struct Frame
{
    enum class Kind { Elements, Items, Fragments };
    Kind kind = Kind::Elements;
    Syntax syntax;
    qsizetype limit = 0;    // the bytes that may be looked at end here
    bool openEnded = false; // an end tag closes it, and not the limit
    bool verified = false;  // a walk over a value without VR: all of it fits, or it is no sequence
};

bool beginsWithItem(QByteArrayView value)
{
    constexpr qsizetype headerSize = 8;
    return value.size() >= headerSize && tagAt(value, 0, {}) == itemTag;
}

class Walker
{
public:
    Walker(QByteArrayView bytes, Syntax syntax, Walk &result) : m_bytes(bytes), m_result(result)
    {
        m_frames.append({Frame::Kind::Elements, syntax, bytes.size()});
    }

    // Of the items of a sequence.
    Walker(QByteArrayView bytes, Walk &result) : m_bytes(bytes), m_result(result)
    {
        m_frames.append({Frame::Kind::Elements, {}, bytes.size(), false, true});
        m_frames.append({Frame::Kind::Items, {}, bytes.size(), false, true});
    }

    // Where the data set ends; sets the reason when it is damaged.
    qsizetype run()
    {
        while (!m_frames.isEmpty() && m_result.reason.isEmpty() && !m_atEnd) {
            const Frame &frame = m_frames.last();
            if (!frame.openEnded && m_at == frame.limit)
                m_frames.removeLast();
            else if (frame.limit - m_at < headerSize)
                stop(Texts::tr("it ends inside an attribute"));
            else
                step(frame);
        }
        return m_at;
    }

private:
    static constexpr qsizetype headerSize = 8;

    [[nodiscard]] bool isTop() const { return m_frames.size() == 1; }

    // Behind the pixel data of the top level anything is taken as bytes behind the end.
    void stop(const QString &reason)
    {
        if (isTop() && !m_result.pixelElement.isEmpty())
            m_atEnd = true;
        else
            m_result.reason = reason;
    }

    void step(const Frame &frame)
    {
        const quint32 tag = tagAt(m_bytes, m_at, frame.syntax);
        if (frame.kind == Frame::Kind::Elements)
            element(frame, tag);
        else
            item(frame, tag, number32At(m_bytes, m_at + 4, frame.syntax));
    }

    void item(const Frame &frame, quint32 tag, quint32 length)
    {
        m_at += headerSize;
        if (tag == sequenceEndTag && frame.openEnded) {
            close();
            return;
        }
        const bool open = length == undefined && frame.kind == Frame::Kind::Items;
        if (tag != itemTag)
            m_result.reason = Texts::tr("a sequence holds something else than items");
        else if (!open && length > frame.limit - m_at)
            m_result.reason = Texts::tr("an item is longer than what holds it");
        else if (frame.kind == Frame::Kind::Fragments)
            m_at += length;
        else
            enter({Frame::Kind::Elements, frame.syntax, open ? frame.limit : m_at + length, open,
                   frame.verified});
    }

    void close()
    {
        const bool pixels = m_frames.last().kind == Frame::Kind::Fragments && m_frames.size() == 2;
        m_frames.removeLast();
        if (pixels) {
            m_result.pixelElement.end = m_at;
            m_result.pixelValue.end = m_at;
        }
    }

    void enter(const Frame &frame)
    {
        if (m_frames.size() > 2 * deepestNesting)
            m_result.reason = Texts::tr("its sequences are nested more than %1 deep").arg(deepestNesting);
        else
            m_frames.append(frame);
    }

    void element(const Frame &frame, quint32 tag)
    {
        if (tag == itemEndTag && frame.openEnded) {
            m_at += headerSize;
            close();
            return;
        }
        const std::optional<Header> header = headerAt(m_bytes, m_at, frame.limit, frame.syntax);
        if (tag >> 16 == itemTag >> 16 || !header) {
            if (isTop() && m_at > 0 && frame.syntax.isExplicit)
                m_atEnd = true; // no attribute: bytes behind the end
            else
                stop(Texts::tr("it holds something that is no attribute"));
            return;
        }
        const qsizetype value = m_at + header->size;
        if (header->length == undefined)
            openValue(frame, tag, *header, value);
        else if (header->length > frame.limit - value)
            stop(Texts::tr("an attribute is longer than what holds it"));
        else
            closedValue(frame, tag, *header, value);
    }

    void openValue(const Frame &frame, quint32 tag, const Header &header, qsizetype value)
    {
        const bool pixels = tag == pixelTag && header.vr != vrSequence;
        if (!pixels && frame.syntax.isExplicit && header.vr != vrSequence && header.vr != vrUnknown) {
            stop(Texts::tr("an attribute without sequence has no length"));
            return;
        }
        if (pixels && isTop())
            notePixels({m_at, 0}, {value, 0}, true);
        // an unknown attribute holds its items as in the implicit syntax
        const Syntax inner = header.vr == vrUnknown && !pixels ? Syntax{} : frame.syntax;
        m_at = value;
        enter(
            {pixels ? Frame::Kind::Fragments : Frame::Kind::Items, inner, frame.limit, true, frame.verified});
    }

    void closedValue(const Frame &frame, quint32 tag, const Header &header, qsizetype value)
    {
        const qsizetype end = value + header.length;
        const bool isUntold = header.vr == 0 || header.vr == vrUnknown;
        const bool hasItems =
            isUntold && tag != pixelTag && isSequence(m_bytes.sliced(value, header.length), frame.verified);
        if (header.vr == vrSequence || hasItems) {
            m_at = value;
            enter({Frame::Kind::Items, hasItems ? Syntax{} : frame.syntax, end, false,
                   hasItems || frame.verified});
            return;
        }
        if (tag == pixelTag && isTop())
            notePixels({m_at, end}, {value, end}, false);
        if (tag != pixelTag && header.length > 0) {
            ++m_result.contents.values;
            m_result.contents.bytes += header.length;
        }
        m_at = end;
    }

    // Without a second look inside a value that was looked at: each look costs a walk over all of it.
    static bool isSequence(QByteArrayView value, bool verified)
    {
        return verified ? beginsWithItem(value) : holdsItems(value);
    }

    void notePixels(Span element, Span value, bool encapsulated)
    {
        m_result.pixelElement = element;
        m_result.pixelValue = value;
        m_result.encapsulated = encapsulated;
    }

    QByteArrayView m_bytes;
    Walk &m_result;
    QList<Frame> m_frames;
    qsizetype m_at = 0;
    bool m_atEnd = false;
};

// The transfer syntax in the meta information, and where the data set begins.
QByteArray readMeta(QByteArrayView file, Walk &result)
{
    const Syntax syntax{.isExplicit = true};
    QByteArray transferSyntax;
    qsizetype at = result.dataSet;
    while (file.size() - at >= 8 && tagAt(file, at, syntax) >> 16 == metaGroup) {
        const std::optional<Header> header = headerAt(file, at, file.size(), syntax);
        if (!header || header->length > file.size() - at - header->size) {
            result.reason = Texts::tr("its meta information is broken");
            break;
        }
        if (tagAt(file, at, syntax) == syntaxTag)
            transferSyntax = file.sliced(at + header->size, header->length).toByteArray();
        at += header->size + header->length;
    }
    result.dataSet = at;
    while (transferSyntax.endsWith('\0') || transferSyntax.endsWith(' '))
        transferSyntax.chop(1);
    return transferSyntax;
}

Syntax syntaxOf(const QByteArray &uid, QByteArrayView dataSet)
{
    if (uid == "1.2.840.10008.1.2.2")
        return {.isExplicit = true, .isBigEndian = true};
    if (uid == "1.2.840.10008.1.2" || uid == "1.2.840.113619.5.2")
        return {};
    // what is written says more than a missing or unknown name
    return {.isExplicit =
                !uid.isEmpty() || headerAt(dataSet, 0, dataSet.size(), {.isExplicit = true}).has_value()};
}

// Of a file without preamble and meta information; only an old object begins like that.
bool looksLikeDataSet(QByteArrayView file)
{
    if (file.size() < 8)
        return false;
    const quint32 tag = tagAt(file, 0, {});
    return tag >> 16 == metaGroup || (tag >> 16 == 0x0008 && (tag & 0xFFFF) < 0x0100);
}

void walkDataSet(QByteArrayView file, const QByteArray &syntax, Walk &result)
{
    result.deflated = syntax == "1.2.840.10008.1.2.1.99";
    if (!result.deflated) {
        const QByteArrayView dataSet = file.sliced(result.dataSet);
        result.end = result.dataSet + Walker(dataSet, syntaxOf(syntax, dataSet), result).run();
        return;
    }
    const Inflated inflated = inflate(file.sliced(result.dataSet), largestInflated);
    result.inflated = inflated.bytes;
    result.end = result.dataSet + inflated.used;
    if (!inflated.complete)
        result.reason = Texts::tr("its compressed data set cannot be read");
    else if (Walker(result.inflated, {.isExplicit = true}, result).run() < result.inflated.size())
        result.reason = Texts::tr("it holds something that is no attribute");
}

} // namespace

Walk walk(const QByteArray &file)
{
    Walk result;
    result.hasPreamble =
        file.size() >= preambleSize + magicSize && file.sliced(preambleSize, magicSize) == "DICM";
    if (!result.hasPreamble && !looksLikeDataSet(file))
        return result;
    result.dataSet = result.hasPreamble ? preambleSize + magicSize : 0;
    const QByteArray syntax = readMeta(file, result);
    if (result.reason.isEmpty())
        walkDataSet(file, syntax, result);
    const bool none = !result.hasPreamble && (!result.reason.isEmpty() || result.contents.values == 0);
    result.kind = none                      ? Walk::Kind::NoObject
                  : result.reason.isEmpty() ? Walk::Kind::Object
                                            : Walk::Kind::Damaged;
    return result;
}

bool holdsItems(QByteArrayView value)
{
    if (!beginsWithItem(value))
        return false;
    Walk result;
    return Walker(value, result).run() == value.size() && result.reason.isEmpty();
}

} // namespace dravolin::check
