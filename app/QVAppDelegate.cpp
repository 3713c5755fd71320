#include "app/QVAppDelegate.h"

#include "app/Accessibility.h"
#include "app/OutlineStyle.h"
#include "run/StartUp.h"

#include <QApplication>

#include <cstdlib>

namespace dravolin {

void QVAppDelegate::applicationDidFinishLaunching()
{
    QApplication::setStyle(new OutlineStyle); // the application owns it
    installAccessibility();
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
