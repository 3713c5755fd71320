#include "processing/LutPropagation.h"

#include "base/Files.h"
#include "base/SystemLog.h"
#include "processing/ChangeCount.h"
#include "processing/CountedJobs.h"
#include "processing/Edits.h"
#include "processing/FolderTree.h"
#include "run/jobs/Script.h"

namespace dravolin {

namespace {

// Bytes. The value stands in the first line; more than this is printed only by a tool that prints without
// end.
constexpr qsizetype enoughOfASearch = 64 << 20;

// What the files of one folder have in common.
struct FolderPass
{
    const RunContext &context;
    const QString &folder;
    QString tag;
    LutTable table;
};

bool isToBeProcessed(const QString &folder, const QString &name)
{
    const QString path = joinPath(folder, name);
    SystemError error;
    const std::optional<EntryKind> kind = entryKind(path, &error);
    if (!kind) {
        logMessage(QStringLiteral("Could not get attributes for file: %1 (%2)").arg(path, error.text));
        return false;
    }
    return *kind == EntryKind::File && !name.startsWith(u'.') && pathExtension(name) != QStringLiteral("bak");
}

JobResult search(const FolderPass &pass, const QString &name)
{
    const AppPaths &paths = pass.context.paths;
    return runCounted(pass.context,
                      {.executable = paths.dcmdump(),
                       .arguments = {QStringLiteral("-M"), QStringLiteral("-Un"), QStringLiteral("+E"),
                                     QStringLiteral("-s"), QStringLiteral("--search"), pass.tag, name},
                       .folder = pass.folder,
                       .environment = toolEnvironment(paths),
                       .pipeOutput = true,
                       .enoughOutput = enoughOfASearch});
}

void tellAboutFileHandles(RunHost &host)
{
    logMessage(QStringLiteral("Running out of fileHandles"));
    host.refuse(Refusal::OutOfFileHandles);
}

void modify(const FolderPass &pass, const QString &name, const QString &newValue)
{
    const RunContext &context = pass.context;
    const QString path = joinPath(pass.folder, name);
    const std::optional<FileStamp> before = fileStamp(path);
    const ScriptJobResult result = runScriptCounted(
        context, pass.folder, propagationCommand(context.paths.dcmodify(), pass.tag, newValue, name));
    countFile(context, path, before);
    if (!result.ran)
        return;
    context.state.update([&](RunState &state) {
        state.output += result.output;
        ++state.numLUTadaptedFiles; // intended: also when the tool reports an error
    });
}

// False when no pipe could be created.
bool propagateThroughFile(const FolderPass &pass, const QString &name)
{
    const JobResult found = search(pass, name);
    if (found.outcome == JobOutcome::NoPipe)
        return false;
    const std::optional<QString> value = searchedValue(decodeUtf8(found.output).value_or(QString()));
    if (!value)
        return true;
    const QString newValue = propagatedValue(pass.table, *value);
    if (newValue == skippedValue)
        pass.context.state.add(&RunState::numLUTskippedFiles, 1);
    else
        modify(pass, name, newValue);
    return true;
}

} // namespace

void propagateThroughTree(const RunContext &context, const QString &folder, const RunOptions &options)
{
    forEachFolder(folder, [&](const QString &visited) {
        // listed now, because the tools may have changed the folder meanwhile
        context.state.add(&RunState::errCount,
                          propagateThroughFiles(context, listNames(visited), visited, options));
        context.state.add(&RunState::folderCount, 1);
        tellFolders(context, Progress::Event::FoldersPropagated);
    });
}

quint64 propagateThroughFiles(const RunContext &context, const QStringList &entries, const QString &folder,
                              const RunOptions &options)
{
    if (entries.isEmpty() || folder.isEmpty())
        return 0;
    // intended: a run that only generates UIDs has no attribute; the search then finds nothing
    const FolderPass pass = {.context = context,
                             .folder = folder,
                             .tag = options.theLUTtag.value_or(QString()),
                             .table = context.state.get(&RunState::selectedLUTdict)};
    for (qsizetype i = 0; i < entries.size(); ++i) {
        const QString name = lastPathComponent(entries.at(i));
        context.host.progress({.event = Progress::Event::FilesPropagated,
                               .done = static_cast<quint64>(i + 1),
                               .all = static_cast<quint64>(entries.size())});
        if (isToBeProcessed(folder, name) && !propagateThroughFile(pass, name)) {
            tellAboutFileHandles(context.host);
            return 1;
        }
    }
    return 0;
}

std::optional<QString> searchedValue(const QString &printed)
{
    const qsizetype first = printed.indexOf(u' ');
    const qsizetype second = first < 0 ? -1 : printed.indexOf(u' ', first + 1);
    if (second < 0)
        return std::nullopt;
    const QStringView rest = QStringView(printed).sliced(second + 1);
    const qsizetype end = rest.indexOf(u' ');
    const QStringView piece = end < 0 ? rest : rest.first(end);
    if (!piece.startsWith(u'['))
        return piece.toString();
    // intended: the last character goes whatever it is, so that of "[John Doe]" only "Joh" is left
    return piece.size() < 2 ? QString() : piece.sliced(1, piece.size() - 2).toString();
}

QString propagatedValue(const LutTable &table, const QString &value)
{
    const QString found = table.value(value);
    // intended: the key itself, not the text that the table has for it
    return found.isEmpty() ? missingValue : found;
}

QString propagationCommand(const QString &tool, const QString &tag, const QString &newValue,
                           const QString &name)
{
    return quoted(tool) + QStringLiteral(" -ie -nb") + shellText({{Edit::Kind::Modify, tag, newValue}}) +
           u' ' + quoted(name) + QStringLiteral("  >%1 2>&1").arg(outputFileName);
}

} // namespace dravolin
