#include "base/Texts.h"
#include "batch/Evidence.h"
#include "check/HtmlPage.h"

#include <QJsonArray>
#include <QMap>

#include <algorithm>

namespace dravolin {

namespace {

using check::HtmlPage;
using check::Verdict;

constexpr qsizetype mostCases = 60; // in the table, so that it stays a page or two

QString textIn(const QJsonObject &object, const char *name)
{
    return object.value(QLatin1String(name)).toString();
}

qint64 numberIn(const QJsonObject &object, const char *name)
{
    return object.value(QLatin1String(name)).toInteger();
}

QString counted(const QJsonObject &object, const char *name)
{
    return QString::number(numberIn(object, name));
}

// Writes the page of one report.
class ReportPage
{
public:
    explicit ReportPage(const QJsonObject &report) : m_report(report)
    {
        for (const auto &value : report.value(QStringLiteral("cases")).toArray())
            m_cases.append(value.toObject());
        QList<CaseFindings> findings;
        for (const QJsonObject &object : std::as_const(m_cases))
            findings.append(findingsOf(object));
        m_findings = together(findings);
        m_atLeast = check::gradeNamed(textIn(report, "atLeast")).value_or(check::Grade::Possible);
    }

    QString html()
    {
        QString title = Texts::tr("Anonymization of %1 cases").arg(m_cases.size());
        if (const QString part = textIn(m_report, "part"); !part.isEmpty())
            title += Texts::tr(", part %1").arg(part);
        m_page.title(title);
        m_page.paragraph(textIn(m_report, "time"));
        m_page.verdict(verdictOf(m_report), verdictText());
        addRules();
        addCases();
        addFindings();
        addCheck();
        addSecret();
        m_page.signature();
        return m_page.html(title);
    }

private:
    static CaseFindings findingsOf(const QJsonObject &object)
    {
        return findingsFrom(object.value(QStringLiteral("check")).toObject());
    }

    [[nodiscard]] QString verdictText() const
    {
        switch (verdictOf(m_report)) {
        case Verdict::Clean:
            return Texts::tr(
                "All files are done, and none of the originals' values was found in the results.");
        case Verdict::Found: return textOf(Verdict::Found);
        case Verdict::Incomplete:
            return Texts::tr("No value was found, but not all is done and checked. Files not done: %1. Files "
                             "not checked: %2.")
                .arg(sum("notDone"))
                .arg(m_findings.notChecked);
        }
        return {};
    }

    // "HASH (3 cases)", a line each.
    [[nodiscard]] QString hashes(const char *name) const
    {
        QMap<QString, qsizetype> uses;
        for (const QJsonObject &object : m_cases)
            if (const QString hash = textIn(object, name); !hash.isEmpty())
                ++uses[hash];
        QStringList texts;
        for (auto use = uses.begin(); use != uses.end(); ++use)
            texts.append(Texts::tr("%1 (cases: %2)").arg(use.key(), QString::number(use.value())));
        return texts.isEmpty() ? Texts::tr("none") : texts.join(QStringLiteral(", "));
    }

    void addRules()
    {
        const QString kept = counted(m_report, "privateAttributesKept");
        const bool removed = m_report.value(QStringLiteral("privateAttributesRemoved")).toBool();
        const bool mapped = m_report.value(QStringLiteral("uidsMapped")).toBool();
        m_page.heading(Texts::tr("By which rules"));
        m_page.table(
            {Texts::tr("What"), Texts::tr("Value")},
            {{Texts::tr("Program"), textIn(m_report, "program")},
             {Texts::tr("List of cases, SHA-256"), textIn(m_report, "listSha256")},
             {Texts::tr("Configuration, SHA-256"), hashes("configurationSha256")},
             {Texts::tr("Look-up table, SHA-256"), hashes("tableSha256")},
             {Texts::tr("Private attributes"),
              removed ? Texts::tr("removed, but %1 that a list names").arg(kept) : Texts::tr("kept")},
             {Texts::tr("UIDs of instances"),
              mapped ? Texts::tr("replaced by ones made from a secret key") : Texts::tr("kept")},
             {Texts::tr("Dates without a rule"),
              m_report.value(QStringLiteral("datesMoved")).toBool()
                  ? Texts::tr("moved back by days that a secret key gives for each patient")
                  : Texts::tr("kept")},
             {Texts::tr("Pixel data"), Texts::tr("not altered")}});
    }

    [[nodiscard]] bool isClean(const QJsonObject &object) const
    {
        return numberIn(object, "notDone") == 0 && object.contains(QStringLiteral("check")) &&
               findingsOf(object).verdict(m_atLeast) == Verdict::Clean;
    }

