#pragma once

#include "batch/BatchRun.h"
#include "check/Check.h"

#include <QElapsedTimer>
#include <QString>

#include <functional>

namespace dravolin::cli {

// How a command goes on, told on standard error: a bar that is written over itself on a terminal, a line
// every ten seconds elsewhere. One thread at a time.
class Progress
{
public:
    enum class Form { None, Bar, Lines };
    // What standard error is.
    [[nodiscard]] static Form formHere();

    using Write = std::function<void(const QString &)>;
    Progress(Form form, Write write);

    void show(const check::CheckProgress &progress);
    void show(const BatchProgress &progress);
    // Takes the bar away.
    void finish();

private:
    // Shows the text that the function makes of the milliseconds since the start, when it is time for it.
    void show(double share, const std::function<QString(qint64)> &text);

    Form m_form;
    Write m_write;
    QElapsedTimer m_sinceStart;
    qint64 m_lastShown; // milliseconds since the start
    bool m_barShown = false;
};

// "3.4 MB/s, 10 s left"
[[nodiscard]] QString paceText(quint64 bytes, qsizetype files, qsizetype allFiles, qint64 milliseconds);
// "12 of 48 files, 3.4 MB/s, 10 s left"
[[nodiscard]] QString progressText(const check::CheckProgress &progress, qint64 milliseconds);

} // namespace dravolin::cli
