#pragma once

#include "app/AlertPresenter.h"
#include "app/MainController.h"
#include "identifiers/Uuid.h"
#include "run/jobs/JobRunner.h"

#include <memory>

namespace dravolin {

// Makes the application out of its real parts. Main thread only.
class QVAppDelegate
{
public:
    // Creates the main window and its controller and shows it. Closing it leaves the event loop.
    void applicationDidFinishLaunching();

    // Ends the program with `code` when runs are still under way: they are left where they are, and a tool
    // that is running finishes its files by itself. Returns when there are none.
    void applicationWillTerminate(int code);

private:
    PosixJobRunner m_jobs;
    NOXUtils::RandomUuidSource m_uuids;
    MessageBoxPresenter m_presenter;
    std::unique_ptr<MainController> m_controller;
};

} // namespace dravolin
