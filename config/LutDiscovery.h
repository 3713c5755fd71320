#pragma once

#include "config/AppPaths.h"
#include "config/ConfigurationDiscovery.h"

namespace dravolin {

// The look-up tables directly in `folder`; the example that ships with the application is left out, a table
// with an empty name is not. Any thread.
[[nodiscard]] TitleToPath lutsAtPath(const QString &folder);

// The tables of the resource folder, the application's folder, the desktop and the support folder (created
// when missing), a later place winning.
[[nodiscard]] TitleToPath findLuts(const AppPaths &paths);

} // namespace dravolin
