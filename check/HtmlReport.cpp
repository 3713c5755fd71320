#include "base/Texts.h"
#include "check/HtmlPage.h"
#include "check/Report.h"
#include "check/Summary.h"

#include <algorithm>

namespace dravolin::check {

namespace {

constexpr qsizetype mostPaths = 100;

QString number(quint64 count)
{
    return QString::number(count);
}

void addVerdict(HtmlPage &page, const CheckReport &report, const ReportedCall &call)
{
    const Verdict verdict = verdictOf(report, call.atLeast);
    page.title(Texts::tr("Check by value"));
    page.paragraph(call.time.toString(Qt::ISODate));
    page.verdict(verdict);
    if (call.atLeast != Grade::Possible)
        page.paragraph(Texts::tr("Findings below the grade %1 are told, but do not count for this.")
                           .arg(nameOf(call.atLeast)));
}

void addWhat(HtmlPage &page, const CheckReport &report)
{
    page.heading(Texts::tr("What was checked"));
    page.table(
        {Texts::tr("Side"), Texts::tr("Files"), Texts::tr("DICOM objects")},
        {{Texts::tr("Originals"), QString::number(report.originalFiles.size()),
          number(report.originalObjects)},
         {Texts::tr("Result"), QString::number(report.resultFiles.size()), number(report.resultObjects)}});
    QList<QStringList> rows;
    for (int i = 0; i <= static_cast<int>(ValueClass::FileName); ++i) {
        const auto valueClass = static_cast<ValueClass>(i);
        rows.append({nameOf(valueClass), number(report.values->searched(valueClass))});
    }
    page.table({Texts::tr("Values searched for"), Texts::tr("Number")}, rows);
    page.heading(Texts::tr("How"));
    page.paragraph(Texts::tr(
        "Every value of an identifying attribute of the originals was searched in every attribute of "
        "the result at every level, in preambles, in bytes behind the end, in files that are no "
        "DICOM object, and in the names of files and folders: names of persons by their parts in "
        "any order and spelling, identifiers and UIDs as whole words, dates in the usual forms."));
}

void addWhatNot(HtmlPage &page, const CheckReport &report, const ReportedCall &call)
{
    page.heading(Texts::tr("What was not checked"));
    page.paragraph(call.options.pixels ? Texts::tr("What pixels show; their bytes were searched.")
                                       : Texts::tr("Pixel data, neither its bytes nor what it shows."));
    page.paragraph(Texts::tr("What compressed or encrypted bytes hold, and what links lead to."));
    page.paragraph(Texts::tr(
        "Not searched for: times of day without fractions of a second; ages, sizes, weights and sex; dates "
        "up "
        "to 1900-01-01; registered UIDs and coded terms; common words alone as a description; what programs "
        "write in the place of a value, such as \"Anonymized\"; counters in the names of files; and what the "
        "originals hold in pixel data or in bytes that are no text."));
    if (call.options.rules)
        page.paragraph(Texts::tr("Not searched for either: values that the configuration itself sets."));
    page.paragraph(
        Texts::tr("Values that were too short to be searched for: %1.").arg(report.values->tooShort()));
}

void addUnchecked(HtmlPage &page, const CheckReport &report)
{
    if (report.unchecked.isEmpty())
        return;
    page.paragraph(Texts::tr("Not checked, or not as a whole: %1.")
                       .arg(filesText(static_cast<quint64>(report.unchecked.size()))));
    QList<QStringList> rows;
    for (const UncheckedFile &file : report.unchecked.first(std::min(report.unchecked.size(), mostPaths)))
        rows.append({file.side == UncheckedFile::Side::Original ? Texts::tr("original") : Texts::tr("result"),
                     maskedPath(file.path, report.values->patterns()), file.reason});
    page.table({Texts::tr("Side"), Texts::tr("File"), Texts::tr("Reason")}, rows);
}

void addGroups(HtmlPage &page, const CheckReport &report)
{
    page.heading(Texts::tr("What was found"));
    page.paragraph(Texts::tr("Files with findings: certain %1, likely %2, possible %3.")
                       .arg(number(report.files[0]), number(report.files[1]), number(report.files[2])));
    if (report.groups.isEmpty())
        return;
    QList<QStringList> rows;
    QStringList lines;
    for (const FindingGroup &group : report.groups) {
        rows.append(
            {nameOf(group.worst), placeText(group), number(group.files), group.sources, group.advice});
        if (!group.line.isEmpty() && !lines.contains(group.line))
            lines.append(group.line);
    }
    page.table({Texts::tr("Grade"), Texts::tr("Place"), Texts::tr("Files"), Texts::tr("Values of"),
                Texts::tr("Advice")},
               rows);
    if (lines.isEmpty())
        return;
    page.paragraph(Texts::tr("Lines for a configuration file that take these attributes away:"));
    page.lines(lines);
}

void addFindings(HtmlPage &page, const std::array<QList<ToldFinding>, 3> &findings)
{
    QList<QStringList> rows;
    for (const QList<ToldFinding> &some : findings) {
        for (const ToldFinding &finding : some)
            rows.append({nameOf(finding.grade), finding.file, finding.place, finding.source, finding.mask});
    }
    if (rows.isEmpty())
        return;
    page.paragraph(Texts::tr("The first findings of each grade; report.json has them all."));
    page.table({Texts::tr("Grade"), Texts::tr("File"), Texts::tr("Place"), Texts::tr("Value of"),
                Texts::tr("Value")},
               rows);
}

void addFiles(HtmlPage &page, const QString &title, const QList<qsizetype> &indices, const PathList &files,
              const CheckReport &report)
{
    page.paragraph(title.arg(indices.size()));
    if (indices.isEmpty())
        return;
    QStringList paths;
    for (const qsizetype index : indices.first(std::min(indices.size(), mostPaths)))
        paths.append(maskedPath(files[index], report.values->patterns()));
    page.lines(paths);
}

void addBesides(HtmlPage &page, const CheckReport &report)
{
    page.heading(Texts::tr("Beside the values"));
    const Pairing &pairing = report.pairing;
    addFiles(page, Texts::tr("Originals without a result: %1."), pairing.missing, report.originalFiles,
             report);
    addFiles(page, Texts::tr("Results without an original: %1."), pairing.added, report.resultFiles, report);
    addFiles(page, Texts::tr("Results that are unchanged: %1."), pairing.unchanged, report.resultFiles,
             report);
    addFiles(page, Texts::tr("Results with other pixel data: %1."), pairing.pixelsChanged, report.resultFiles,
             report);
    page.paragraph(
        Texts::tr("Identifying attributes that are empty or hold a dummy: %1.").arg(number(report.emptied)));
    QList<QStringList> rows;
    for (const TagCount &count : report.deviations)
        rows.append({count.tag, count.name,
                     count.wanted ? Texts::tr("has another value") : Texts::tr("is there"),
                     number(count.files)});
    if (!rows.isEmpty()) {
        page.paragraph(Texts::tr("Not as the configuration says:"));
        page.table({Texts::tr("Tag"), Texts::tr("Attribute"), Texts::tr("What is wrong"), Texts::tr("Files")},
                   rows);
    }
    rows.clear();
    for (const auto &[path, reason] :
         report.mayShowText.first(std::min(report.mayShowText.size(), mostPaths)))
        rows.append({maskedPath(path, report.values->patterns()), reason});
    page.paragraph(Texts::tr("Files whose pixels may show text, and that somebody has to look at: %1.")
                       .arg(report.mayShowText.size()));
    if (!rows.isEmpty())
        page.table({Texts::tr("File"), Texts::tr("Reason")}, rows);
}

} // namespace

QString htmlReport(const CheckReport &report, const ReportedCall &call,
                   const std::array<QList<ToldFinding>, 3> &findings)
{
    HtmlPage page;
    addVerdict(page, report, call);
    addWhat(page, report);
    addWhatNot(page, report, call);
    addUnchecked(page, report);
    addGroups(page, report);
    addFindings(page, findings);
    addBesides(page, report);
    page.signature();
    return page.html(Texts::tr("Check by value"));
}

} // namespace dravolin::check
