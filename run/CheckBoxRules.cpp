#include "run/CheckBoxRules.h"

namespace dravolin {

CheckBoxChanges prepopulateRule()
{
    CheckBoxChanges changes;
    changes.overwriteSource = changes.generateSOP = changes.onlyGenerateSOP = false;
    return changes;
}

CheckBoxChanges selectLUTRule()
{
    CheckBoxChanges changes;
    changes.onlyGenerateSOP = false;
    return changes;
}

CheckBoxChanges generateSOPRule(bool on)
{
    CheckBoxChanges changes;
    (on ? changes.prepopulate : changes.onlyGenerateSOP) = false;
    return changes;
}

CheckBoxChanges onlyGenerateSOPRule(bool on, bool tablesExist)
{
    CheckBoxChanges changes;
    if (!on)
        return changes;
    changes.generateSOP = true;
    changes.selectNoTable = tablesExist;
    changes.prepopulate = false;
    return changes;
}

} // namespace dravolin
