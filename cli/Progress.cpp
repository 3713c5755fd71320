#include "cli/Progress.h"

#include "base/Texts.h"

#include <algorithm>
#include <unistd.h>

namespace dravolin::cli {

namespace {

constexpr qint64 barInterval = 200;     // milliseconds
constexpr qint64 lineInterval = 10'000; // milliseconds
constexpr qsizetype barWidth = 30;

QString barText(const check::CheckProgress &progress)
{
    const qsizetype full = progress.files * barWidth / std::max<qsizetype>(progress.allFiles, 1);
    return u'[' + QString(full, u'#') + QString(barWidth - full, u'.') + u']';
}

} // namespace

QString progressText(const check::CheckProgress &progress, qint64 milliseconds)
{
    const double seconds = std::max(static_cast<double>(milliseconds) / 1000, 0.001);
    const double rate = static_cast<double>(progress.bytes) / seconds / 1e6;
    const double left = seconds * static_cast<double>(progress.allFiles - progress.files) /
                        static_cast<double>(std::max<qsizetype>(progress.files, 1));
    return Texts::tr("%1 of %2 files, %3 MB/s, %4 s left")
        .arg(QString::number(progress.files), QString::number(progress.allFiles),
             QString::number(rate, 'f', 1), QString::number(left, 'f', 0));
}

Progress::Form Progress::formHere()
{
    return ::isatty(STDERR_FILENO) ? Form::Bar : Form::Lines;
}

Progress::Progress(Form form, Write write)
    : m_form(form), m_write(std::move(write)), m_lastShown(form == Form::Bar ? -barInterval : 0)
{
    m_sinceStart.start();
}

void Progress::show(const check::CheckProgress &progress)
{
    const qint64 now = m_sinceStart.elapsed();
    if (m_form == Form::None || now - m_lastShown < (m_form == Form::Bar ? barInterval : lineInterval))
        return;
    m_lastShown = now;
    const QString text = progressText(progress, now);
    m_barShown = m_form == Form::Bar;
    m_write(m_barShown ? u'\r' + barText(progress) + u' ' + text + QStringLiteral("\x1B[K") : text + u'\n');
}

void Progress::finish()
{
    if (m_barShown)
        m_write(QStringLiteral("\r\x1B[K"));
}

} // namespace dravolin::cli
