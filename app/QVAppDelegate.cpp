#include "app/QVAppDelegate.h"

#include <QCoreApplication>
#include <QLocale>

#include <cstdlib>

namespace dravolin {

void QVAppDelegate::applicationDidFinishLaunching()
{
    allowLongArgumentLists();
    const AppPaths paths = AppPaths::forExecutable(QCoreApplication::applicationFilePath());
    if (m_texts.load(QLocale(), QStringLiteral("dravolin"), QStringLiteral("_"), paths.resourceFolder))
        QCoreApplication::installTranslator(&m_texts);
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
