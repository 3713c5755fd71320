#include "RunTrace.h"

#include "base/Files.h"
#include "run/jobs/ScriptJob.h"

#include <QTest>

namespace dravolin::test {

namespace {

const QString header =
    QStringLiteral("#!/bin/sh\n#This is a temporary file created by Dravolin. If you are reading "
                   "this, the file is garbage that can safely be deleted.\n");

} // namespace

TracedRun::TracedRun()
{
    host.fields.uidRoot = validRoot;
    host.chosen.configuration = QStringLiteral("CT");
    jobs.answer = [this](const Job &job) { return answerJob(job); };
}

void TracedRun::configure(const QString &text)
{
    state.set(&RunState::allConfigPaths,
              TitleToPath{{QStringLiteral("CT"), writeFile(QStringLiteral("home/configuration.txt"), text)}});
}

Drop TracedRun::drop(const QStringList &folders, const QStringList &files)
{
    Drop dropped{folders, files, {}};
    dropped.options.createBAKfiles = host.chosen.overwriteSource != Qt::Checked;
    return dropped;
}

JobResult TracedRun::answerJob(const Job &job)
{
    const QString folderName = relative(job.folder);
    const bool search = job.executable == QStringLiteral("/usr/bin/find");
    host.calls.append((search ? QStringLiteral("find ") : QStringLiteral("job ")) + folderName);
    if (unstartable.contains(folderName))
        return {JobOutcome::CouldNotStart, {}};
    if (search)
        return {JobOutcome::Ran, printed.value(folderName)};
    if (toolOutput.contains(folderName) &&
        !writeText(joinPath(job.folder, outputFileName), toolOutput.value(folderName)))
        QTest::qFail("an output file could not be written", __FILE__, __LINE__);
    return {JobOutcome::Ran, {}};
}

QString TracedRun::relative(QString text) const
{
    return text.replace(folder.path(), QStringLiteral("~"));
}

QStringList TracedRun::jobTexts() const
{
    QStringList texts;
    for (const RecordingJobRunner::Recorded &recorded : jobs.jobs) {
        const Job &job = recorded.job;
        const bool complete = recorded.script.isEmpty() || recorded.script.startsWith(header);
        QStringList lines = {job.executable + u' ' + job.arguments.join(u' '),
                             QStringLiteral("in ") + job.folder,
                             job.environment ? QStringLiteral("with ") + job.environment->join(u'|')
                                             : QStringLiteral("its own environment")};
        if (job.pipeOutput)
            lines.append(QStringLiteral("piped"));
        if (!recorded.script.isEmpty())
            lines.append(complete ? recorded.script.sliced(header.size()) : recorded.script);
        texts.append(relative(lines.join(u'\n')));
    }
    return texts;
}

QString TracedRun::scriptJob(const QString &folder, const QString &commands)
{
    return QStringLiteral("/bin/sh -c \"%1/.noxTemp.sh\"\nin %1\nwith DCMDICTPATH=~/app/resources/dicom.dic\n"
                          "\"~/app/resources/dcmodify\"%2")
        .arg(folder, commands);
}

QString TracedRun::findJob(const QString &folder)
{
    return QStringLiteral("/usr/bin/find . -name DICOMDIR -print\nin %1\nits own environment\npiped")
        .arg(folder);
}

} // namespace dravolin::test
