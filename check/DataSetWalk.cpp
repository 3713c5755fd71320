#include "check/DataSetWalk.h"

#include "base/Texts.h"
#include "check/WalkBytes.h"

namespace dravolin::check {

namespace {

constexpr quint32 itemTag = 0xFFFEE000;
constexpr quint32 itemEndTag = 0xFFFEE00D;
constexpr quint32 sequenceEndTag = 0xFFFEE0DD;
constexpr quint32 pixelTag = 0x7FE00010;
constexpr quint32 undefined = 0xFFFFFFFF;

struct Frame
{
    enum class Kind { Elements, Items, Fragments };
    Kind kind = Kind::Elements;
    Syntax syntax;
    qsizetype limit = 0;    // the bytes that may be looked at end here
    bool openEnded = false; // an end tag closes it, and not the limit
    bool verified = false;  // a walk over a value without VR: all of it fits, or it is no sequence
    bool measured = false;  // a sequence or an item of some length holds it
    qsizetype start = 0;    // set by enter()
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
                leave();
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
        if (tag == sequenceEndTag && frame.openEnded && length == 0) {
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

    // GDCM adds up the lengths in what has one, and takes an odd sum for the end of the world.
    void leave(qsizetype endTag = 0)
    {
        const Frame frame = m_frames.takeLast();
        const bool isItem = frame.kind == Frame::Kind::Elements && !m_frames.isEmpty();
        if (isItem && frame.measured && (m_at - endTag - frame.start) % 2 == 1)
            m_result.reason = Texts::tr("an item has an odd length");
    }

    void close()
    {
        const bool pixels = m_frames.last().kind == Frame::Kind::Fragments && m_frames.size() == 2;
        leave(headerSize);
        if (pixels) {
            m_result.pixelElement.end = m_at;
            m_result.pixelValue.end = m_at;
        }
    }

    void enter(Frame frame)
    {
        const Frame &outer = m_frames.last();
        frame.measured = outer.measured || (!outer.openEnded && !isTop());
        frame.start = m_at;
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
        if (tag == pixelTag && header->vr == vrSequence)
            stop(Texts::tr("its pixel data is a sequence"));
        else if (header->length == undefined)
            openValue(frame, tag, *header, value);
        else if (header->length > frame.limit - value)
            stop(Texts::tr("an attribute is longer than what holds it"));
        else
            closedValue(frame, tag, *header, value);
    }

    void openValue(const Frame &frame, quint32 tag, const Header &header, qsizetype value)
    {
        const bool pixels = tag == pixelTag;
        if (frame.syntax.isExplicit && !mayBeOpen(header.vr, pixels)) {
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

    static bool mayBeOpen(quint16 vr, bool pixels)
    {
        return vr == vrUnknown || (pixels ? vr == vrBytes || vr == vrWords : vr == vrSequence);
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

} // namespace

qsizetype walkDataSet(QByteArrayView dataSet, Walk &result)
{
    return Walker(dataSet, result.syntax, result).run();
}

bool holdsItems(QByteArrayView value)
{
    if (!beginsWithItem(value))
        return false;
    Walk result;
    return Walker(value, result).run() == value.size() && result.reason.isEmpty();
}

} // namespace dravolin::check
