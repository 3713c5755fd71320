#include "batch/CaseDirectory.h"

#include "base/Files.h"
#include "base/PathText.h"
#include "base/Texts.h"
#include "batch/KnownFiles.h"
#include "dicom/MediaDirectory.h"
#include "dicom/SourceFile.h"

#include <cstdio>
#include <unistd.h>

namespace dravolin {

namespace {

// What a directory was made of, and how many results are not in it.
QByteArray noteOf(const QByteArray &content, qsizetype leftOut)
{
    return content + ' ' + QByteArray::number(leftOut);
}

// The results of a case that a directory may name.
struct Contents
{
    QStringList results;
    QByteArray digits; // of a hash of them all
};

Contents contentsOf(const QString &caseId, const Journal &journal)
{
    Contents contents;
    Sha256 hash;
    for (KnownFiles known(journal, caseId); known.current(); known.pass()) {
        const FileRecord &record = *known.current();
        if (record.result.isEmpty() || record.result == QLatin1String(mediaDirectoryName))
            continue;
        contents.results.append(record.result);
        hash.add(toBytes(record.result) + ' ' + record.hashAfter + '\n');
    }
    contents.digits = hash.digits();
    return contents;
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

CaseDirectory makeDirectoryOf(const PlannedCase &planned, const ProjectKey &key, Journal &journal,
                              const std::function<bool()> &stop)
{
    const std::optional<PlannedFile> &source = planned.directory;
    if (!source || stop())
        return {};
    const QString &caseId = planned.row.caseId;
    const auto [results, digits] = contentsOf(caseId, journal);
    const QString name = QString::fromLatin1(mediaDirectoryName);
    const QString target = joinPath(planned.row.destination, name);
    const QString noteName = QStringLiteral("directory of ") + caseId;
    const QByteArray known = journal.value(noteName);
    if (known.startsWith(digits) && pathExists(target))
        return {{}, true, false, known.sliced(digits.size()).trimmed().toInt()};

    const QString temporary = joinPath(planned.row.destination, QStringLiteral(".dravolin-directory.part"));
    const MediaDirectory made = makeMediaDirectory(temporary, planned.row.destination, results,
                                                   key.newUid("directory of " + caseId.toUtf8()), stop);
    if (!made.problem.isEmpty())
        return {stop() ? QString() : Texts::tr("case %1: %2").arg(caseId, made.problem)};
    const FileRecord record = {source->path,
                               source->size,
                               source->modified,
                               name,
                               safeHash(joinPath(planned.sourceFolder(), source->path), false),
                               safeHash(temporary, true),
                               {}};
    const bool named = !record.hashAfter.isEmpty() &&
                       std::rename(systemPath(temporary).constData(), systemPath(target).constData()) == 0;
    if (!named)
        removeFile(temporary);
    if (!named || !journal.add({{caseId, record}}, {}) ||
        !journal.setValue(noteName, noteOf(digits, made.leftOut.size())))
        return {Texts::tr("the DICOMDIR of case %1 cannot be written").arg(caseId)};
    return {{}, true, true, made.leftOut.size()};
}

} // namespace dravolin
