#include "batch/CaseDirectory.h"

#include "base/Files.h"
#include "base/PathText.h"
#include "base/Texts.h"
#include "dicom/MediaDirectory.h"
#include "dicom/SourceFile.h"

#include <algorithm>
#include <cstdio>
#include <unistd.h>

namespace dravolin {

namespace {

// What a directory was made of, and how many results are not in it.
QByteArray noteOf(const QByteArray &content, qsizetype leftOut)
{
    return content + ' ' + QByteArray::number(leftOut);
}

QByteArray safeHash(const QString &path, bool sync)
{
    QString problem;
    const std::unique_ptr<SourceFile> file = SourceFile::open(path, &problem);
    if (!file || (sync && ::fsync(file->descriptor()) != 0))
        return {};
    file->beginHash();
    return file->endHash().value_or(QByteArray());
}

} // namespace

const PlannedFile *directoryOf(const PlannedCase &planned)
{
    const auto found = std::find_if(planned.files.begin(), planned.files.end(),
                                    [](const PlannedFile &file) { return file.isDirectory; });
    return found == planned.files.end() ? nullptr : &*found;
}

CaseDirectory makeDirectoryOf(const PlannedCase &planned, const ProjectKey &key, Journal &journal,
                              const std::function<bool()> &stop)
{
    const PlannedFile *source = directoryOf(planned);
    if (!source || stop())
        return {};
    const QString &caseId = planned.row.caseId;
    const QHash<QString, FileRecord> records = journal.files(caseId);
    QStringList results;
    Sha256 content;
    for (const PlannedFile &file : planned.files) {
        const FileRecord record = records.value(file.path);
        if (file.isDirectory || record.result.isEmpty())
            continue;
        results.append(record.result);
        content.add(toBytes(record.result) + ' ' + record.hashAfter + '\n');
    }
    const QByteArray digits = content.digits();
    const QString target = joinPath(planned.row.destination, QString::fromLatin1(mediaDirectoryName));
    const QString noteName = QStringLiteral("directory of ") + caseId;
    const QByteArray known = journal.value(noteName);
    if (known.startsWith(digits) && pathExists(target))
        return {{}, known.sliced(digits.size()).trimmed().toInt()};

    const QString temporary = joinPath(planned.row.destination, QStringLiteral(".dravolin-directory.part"));
    const MediaDirectory made = makeMediaDirectory(temporary, planned.row.destination, results,
                                                   key.newUid("directory of " + caseId.toUtf8()), stop);
    if (!made.problem.isEmpty())
        return {stop() ? QString() : made.problem};
    const FileRecord record = {source->path,
                               source->size,
                               source->modified,
                               QString::fromLatin1(mediaDirectoryName),
                               safeHash(joinPath(planned.sourceFolder(), source->path), false),
                               safeHash(temporary, true),
                               {}};
    const bool named = !record.hashAfter.isEmpty() &&
                       std::rename(systemPath(temporary).constData(), systemPath(target).constData()) == 0;
    if (!named || !journal.add({{caseId, record}}, {}) ||
        !journal.setValue(noteName, noteOf(digits, made.leftOut.size())))
        return {Texts::tr("the DICOMDIR of case %1 cannot be written").arg(caseId)};
    return {{}, made.leftOut.size()};
}

} // namespace dravolin
