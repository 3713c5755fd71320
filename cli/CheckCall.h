#pragma once

#include "check/Check.h"

#include <QString>
#include <QStringList>

namespace dravolin::cli {

// What the arguments of `dravolin-cli check` ask for.
struct CheckCall
{
    check::CheckOptions options;
    check::Grade atLeast = check::Grade::Possible;
    QString reportFolder; // "" for none
    bool showValues = false;
    bool quiet = false;

    QString help;  // to be printed instead of a check
    QString error; // for people; the call is wrong
};

// Reads the files that the arguments name, but no folder.
[[nodiscard]] CheckCall parseCheckCall(const QStringList &arguments);

} // namespace dravolin::cli