    static QStringList row(const QString &name, qint64 done, qint64 notDone, const CaseFindings &findings)
    {
        const auto files = [&findings](size_t grade) { return QString::number(findings.files.at(grade)); };
        return {name,
                QString::number(done),
                QString::number(notDone),
                files(0),
                files(1),
                files(2),
                QString::number(findings.deviations),
                QString::number(findings.notChecked)};
    }

    void addCases()
    {
        QList<QJsonObject> shown = m_cases;
        std::stable_partition(shown.begin(), shown.end(),
                              [this](const QJsonObject &object) { return !isClean(object); });
        shown = shown.first(std::min(shown.size(), mostCases));
        QList<QStringList> rows;
        for (const QJsonObject &object : shown)
            rows.append(row(nameOf(object), numberIn(object, "done"), numberIn(object, "notDone"),
                            findingsOf(object)));
        rows.append(row(Texts::tr("all"), sum("done"), sum("notDone"), m_findings));
        m_page.heading(Texts::tr("Cases"));
        if (shown.size() < m_cases.size())
            m_page.paragraph(Texts::tr("Those with something to look at first; report.json has them all."));
        m_page.table({Texts::tr("Case"), Texts::tr("Files done"), Texts::tr("Not done"),
                      Texts::tr("Files with findings: certain"), Texts::tr("likely"), Texts::tr("possible"),
                      Texts::tr("Attributes not as configured"), Texts::tr("Not checked")},
                     rows);
        if (const qint64 directories = sum("dicomdirs"); directories > 0)
            m_page.paragraph(
                Texts::tr("DICOMDIR files in the sources: %1. Each case that had one has one made anew, "
                          "without %2 objects of kinds that have no place in it.")
                    .arg(QString::number(directories), QString::number(sum("notInDicomdir"))));
        m_page.paragraph(
            Texts::tr("The reports of each case are in the folder cases, the hashes of every file "
                      "before and after in files.csv."));
    }

    // A case that no machine has done has nothing but its id.
    static QString nameOf(const QJsonObject &object)
    {
        const QString caseId = textIn(object, "caseId");
        return object.size() > 1 ? caseId : Texts::tr("%1 (in no part: nothing is known of it)").arg(caseId);
    }

    [[nodiscard]] qint64 sum(const char *name) const
    {
        qint64 total = 0;
        for (const QJsonObject &object : m_cases)
            total += numberIn(object, name);
        return total;
    }

    void addFindings()
    {
        if (m_findings.groups.isEmpty())
            return;
        QList<QStringList> rows;
        for (const auto &value : m_findings.groups) {
            const QJsonObject group = value.toObject();
            const QString line = textIn(group, "configurationLine");
            rows.append({textIn(group, "worst"), textIn(group, "place"), counted(group, "files"),
                         textIn(group, "sources"), line.isEmpty() ? textIn(group, "advice") : line});
        }
        m_page.heading(Texts::tr("What was found"));
        m_page.table({Texts::tr("Grade"), Texts::tr("Place"), Texts::tr("Files"), Texts::tr("Values of"),
                      Texts::tr("Line for the configuration, or advice")},
                     rows);
    }

    void addCheck()
    {
        m_page.heading(Texts::tr("How it was checked"));
        m_page.paragraph(
            Texts::tr(
                "Each of %1 identifying values of the originals was searched in all results of its case: "
                "in every attribute at every level, in preambles, and in what is no DICOM object. What "
                "the run itself has set is no finding. Not searched: pixel data, what compressed or "
                "encrypted bytes hold, and %2 values that are too short.")
                .arg(QString::number(m_findings.valuesSearched), QString::number(m_findings.valuesTooShort)));
        if (!m_report.value(QStringLiteral("uidsMapped")).toBool())
            m_page.paragraph(Texts::tr("UIDs were kept on purpose, and not searched."));
        if (m_atLeast != check::Grade::Possible)
            m_page.paragraph(Texts::tr("Findings below the grade %1 are told, but do not count.")
                                 .arg(check::nameOf(m_atLeast)));
        m_page.paragraph(Texts::tr("Files whose pixels may show text, and that somebody has to look at: %1. "
                                   "Results with other pixel data than their originals: %2.")
                             .arg(m_findings.pixelsToLookAt)
                             .arg(m_findings.pixelDataChanged));
    }

    void addSecret()
    {
        m_page.heading(Texts::tr("What has to stay secret"));
        m_page.paragraph(
            Texts::tr("The folder secret, beside the one of this page, links old to new: the key, "
                      "the map of UIDs, the map of patients and the names of files that were not "
                      "done. It is not part of this evidence; nobody but those who may know the "
                      "patients gets it."));
    }

    const QJsonObject &m_report;
    QList<QJsonObject> m_cases;
    CaseFindings m_findings; // of all
    check::Grade m_atLeast = check::Grade::Possible;
    HtmlPage m_page;
};

} // namespace

QString evidencePage(const QJsonObject &report)
{
    return ReportPage(report).html();
}

} // namespace dravolin
