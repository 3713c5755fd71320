#include "processing/LutConstruction.h"

#include "base/Files.h"
#include "base/Lines.h"
#include "base/NewFile.h"
#include "base/SystemLog.h"
#include "processing/CountedJobs.h"

#include <QCollator>

#include <algorithm>
#include <vector>

namespace dravolin {

namespace {

void addValues(SharedRunState &shared, const QString &output)
{
    QSet<QString> found;
    forEachLine(output, [&found](QStringView line) {
        if (!line.isEmpty())
            found.insert(line.toString());
    });
    shared.update([&found](RunState &state) {
        if (state.LUTtagSet.isEmpty())
            state.LUTtagSet.swap(found);
        else
            state.LUTtagSet.unite(found);
    });
}

// Runs the search in `folder`; `commandsFor` makes the commands from their prefix.
template <typename CommandsFor>
quint64 collect(const RunContext &context, const QString &folder, CommandsFor &&commandsFor)
{
    const QString tag = context.state.get(&RunState::LUTconstructionTag);
    if (tag.size() != tagLength) {
        logMessage(QStringLiteral("Malformed LUT tag: %1").arg(tag));
        return 1;
    }
    removeOutputBeside(folder);
    const ScriptJobResult result = runScriptCounted(
        context, folder, commandsFor(constructionPrefix(context.paths.dcmdump(), tag)), OutputUse::Collected);
    addValues(context.state, result.output);
    return result.ran ? 0 : 1;
}

// A link that leads nowhere does not take its name.
bool writeUnlessTaken(const QString &path, const QString &text, bool &taken)
{
    const NewFile result = writeNewText(path, text);
    taken = result == NewFile::Taken && pathExists(path);
    return result == NewFile::Written || (result == NewFile::Taken && !taken && writeText(path, text));
}

// Under the first free name; no file is overwritten.
void writeUnderFreeName(const QString &folder, const QString &name, const QString &text)
{
    const QString stem = joinPath(folder, QStringLiteral("AnonymizationLUT_") + name);
    const QString extension = QStringLiteral(".txt");
    QString path = stem + extension;
    bool taken = false;
    bool written = writeUnlessTaken(path, text, taken);
    for (quint64 counter = 1; taken; ++counter) {
        path = stem + QString::number(counter) + extension;
        written = writeUnlessTaken(path, text, taken);
    }
    if (!written)
        logMessage(QStringLiteral("Could not write LUT to file: %1").arg(path));
}

QString lutName(const SharedRunState &state, const RunOptions &options)
{
    if (!options.selectedLUT.isEmpty())
        return options.selectedLUT;
    const QString first = state.get(&RunState::firstFoundLUTtagInNewValueDict);
    return first.isEmpty() ? QStringLiteral("XX") : first;
}

// Sorts by keys that are made once for each value; values whose keys are equal by their characters.
template <typename Key, typename MakeKey>
QStringList sortedByKey(const QSet<QString> &values, MakeKey &&makeKey)
{
    struct Entry
    {
        Key key;
        QString value;
    };
    std::vector<Entry> entries;
    entries.reserve(static_cast<size_t>(values.size()));
    for (const QString &value : values)
        entries.push_back({makeKey(value), value});
    std::sort(entries.begin(), entries.end(), [](const Entry &left, const Entry &right) {
        const int order = left.key.compare(right.key);
        return order != 0 ? order < 0 : left.value < right.value;
    });
    QStringList sorted;
    sorted.reserve(values.size());
    for (Entry &entry : entries)
        sorted.append(std::move(entry.value));
    return sorted;
}

} // namespace

QString constructionPrefix(const QString &tool, const QString &tag)
{
    return quoted(tool) + QStringLiteral(" -M -Un +E +F -q +sd +r +s --search ") + tag + u' ';
}

const Redirections &constructionRedirections()
{
    static const QString filter = QStringLiteral("| awk -F [][] '{print $2}' ");
    static const QString append = u'>' + (u'>' + outputFileName);
    static const QString truncate = u'>' + outputFileName;
    // intended: "*" directly behind the last name, which then stands for all names that begin with it; and a
    // last line that truncates, so that of a split list only the last line's values survive
    static const Redirections redirections = {.only = u'*' + (u' ' + filter) + truncate,
                                              .more = u' ' + filter + append + u'\n',
                                              .last = u' ' + filter + truncate,
                                              .counted = filter.size() + append.size()};
    return redirections;
}

quint64 collectFromTree(const RunContext &context, const QString &folder)
{
    if (folder.isEmpty())
        return 0;
    return collect(context, folder,
                   [](const QString &prefix) { return prefix + constructionRedirections().only; });
}

quint64 collectFromFiles(const RunContext &context, const QStringList &files)
{
    if (files.isEmpty())
        return 0;
    return collect(context, parentPath(files.first()), [&](const QString &prefix) {
        return commandLines(prefix, fileArguments(files), constructionRedirections(), context.max_arg_len);
    });
}

QStringList sortedLutValues(const QSet<QString> &values, const QLocale &locale)
{
    // the C locale has no alphabet of its own, and a collator for it would tell upper from lower case
    if (locale.language() == QLocale::C)
        return sortedByKey<QString>(values, [](const QString &value) { return value.toCaseFolded(); });
    QCollator collator(locale);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    return sortedByKey<QCollatorSortKey>(
        values, [&collator](const QString &value) { return collator.sortKey(value); });
}

void writeConstructedLut(const RunContext &context, const RunOptions &options)
{
    const QString text =
        lutText(context.state.get(&RunState::LUTconstructionTag),
                sortedLutValues(context.state.get(&RunState::LUTtagSet), QLocale().collation()));
    (void)createFolder(context.paths.desktopFolder);
    writeUnderFreeName(context.paths.desktopFolder, lutName(context.state, options), text);
}

} // namespace dravolin
