#pragma once

#include "dicom/Syntax.h"

#include <QByteArray>

namespace dravolin {

// What tells an object from others, without padding; "" for what it does not say.
struct ObjectNames
{
    QByteArray sopClass;
    QByteArray sopInstance;
    QByteArray series;
    QByteArray study;
    QByteArray patientId;

    bool operator==(const ObjectNames &) const = default;

    // The one that an attribute of the top level holds; null for any other attribute.
    [[nodiscard]] QByteArray *field(TagNumber tag)
    {
        switch (tag) {
        case 0x00080016: return &sopClass;
        case 0x00080018: return &sopInstance;
        case 0x00100020: return &patientId;
        case 0x0020000d: return &study;
        case 0x0020000e: return &series;
        default: return nullptr;
        }
    }
};

} // namespace dravolin
