#include "check/Remedy.h"

#include "base/Texts.h"
#include "check/Findings.h"

#include <algorithm>

namespace dravolin::check {

namespace {

constexpr Tag setByTheWindow[] = {0x00080050, 0x00100010, 0x00100020, 0x0020000D, 0x00324000};
constexpr Tag sopInstanceUid = 0x00080018;
constexpr quint16 metaGroup = 0x0002;
constexpr quint16 directoryGroup = 0x0004;

QString lineFor(Tag tag)
{
    const QString name = attributeName(tag);
    return tagText(tag).mid(1, 9) + u'\t' + (name.isEmpty() ? Texts::tr("private attribute") : name);
}

Remedy forAttribute(const Place &place)
{
    if (place.tag >> 16 == metaGroup)
        return {
            {},
            Texts::tr("meta information: no configuration changes it; \"Generate new instance UIDs\" does "
                      "so for the instance UID")};
    if (place.tag >> 16 == directoryGroup)
        return {{}, Texts::tr("a DICOMDIR: do not pass the file on")};
    if (place.tag == sopInstanceUid)
        return {{}, Texts::tr("choose \"Generate new instance UIDs\"")};
    // its value at the top level is replaced, copies in sequences go with the sequence
    if (isSetByTheWindow(place.tag))
        return place.outermost == 0 ? Remedy{{}, Texts::tr("set from the main window; look at its fields")}
                                    : Remedy{lineFor(place.outermost), {}};
    return {lineFor(place.tag), {}};
}

} // namespace

bool isSetByTheWindow(Tag tag)
{
    return std::find(std::begin(setByTheWindow), std::end(setByTheWindow), tag) != std::end(setByTheWindow);
}

Remedy remedyFor(const Place &place)
{
    switch (place.kind) {
    case Place::Kind::Attribute: return forAttribute(place);
    case Place::Kind::FileName:
    case Place::Kind::FolderName: return {{}, Texts::tr("rename it")};
    case Place::Kind::LinkTarget: return {{}, Texts::tr("remove the link")};
    case Place::Kind::NoObject: return {{}, Texts::tr("do not pass the file on")};
    default: return {{}, Texts::tr("no configuration reaches these bytes; do not pass the file on as it is")};
    }
}

} // namespace dravolin::check
