#include "Fuzz.h"

#include "base/Files.h"
#include "run/OutputAnalysis.h"
#include "run/jobs/ToolOutput.h"

#include <algorithm>
#include <limits>
#include <sys/mman.h>
#include <unistd.h>

using namespace dravolin;
using fuzz::require;

// What the tools print: the judgement beside the rule said in another way, and the reading of large outputs
// beside that of small ones. The first paragraph of the input is the names of the folders.

namespace {

struct Counted
{
    quint64 filesWithErrors = 0;
    quint64 errorLines = 0;
    QString logText;
};

// What the closing line counts, from its end: the last word and a blank, then the number backwards.
quint64 countAtTheEnd(const QString &line)
{
    if (line.size() < 17)
        return 0;
    QString rest = line.sliced(11);
    std::reverse(rest.begin(), rest.end());
    rest = NOXUtils::stringByTrimmingLeadingAndTrailingspaces(rest.sliced(6));
    qsizetype digits = rest.startsWith(u'-') || rest.startsWith(u'+') ? 1 : 0;
    while (digits < rest.size() && rest.at(digits) >= u'0' && rest.at(digits) <= u'9')
        ++digits;
    bool fits = true;
    const qint64 number = rest.first(digits).toLongLong(&fits);
    if (fits || digits == 0 || (digits == 1 && (rest.at(0) < u'0' || rest.at(0) > u'9')))
        return static_cast<quint64>(number);
    return static_cast<quint64>(rest.startsWith(u'-') ? std::numeric_limits<qint64>::min()
                                                      : std::numeric_limits<qint64>::max());
}

bool beginsWithAFolder(const QString &complaint, const QStringList &folders)
{
    const QString text = complaint.toLower();
    return std::any_of(folders.begin(), folders.end(),
                       [&text](const QString &folder) { return text.startsWith(folder + u':'); });
}

Counted count(const QString &output, const QStringList &folders)
{
    const QString unloadable = QStringLiteral("E: unable to load file ");
    Counted counted;
    for (const QStringView view : lines(output)) {
        const QString line = NOXUtils::stringByTrimmingLeadingAndTrailingspaces(view);
        if (line.startsWith(QStringLiteral("E: There was")) ||
            line.startsWith(QStringLiteral("E: There were"))) {
            counted.filesWithErrors += countAtTheEnd(line);
        } else if (line.startsWith(unloadable) &&
                   beginsWithAFolder(
                       NOXUtils::stringByTrimmingLeadingAndTrailingspaces(line.sliced(unloadable.size())),
                       folders)) {
            --counted.filesWithErrors;
        } else if (line.startsWith(QStringLiteral("E:")) &&
                   (line.startsWith(unloadable) ||
                    !line.endsWith(QStringLiteral("put value into non-leaf elements!")))) {
            ++counted.errorLines;
            counted.logText += line + QStringLiteral("\n\n");
        }
    }
    return counted;
}

QString summaryOf(const Counted &counted)
{
    const auto told = [](const QString &text, quint64 number) {
        return text.arg(QString::number(number), NOXUtils::pluralSuffix(number));
    };
    if (counted.logText.isEmpty())
        return QStringLiteral("\nDone!");
    return counted.filesWithErrors == 0
               ? told(QStringLiteral("\nDone, with %1 error%2."), counted.errorLines)
               : told(QStringLiteral("\nDone. %1 file%2 with errors."), counted.filesWithErrors);
}

RunJudgement judged(const QString &output, const QStringList &folders)
{
    RunReport report;
    report.output = output;
    report.AllFoldersNames = folders;
    return judgeOutput(report);
}

// A file in memory with the bytes, and its path.
class MemoryFile
{
public:
    explicit MemoryFile(const QByteArray &bytes) : m_descriptor(::memfd_create("output", MFD_CLOEXEC))
    {
        const ssize_t size = ::write(m_descriptor, bytes.constData(), static_cast<size_t>(bytes.size()));
        require(size == bytes.size(), "a file in memory can be written");
    }
    ~MemoryFile() { ::close(m_descriptor); }
    MemoryFile(const MemoryFile &) = delete;
    MemoryFile &operator=(const MemoryFile &) = delete;
    [[nodiscard]] QString path() const
    {
        return QStringLiteral("/proc/self/fd/") + QString::number(m_descriptor);
    }

private:
    int m_descriptor;
};

void requireSameWhenLarge(const QByteArray &bytes, const QStringList &folders)
{
    const MemoryFile file(bytes);
    const std::optional<QString> whole = readOutput(file.path(), OutputUse::Judged);
    const std::optional<QString> inPieces = readOutput(file.path(), OutputUse::Judged, bytes.size() - 1);
    require(whole.has_value() == inPieces.has_value(), "a large output can be read when a small one can");
    if (!whole)
        return;
    const RunJudgement expected = judged(*whole, folders);
    const RunJudgement judgement = judged(*inPieces, folders);
    require(judgement.summary == expected.summary && judgement.logText == expected.logText,
            "what is left out of a large output is not judged");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes = fuzz::bytesOf(data, size);
    const qsizetype paragraph = std::max<qsizetype>(bytes.indexOf("\n\n"), 0);
    QStringList folders;
    for (const QByteArray &name : bytes.first(paragraph).split('\n'))
        folders.append(fromBytes(name).toLower());
    const QByteArray output = bytes.sliced(paragraph);
    // it takes a hundred times as long as all the rest
    if (!output.isEmpty() && output.size() % 8 == 0)
        requireSameWhenLarge(output, folders);
    const std::optional<QString> text = decodeUtf8(output);
    if (!text)
        return 0;
    const Counted counted = count(*text, folders);
    const RunJudgement judgement = judged(*text, folders);
    require(judgement.logText == counted.logText, "the log has the errors, each by itself");
    require(judgement.wantsLogWindow == !counted.logText.isEmpty(), "errors are shown");
    require(judgement.hasErrors == (counted.errorLines != 0 || counted.filesWithErrors != 0),
            "errors are told");
    require(judgement.summary == summaryOf(counted), "the summary counts them");
    return 0;
}
