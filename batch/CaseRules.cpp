#include "batch/CaseRules.h"

#include <QCryptographicHash>

#include <algorithm>

namespace dravolin {

Treatment treatmentByRules(const PlannedCase &planned, const BatchOptions &options)
{
    QStringList problems; // the list was judged: there are none
    Treatment treatment;
    treatment.rules = rulesOf(planned, options, &problems);
    // a DICOMDIR takes no object without one
    constexpr TagNumber patientName = 0x00100010;
    AttributeRule &nameRule = treatment.rules[patientName];
    if (planned.directory && nameRule.kind == AttributeRule::Kind::Erase)
        nameRule = {AttributeRule::Kind::Set, {}, AttributeRule::Copies::Erase};
    treatment.table = planned.table;
    treatment.removePrivate = options.removePrivate;
    treatment.keptPrivate = options.keptPrivate;
    return treatment;
}

QByteArray rulesHash(const AttributeRules &rules, const LutTable &table, const BatchOptions &options,
                     const QByteArray &studyUid)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    const auto add = [&hash](const QString &text) {
        hash.addData(QByteArray::number(text.size()));
        hash.addData(text.toUtf8());
    };
    for (auto rule = rules.begin(); rule != rules.end(); ++rule)
        add(tagText(rule.key()) + QString::number(int(rule->kind)) + QString::number(int(rule->copies)) +
            rule->value);
    QStringList rest = options.keptPrivate.values();
    for (auto row = table.begin(); row != table.end(); ++row)
        rest.append(row.key() + u'\t' + row.value());
    std::sort(rest.begin(), rest.end());
    for (const QString &text : rest)
        add(text);
    add(QStringLiteral("%1 %2 %3 %4")
            .arg(options.removePrivate)
            .arg(options.mapUids)
            .arg(options.moveDates)
            .arg(QString::fromLatin1(studyUid)));
    return hash.result();
}

QByteArray patientOf(const PlannedCase &planned, const QByteArray &patientId)
{
    QByteArray id = patientId.trimmed();
    if (!id.isEmpty())
        return id;
    QSet<QByteArray> patients = planned.patients;
    patients.remove(QByteArray());
    return patients.size() == 1 ? patients.begin()->trimmed() : "case " + planned.row.caseId.toUtf8();
}

} // namespace dravolin
