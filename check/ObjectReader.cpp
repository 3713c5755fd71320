#include "check/ObjectReader.h"

#include "check/AssertionGuard.h"

#include <gdcmDicts.h>
#include <gdcmFile.h>
#include <gdcmGlobal.h>
#include <gdcmReader.h>
#include <gdcmSequenceOfItems.h>
#include <gdcmTrace.h>

#include <QtEndian>

#include <istream>
#include <streambuf>

namespace dravolin::check {

namespace {

constexpr qsizetype preambleSize = 128;
constexpr Tag pixelTag = 0x7FE00010;
constexpr Tag metaLengthTag = 0x00020000;
constexpr Tag syntaxTag = 0x00020010;
constexpr Tag characterSetTag = 0x00080005;

// A stream over bytes in memory.
class MemoryBuffer : public std::streambuf
{
public:
    explicit MemoryBuffer(const QByteArray &bytes)
    {
        char *const start = const_cast<char *>(bytes.constData()); // nothing writes into an input stream
        setg(start, start, start + bytes.size());
    }

protected:
    pos_type seekoff(off_type offset, std::ios_base::seekdir direction, std::ios_base::openmode) override
    {
        char *const from = direction == std::ios_base::beg   ? eback()
                           : direction == std::ios_base::cur ? gptr()
                                                             : egptr();
        if (offset < eback() - from || offset > egptr() - from)
            return pos_type(off_type(-1));
        setg(eback(), from + offset, egptr());
        return gptr() - eback();
    }
    pos_type seekpos(pos_type position, std::ios_base::openmode mode) override
    {
        return seekoff(position, std::ios_base::beg, mode);
    }
};

void appendElement(QByteArray &bytes, Tag tag, const char *vr, const QByteArray &value)
{
    const quint16 header[] = {qToLittleEndian(static_cast<quint16>(tag >> 16)),
                              qToLittleEndian(static_cast<quint16>(tag & 0xFFFF))};
    const auto length = qToLittleEndian(static_cast<quint16>(value.size()));
    bytes.append(reinterpret_cast<const char *>(header), sizeof(header));
    bytes.append(vr);
    bytes.append(reinterpret_cast<const char *>(&length), sizeof(length));
    bytes.append(value);
}

// What stands in front of any data set for GDCM: sound meta information, whatever the file's own is like.
struct Front
{
    explicit Front(const Walk &walk)
    {
        QByteArray meta = walk.meta;
        const QByteArray uid = walk.syntax.isBigEndian  ? QByteArray("1.2.840.10008.1.2.2", 20)
                               : walk.syntax.isExplicit ? QByteArray("1.2.840.10008.1.2.1", 20)
                                                        : QByteArray("1.2.840.10008.1.2", 18);
        appendElement(meta, syntaxTag, "UI", uid);
        const auto size = qToLittleEndian(static_cast<quint32>(meta.size()));
        bytes = QByteArray(preambleSize, '\0') + "DICM";
        appendElement(bytes, metaLengthTag, "UL", {reinterpret_cast<const char *>(&size), sizeof(size)});
        bytes += meta;
        contents = {walk.metaContents.values + 2,
                    walk.metaContents.bytes + sizeof(size) + static_cast<quint64>(uid.size())};
    }

    QByteArray bytes;
    Contents contents;
};

// The object's bytes without those behind its end and without its pixel data, which nothing reads.
QByteArray bytesToRead(const QByteArray &front, const QByteArray &file, const Walk &walk)
{
    const QByteArrayView dataSet = walk.deflated
                                       ? QByteArrayView(walk.inflated)
                                       : QByteArrayView(file).sliced(walk.dataSet, walk.end - walk.dataSet);
    QByteArray bytes;
    bytes.reserve(front.size() + dataSet.size() - walk.pixelElement.size());
    bytes += front;
    if (walk.pixelElement.isEmpty())
        return bytes.append(dataSet);
    bytes.append(dataSet.first(walk.pixelElement.start));
    return bytes.append(dataSet.sliced(walk.pixelElement.end));
}

Tag tagOf(const gdcm::DataElement &element)
{
    return element.GetTag().GetElementTag();
}

gdcm::VR vrOf(const gdcm::DataElement &element)
{
    const gdcm::VR vr = element.GetVR();
    if ((vr != gdcm::VR::INVALID && vr != gdcm::VR::UN) || element.GetTag().IsPrivate())
        return vr;
    return gdcm::Global::GetInstance().GetDicts().GetPublicDict().GetDictEntry(element.GetTag()).GetVR();
}

Element::Kind kindOf(const gdcm::VR &vr)
{
    if (vr == gdcm::VR::DS || vr == gdcm::VR::IS)
        return Element::Kind::Numbers;
    // a VR of the dictionary may be one of two, which are never texts
    return vr != gdcm::VR::INVALID && vr != gdcm::VR::UN && gdcm::VR::IsASCII(vr) ? Element::Kind::Text
                                                                                  : Element::Kind::Bytes;
}

NumberForm numberFormOf(const gdcm::VR &vr)
{
    switch (static_cast<gdcm::VR::VRType>(vr)) {
    case gdcm::VR::US:
    case gdcm::VR::US_SS: return NumberForm::Unsigned16;
    case gdcm::VR::SS: return NumberForm::Signed16;
    case gdcm::VR::UL:
    case gdcm::VR::OL: return NumberForm::Unsigned32;
    case gdcm::VR::SL: return NumberForm::Signed32;
    case gdcm::VR::UV:
    case gdcm::VR::OV: return NumberForm::Unsigned64;
    case gdcm::VR::SV: return NumberForm::Signed64;
    case gdcm::VR::FL:
    case gdcm::VR::OF: return NumberForm::Float32;
    case gdcm::VR::FD:
    case gdcm::VR::OD: return NumberForm::Float64;
    default: return NumberForm::None;
    }
}

class DataSetReader
{
public:
    explicit DataSetReader(const ElementVisit &visit) : m_visit(visit) {}

