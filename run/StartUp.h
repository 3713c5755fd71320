#pragma once

#include "config/AppPaths.h"

#include <QLocale>
#include <QStringList>

namespace dravolin {

// What a process owes itself before it makes the application object, once, on the main thread: a home folder
// (the user's, when the environment names none; Qt would take the root folder), no end by SIGPIPE, and
// messages that are left out while standard error is a pipe that nobody reads.
void prepareProcess();

// What a front end owes the core once, at start, on the main thread, when there is an application object:
// long argument lists for child processes, and texts in the first of `languages` that is English or that
// there is a table for. Languages are named as QLocale::uiLanguages() names them, the most wanted first.
void startUp(const AppPaths &paths, const QStringList &languages = QLocale::system().uiLanguages());

// Installs the table of `language` in the application, dravolin_LANGUAGE.qm in `folder`, and with it that of
// the toolkit's own texts. False, and nothing is installed, when there is none. Main thread only.
[[nodiscard]] bool useLanguage(const QString &language, const QString &folder);

} // namespace dravolin
