#pragma once

#include "config/AppPaths.h"

#include <QLocale>

namespace dravolin {

// What a process owes itself before it makes the application object, once, on the main thread: a home folder
// (the user's, when the environment names none; Qt would take the root folder), no end by SIGPIPE, and
// messages that are left out while standard error is a pipe that nobody reads.
void prepareProcess();

// What a front end owes the core once, at start, on the main thread, when there is an application object:
// long argument lists for child processes, and the translation of `locale` (dravolin_XX.qm among the
// resources; none is no error) installed in the application.
void startUp(const AppPaths &paths, const QLocale &locale = QLocale());

} // namespace dravolin
