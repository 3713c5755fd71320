#include "PropagationRun.h"

#include "base/Files.h"
#include "run/jobs/ScriptJob.h"

#include <QTest>

namespace dravolin::test {

PropagationRun::PropagationRun() : dataFolder(makeFolder(QStringLiteral("data/A")))
{
    options.createBAKfiles = true; // makes no difference
    options.theLUTtag = tag;
    jobs.answer = [this](const Job &job) { return answer(job); };
    state.set(&RunState::selectedLUTdict, LutTable{{QStringLiteral("<missing>"), QStringLiteral("unknown")},
                                                   {QStringLiteral("PAT123"), QStringLiteral("Subject_001")},
                                                   {QStringLiteral("PHANTOM"), QStringLiteral("<skip>")}});
}

QString PropagationRun::file(const QString &name, const QByteArray &value)
{
    printed.insert(name, printedFor(value));
    return writeFile(QStringLiteral("data/A/") + name);
}

JobResult PropagationRun::answer(const Job &job) const
{
    if (job.pipeOutput)
        return {JobOutcome::Ran, printed.value(job.arguments.last())};
    if (!scriptOutput.isEmpty() && !writeText(joinPath(job.folder, outputFileName), scriptOutput))
        QTest::qFail("an output file could not be written", __FILE__, __LINE__);
    return {JobOutcome::Ran, {}};
}

QStringList PropagationRun::jobTexts() const
{
    QStringList texts;
    for (const auto &[job, script] : jobs.jobs) {
        QString text = job.pipeOutput ? QStringLiteral("? ") + job.arguments.last() : script;
        texts.append(text.remove(scriptHeader).remove(paths.resourceFolder) + QStringLiteral(" @ ") +
                     QString(job.folder).remove(folder.path()));
    }
    return texts;
}

QByteArray PropagationRun::printedFor(const QByteArray &value)
{
    return "(0010,1000) LO [" + value + "]                                  #   6, 1 OtherPatientIDs\n";
}

} // namespace dravolin::test
