#include "cli/BatchTexts.h"

#include "base/Texts.h"

#include <QLocale>

#include <algorithm>

namespace dravolin::cli {

namespace {

QString numbers(qsizetype files, qsizetype folders, quint64 bytes)
{
    return Texts::tr("%1 files in %2 folders, %3")
        .arg(QString::number(files), QString::number(folders), bytesText(bytes));
}

qsizetype troubled(const PlannedCase &planned)
{
    return std::count_if(planned.files.begin(), planned.files.end(),
                         [](const PlannedFile &file) { return !file.problem.isEmpty(); });
}

} // namespace

QString bytesText(quint64 bytes)
{
    return QLocale::c().formattedDataSize(static_cast<qint64>(bytes), 1);
}

QString problemsText(const QList<ListProblem> &problems)
{
    QString text;
    for (const ListProblem &problem : problems)
        text += problem.line == 0
                    ? problem.text + u'\n'
                    : Texts::tr("line %1: %2\n").arg(QString::number(problem.line), problem.text);
    return text;
}

QString planText(const Plan &plan)
{
    QString text;
    qsizetype files = 0;
    qsizetype folders = 0;
    quint64 bytes = 0;
    for (const PlannedCase &planned : plan.cases) {
        text += Texts::tr("case %1: %2")
                    .arg(planned.row.caseId, numbers(planned.files.size(), planned.folders, planned.bytes));
        if (const qsizetype count = troubled(planned); count > 0)
            text += Texts::tr(", %1 of them cannot be done").arg(count);
        text += u'\n';
        for (const PlannedFile &file : planned.files)
            if (!file.problem.isEmpty())
                text += QStringLiteral("  %1: %2\n").arg(file.path, file.problem);
        files += planned.files.size();
        folders += planned.folders;
        bytes += planned.bytes;
    }
    return text + Texts::tr("%1 cases: %2\n")
                      .arg(QString::number(plan.cases.size()), numbers(files, folders, bytes));
}

QString outcomeText(const BatchOutcome &outcome)
{
    QString text = outcome.nothingToDo ? Texts::tr("Nothing is left to be done.\n") : QString();
    for (const CaseCounts &counts : outcome.cases) {
        text += Texts::tr("case %1: %2 done, %3 not done")
                    .arg(counts.caseId, QString::number(counts.done), QString::number(counts.notDone.size()));
        if (counts.directories > 0)
            text += Texts::tr(", %1 DICOMDIR left out").arg(counts.directories);
        if (counts.movedToUtf8 > 0)
            text += Texts::tr(", %1 moved to UTF-8").arg(counts.movedToUtf8);
        text += u'\n';
        for (const FileRecord &record : counts.notDone)
            text += QStringLiteral("  %1: %2\n").arg(record.path, record.problem);
    }
    return text;
}

QString progressText(const BatchProgress &progress)
{
    return Texts::tr("%1 of %2 files, %3 of %4 cases")
        .arg(QString::number(progress.files), QString::number(progress.allFiles),
             QString::number(progress.cases), QString::number(progress.allCases));
}

} // namespace dravolin::cli
