#include "dicom/MediaDirectory.h"

#include "base/Files.h"
#include "base/PathText.h"
#include "base/Texts.h"
#include "dicom/ElementReader.h"
#include "dicom/Prologue.h"

#include <dcmtk/config/osconfig.h>
#include <dcmtk/dcmdata/dcddirif.h>
#include <dcmtk/dcmdata/dcdeftag.h>
#include <dcmtk/dcmdata/dcdict.h>
#include <dcmtk/dcmdata/dcmetinf.h>

namespace dravolin {

namespace {

// An index of what there is: neither the kind of a medium nor the completeness of objects is judged.
void takeEverything(DicomDirInterface &directory)
{
    directory.disableBackupMode();
    directory.disableEncodingCheck();
    directory.disableResolutionCheck();
    directory.disableTransferSyntaxCheck();
    directory.disableFileFormatCheck();
    directory.disableConsistencyCheck();
    directory.enableRetiredSOPClassSupport();
    directory.enableInventMode();
}

// DCMTK gives each directory a UID of its own making.
OFCondition setUid(const QString &path, const QByteArray &uid)
{
    DcmDicomDir directory(OFFilename(systemPath(path).constData()));
    DcmMetaInfo *meta = directory.getDirFileFormat().getMetaInfo();
    const OFCondition result = meta->putAndInsertString(DCM_MediaStorageSOPInstanceUID, uid.constData());
    return result.good() ? directory.write(EXS_LittleEndianExplicit, EET_ExplicitLength) : result;
}

// How many files the directory at `path` names; nothing when it does not end where its records do.
std::optional<qsizetype> countFiles(const QString &path)
{
    using Token = ElementReader::Token;
    constexpr TagNumber records = 0x00041220;
    constexpr TagNumber fileName = 0x00041500;
    QString problem;
    const std::unique_ptr<SourceFile> file = SourceFile::open(path, &problem);
    const std::optional<Prologue> prologue = file ? readPrologue(*file, &problem) : std::nullopt;
    if (!prologue)
        return std::nullopt;
    ElementReader reader(*file, prologue->dataSet, file->size(), prologue->syntax.notation);
    std::optional<qsizetype> count;
    Token token = reader.next();
    for (; token != Token::End && token != Token::Damaged; token = reader.next()) {
        if (token == Token::Sequence && reader.current().tag == records)
            count = 0;
        else if (token == Token::Element && reader.current().tag == fileName && count)
            ++*count;
    }
    return token == Token::End ? count : std::nullopt;
}

// DCMTK gives "good" when the disk took a part of the file only, so that what it wrote is read back.
OFCondition writeWhole(DicomDirInterface &directory, const QString &target, const QByteArray &uid)
{
    static const OFCondition notWhole = makeOFCondition(0, 0, OF_error, "it could not be written as a whole");
    OFCondition result = directory.writeDicomDir(EET_ExplicitLength);
    if (result.bad())
        return result;
    // of objects with one UID the directory names one
    const std::optional<qsizetype> files = countFiles(target);
    if (!files)
        return notWhole;
    result = setUid(target, uid);
    if (result.good() && countFiles(target) != files)
        return notWhole;
    return result;
}

QString couldNotMake(const OFCondition &condition)
{
    return Texts::tr("a DICOMDIR cannot be made: %1").arg(QString::fromLocal8Bit(condition.text()));
}

} // namespace

MediaDirectory makeMediaDirectory(const QString &target, const QString &folder, const QStringList &files,
                                  const QByteArray &uid, const std::function<bool()> &stop)
{
    MediaDirectory made;
    if (!dcmDataDict.isDictionaryLoaded()) {
        made.problem = Texts::tr("a DICOMDIR cannot be made: DCMTK's dictionary of attributes is missing");
        return made;
    }
    const OFFilename place(systemPath(folder).constData());
    DicomDirInterface directory;
    takeEverything(directory);
    OFCondition result = directory.createNewDicomDir(DicomDirInterface::AP_GeneralPurpose,
                                                     OFFilename(systemPath(target).constData()), "");
    for (const QString &file : files) {
        if (stop() || result.bad())
            break;
        if (directory.addDicomFile(OFFilename(systemPath(file).constData()), place).bad())
            made.leftOut.append(file);
    }
    if (result.good() && !stop())
        result = writeWhole(directory, target, uid);
    if (stop())
        made.problem = Texts::tr("was stopped");
    else if (result.bad())
        made.problem = couldNotMake(result);
    if (!made.problem.isEmpty())
        removeFile(target);
    return made;
}

} // namespace dravolin
