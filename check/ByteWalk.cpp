#include "check/ByteWalk.h"

#include "base/Texts.h"
#include "check/DataSetWalk.h"
#include "check/Inflate.h"
#include "check/WalkBytes.h"

#include <QByteArrayView>

namespace dravolin::check {

namespace {

constexpr qsizetype preambleSize = 128;
constexpr qsizetype magicSize = 4;
constexpr quint32 metaLengthTag = 0x00020000;
constexpr quint32 syntaxTag = 0x00020010;
constexpr quint32 metaGroup = 0x0002;

// One attribute of the meta information.
void noteMeta(quint32 tag, QByteArrayView element, QByteArrayView value, Walk &result)
{
    if (tag == syntaxTag) {
        result.uid = value.toByteArray();
    } else if (tag != metaLengthTag) {
        result.meta += element.toByteArray();
        result.metaContents.values += value.isEmpty() ? 0 : 1;
        result.metaContents.bytes += static_cast<quint64>(value.size());
    }
}

// The meta information, and where the data set begins.
void readMeta(QByteArrayView file, Walk &result)
{
    const Syntax syntax{.isExplicit = true};
    qsizetype at = result.dataSet;
    while (file.size() - at >= 8 && tagAt(file, at, syntax) >> 16 == metaGroup) {
        const std::optional<Header> header = headerAt(file, at, file.size(), syntax);
        if (!header || header->vr == vrSequence || header->length > file.size() - at - header->size) {
            result.reason = Texts::tr("its meta information is broken");
            break;
        }
        const qsizetype size = header->size + header->length;
        noteMeta(tagAt(file, at, syntax), file.sliced(at, size),
                 file.sliced(at + header->size, header->length), result);
        at += size;
    }
    result.dataSet = at;
}

QByteArray withoutPadding(QByteArray uid)
{
    while (uid.endsWith('\0') || uid.endsWith(' '))
        uid.chop(1);
    return uid;
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

void walkBody(QByteArrayView file, Walk &result)
{
    const QByteArray uid = withoutPadding(result.uid);
    result.deflated = uid == "1.2.840.10008.1.2.1.99";
    const QByteArrayView dataSet = file.sliced(result.dataSet);
    result.syntax = syntaxOf(uid, dataSet);
    if (!result.deflated) {
        result.end = result.dataSet + walkDataSet(dataSet, result);
        return;
    }
    const Inflated inflated = inflate(dataSet, largestInflated);
    result.inflated = inflated.bytes;
    result.end = result.dataSet + inflated.used;
    if (!inflated.complete)
        result.reason = Texts::tr("its compressed data set cannot be read");
    else if (walkDataSet(result.inflated, result) < result.inflated.size())
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
    readMeta(file, result);
    if (result.reason.isEmpty())
        walkBody(file, result);
    const bool none = !result.hasPreamble && (!result.reason.isEmpty() || result.contents.values == 0);
    result.kind = none                      ? Walk::Kind::NoObject
                  : result.reason.isEmpty() ? Walk::Kind::Object
                                            : Walk::Kind::Damaged;
    return result;
}

} // namespace dravolin::check
