#pragma once

#include "config/ConfigurationDiscovery.h"

#include <QComboBox>

namespace dravolin {

// Lets each item of `popup` whose title is in `paths` tell its path as a tool tip, and the pop-up itself that
// of the item it shows; a screen reader hears `purpose` and the path. Main thread only.
void showPaths(QComboBox &popup, const TitleToPath &paths, const QString &purpose);

} // namespace dravolin
