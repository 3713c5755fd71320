#pragma once

#include <QString>

// The rules for the UID root, the CaseID and the Study Instance UID (DICOM PS3.5 9.1, B.2; PS3.3 C.7.2.1).
// Pure functions, callable from any thread; none of them fails.
namespace dravolin {

struct RootCheck
{
    bool valid = false;
    QString trimmedRoot; // the root as it is written back into its field

    bool operator==(const RootCheck &) const = default;
};

// Whether `root` (blanks at its ends do not count) can be joined with `caseId` (as it stands, blanks and
// zeros included) to a Study Instance UID: prefix "1.2." or "2.25.", at least 20 characters besides dots, at
// most 64 characters together with one dot between, decimal digits only. The shape of the components is not
// looked at.
[[nodiscard]] RootCheck checkRoot(const QString &root, const QString &caseId);

// What the typing filter leaves of a field's text: both ends without characters other than "0123456789.".
// Characters between allowed ones stay.
[[nodiscard]] QString filterTypedIdentifier(const QString &text);

// A root under 2.25 (UUID-derived UIDs, DICOM PS3.5 B.2) from the UUID text `uuid`; at most 44 characters,
// "2.25." alone for the zero UUID.
[[nodiscard]] QString generatedRoot(const QString &uuid);

// `root` without one trailing dot, when it is at least two characters long.
[[nodiscard]] QString withoutTrailingDot(const QString &root);

// Root, ".", and the trimmed `caseId` without its leading zeros; the root alone when nothing is left of it.
[[nodiscard]] QString studyInstanceUid(const QString &root, const QString &caseId);

} // namespace dravolin
