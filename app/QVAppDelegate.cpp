#include "app/QVAppDelegate.h"

#include "run/StartUp.h"

#include <QCoreApplication>

#include <cstdlib>

namespace dravolin {

void QVAppDelegate::applicationDidFinishLaunching()
{
    const AppPaths paths = AppPaths::forExecutable(AppPaths::ownExecutable());
    startUp(paths);
    m_controller = std::make_unique<MainController>(AppPorts{paths, m_jobs, m_uuids, m_presenter, Delays()});
    QObject::connect(m_controller.get(), &MainController::closed, QCoreApplication::instance(),
                     &QCoreApplication::quit);
    m_controller->initAndShow();
}

void QVAppDelegate::applicationWillTerminate(int code)
{
    if (!m_controller->runIsUnderWay())
        return;
    m_controller->closeGate();
    std::_Exit(code);
}

} // namespace dravolin
