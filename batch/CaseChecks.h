#pragma once

#include "batch/CaseFindings.h"
#include "batch/Journal.h"
#include "batch/Plan.h"
#include "check/Check.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace dravolin {

// The check by value of what a run made of its cases. One thread, that of the journal.
class CaseChecks
{
public:
    struct Events
    {
        std::function<void(const check::CheckProgress &)> progress; // from any of the check's threads
        std::function<bool()> stop;                                 // called from any thread
    };

    // All arguments have to outlive it.
    CaseChecks(const Plan &plan, const BatchOptions &options, Journal &journal, const Events &events);

    // Checks the case of that index, whose files have all been tried, unless the journal knows what came of
    // it: neither sources nor results nor what is searched for have changed since. Its reports are
    // caseReports() below the evidence. False when it was stopped, or after failure().
    [[nodiscard]] bool check(qsizetype index);

    [[nodiscard]] QString failure() const { return m_failure; }
    // Whether anything had to be checked.
    [[nodiscard]] bool hasChecked() const { return m_hasChecked; }
    // Of the cases; nothing for one that was not checked.
    [[nodiscard]] const QList<std::optional<CaseFindings>> &findings() const { return m_findings; }

private:
    [[nodiscard]] std::optional<CaseFindings> checkNow(const check::CheckOptions &options,
                                                       const QString &folder);

    const Plan &m_plan;
    const BatchOptions &m_options;
    Journal &m_journal;
    const Events &m_events;
    QList<std::optional<CaseFindings>> m_findings;
    QString m_failure;
    bool m_hasChecked = false;
};

// The folder of a case's own reports, relative to that of the evidence: cases/ID, when the id can be a name.
[[nodiscard]] QString caseReports(const QString &caseId);

} // namespace dravolin
