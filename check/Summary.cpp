#include "check/Summary.h"

#include "base/NOXUtils.h"
#include "base/Texts.h"

#include <algorithm>

namespace dravolin::check {

namespace {

constexpr qsizetype mostGroups = 6;
constexpr qsizetype mostLines = 5;

QString number(quint64 count)
{
    return QString::number(count);
}

QString lineOfSide(const QString &name, qsizetype files, quint64 objects)
{
    return Texts::tr("%1: %2, %3 of them DICOM objects")
        .arg(name, filesText(static_cast<quint64>(files)), number(objects));
}

QStringList headLines(const CheckReport &report)
{
    const auto bak = report.values ? report.values->searched() : 0;
    return {lineOfSide(Texts::tr("Originals"), report.originalFiles.size(), report.originalObjects),
            lineOfSide(Texts::tr("Result"), report.resultFiles.size(), report.resultObjects),
            Texts::tr("Values searched for: %1 (%2 were too short)")
                .arg(number(bak), number(report.values ? report.values->tooShort() : 0))};
}

void addGroups(QStringList &lines, const CheckReport &report)
{
    if (report.groups.isEmpty())
        return;
    lines.append(Texts::tr("Found in files: certain %1, likely %2, possible %3")
                     .arg(number(report.files[0]), number(report.files[1]), number(report.files[2])));
    for (const FindingGroup &group : report.groups.first(std::min(report.groups.size(), mostGroups)))
        lines.append(Texts::tr("  %1  %2: %3, from %4")
                         .arg(nameOf(group.worst).leftJustified(8), placeText(group), filesText(group.files),
                              group.sources));
    if (report.groups.size() > mostGroups)
        lines.append(Texts::tr("  and in %1 more places; a report names them all (--report)")
                         .arg(report.groups.size() - mostGroups));
}

void addConfigurationLines(QStringList &lines, const CheckReport &report)
{
    QStringList wanted;
    for (const FindingGroup &group : report.groups) {
        if (!group.line.isEmpty() && !wanted.contains(group.line))
            wanted.append(group.line);
    }
    if (wanted.isEmpty())
        return;
    lines.append(wanted.size() > mostLines ? Texts::tr("Lines for a configuration file, the first %1 of %2:")
                                                 .arg(mostLines)
                                                 .arg(wanted.size())
                                           : Texts::tr("Lines for a configuration file:"));
    lines += wanted.first(std::min(wanted.size(), mostLines));
}

void addBesides(QStringList &lines, const CheckReport &report)
{
    const Pairing &pairing = report.pairing;
    QStringList parts;
    const auto add = [&parts](const QString &text, qsizetype count) {
        if (count > 0)
            parts.append(text.arg(count));
    };
    add(Texts::tr("missing %1"), pairing.missing.size());
    add(Texts::tr("added %1"), pairing.added.size());
    add(Texts::tr("unchanged %1"), pairing.unchanged.size());
    add(Texts::tr("pixel data changed %1"), pairing.pixelsChanged.size());
    add(Texts::tr("not as the configuration says: %1 attributes"), report.deviations.size());
    add(Texts::tr("may show text in their pixels %1"), report.mayShowText.size());
    if (!parts.isEmpty())
        lines.append(Texts::tr("Files: %1").arg(parts.join(QStringLiteral(", "))));
    if (!report.unchecked.isEmpty())
        lines.append(Texts::tr("NOT CHECKED: %1; the first one: %2")
                         .arg(filesText(static_cast<quint64>(report.unchecked.size())),
                              report.unchecked.first().reason));
}

} // namespace

Verdict verdictOf(const CheckReport &report, Grade atLeast)
{
    if (report.found(atLeast))
        return Verdict::Found;
    return report.incomplete() ? Verdict::Incomplete : Verdict::Clean;
}

QString textOf(Verdict verdict)
{
    switch (verdict) {
    case Verdict::Clean: return Texts::tr("None of the values was found.");
    case Verdict::Found: return Texts::tr("Values of the originals stand in the result.");
    case Verdict::Incomplete: return Texts::tr("Not everything could be checked.");
    }
    return {};
}

QString filesText(quint64 count)
{
    return Texts::tr("%1 file%2").arg(number(count), NOXUtils::pluralSuffix(count));
}

QString placeText(const FindingGroup &group)
{
    if (group.place.kind != Place::Kind::Attribute)
        return group.name;
    return group.name + u' ' + tagText(group.place.tag);
}

QString summaryText(const CheckReport &report, Grade atLeast)
{
    QStringList lines = headLines(report);
    addGroups(lines, report);
    addConfigurationLines(lines, report);
    addBesides(lines, report);
    QString verdict = textOf(verdictOf(report, atLeast));
    if (verdictOf(report, atLeast) == Verdict::Clean && !report.groups.isEmpty())
        verdict = Texts::tr("Nothing of grade %1 or worse was found.").arg(nameOf(atLeast));
    else if (!report.values || report.values->searched() == 0)
        verdict += u' ' + Texts::tr("The originals hold no identifying value.");
    lines.append(verdict);
    return lines.join(u'\n') + u'\n';
}

} // namespace dravolin::check
