#pragma once

#include "check/Summary.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QList>

#include <array>

namespace dravolin {

// What the check by value says about the result of a case. Nothing in it is a value of the originals.
struct CaseFindings
{
    std::array<quint64, 3> files = {}; // with findings, by the worst grade of each
    quint64 deviations = 0;            // attributes that are not as the configuration says
    quint64 notChecked = 0;            // files of both sides
    bool isIncomplete = false;         // these, or nothing was there to be checked
    quint64 valuesSearched = 0;
    quint64 valuesTooShort = 0;
    quint64 pixelDataChanged = 0; // files
    quint64 pixelsToLookAt = 0;   // files whose pixels may show text
    QJsonArray groups = {};       // findings by place, as in a check's report.json

    bool operator==(const CaseFindings &) const = default;

    // As check::verdictOf.
    [[nodiscard]] check::Verdict verdict(check::Grade atLeast) const;
};

[[nodiscard]] CaseFindings findingsOf(const check::CheckReport &report);

// To JSON and back; what is missing there is 0.
[[nodiscard]] QJsonObject jsonOf(const CaseFindings &findings);
[[nodiscard]] CaseFindings findingsFrom(const QJsonObject &object);

// The findings of several cases, groups joined by their places, worst first.
[[nodiscard]] CaseFindings together(const QList<CaseFindings> &cases);

} // namespace dravolin
