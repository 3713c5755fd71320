#include "batch/CaseFindings.h"

#include "check/Report.h"

#include <QStringList>

#include <algorithm>

namespace dravolin {

namespace {

using check::Grade;

constexpr Grade grades[] = {Grade::Certain, Grade::Likely, Grade::Possible};

struct Number
{
    const char *name;
    quint64 CaseFindings::*field;
};

constexpr Number numbers[] = {
    {"configurationDeviations", &CaseFindings::deviations}, {"notChecked", &CaseFindings::notChecked},
    {"valuesSearched", &CaseFindings::valuesSearched},      {"valuesTooShort", &CaseFindings::valuesTooShort},
    {"pixelDataChanged", &CaseFindings::pixelDataChanged},  {"pixelsToLookAt", &CaseFindings::pixelsToLookAt},
};

const QString filesKey = QStringLiteral("filesWithFindings");
const QString byGradeKey = QStringLiteral("filesByGrade");
const QString incompleteKey = QStringLiteral("incomplete");
const QString groupsKey = QStringLiteral("groups");
const QString sourcesKey = QStringLiteral("sources");

size_t rankOf(const QJsonObject &group)
{
    const QString worst = group.value(QStringLiteral("worst")).toString();
    const auto *const found = std::find_if(std::begin(grades), std::end(grades),
                                           [&worst](Grade grade) { return check::nameOf(grade) == worst; });
    return static_cast<size_t>(found - std::begin(grades));
}

qint64 filesOf(const QJsonObject &group)
{
    return group.value(QStringLiteral("files")).toInteger();
}

void addNumbers(QJsonObject &sum, const QJsonObject &other)
{
    for (auto member = other.begin(); member != other.end(); ++member)
        sum.insert(member.key(), sum.value(member.key()).toInteger() + member->toInteger());
}

QString joinedSources(const QString &one, const QString &other)
{
    const QString separator = QStringLiteral(", ");
    QStringList sources = one.split(separator) + other.split(separator);
    sources.removeDuplicates();
    return sources.join(separator);
}

void join(QJsonObject &group, const QJsonObject &other)
{
    if (rankOf(other) < rankOf(group))
        group.insert(QStringLiteral("worst"), other.value(QStringLiteral("worst")));
    group.insert(QStringLiteral("files"), filesOf(group) + filesOf(other));
    QJsonObject byGrade = group.value(byGradeKey).toObject();
    addNumbers(byGrade, other.value(byGradeKey).toObject());
    group.insert(byGradeKey, byGrade);
    group.insert(sourcesKey,
                 joinedSources(group.value(sourcesKey).toString(), other.value(sourcesKey).toString()));
}

QJsonArray sorted(const QList<QJsonObject> &groups)
{
    QList<QJsonObject> list = groups;
    std::stable_sort(list.begin(), list.end(), [](const QJsonObject &one, const QJsonObject &other) {
        return rankOf(one) != rankOf(other) ? rankOf(one) < rankOf(other) : filesOf(one) > filesOf(other);
    });
    QJsonArray array;
    for (const QJsonObject &group : list)
        array.append(group);
    return array;
}

} // namespace

check::Verdict CaseFindings::verdict(Grade atLeast) const
{
    const auto *const end = files.data() + static_cast<size_t>(atLeast) + 1;
    if (deviations > 0 || std::any_of(files.data(), end, [](quint64 count) { return count > 0; }))
        return check::Verdict::Found;
    return isIncomplete ? check::Verdict::Incomplete : check::Verdict::Clean;
}

CaseFindings findingsOf(const check::CheckReport &report)
{
    CaseFindings findings;
    findings.files = report.files;
    findings.deviations = static_cast<quint64>(report.deviations.size());
    findings.notChecked = static_cast<quint64>(report.unchecked.size());
    findings.isIncomplete = report.incomplete();
    findings.valuesSearched = report.values->searched();
    findings.valuesTooShort = report.values->tooShort();
    findings.pixelDataChanged = static_cast<quint64>(report.pairing.pixelsChanged.size());
    findings.pixelsToLookAt = static_cast<quint64>(report.mayShowText.size());
    for (const check::FindingGroup &group : report.groups)
        findings.groups.append(check::jsonOf(group));
    return findings;
}

QJsonObject jsonOf(const CaseFindings &findings)
{
    QJsonObject files;
    for (const Grade grade : grades)
        files.insert(check::nameOf(grade),
                     static_cast<qint64>(findings.files.at(static_cast<size_t>(grade))));
    QJsonObject object = {
        {filesKey, files}, {incompleteKey, findings.isIncomplete}, {groupsKey, findings.groups}};
    for (const Number &number : numbers)
        object.insert(QLatin1String(number.name), static_cast<qint64>(findings.*(number.field)));
    return object;
}

CaseFindings findingsFrom(const QJsonObject &object)
{
    CaseFindings findings;
    const QJsonObject files = object.value(filesKey).toObject();
    for (const Grade grade : grades)
        findings.files.at(static_cast<size_t>(grade)) =
            static_cast<quint64>(files.value(check::nameOf(grade)).toInteger());
    findings.isIncomplete = object.value(incompleteKey).toBool();
    findings.groups = object.value(groupsKey).toArray();
    for (const Number &number : numbers)
        findings.*(number.field) = static_cast<quint64>(object.value(QLatin1String(number.name)).toInteger());
    return findings;
}

CaseFindings together(const QList<CaseFindings> &cases)
{
    CaseFindings sum;
    QList<QJsonObject> groups;
    for (const CaseFindings &one : cases) {
        for (size_t i = 0; i < sum.files.size(); ++i)
            sum.files.at(i) += one.files.at(i);
        for (const Number &number : numbers)
            sum.*(number.field) += one.*(number.field);
        sum.isIncomplete = sum.isIncomplete || one.isIncomplete;
        for (const auto &value : one.groups) {
            const QJsonObject group = value.toObject();
            const auto known = std::find_if(groups.begin(), groups.end(), [&group](const QJsonObject &other) {
                return other.value(QStringLiteral("place")) == group.value(QStringLiteral("place")) &&
                       other.value(QStringLiteral("advice")) == group.value(QStringLiteral("advice"));
            });
            if (known == groups.end())
                groups.append(group);
            else
                join(*known, group);
        }
    }
    sum.groups = sorted(groups);
    return sum;
}

} // namespace dravolin
