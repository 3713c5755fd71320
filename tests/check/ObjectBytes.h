#pragma once

#include <QByteArray>
#include <QList>
#include <QtEndian>

// Objects byte by byte: explicit VR, little endian unless it is said.
namespace dravolin::test {

inline QByteArray little16(quint16 number)
{
    QByteArray bytes(2, '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

inline QByteArray little32(quint32 number)
{
    QByteArray bytes(4, '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

inline QByteArray tagBytes(quint32 tag)
{
    return little16(static_cast<quint16>(tag >> 16)) + little16(static_cast<quint16>(tag & 0xFFFF));
}

inline bool hasLongLength(const QByteArray &vr)
{
    return QByteArrayList{"OB", "OW", "SQ", "UN", "UT", "UC", "UR"}.contains(vr);
}

// With the length that is said and not the value's own.
inline QByteArray elementOfLength(quint32 tag, const QByteArray &vr, quint32 length, const QByteArray &value)
{
    const QByteArray written =
        hasLongLength(vr) ? QByteArray(2, '\0') + little32(length) : little16(static_cast<quint16>(length));
    return tagBytes(tag) + vr + written + value;
}

inline QByteArray element(quint32 tag, const QByteArray &vr, QByteArray value)
{
    if (value.size() % 2 == 1)
        value += vr == "UI" || vr == "OB" || vr == "UN" ? '\0' : ' ';
    return elementOfLength(tag, vr, static_cast<quint32>(value.size()), value);
}

inline QByteArray implicitElement(quint32 tag, QByteArray value)
{
    if (value.size() % 2 == 1)
        value += ' ';
    return tagBytes(tag) + little32(static_cast<quint32>(value.size())) + value;
}

inline constexpr quint32 undefinedLength = 0xFFFFFFFF;
inline const QByteArray itemEnd = tagBytes(0xFFFEE00D) + little32(0);
inline const QByteArray sequenceEnd = tagBytes(0xFFFEE0DD) + little32(0);

inline QByteArray item(const QByteArray &elements)
{
    return tagBytes(0xFFFEE000) + little32(static_cast<quint32>(elements.size())) + elements;
}

inline QByteArray openItem(const QByteArray &elements)
{
    return tagBytes(0xFFFEE000) + little32(undefinedLength) + elements + itemEnd;
}

inline QByteArray sequence(quint32 tag, const QByteArray &items)
{
    return element(tag, "SQ", items);
}

inline QByteArray openSequence(quint32 tag, const QByteArray &items)
{
    return elementOfLength(tag, "SQ", undefinedLength, items + sequenceEnd);
}

// Preamble and meta information in front of a data set.
inline QByteArray object(const QByteArray &dataSet, const QByteArray &syntax = "1.2.840.10008.1.2.1",
                         const QByteArray &preamble = QByteArray(128, '\0'))
{
    const QByteArray meta = element(0x00020001, "OB", QByteArray("\0\1", 2)) +
                            element(0x00020002, "UI", "1.2.840.10008.5.1.4.1.1.2") +
                            element(0x00020003, "UI", "1.2.3.999.1") + element(0x00020010, "UI", syntax);
    const QByteArray length = element(0x00020000, "UL", little32(static_cast<quint32>(meta.size())));
    return preamble + "DICM" + length + meta + dataSet;
}

// A data set of nothing but a sequence in a sequence in ...
inline QByteArray nested(int depth)
{
    QByteArray front;
    QByteArray behind;
    for (int i = 0; i < depth; ++i) {
        front += elementOfLength(0x00081140, "SQ", undefinedLength,
                                 tagBytes(0xFFFEE000) + little32(undefinedLength));
        behind += itemEnd + sequenceEnd;
    }
    return front + behind;
}

} // namespace dravolin::test
