#pragma once

#include <optional>

// How the option check boxes exclude one another. Pure; what a rule sets does not set off another rule.
namespace dravolin {

// What a rule sets; nothing where it leaves a control as it is.
struct CheckBoxChanges
{
    std::optional<bool> overwriteSource;
    std::optional<bool> prepopulate;
    std::optional<bool> generateSOP;
    std::optional<bool> onlyGenerateSOP;
    bool selectNoTable = false; // the table selection goes back to its first item

    bool operator==(const CheckBoxChanges &) const = default;
};

// Construction was switched on, and its attribute was found.
[[nodiscard]] CheckBoxChanges prepopulateRule();
// Another item of the table pop-up was chosen.
[[nodiscard]] CheckBoxChanges selectLUTRule();
// "Generate new instance UIDs" was switched.
[[nodiscard]] CheckBoxChanges generateSOPRule(bool on);
// "Only generate new instance UIDs" was switched.
[[nodiscard]] CheckBoxChanges onlyGenerateSOPRule(bool on, bool tablesExist);

} // namespace dravolin
