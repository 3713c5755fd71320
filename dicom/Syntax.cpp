#include "dicom/Syntax.h"

#include <QtEndian>

namespace dravolin {

quint16 Notation::number16(const char *bytes) const
{
    return bigEndian ? qFromBigEndian<quint16>(bytes) : qFromLittleEndian<quint16>(bytes);
}

quint32 Notation::number32(const char *bytes) const
{
    return bigEndian ? qFromBigEndian<quint32>(bytes) : qFromLittleEndian<quint32>(bytes);
}

QByteArray Notation::bytes16(quint16 number) const
{
    QByteArray bytes(2, Qt::Uninitialized);
    bigEndian ? qToBigEndian(number, bytes.data()) : qToLittleEndian(number, bytes.data());
    return bytes;
}

QByteArray Notation::bytes32(quint32 number) const
{
    QByteArray bytes(4, Qt::Uninitialized);
    bigEndian ? qToBigEndian(number, bytes.data()) : qToLittleEndian(number, bytes.data());
    return bytes;
}

Syntax syntaxOf(const QByteArray &uid)
{
    if (uid == "1.2.840.10008.1.2")
        return {{.explicitVr = false, .bigEndian = false}, false};
    if (uid == "1.2.840.10008.1.2.2")
        return {{.explicitVr = true, .bigEndian = true}, false};
    // deflated explicit VR, and the two JPIP syntaxes that deflate
    const bool deflated = uid == "1.2.840.10008.1.2.1.99" || uid == "1.2.840.10008.1.2.4.95" ||
                          uid == "1.2.840.10008.1.2.4.205";
    return {{}, deflated};
}

QByteArray withoutPadding(QByteArray value)
{
    while (!value.isEmpty() && (value.back() == '\0' || value.back() == ' '))
        value.chop(1);
    return value;
}

} // namespace dravolin
