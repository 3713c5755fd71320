#pragma once

#include "check/GdcmModule.h"

#include <QString>

// Loads the module that brings GDCM. Any thread.
namespace dravolin::check {

struct LoadedModule
{
    const GdcmModule *module = nullptr; // stays until the program ends
    QString error;                      // why there is none, for people
};

// Where it lies: always the same place as seen from the folder of this process's executable, links resolved.
// Nothing in the environment decides it.
[[nodiscard]] QString modulePath();

// Loads the library at `path` and everything that it needs.
[[nodiscard]] LoadedModule loadModule(const QString &path);

} // namespace dravolin::check
