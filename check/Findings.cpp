#include "check/Findings.h"

#include "base/PathText.h"
#include "base/Texts.h"
#include "check/Remedy.h"

#include <algorithm>

namespace dravolin::check {

namespace {

constexpr qsizetype shortestShown = 6; // characters of a value whose first and last are told
constexpr qsizetype mostSources = 3;

quint64 &at(std::array<quint64, 3> &counts, Grade grade)
{
    return counts[static_cast<size_t>(grade)];
}

void addSource(QString &sources, const QString &source)
{
    const QStringList known = sources.split(QStringLiteral(", "), Qt::SkipEmptyParts);
    if (known.contains(source) || known.size() > mostSources)
        return;
    const QString next = known.size() == mostSources ? QStringLiteral("...") : source;
    sources = sources.isEmpty() ? next : sources + QStringLiteral(", ") + next;
}

QString groupName(const Place &place)
{
    if (place.kind != Place::Kind::Attribute)
        return textOf(place);
    QString name = attributeName(place.tag);
    if (!name.isEmpty())
        return name;
    return (place.tag >> 16) % 2 == 1 ? Texts::tr("private attribute") : Texts::tr("unknown attribute");
}

} // namespace

QString textOf(const Place &place)
{
    switch (place.kind) {
    case Place::Kind::Attribute: return place.path;
    case Place::Kind::Preamble: return Texts::tr("preamble");
    case Place::Kind::BehindEnd: return Texts::tr("bytes behind the end");
    case Place::Kind::NoObject: return Texts::tr("bytes of a file that is no DICOM object");
    case Place::Kind::Damaged: return Texts::tr("bytes of a damaged file");
    case Place::Kind::PixelData: return Texts::tr("pixel data");
    case Place::Kind::FileName: return Texts::tr("file name");
    case Place::Kind::FolderName: return Texts::tr("folder name");
    case Place::Kind::LinkTarget: return Texts::tr("target of a link");
    }
    return {};
}

QString masked(const QString &value)
{
    const qsizetype count = value.toUcs4().size();
    const QString dots = QStringLiteral("\u2025\u2025\u2025");
    if (count < shortestShown || value.front().isSurrogate() || value.back().isSurrogate())
        return Texts::tr("%1, %2 characters").arg(dots, QString::number(count));
    return Texts::tr("%1, %2 characters").arg(value.front() + dots + value.back(), QString::number(count));
}

QString maskedPath(const QString &path, const Patterns &patterns)
{
    QStringList names = path.split(u'/');
    for (QString &name : names) {
        if (!patterns.find(wordsOf(name), TextKind::Text).empty())
            name = u'<' + masked(name) + u'>';
    }
    return names.join(u'/');
}

QString sourceText(const PatternTraits &pattern)
{
    const QString name = pattern.source == 0 ? nameOf(pattern.valueClass) : attributeName(pattern.source);
    return name.isEmpty() ? tagText(pattern.source) : name;
}

FindingGroups::Key FindingGroups::keyOf(const Place &place)
{
    const bool decides = place.kind == Place::Kind::Attribute && isSetByTheWindow(place.tag);
    return {place.kind, place.tag, decides ? place.outermost : 0};
}

void FindingGroups::count(Collected &collected, const Match &match) const
{
    FindingGroup &group = collected.group;
    if (collected.file != m_file) {
        ++group.files;
        ++at(group.filesOf, match.grade);
        collected.file = m_file;
        collected.worst = match.grade;
    } else if (match.grade < collected.worst) {
        --at(group.filesOf, collected.worst);
        ++at(group.filesOf, match.grade);
        collected.worst = match.grade;
    }
    group.worst = std::min(group.worst, match.grade);
    const PatternTraits &pattern = m_patterns.traits(match.pattern);
    const Tag source = pattern.source == 0 ? static_cast<Tag>(pattern.valueClass) : pattern.source;
    if (collected.known.contains(source))
        return;
    collected.known.insert(source);
    addSource(group.sources, sourceText(pattern));
}

void FindingGroups::add(const QList<Finding> &findings)
{
    if (findings.isEmpty())
        return;
    ++m_file;
    Grade worst = Grade::Possible;
    for (const Finding &finding : findings) {
        const auto [found, isNew] = m_groups.try_emplace(keyOf(finding.place));
        if (isNew)
            found->second.group = {.place = finding.place, .name = groupName(finding.place)};
        count(found->second, finding.match);
        worst = std::min(worst, finding.match.grade);
    }
    ++at(m_files, worst);
}

QList<FindingGroup> FindingGroups::groups() const
{
    QList<FindingGroup> groups;
    for (const auto &[key, collected] : m_groups) {
        groups.append(collected.group);
        const Remedy remedy = remedyFor(collected.group.place);
        groups.last().line = remedy.line;
        groups.last().advice = remedy.advice;
    }
    std::stable_sort(groups.begin(), groups.end(), [](const FindingGroup &a, const FindingGroup &b) {
        return a.worst != b.worst ? a.worst < b.worst : a.files > b.files;
    });
    return groups;
}

} // namespace dravolin::check
