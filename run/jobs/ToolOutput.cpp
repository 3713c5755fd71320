#include "run/jobs/ToolOutput.h"

#include "base/Lines.h"
#include "base/NOXUtils.h"
#include "base/SystemLog.h"

#include <QFile>
#include <QStringDecoder>

#include <fcntl.h>
#include <new>
#include <sys/stat.h>

namespace dravolin {

namespace {

constexpr qint64 pieceSize = 1 << 20; // bytes read at a time

// The lines of a large output that are judged.
class ErrorLines
{
public:
    // The next whole lines; with `last` the end of the output. False when they are not UTF-8.
    [[nodiscard]] bool add(const QByteArray &bytes, bool last)
    {
        if (!bytes.isValidUtf8())
            return false;
        // a byte-order mark is a character like any other, except at the beginning
        const auto flags = m_begun ? QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom
                                   : QStringDecoder::Flag::Stateless;
        m_begun = true;
        const QString text = QStringDecoder(QStringDecoder::Utf8, flags)(bytes);
        forEachLine(text, [&](QStringView line) {
            // what follows an unfinished last line in the run's whole output belongs to it
            if (last && line.end() == QStringView(text).end())
                m_kept += line;
            else if (NOXUtils::trimmed(line).startsWith(u"E:"))
                (m_kept += line) += u'\n';
        });
        return true;
    }
    [[nodiscard]] const QString &kept() const { return m_kept; }

private:
    bool m_begun = false;
    QString m_kept;
};

std::optional<QString> errorLines(QFile &file, qsizetype longestLine)
{
    ErrorLines lines;
    QByteArray rest; // the beginning of a line
    for (;;) {
        const QByteArray piece = file.read(pieceSize);
        if (file.error() != QFile::NoError || rest.size() + piece.size() > longestLine + pieceSize)
            return std::nullopt;
        const qsizetype whole = rest.size() + (piece.isEmpty() ? 0 : piece.lastIndexOf('\n') + 1);
        rest += piece;
        if (piece.isEmpty())
            return lines.add(rest, true) ? std::optional(lines.kept()) : std::nullopt;
        if (whole == rest.size() - piece.size())
            continue;
        if (!lines.add(rest.first(whole), false))
            return std::nullopt;
        rest.remove(0, whole);
    }
}

std::optional<QString> readLarge(const QString &path, OutputUse use, qsizetype largest)
{
    QFile file;
    const int descriptor = ::open(systemPath(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0 ||
        !file.open(descriptor, QIODevice::ReadOnly | QIODevice::Unbuffered, QFile::AutoCloseHandle))
        return std::nullopt;
    if (use == OutputUse::Judged) {
        if (std::optional<QString> text = errorLines(file, largest))
            return text;
    }
    logMessage(QStringLiteral("Could not read the output of the tools: %1").arg(path));
    return std::nullopt;
}

} // namespace

std::optional<QString> readOutput(const QString &path, OutputUse use, qsizetype largest)
{
    struct stat attributes = {};
    if (::stat(systemPath(path).constData(), &attributes) != 0 || !S_ISREG(attributes.st_mode))
        return std::nullopt;
    if (attributes.st_size <= largest)
        return readText(path);
    try {
        return readLarge(path, use, largest);
    } catch (const std::bad_alloc &) {
        logMessage(QStringLiteral("Not enough memory to read file: %1").arg(path));
        return std::nullopt;
    }
}

} // namespace dravolin
