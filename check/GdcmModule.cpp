#include "check/GdcmModule.h"

#include <gdcmDicts.h>
#include <gdcmFile.h>
#include <gdcmGlobal.h>
#include <gdcmReader.h>
#include <gdcmSequenceOfItems.h>
#include <gdcmTrace.h>

#include <istream>
#include <streambuf>
#include <string_view>

namespace dravolin::check {

namespace {

constexpr Tag pixelTag = 0x7FE00010;
constexpr Tag characterSetTag = 0x00080005;

// A stream over bytes in memory.
class MemoryBuffer : public std::streambuf
{
public:
    explicit MemoryBuffer(QByteArrayView bytes)
    {
        char *const start = const_cast<char *>(bytes.data()); // nothing writes into an input stream
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

const gdcm::Dict &dictionary()
{
    return gdcm::Global::GetInstance().GetDicts().GetPublicDict();
}

QByteArrayView bytesOf(const gdcm::DataElement &element, const gdcm::ByteValue *value)
{
    return {value->GetPointer(), static_cast<qsizetype>(element.GetVL())};
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
    return dictionary().GetDictEntry(element.GetTag()).GetVR();
}

ValueForm::Kind kindOf(const gdcm::VR &vr)
{
    if (vr == gdcm::VR::DS || vr == gdcm::VR::IS)
        return ValueForm::Kind::Numbers;
    // a VR of the dictionary may be one of two, which are never texts
    return vr != gdcm::VR::INVALID && vr != gdcm::VR::UN && gdcm::VR::IsASCII(vr) ? ValueForm::Kind::Text
                                                                                  : ValueForm::Kind::Bytes;
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
    explicit DataSetReader(ObjectVisitor &visitor) : m_visitor(visitor) {}

    void read(const gdcm::DataSet &dataSet)
    {
        readCharacterSets(dataSet.GetDataElement(gdcm::Tag(characterSetTag)));
        for (const gdcm::DataElement &element : dataSet.GetDES()) {
            if (tagOf(element) == pixelTag)
                continue;
            const gdcm::ByteValue *const value = element.GetByteValue();
            if (const auto items = itemsOf(element, value))
                readItems(tagOf(element), *items);
            else
                readValue(element, value);
        }
    }

private:
    void readCharacterSets(const gdcm::DataElement &element)
    {
        if (const gdcm::ByteValue *const value = element.GetByteValue())
            m_visitor.characterSets(bytesOf(element, value));
    }

    // The items of a sequence; without a VR nothing but its bytes say that it is one.
    gdcm::SmartPointer<gdcm::SequenceOfItems> itemsOf(const gdcm::DataElement &element,
                                                      const gdcm::ByteValue *value) const
    {
        if (element.GetVL() == 0)
            return nullptr;
        if (value) {
            const bool hasVr = element.GetVR() != gdcm::VR::INVALID && element.GetVR() != gdcm::VR::UN;
            if (hasVr ||
                !m_visitor.isSequence({value->GetPointer(), static_cast<qsizetype>(value->GetLength())}))
                return nullptr;
        }
        return element.GetValueAsSQ();
    }

    void readItems(Tag tag, const gdcm::SequenceOfItems &items)
    {
        for (size_t i = 0; i < items.GetNumberOfItems(); ++i) {
            m_visitor.beginItem(tag, i);
            read(items.GetItem(i + 1).GetNestedDataSet());
            m_visitor.endItem();
        }
    }

    void readValue(const gdcm::DataElement &element, const gdcm::ByteValue *value)
    {
        const gdcm::VR vr = vrOf(element);
        m_visitor.value(tagOf(element), {kindOf(vr), numberFormOf(vr), vr == gdcm::VR::PN},
                        value && element.GetVL() > 0 ? bytesOf(element, value) : QByteArrayView());
    }

    ObjectVisitor &m_visitor;
};

class Module final : public GdcmModule
{
public:
    Module()
    {
        gdcm::Trace::DebugOff();
        gdcm::Trace::WarningOff();
        gdcm::Trace::ErrorOff();
        (void)dictionary();
    }

    [[nodiscard]] bool read(QByteArrayView file, ObjectVisitor &meta, ObjectVisitor &dataSet) const override
    {
        MemoryBuffer buffer(file);
        std::istream stream(&buffer);
        gdcm::Reader reader;
        reader.SetStream(stream);
        try {
            if (!reader.Read())
                return false;
            DataSetReader(meta).read(reader.GetFile().GetHeader());
            DataSetReader(dataSet).read(reader.GetFile().GetDataSet());
            return true;
        } catch (...) { // it throws texts, too
            return false;
        }
    }

    [[nodiscard]] const char *attributeName(Tag tag) const override
    {
        const gdcm::Tag gdcmTag(tag);
        if (gdcmTag.IsPrivate())
            return nullptr;
        const gdcm::DictEntry &entry = dictionary().GetDictEntry(gdcmTag);
        return entry.GetVR() == gdcm::VR::INVALID ? nullptr : entry.GetName();
    }
};

} // namespace

} // namespace dravolin::check

extern "C" Q_DECL_EXPORT const dravolin::check::GdcmModule *dravolinGdcmModule(const char *version)
{
    static const dravolin::check::Module module;
    return std::string_view(version) == DRAVOLIN_VERSION ? &module : nullptr;
}
