#include "cli/Progress.h"

#include "base/Texts.h"
#include "cli/BatchTexts.h"

#include <algorithm>
#include <unistd.h>

namespace dravolin::cli {

namespace {

constexpr qint64 barInterval = 200;     // milliseconds
constexpr qint64 lineInterval = 10'000; // milliseconds
constexpr qsizetype barWidth = 30;

QString barText(double share)
{
    const auto full = static_cast<qsizetype>(std::clamp(share, 0.0, 1.0) * barWidth);
    return u'[' + QString(full, u'#') + QString(barWidth - full, u'.') + u']';
}

double shareOf(qsizetype done, qsizetype all)
{
    return static_cast<double>(done) / static_cast<double>(std::max<qsizetype>(all, 1));
}

} // namespace

QString paceText(quint64 bytes, qsizetype files, qsizetype allFiles, qint64 milliseconds)
{
    const double seconds = std::max(static_cast<double>(milliseconds) / 1000, 0.001);
    const double rate = static_cast<double>(bytes) / seconds / 1e6;
    const double left = seconds * shareOf(allFiles - files, files);
    return Texts::tr("%1 MB/s, %2 s left").arg(QString::number(rate, 'f', 1), QString::number(left, 'f', 0));
}

QString progressText(const check::CheckProgress &progress, qint64 milliseconds)
{
    return Texts::tr("%1 of %2 files, %3")
        .arg(QString::number(progress.files), QString::number(progress.allFiles),
             paceText(progress.bytes, progress.files, progress.allFiles, milliseconds));
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
    show(shareOf(progress.files, progress.allFiles),
         [&progress](qint64 now) { return progressText(progress, now); });
}

void Progress::show(const BatchProgress &progress)
{
    const double share = progress.toCheck > 0 ? shareOf(progress.checked, progress.toCheck)
                                              : shareOf(progress.files, progress.allFiles);
    show(share, [&progress](qint64 now) { return progressText(progress, now); });
}

void Progress::show(double share, const std::function<QString(qint64)> &text)
{
    const qint64 now = m_sinceStart.elapsed();
    if (m_form == Form::None || now - m_lastShown < (m_form == Form::Bar ? barInterval : lineInterval))
        return;
    m_lastShown = now;
    m_barShown = m_form == Form::Bar;
    m_write(m_barShown ? u'\r' + barText(share) + u' ' + text(now) + QStringLiteral("\x1B[K")
                       : text(now) + u'\n');
}

void Progress::finish()
{
    if (m_barShown)
        m_write(QStringLiteral("\r\x1B[K"));
}

} // namespace dravolin::cli
