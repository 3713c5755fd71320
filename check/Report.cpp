#include "check/Report.h"

#include "base/Files.h"
#include "base/PathText.h"
#include "base/Texts.h"

#include <QJsonDocument>

#include <algorithm>
#include <filesystem>

namespace dravolin::check {

namespace {

constexpr qsizetype mostShown = 300; // findings of one grade on the page

std::string nativePath(const QString &path)
{
    return toBytes(path).toStdString();
}

bool liesIn(const QString &path, const QString &folder)
{
    std::error_code error;
    const std::filesystem::path inner = std::filesystem::weakly_canonical(nativePath(path), error);
    const std::filesystem::path outer = std::filesystem::weakly_canonical(nativePath(folder), error);
    const auto [end, rest] = std::mismatch(outer.begin(), outer.end(), inner.begin(), inner.end());
    return end == outer.end() || (std::next(end) == outer.end() && end->empty());
}

ToldFinding told(const QString &file, const Finding &finding, const Patterns &patterns)
{
    const Pattern pattern = patterns.at(finding.match.pattern);
    return {file, textOf(finding.place), sourceText(pattern), masked(fromBytes(pattern.value)),
            finding.match.grade};
}

QByteArray compact(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

} // namespace

ReportWriter::ReportWriter(QString folder, ReportedCall call)
    : m_folder(std::move(folder)), m_call(std::move(call))
{
}

bool ReportWriter::fail(const QString &error)
{
    m_error = error;
    return false;
}

bool ReportWriter::begin()
{
    if (m_folder.isEmpty())
        return true;
    for (const QString &folder : {m_call.options.originals, m_call.options.result}) {
        if (liesIn(m_folder, folder))
            return fail(Texts::tr("the report's folder lies in one that is checked"));
    }
    if (!createFolder(m_folder))
        return fail(Texts::tr("the report's folder cannot be made"));
    m_json.open(nativePath(joinPath(m_folder, QStringLiteral("report.json"))),
                std::ios::binary | std::ios::trunc);
    m_json << "{\"findings\":[";
    return m_json.good() || fail(Texts::tr("report.json cannot be written"));
}

void ReportWriter::add(const QString &file, const QList<Finding> &findings, const Patterns &patterns)
{
    if (m_folder.isEmpty())
        return;
    const QString path = maskedPath(file, patterns);
    const QByteArray fileText = jsonString(path);
    QByteArray text;
    for (const Finding &finding : findings) {
        const Line &line = lineOf(finding.match, patterns);
        text.append(std::exchange(m_isFirst, false) ? "\n" : ",\n");
        text.append(line.beforeFile).append(fileText).append(line.beforePlace);
        text.append(jsonString(textOf(finding.place))).append(line.end);
        show(path, finding, patterns);
    }
    m_json.write(text.constData(), text.size());
}

// Written straight, since there may be dozens for every file, and objects take ten times as long.
const ReportWriter::Line &ReportWriter::lineOf(const Match &match, const Patterns &patterns)
{
    constexpr size_t mostKept = 1000;
    const std::pair key(match.pattern, match.grade);
    if (const auto known = m_lines.find(key); known != m_lines.end())
        return known->second;
    if (m_lines.size() >= mostKept)
        m_lines.clear();
    const Pattern pattern = patterns.at(match.pattern);
    Line &line = m_lines[key];
    line.beforeFile = "{\"class\":" + jsonString(nameOf(pattern.valueClass)) + ",\"file\":";
    line.beforePlace = ",\"grade\":" + jsonString(nameOf(match.grade)) +
                       ",\"masked\":" + jsonString(masked(fromBytes(pattern.value))) + ",\"place\":";
    line.end = ",\"source\":" + jsonString(sourceText(pattern)) + '}';
    return line;
}

void ReportWriter::show(const QString &file, const Finding &finding, const Patterns &patterns)
{
    QList<ToldFinding> &some = m_shown[static_cast<size_t>(finding.match.grade)];
    if (some.size() < mostShown)
        some.append(told(file, finding, patterns));
}

bool ReportWriter::end(const CheckReport &report)
{
    if (m_folder.isEmpty())
        return true;
    // the object's other members follow behind the findings
    m_json << "\n]," << compact(jsonOf(report, m_call)).sliced(1).toStdString() << '\n';
    m_json.close();
    if (!m_json.good())
        return fail(Texts::tr("report.json cannot be written"));
    const QString page = joinPath(m_folder, QStringLiteral("report.html"));
    // bytes of names that are no UTF-8 become question marks
    const QString text = QString::fromUtf8(htmlReport(report, m_call, m_shown).toUtf8());
    return writeText(page, text) || fail(Texts::tr("report.html cannot be written"));
}

} // namespace dravolin::check
