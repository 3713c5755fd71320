#include "dicom/Values.h"

#include <dcmtk/config/osconfig.h>
#include <dcmtk/dcmdata/dcelem.h>
#include <dcmtk/dcmdata/dcitem.h>
#include <dcmtk/dcmdata/dcostrmb.h>
#include <dcmtk/dcmdata/dctag.h>
#include <dcmtk/dcmdata/dcvr.h>

#include <memory>

namespace dravolin {

namespace {

constexpr qsizetype longestShortValue = 0xffff;

// Any private tag will do: the value representation is what matters.
constexpr quint16 anyGroup = 0x0009;
constexpr quint16 anyElement = 0x1001;

DcmVR vrOf(Vr representation)
{
    return DcmVR(letters(representation).constData());
}

bool isCharacters(Vr representation)
{
    return vrOf(representation).isaString();
}

// The bytes that DCMTK writes behind the tag and the length.
std::optional<QByteArray> writtenValue(DcmElement &element, const Notation &notation)
{
    constexpr qsizetype header = 8;
    QByteArray bytes(header + static_cast<qsizetype>(element.getLength()), '\0');
    DcmOutputBufferStream stream(bytes.data(), bytes.size());
    element.transferInit();
    const E_TransferSyntax syntax = notation.bigEndian ? EXS_BigEndianImplicit : EXS_LittleEndianImplicit;
    if (element.write(stream, syntax, EET_ExplicitLength, nullptr).bad() || stream.tell() != bytes.size())
        return std::nullopt;
    return bytes.sliced(header);
}

} // namespace

QByteArray headerBytes(TagNumber tag, Vr representation, const Notation &notation, quint32 length)
{
    const QByteArray number = notation.bytes16(groupOf(tag)) + notation.bytes16(elementOf(tag));
    if (!notation.explicitVr)
        return number + notation.bytes32(length);
    // a value that has outgrown its short length can only be written as UN
    if (!hasLongHeader(representation) && length > longestShortValue)
        representation = vr('U', 'N');
    if (hasLongHeader(representation))
        return number + letters(representation) + QByteArray(2, '\0') + notation.bytes32(length);
    return number + letters(representation) + notation.bytes16(static_cast<quint16>(length));
}

QByteArray elementBytes(TagNumber tag, Vr representation, const Notation &notation, QByteArray value)
{
    if (value.size() % 2 != 0)
        value.append(isCharacters(representation) && representation != vr('U', 'I') ? ' ' : '\0');
    return headerBytes(tag, representation, notation, static_cast<quint32>(value.size())) + value;
}

std::optional<QByteArray> valueBytes(Vr representation, const Notation &notation, const QByteArray &text)
{
    if (isCharacters(representation) || text.isEmpty())
        return text;
    DcmElement *made = nullptr;
    if (DcmItem::newDicomElementWithVR(made, DcmTag(anyGroup, anyElement, vrOf(representation))).bad())
        return std::nullopt;
    const std::unique_ptr<DcmElement> element(made);
    if (element->isLeaf() == OFFalse || element->putString(text.constData()).bad())
        return std::nullopt;
    return writtenValue(*element, notation);
}

} // namespace dravolin
