#include "dicom/MediaDirectory.h"

#include "base/Files.h"
#include "base/PathText.h"
#include "base/Texts.h"

#include <dcmtk/config/osconfig.h>
#include <dcmtk/dcmdata/dcddirif.h>
#include <dcmtk/dcmdata/dcdeftag.h>
#include <dcmtk/dcmdata/dcdict.h>
#include <dcmtk/dcmdata/dcmetinf.h>
#include <dcmtk/oflog/oflog.h>

namespace dravolin {

namespace {

// An index of what there is: neither the kind of a medium nor the completeness of objects is judged.
void takeEverything(DicomDirInterface &directory)
{
    OFLog::configure(OFLogger::OFF_LOG_LEVEL); // it would tell about each file on standard error
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
OFCondition nameDirectory(const QString &path, const QByteArray &uid)
{
    DcmDicomDir directory(OFFilename(systemPath(path).constData()));
    DcmMetaInfo *meta = directory.getDirFileFormat().getMetaInfo();
    const OFCondition result = meta->putAndInsertString(DCM_MediaStorageSOPInstanceUID, uid.constData());
    return result.good() ? directory.write(EXS_LittleEndianExplicit, EET_ExplicitLength) : result;
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
        result = directory.writeDicomDir(EET_ExplicitLength);
    if (result.good() && !stop())
        result = nameDirectory(target, uid);
    if (stop())
        made.problem = Texts::tr("was stopped");
    else if (result.bad())
        made.problem = couldNotMake(result);
    if (!made.problem.isEmpty())
        removeFile(target);
    return made;
}

} // namespace dravolin
