#pragma once

#include "base/Files.h"
#include "run/jobs/RunOptions.h"
#include "support/TestRun.h"

#include <QStringList>

namespace dravolin::test {

inline QString str(const char *text)
{
    return QString::fromUtf8(text);
}

// The progress text as the host writes it down.
inline QString status(int done, int all)
{
    return QStringLiteral("anonymized %1/%2 folders").arg(done).arg(all);
}

inline const QString validRoot = QStringLiteral("1.2.826.0.1.3680043.10.1234");

// What a check of the valid root, or loading a configuration with it, leaves among the host's calls.
inline const QStringList loadCalls = {rootCall(validRoot)};

// The call with which a run ends.
inline QStringList endCalls(const QString &summary, const QString &logText = {})
{
    return {endCall(summary, logText)};
}

// A complete run over fakes whose jobs stand among the host's calls, so that their order shows: "job" and the
// folder below the temporary tree. The window holds a valid root and selects the configuration "CT".
class TracedRun : public TestRun
{
public:
    TracedRun();

    void configure(const QString &text); // the text of the configuration "CT"
    void switchOn(Qt::CheckState Choices::*box) { host.chosen.*box = Qt::Checked; }
    [[nodiscard]] Drop drop(const QStringList &folders, const QStringList &files);

    // Everything about the recorded jobs, one text each: "EXECUTABLE ARGUMENTS", "in FOLDER", "with
    // ENVIRONMENT" (or "its own environment"), "piped", and the script without its header; the temporary tree
    // is "~".
    [[nodiscard]] QStringList jobTexts() const;
    // That text for the dcmodify script of a folder.
    [[nodiscard]] static QString scriptJob(const QString &folder, const QString &commands);
    // That text for the DICOMDIR search in a folder.
    [[nodiscard]] static QString findJob(const QString &folder);

    QMap<QString, QByteArray> printed; // by folder: what /usr/bin/find prints
    QMap<QString, QString> toolOutput; // by folder: what a script leaves in its output file
    QStringList unstartable;           // folders whose jobs do not start

private:
    JobResult answerJob(const Job &job);
    [[nodiscard]] QString relative(QString text) const;
};

// The values that the window's fields and a root without a CaseID give, as a command's arguments.
inline const QString fixedArguments =
    QStringLiteral(" -ea \"(0008,0050)\" -ea \"(0010,0010)\" -ea \"(0010,0020)\" -i \"(0020,000d)=") +
    validRoot + QStringLiteral("\" -ea \"(0032,4000)\"");

} // namespace dravolin::test
