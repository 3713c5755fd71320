#pragma once

#include "dicom/SourceFile.h"
#include "dicom/Syntax.h"

#include <QByteArray>
#include <QString>

#include <optional>

// What lies in front of the data set of a DICOM file: the preamble and the file meta information (DICOM
// PS3.10, 7.1).
namespace dravolin {

struct Prologue
{
    QByteArray sopClass;
    QByteArray sopInstance;
    QByteArray transferSyntax;
    Syntax syntax;
    quint64 dataSet = 0; // where it begins in the file
};

// The prologue of a file. A data set that begins without one is taken in explicit or implicit VR, little
// endian, as its first element shows. Nothing when the file is no DICOM file; `problem` then gets a text for
// people.
[[nodiscard]] std::optional<Prologue> readPrologue(SourceFile &file, QString *problem);

// A prologue as this program writes it: an empty preamble, the three values given and what names the program.
// Nothing else of a source's prologue is kept: it names applications and institutions.
[[nodiscard]] QByteArray prologueBytes(const Prologue &prologue);

} // namespace dravolin
