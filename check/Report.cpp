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
    return {file,
            textOf(finding.place),
            sourceText(pattern),
            masked(fromBytes(pattern.value)),
            pattern.valueClass,
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
    for (const Finding &finding : findings) {
        const ToldFinding shown = told(path, finding, patterns);
        m_json << (m_isFirst ? "\n" : ",\n") << jsonOf(shown).constData();
        m_isFirst = false;
        if (QList<ToldFinding> &some = m_shown[static_cast<size_t>(shown.grade)]; some.size() < mostShown)
            some.append(shown);
    }
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
