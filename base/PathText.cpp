#include "base/PathText.h"

#include <QStringDecoder>

#include <algorithm>

namespace dravolin {

namespace {

constexpr char16_t escapeBase = 0xDC00;

bool isEscapedByte(char16_t unit)
{
    return unit >= escapeBase + 0x80 && unit <= escapeBase + 0xFF;
}

} // namespace

QByteArray toBytes(const QString &text)
{
    QByteArray bytes;
    qsizetype start = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar unit = text.at(i);
        if (unit.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            ++i;
        } else if (isEscapedByte(unit.unicode())) {
            bytes += QStringView(text).sliced(start, i - start).toUtf8();
            bytes += static_cast<char>(unit.unicode() - escapeBase);
            start = i + 1;
        }
    }
    return bytes + QStringView(text).sliced(start).toUtf8();
}

QByteArray systemPath(const QString &path)
{
    // the system would take the path to end there, and that is somebody else's file
    return path.contains(QChar::Null) ? QByteArray() : toBytes(path);
}

QString fromBytes(const QByteArray &bytes)
{
    if (std::optional<QString> text = decodeUtf8(bytes); text && !bytes.startsWith(byteOrderMark))
        return *text;
    QString text;
    for (qsizetype i = 0; i < bytes.size();) {
        qsizetype length = std::min<qsizetype>(
            QByteArrayView(bytes).sliced(i).startsWith(byteOrderMark) ? 3 : 4, bytes.size() - i);
        while (length > 0 && !QByteArrayView(bytes).sliced(i, length).isValidUtf8())
            --length;
        if (length == 0) {
            text += QChar(static_cast<char16_t>(escapeBase + static_cast<unsigned char>(bytes.at(i))));
            length = 1;
        } else if (const QByteArrayView valid = QByteArrayView(bytes).sliced(i, length);
                   valid == byteOrderMark) {
            text += QChar::ByteOrderMark; // fromUtf8 would drop it, and a name may begin with one
        } else {
            text += QString::fromUtf8(valid);
        }
        i += length;
    }
    return text;
}

std::optional<QString> decodeUtf8(const QByteArray &bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder(bytes);
    if (decoder.hasError())
        return std::nullopt;
    return text;
}

QString joinPath(const QString &folder, const QString &name)
{
    return folder.endsWith(u'/') ? folder + name : folder + u'/' + name;
}

QString lastPathComponent(const QString &path)
{
    return path.sliced(path.lastIndexOf(u'/') + 1);
}

QString parentPath(const QString &path)
{
    const qsizetype separator = path.lastIndexOf(u'/');
    return separator == 0 ? QStringLiteral("/") : path.first(std::max<qsizetype>(separator, 0));
}

QString pathExtension(const QString &path)
{
    const QString name = lastPathComponent(path);
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot > 0 ? name.sliced(dot + 1) : QString();
}

QString withoutExtension(const QString &name)
{
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot > 0 ? name.first(dot) : name;
}

} // namespace dravolin
