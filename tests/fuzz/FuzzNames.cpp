#include "Fuzz.h"

#include "processing/Edits.h"
#include "processing/FolderAnonymization.h"
#include "run/jobs/Script.h"

#include <algorithm>

using namespace dravolin;
using fuzz::require;

// Names of files and folders: as bytes and as texts, as paths, and as words of a command. The input is names
// with NULs between them.

namespace {

void requirePathText(const QByteArray &bytes)
{
    const QString text = fromBytes(bytes);
    require(toBytes(text) == bytes, "every name comes back as its bytes");
    require(systemPath(text) == bytes, "the system gets a name's bytes");
    require(bytes.isValidUtf8() == decodeUtf8(bytes).has_value(), "what is UTF-8 is a text");
    require(systemPath(text + QChar(u'\0')).isEmpty(), "no name goes on behind a NUL");
}

void requirePathParts(const QString &path)
{
    const QString name = lastPathComponent(path);
    require(!name.contains(u'/') && path.endsWith(name), "the last component is the end of a path");
    const QString joined = joinPath(QStringLiteral("/data"), name);
    require(lastPathComponent(joined) == name && parentPath(joined) == QStringLiteral("/data"),
            "a path comes apart as it was joined");
    const QString extension = pathExtension(path);
    const QString stem = withoutExtension(name);
    require(extension.isEmpty() ? stem == name || stem + u'.' == name : stem + u'.' + extension == name,
            "a name is its stem and its extension");
}

void requireOneWordEach(const QStringList &names)
{
    QStringList expected;
    for (const QString &name : names) {
        if (!fuzz::isPlainInQuotes(name))
            return;
        expected.append(lastPathComponent(name));
    }
    require(fuzz::shellWords(fileArguments(names).join(QString())) == expected,
            "a shell sees each name as one word");

    QList<Edit> edits;
    for (const QString &name : names)
        edits.append({Edit::Kind::Insert, QStringLiteral("0010,0010"), name});
    require(fuzz::shellWords(shellText(edits)) == argumentList(edits),
            "a shell sees the arguments that a process gets");
}

// The end of each line is one that cannot stand in a name.
void requireEveryNameOnce(const QStringList &names, qsizetype maximum)
{
    const QString prefix = QStringLiteral("tool");
    const Redirections ends = {.only = QStringLiteral("\n"),
                               .more = QStringLiteral("\n"),
                               .last = QStringLiteral("\n"),
                               .counted = 20};
    const QStringList arguments = fileArguments(names);
    QString seen;
    for (const QStringList lines = commandLines(prefix, arguments, ends, maximum).split(u'\n');
         const QString &line : lines.first(lines.size() - 1)) {
        require(line.startsWith(prefix), "each line is a command");
        seen += line.sliced(prefix.size());
    }
    require(seen == arguments.join(QString()), "each name stands in one line, in order");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    QStringList names;
    for (const QByteArray &bytes : fuzz::bytesOf(data, size).split('\0')) {
        requirePathText(bytes);
        names.append(fromBytes(bytes));
        requirePathParts(names.last());
    }
    requireOneWordEach(names);
    const bool hasLines =
        std::any_of(names.cbegin(), names.cend(), [](const QString &name) { return name.contains(u'\n'); });
    for (qsizetype maximum = 32; !hasLines && maximum <= 512; maximum *= 2)
        requireEveryNameOnce(names, maximum);
    return 0;
}
