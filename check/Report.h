#pragma once

#include "check/Check.h"

#include <QDateTime>
#include <QJsonObject>
#include <QString>

#include <fstream>
#include <map>
#include <utility>

namespace dravolin::check {

// What was asked for, as far as a report tells it.
struct ReportedCall
{
    CheckOptions options;
    Grade atLeast = Grade::Possible;
    QDateTime time;
};

// A finding as reports tell it: nothing in it is a value.
struct ToldFinding
{
    QString file; // with names masked in which a value stands
    QString place;
    QString source; // where the value came from
    QString mask;
    Grade grade = Grade::Possible;
};

// report.html, for people, and report.json (docs/check.md describes it) in one folder. All findings go
// straight into report.json; report.html shows the first ones of each grade, so that it stays a page. One
// thread at a time.
class ReportWriter
{
public:
    // Without a folder nothing is written and everything succeeds.
    ReportWriter(QString folder, ReportedCall call);

    // Makes the folder and begins report.json. The folder must not lie in one that is checked.
    [[nodiscard]] bool begin();
    void add(const QString &file, const QList<Finding> &findings, const Patterns &patterns);
    [[nodiscard]] bool end(const CheckReport &report);
    // Why one of them failed, for people.
    [[nodiscard]] QString error() const { return m_error; }

private:
    // The line of a finding in report.json without its file and its place: alike for a value in many files.
    struct Line
    {
        QByteArray beforeFile;
        QByteArray beforePlace;
        QByteArray end;
    };

    bool fail(const QString &error);
    const Line &lineOf(const Match &match, const Patterns &patterns);
    void show(const QString &file, const Finding &finding, const Patterns &patterns);

    QString m_folder;
    ReportedCall m_call;
    QString m_error;
    std::ofstream m_json;
    bool m_isFirst = true;
    std::map<std::pair<quint32, Grade>, Line> m_lines; // of patterns that were found not long ago
    std::array<QList<ToldFinding>, 3> m_shown;         // by grade
};

// The page, and everything of report.json but the findings.
[[nodiscard]] QString htmlReport(const CheckReport &report, const ReportedCall &call,
                                 const std::array<QList<ToldFinding>, 3> &findings);
[[nodiscard]] QJsonObject jsonOf(const CheckReport &report, const ReportedCall &call);
[[nodiscard]] QJsonObject jsonOf(const FindingGroup &group);
// As RFC 8259, 7, has it; a byte of a name that is no UTF-8, half of a surrogate pair here, stays one.
[[nodiscard]] QByteArray jsonString(const QString &text);

} // namespace dravolin::check
