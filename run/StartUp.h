#pragma once

#include "config/AppPaths.h"

#include <QLocale>

namespace dravolin {

// What a front end owes the core once, at start, on the main thread, when there is an application object:
// long argument lists for child processes, and the translation of `locale` (dravolin_XX.qm among the
// resources; none is no error) installed in the application.
void startUp(const AppPaths &paths, const QLocale &locale = QLocale());

} // namespace dravolin