    void read(const gdcm::DataSet &dataSet, const CharacterSets &inherited)
    {
        const CharacterSets own = setsOf(dataSet, inherited);
        for (const gdcm::DataElement &element : dataSet.GetDES()) {
            if (tagOf(element) == pixelTag)
                continue;
            const gdcm::ByteValue *const value = element.GetByteValue();
            if (const auto items = itemsOf(element, value))
                readItems(tagOf(element), *items, own);
            else
                readValue(element, value, own);
        }
    }
    [[nodiscard]] const Contents &contents() const { return m_contents; }

private:
    static CharacterSets setsOf(const gdcm::DataSet &dataSet, const CharacterSets &inherited)
    {
        const gdcm::DataElement &element = dataSet.GetDataElement(gdcm::Tag(characterSetTag));
        const gdcm::ByteValue *const value = element.GetByteValue();
        return value ? CharacterSets({value->GetPointer(), static_cast<qsizetype>(element.GetVL())})
                     : inherited;
    }

    // The items of a sequence; without a VR nothing but its bytes say that it is one.
    static gdcm::SmartPointer<gdcm::SequenceOfItems> itemsOf(const gdcm::DataElement &element,
                                                             const gdcm::ByteValue *value)
    {
        if (element.GetVL() == 0)
            return nullptr;
        if (value) {
            const bool hasVr = element.GetVR() != gdcm::VR::INVALID && element.GetVR() != gdcm::VR::UN;
            if (hasVr || !holdsItems({value->GetPointer(), static_cast<qsizetype>(value->GetLength())}))
                return nullptr;
        }
        return element.GetValueAsSQ();
    }

    void readItems(Tag tag, const gdcm::SequenceOfItems &items, const CharacterSets &sets)
    {
        m_path.push_back({tag, 0});
        for (size_t i = 0; i < items.GetNumberOfItems(); ++i) {
            m_path.back().item = i;
            read(items.GetItem(i + 1).GetNestedDataSet(), sets);
        }
        m_path.pop_back();
    }

    void readValue(const gdcm::DataElement &element, const gdcm::ByteValue *value, const CharacterSets &sets)
    {
        QByteArrayView bytes;
        if (value && element.GetVL() > 0)
            bytes = {value->GetPointer(), static_cast<qsizetype>(element.GetVL())};
        m_contents.values += bytes.isEmpty() ? 0 : 1;
        m_contents.bytes += static_cast<quint64>(bytes.size());
        const gdcm::VR vr = vrOf(element);
        m_visit({tagOf(element), kindOf(vr), numberFormOf(vr), vr == gdcm::VR::PN, bytes, m_path, sets});
    }

    const ElementVisit &m_visit;
    Contents m_contents;
    std::vector<PathStep> m_path;
};

// For the meta information, whose transfer syntax is the one that GDCM was told: a visitor gets the file's
// own.
ElementVisit metaVisit(const Walk &walk, const ElementVisit &visit)
{
    return [&walk, &visit](const Element &element) {
        const bool isSyntax = element.tag == syntaxTag;
        visit({element.tag, element.kind, element.numbers, element.person,
               isSyntax ? QByteArrayView(walk.uid) : element.bytes, element.path, element.sets});
    };
}

bool readWithGdcm(const QByteArray &bytes, const Front &front, const Walk &walk, const ElementVisit &visit)
{
    MemoryBuffer buffer(bytes);
    std::istream stream(&buffer);
    gdcm::Reader reader;
    reader.SetStream(stream);
    try {
        if (!reader.Read())
            return false;
        const ElementVisit visitMeta = metaVisit(walk, visit);
        DataSetReader meta(visitMeta);
        meta.read(reader.GetFile().GetHeader(), {});
        DataSetReader dataSet(visit);
        dataSet.read(reader.GetFile().GetDataSet(), {});
        return meta.contents() == front.contents && dataSet.contents() == walk.contents;
    } catch (...) { // it throws texts, too
        return false;
    }
}

} // namespace

void initialiseReader()
{
    gdcm::Trace::DebugOff();
    gdcm::Trace::WarningOff();
    gdcm::Trace::ErrorOff();
    gdcm::Global::GetInstance().GetDicts();
}

bool readObject(const QByteArray &file, const Walk &walk, const ElementVisit &visit)
{
    const Front front(walk);
    const QByteArray bytes = bytesToRead(front.bytes, file, walk);
    // GDCM takes a data set without any attribute for a failure of its own
    if (bytes.size() == front.bytes.size())
        return false;
    return survivesAssertions([&] { return readWithGdcm(bytes, front, walk, visit); });
}

QString pathText(const std::vector<PathStep> &path, Tag tag)
{
    QString text;
    for (const PathStep &step : path)
        text += tagText(step.sequence) + u'[' + QString::number(step.item) + QStringLiteral("].");
    return text + tagText(tag);
}

QString attributeName(Tag tag)
{
    const gdcm::Tag gdcmTag(tag);
    if (gdcmTag.IsPrivate())
        return {};
    const gdcm::DictEntry &entry =
        gdcm::Global::GetInstance().GetDicts().GetPublicDict().GetDictEntry(gdcmTag);
    return entry.GetVR() == gdcm::VR::INVALID ? QString() : QString::fromLatin1(entry.GetName());
}

} // namespace dravolin::check
