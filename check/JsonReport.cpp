#include "check/Report.h"
#include "check/Summary.h"

#include <QJsonArray>

#include <algorithm>

namespace dravolin::check {

namespace {

QJsonObject byGrade(const std::array<quint64, 3> &counts)
{
    return {{QStringLiteral("certain"), static_cast<qint64>(counts[0])},
            {QStringLiteral("likely"), static_cast<qint64>(counts[1])},
            {QStringLiteral("possible"), static_cast<qint64>(counts[2])}};
}

// The paths of files by their index, masked.
QJsonArray paths(const QList<qsizetype> &indices, const PathList &files, const Patterns &patterns)
{
    QJsonArray array;
    for (const qsizetype index : indices)
        array.append(maskedPath(files[index], patterns));
    return array;
}

QJsonArray uncheckedFiles(const CheckReport &report)
{
    QJsonArray array;
    for (const UncheckedFile &file : report.unchecked) {
        const bool original = file.side == UncheckedFile::Side::Original;
        array.append(QJsonObject{
            {QStringLiteral("side"), original ? QStringLiteral("original") : QStringLiteral("result")},
            {QStringLiteral("file"), maskedPath(file.path, report.values->patterns())},
            {QStringLiteral("reason"), file.reason}});
    }
    return array;
}

QJsonArray deviations(const CheckReport &report)
{
    QJsonArray array;
    for (const TagCount &count : report.deviations)
        array.append(QJsonObject{{QStringLiteral("tag"), count.tag},
                                 {QStringLiteral("name"), count.name},
                                 {QStringLiteral("wrong"),
                                  count.wanted ? QStringLiteral("other value") : QStringLiteral("present")},
                                 {QStringLiteral("files"), static_cast<qint64>(count.files)}});
    return array;
}

QJsonArray pixelsToLookAt(const CheckReport &report)
{
    QJsonArray array;
    for (const auto &[file, reason] : report.mayShowText)
        array.append(QJsonObject{{QStringLiteral("file"), maskedPath(file, report.values->patterns())},
                                 {QStringLiteral("reason"), reason}});
    return array;
}

QJsonObject searchedValues(const Values &values)
{
    QJsonObject object;
    for (int i = 0; i <= static_cast<int>(ValueClass::FileName); ++i)
        object.insert(nameOf(static_cast<ValueClass>(i)),
                      static_cast<qint64>(values.searched(static_cast<ValueClass>(i))));
    return object;
}

QString verdictName(Verdict verdict)
{
    switch (verdict) {
    case Verdict::Clean: return QStringLiteral("nothing found");
    case Verdict::Found: return QStringLiteral("something found");
    case Verdict::Incomplete: return QStringLiteral("could not be checked");
    }
    return {};
}

} // namespace

QJsonObject jsonOf(const FindingGroup &group)
{
    return {{QStringLiteral("place"), placeText(group)},
            {QStringLiteral("worst"), nameOf(group.worst)},
            {QStringLiteral("files"), static_cast<qint64>(group.files)},
            {QStringLiteral("filesByGrade"), byGrade(group.filesOf)},
            {QStringLiteral("sources"), group.sources},
            {QStringLiteral("configurationLine"), group.line},
            {QStringLiteral("advice"), group.advice}};
}

QByteArray jsonString(const QString &text)
{
    const auto isPlain = [](QChar c) { return c >= u' ' && c != u'"' && c != u'\\' && !c.isSurrogate(); };
    if (std::all_of(text.cbegin(), text.cend(), isPlain))
        return '"' + text.toUtf8() + '"';
    QString string(1, u'"');
    for (const QChar c : text) {
        if (c < u' ' || c.isSurrogate()) {
            string += QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QChar(u'0'));
            continue;
        }
        if (c == u'"' || c == u'\\')
            string += u'\\';
        string += c;
    }
    return (string + u'"').toUtf8();
}

QJsonObject jsonOf(const CheckReport &report, const ReportedCall &call)
{
    const Patterns &patterns = report.values->patterns();
    QJsonArray groups;
    for (const FindingGroup &group : report.groups)
        groups.append(jsonOf(group));
    const auto side = [](const PathList &files, quint64 objects) {
        return QJsonObject{{QStringLiteral("files"), files.size()},
                           {QStringLiteral("objects"), static_cast<qint64>(objects)}};
    };
    return {{QStringLiteral("format"), 1},
            {QStringLiteral("time"), call.time.toString(Qt::ISODate)},
            {QStringLiteral("verdict"), verdictName(verdictOf(report, call.atLeast))},
            {QStringLiteral("atLeast"), nameOf(call.atLeast)},
            {QStringLiteral("pixelDataSearched"), call.options.pixels},
            {QStringLiteral("originals"), side(report.originalFiles, report.originalObjects)},
            {QStringLiteral("result"), side(report.resultFiles, report.resultObjects)},
            {QStringLiteral("valuesSearched"), searchedValues(*report.values)},
            {QStringLiteral("valuesTooShort"), static_cast<qint64>(report.values->tooShort())},
            {QStringLiteral("filesWithFindings"), byGrade(report.files)},
            {QStringLiteral("groups"), groups},
            {QStringLiteral("notChecked"), uncheckedFiles(report)},
            {QStringLiteral("missing"), paths(report.pairing.missing, report.originalFiles, patterns)},
            {QStringLiteral("added"), paths(report.pairing.added, report.resultFiles, patterns)},
            {QStringLiteral("unchanged"), paths(report.pairing.unchanged, report.resultFiles, patterns)},
            {QStringLiteral("pixelDataChanged"),
             paths(report.pairing.pixelsChanged, report.resultFiles, patterns)},
            {QStringLiteral("emptiedAttributes"), static_cast<qint64>(report.emptied)},
            {QStringLiteral("configurationDeviations"), deviations(report)},
            {QStringLiteral("pixelsToLookAt"), pixelsToLookAt(report)}};
}

} // namespace dravolin::check
