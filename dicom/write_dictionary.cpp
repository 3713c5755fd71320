// Writes what DCMTK's data dictionary says of value representations to standard output, for Dictionary.cpp.
// Runs while the project is built: reading the dictionary takes longer than all else of a program's start.
#include <dcmtk/config/osconfig.h>
#include <dcmtk/dcmdata/dcdicent.h>
#include <dcmtk/dcmdata/dcdict.h>

#include <cstdio>
#include <map>

namespace {

const char *parity(DcmDictRangeRestriction restriction)
{
    switch (restriction) {
    case DcmDictRange_Odd: return "Odd";
    case DcmDictRange_Even: return "Even";
    default: return "Any";
    }
}

// Two letters; nullptr for an attribute that is in the dictionary but not known.
const char *representation(const DcmVR &vr)
{
    switch (vr.getEVR()) {
    case EVR_UNKNOWN:
    case EVR_UNKNOWN2B:
    case EVR_UN: return nullptr;
    case EVR_ox:
    case EVR_px:
    case EVR_lt: return "OW";
    case EVR_xs: return "US";
    case EVR_up: return "UL";
    default: return vr.getVRName();
    }
}

unsigned number(const DcmTagKey &tag)
{
    return static_cast<unsigned>(tag.getGroup()) << 16 | tag.getElement();
}

void writeRange(const DcmDictEntry &entry)
{
    if (const char *vr = representation(entry.getVR()); vr && !entry.getPrivateCreator())
        std::printf("RANGE(0x%08x, 0x%08x, %s, %s, '%c', '%c')\n", number(entry.getKey()),
                    number(entry.getUpperKey()), parity(entry.getGroupRangeRestriction()),
                    parity(entry.getElementRangeRestriction()), vr[0], vr[1]);
}

} // namespace

int main()
{
    if (!dcmDataDict.isDictionaryLoaded()) {
        std::fputs("DCMTK's dictionary of attributes is missing\n", stderr);
        return 1;
    }
    DcmDataDictionary &dictionary = dcmDataDict.wrlock();
    std::map<unsigned, const char *> attributes;
    for (auto i = dictionary.normalBegin(); i != dictionary.normalEnd(); ++i)
        if (const char *vr = representation((*i)->getVR()); vr && !(*i)->getPrivateCreator())
            attributes.emplace(number((*i)->getKey()), vr);
    for (const auto &[tag, vr] : attributes)
        std::printf("ATTRIBUTE(0x%08x, '%c', '%c')\n", tag, vr[0], vr[1]);
    for (auto i = dictionary.repeatingBegin(); i != dictionary.repeatingEnd(); ++i)
        writeRange(**i);
    dcmDataDict.wrunlock();
    return std::fflush(stdout) == 0 ? 0 : 1;
}
