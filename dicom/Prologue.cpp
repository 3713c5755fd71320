#include "dicom/Prologue.h"

#include "base/Texts.h"
#include "dicom/ElementReader.h"

namespace dravolin {

namespace {

constexpr qsizetype preambleSize = 128;
constexpr qsizetype magicSize = 4;
constexpr quint64 longestMeta = 1024 * 1024;
constexpr quint64 longestUid = 256;
constexpr Notation metaNotation = {};
constexpr char implementationClass[] = "2.25.253091822710537226186342930811573204541";
constexpr char implementationVersion[] = "DRAVOLIN";
constexpr char implicitLittleEndian[] = "1.2.840.10008.1.2";
constexpr char explicitLittleEndian[] = "1.2.840.10008.1.2.1";

constexpr TagNumber sopClassTag = 0x00020002;
constexpr TagNumber sopInstanceTag = 0x00020003;
constexpr TagNumber transferSyntaxTag = 0x00020010;

std::optional<Prologue> none(QString *problem, const QString &text)
{
    *problem = text;
    return std::nullopt;
}

// The value of the prologue that a tag stands for; null for any other tag.
QByteArray *fieldOf(Prologue &prologue, TagNumber tag)
{
    switch (tag) {
    case sopClassTag: return &prologue.sopClass;
    case sopInstanceTag: return &prologue.sopInstance;
    case transferSyntaxTag: return &prologue.transferSyntax;
    default: return nullptr;
    }
}

// Stops at the first element of another group.
std::optional<Prologue> readMeta(SourceFile &file, quint64 begin, QString *problem)
{
    Prologue prologue;
    prologue.dataSet = begin;
    while (prologue.dataSet < file.size() && prologue.dataSet < longestMeta) {
        const QByteArray group = file.read(prologue.dataSet, 2);
        if (group != QByteArray("\x02\x00", 2))
            break;
        ElementReader reader(file, prologue.dataSet, file.size(), metaNotation);
        if (reader.next() != ElementReader::Token::Element)
            return none(problem, Texts::tr("has a damaged beginning"));
        QByteArray *field = fieldOf(prologue, reader.current().tag);
        if (field && reader.current().length <= longestUid)
            *field = withoutPadding(reader.value());
        prologue.dataSet = reader.position();
    }
    if (prologue.transferSyntax.isEmpty())
        return none(problem, Texts::tr("does not say its transfer syntax"));
    prologue.syntax = syntaxOf(prologue.transferSyntax);
    return prologue;
}

// The first element decides: data sets begin with group 8, and with an attribute that the dictionary knows.
std::optional<Prologue> readBareDataSet(SourceFile &file, QString *problem)
{
    for (const char *uid : {explicitLittleEndian, implicitLittleEndian}) {
        Prologue prologue;
        prologue.transferSyntax = uid;
        prologue.syntax = syntaxOf(uid);
        ElementReader reader(file, 0, file.size(), prologue.syntax.notation);
        const bool read = reader.next() == ElementReader::Token::Element;
        if (read && groupOf(reader.current().tag) == 8 && dictionaryVr(reader.current().tag) != 0)
            return prologue;
    }
    return none(problem, Texts::tr("is no DICOM file"));
}

QByteArray element(quint16 number, const char *representation, QByteArray value)
{
    const bool isLong = hasLongHeader(vr(representation[0], representation[1]));
    if (value.size() % 2 != 0)
        value.append('\0');
    QByteArray bytes = metaNotation.bytes16(2) + metaNotation.bytes16(number) + representation;
    bytes += isLong ? QByteArray(2, '\0') + metaNotation.bytes32(static_cast<quint32>(value.size()))
                    : metaNotation.bytes16(static_cast<quint16>(value.size()));
    return bytes + value;
}

} // namespace

std::optional<Prologue> readPrologue(SourceFile &file, QString *problem)
{
    if (file.read(preambleSize, magicSize) == "DICM")
        return readMeta(file, preambleSize + magicSize, problem);
    if (file.read(0, 2) == QByteArray("\x02\x00", 2))
        return readMeta(file, 0, problem);
    return readBareDataSet(file, problem);
}

QByteArray prologueBytes(const Prologue &prologue)
{
    const QByteArray meta =
        element(0x0001, "OB", QByteArray("\x00\x01", 2)) + element(0x0002, "UI", prologue.sopClass) +
        element(0x0003, "UI", prologue.sopInstance) + element(0x0010, "UI", prologue.transferSyntax) +
        element(0x0012, "UI", implementationClass) + element(0x0013, "SH", implementationVersion);
    return QByteArray(preambleSize, '\0') + "DICM" +
           element(0x0000, "UL", metaNotation.bytes32(static_cast<quint32>(meta.size()))) + meta;
}

} // namespace dravolin
