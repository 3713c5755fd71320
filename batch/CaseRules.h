#pragma once

#include "batch/Plan.h"
#include "dicom/Treatment.h"

// What a case's rules come to. Pure functions, any thread.
namespace dravolin {

// What the configuration, the table and the options of a case that was judged come to; new UIDs and days are
// left out, which need the project's key.
[[nodiscard]] Treatment treatmentByRules(const PlannedCase &planned, const BatchOptions &options);

// Everything that decides what becomes of an object, in one hash.
[[nodiscard]] QByteArray rulesHash(const AttributeRules &rules, const LutTable &table,
                                   const BatchOptions &options, const QByteArray &studyUid);

// Whose dates those of an object are that has this Patient ID: objects without one go with the others of
// their case.
[[nodiscard]] QByteArray patientOf(const PlannedCase &planned, const QByteArray &patientId);

} // namespace dravolin
