#include "cli/BatchTexts.h"

#include "base/NOXUtils.h"
#include "base/Texts.h"
#include "cli/Progress.h"

#include <QLocale>

#include <algorithm>

namespace dravolin::cli {

QString counted(const QString &text, qsizetype count)
{
    return text.arg(QString::number(count), NOXUtils::pluralSuffix(static_cast<quint64>(count)));
}

namespace {

QString numbers(qsizetype files, qsizetype folders, quint64 bytes)
{
    return Texts::tr("%1 in %2, %3")
        .arg(check::filesText(static_cast<quint64>(files)), counted(Texts::tr("%1 folder%2"), folders),
             bytesText(bytes));
}

QString caseText(const CaseCounts &counts)
{
    QString text =
        Texts::tr("case %1: %2 done, %3 not done")
            .arg(counts.caseId, QString::number(counts.done), QString::number(counts.notDone.size()));
    if (counts.hasDirectory)
        text += counts.notInDirectory == 0
                    ? Texts::tr(", DICOMDIR made anew")
                    : Texts::tr(", DICOMDIR made anew without %1 objects").arg(counts.notInDirectory);
    if (counts.movedToUtf8 > 0)
        text += Texts::tr(", %1 moved to UTF-8").arg(counts.movedToUtf8);
    return text;
}

// None of its files has been looked at.
bool isUntouched(const CaseCounts &counts)
{
    return counts.done == 0 && counts.directories == 0 && counts.notDone.isEmpty();
}

QString foundText(const CaseFindings &findings)
{
    if (findings.verdict(check::Grade::Possible) == check::Verdict::Clean)
        return Texts::tr(" nothing found");
    QStringList parts;
    for (const check::Grade grade : {check::Grade::Certain, check::Grade::Likely, check::Grade::Possible})
        if (const quint64 files = findings.files.at(static_cast<size_t>(grade)); files > 0)
            parts.append(Texts::tr(" %1 in %2").arg(check::nameOf(grade), check::filesText(files)));
    if (findings.deviations > 0)
        parts.append(Texts::tr(" attributes not as configured: %1").arg(findings.deviations));
    if (findings.notChecked > 0)
        parts.append(Texts::tr(" NOT CHECKED: %1").arg(check::filesText(findings.notChecked)));
    else if (findings.isIncomplete)
        parts.append(Texts::tr(" NOT CHECKED: there was no value to be searched, or no result"));
    return parts.join(u',');
}

// Where something was found, worst first.
QString groupsText(const QJsonArray &groups)
{
    constexpr qsizetype most = 8;
    QString text;
    for (qsizetype i = 0; i < std::min(groups.size(), most); ++i) {
        const QJsonObject group = groups.at(i).toObject();
        const auto member = [&group](const char *name) {
            return group.value(QLatin1String(name)).toString();
        };
        const QString line = member("configurationLine");
        text +=
            Texts::tr("  %1  %2: %3, from %4\n")
                .arg(member("worst").leftJustified(8), member("place"),
                     check::filesText(static_cast<quint64>(group.value(QLatin1String("files")).toInteger())),
                     member("sources"));
        text += QStringLiteral("            %1\n").arg(line.isEmpty() ? member("advice") : line);
    }
    if (groups.size() > most)
        text += Texts::tr("  and in %1 more places; the report names them all\n").arg(groups.size() - most);
    return text.isEmpty() ? text
                          : Texts::tr("Found, each with the line for a configuration or an advice:\n") + text;
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
                    .arg(planned.row.caseId, numbers(planned.files, planned.folders, planned.bytes));
        if (const qsizetype count = planned.troubled.size(); count > 0)
            text += Texts::tr(", %1 of them cannot be done").arg(count);
        text += u'\n';
        for (const PlannedFile &file : planned.troubled)
            text += QStringLiteral("  %1: %2\n").arg(file.path, file.problem);
        files += planned.files;
        folders += planned.folders;
        bytes += planned.bytes;
    }
    return text + counted(Texts::tr("%1 case%2"), plan.cases.size()) +
           QStringLiteral(": %1\n").arg(numbers(files, folders, bytes));
}

QString outcomeText(const BatchOutcome &outcome)
{
    const bool isAllDone = std::all_of(outcome.cases.begin(), outcome.cases.end(),
                                       [](const CaseCounts &counts) { return counts.notDone.isEmpty(); });
    QString text = outcome.nothingToDo && isAllDone ? Texts::tr("Nothing is left to be done.\n") : QString();
    QList<CaseFindings> findings;
    for (qsizetype i = 0; i < outcome.cases.size(); ++i) {
        if (!outcome.failure.isEmpty() && isUntouched(outcome.cases.at(i)))
            continue;
        const std::optional<CaseFindings> found = outcome.findings.value(i);
        text += caseText(outcome.cases.at(i)) + (found ? u';' + foundText(*found) : QString()) + u'\n';
        for (const FileRecord &record : outcome.cases.at(i).notDone)
            text += QStringLiteral("  %1: %2\n").arg(record.path, record.problem);
        findings.append(found.value_or(CaseFindings()));
    }
    return text + groupsText(together(findings).groups);
}

QString mergeText(const QJsonObject &report)
{
    qint64 done = 0;
    qint64 notDone = 0;
    QList<CaseFindings> findings;
    const QJsonArray cases = report.value(QLatin1String("cases")).toArray();
    for (const auto &value : cases) {
        done += value[QLatin1String("done")].toInteger();
        notDone += value[QLatin1String("notDone")].toInteger();
        findings.append(findingsFrom(value[QLatin1String("check")].toObject()));
    }
    const CaseFindings found = together(findings);
    return counted(Texts::tr("%1 case%2"), cases.size()) +
           Texts::tr(": %1 done, %2 not done;").arg(QString::number(done), QString::number(notDone)) +
           foundText(found) + u'\n' + groupsText(found.groups);
}

QString progressText(const BatchProgress &progress, qint64 milliseconds)
{
    if (progress.toCheck > 0)
        return Texts::tr("checking case %1 of %2: %3 of %4 files")
            .arg(QString::number(progress.cases + 1), QString::number(progress.allCases),
                 QString::number(progress.checked), QString::number(progress.toCheck));
    return Texts::tr("%1 of %2 files, %3 of %4 cases, %5")
        .arg(QString::number(progress.files), QString::number(progress.allFiles),
             QString::number(progress.cases), QString::number(progress.allCases),
             paceText(progress.bytes, progress.files, progress.allFiles, milliseconds));
}

} // namespace dravolin::cli
