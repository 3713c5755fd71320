#include "dicom/ObjectFile.h"

#include "base/FileStamps.h"
#include "base/Files.h"
#include "base/PathText.h"
#include "base/Texts.h"
#include "dicom/CharacterSet.h"
#include "dicom/Deflation.h"
#include "dicom/FileSink.h"
#include "dicom/MediaDirectory.h"
#include "dicom/Prologue.h"
#include "dicom/Rewrite.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>

namespace dravolin {

namespace {

constexpr quint64 longestName = 1024;
constexpr TagNumber lastName = 0x0020000e;
constexpr TagNumber characterSetTag = 0x00080005;

// A source that was opened, with its data set where it can be walked over.
struct OpenObject
{
    std::unique_ptr<SourceFile> file;
    std::unique_ptr<SourceFile> inflatedFile;
    Prologue prologue;

    [[nodiscard]] SourceFile &dataSet() const { return inflatedFile ? *inflatedFile : *file; }
    [[nodiscard]] quint64 begin() const { return inflatedFile ? 0 : prologue.dataSet; }
};

// Deflated data sets are inflated into `folder`.
std::optional<OpenObject> openObject(const QString &path, const QString &folder, QString *problem)
{
    OpenObject object;
    object.file = SourceFile::open(path, problem);
    if (!object.file)
        return std::nullopt;
    const std::optional<Prologue> prologue = readPrologue(*object.file, problem);
    if (!prologue)
        return std::nullopt;
    object.prologue = *prologue;
    if (!prologue->syntax.deflated)
        return object;
    object.inflatedFile = inflated(*object.file, prologue->dataSet, folder);
    if (!object.inflatedFile)
        *problem = Texts::tr("cannot be inflated");
    return object.inflatedFile ? std::optional(std::move(object)) : std::nullopt;
}

// The names in the data set; a problem when it is damaged before the last of them. The same Patient ID is the
// same bytes, whatever the character set, where it can be read.
QString readNames(const OpenObject &object, ObjectNames &names)
{
    using Token = ElementReader::Token;
    SourceFile &file = object.dataSet();
    ElementReader reader(file, object.begin(), file.size(), object.prologue.syntax.notation);
    QByteArray characterSet;
    while (true) {
        const Token token = reader.next();
        if (token == Token::End || (token == Token::Element && reader.current().tag > lastName)) {
            names.patientId = utf8Text(names.patientId, characterSet, false).value_or(names.patientId);
            return {};
        }
        if (token == Token::Damaged || (token == Token::Sequence && !reader.leaveSequence()))
            return reader.problem();
        QByteArray *field = token == Token::Element ? names.field(reader.current().tag) : nullptr;
        if (token == Token::Element && reader.current().tag == characterSetTag)
            field = &characterSet;
        if (field && reader.current().length <= longestName)
            *field = withoutPadding(reader.value());
    }
}

ObjectFacts factsOf(const OpenObject &object)
{
    ObjectFacts facts;
    facts.size = object.file->size();
    facts.modified = object.file->modified();
    facts.names.sopClass = object.prologue.sopClass;
    facts.isDirectory = facts.names.sopClass == mediaDirectoryClass;
    return facts;
}

bool sendObject(const OpenObject &object, const Prologue &prologue, const Patches &patches, FileSink &sink)
{
    SourceFile &file = object.dataSet();
    if (!sink.write(prologueBytes(prologue)))
        return false;
    if (!object.inflatedFile)
        return sendPatched(file, object.begin(), file.size(), patches, sink) && sink.finish();
    DeflateSink deflating(sink);
    return sendPatched(file, object.begin(), file.size(), patches, deflating) && deflating.finish();
}

QString couldNotWrite(int error)
{
    return Texts::tr("cannot be written: %1").arg(QString::fromLocal8Bit(std::strerror(error)));
}

// Writes what the object becomes, and takes both hashes on the way; says what went wrong.
QString sendAndHash(const OpenObject &object, const Patches &patches, Descriptor &output,
                    TreatedFile &treated)
{
    Prologue prologue = object.prologue;
    prologue.sopClass = treated.facts.names.sopClass;
    prologue.sopInstance = treated.facts.names.sopInstance;
    FileSink sink(output.get());
    object.file->beginHash();
    const bool sent = sendObject(object, prologue, patches, sink);
    if (sink.error() != 0)
        return couldNotWrite(sink.error());
    const std::optional<QByteArray> hash = object.file->endHash();
    if (!sent || !hash)
        return Texts::tr("was changed while it was read");
    treated.sizeBefore = object.file->size();
    treated.hashBefore = *hash;
    treated.sizeAfter = sink.size();
    treated.hashAfter = sink.digits();
    return output.close() ? QString() : couldNotWrite(errno);
}

void writeTarget(const OpenObject &object, const Patches &patches, const QString &target,
                 TreatedFile &treated)
{
    Descriptor output(
        ::open(systemPath(target).constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666));
    if (!output.isOpen()) {
        treated.facts.problem = couldNotWrite(errno);
        return;
    }
    treated.facts.problem = sendAndHash(object, patches, output, treated);
    if (!treated.facts.problem.isEmpty())
        removeFile(target);
}

} // namespace

ObjectFacts readFacts(const QString &path)
{
    ObjectFacts facts;
    const std::optional<OpenObject> object =
        openObject(path, QString::fromLocal8Bit(P_tmpdir), &facts.problem);
    if (!object) {
        if (const std::optional<FileStamp> stamp = fileStamp(path)) {
            facts.size = static_cast<quint64>(stamp->size);
            facts.modified = stamp->written;
        }
        return facts;
    }
    facts = factsOf(*object);
    if (!facts.isDirectory)
        facts.problem = readNames(*object, facts.names);
    return facts;
}

TreatedFile treatFile(const QString &source, const QString &target, const Treatment &treatment)
{
    TreatedFile treated;
    const std::optional<OpenObject> object = openObject(source, parentPath(target), &treated.facts.problem);
    if (!object)
        return treated;
    treated.facts = factsOf(*object);
    if (treated.facts.isDirectory)
        return treated;
    SourceFile &dataSet = object->dataSet();
    int daysBack = 0;
    if (treatment.daysBack) {
        ObjectNames names;
        treated.facts.problem = readNames(*object, names);
        daysBack = treatment.daysBack(names.patientId);
    }
    if (!treated.facts.problem.isEmpty())
        return treated;
    const Rewriting changes = rewriting(dataSet, object->begin(), dataSet.size(),
                                        object->prologue.syntax.notation, treatment, daysBack);
    treated.facts.problem = changes.problem;
    treated.movedToUtf8 = changes.movedToUtf8;
    treated.facts.names = changes.names;
    if (treated.facts.names.sopClass.isEmpty())
        treated.facts.names.sopClass = object->prologue.sopClass;
    if (!changes.problem.isEmpty())
        return treated;
    writeTarget(*object, changes.patches, target, treated);
    return treated;
}

} // namespace dravolin
