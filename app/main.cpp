#include "app/QVAppDelegate.h"
#include "app/Application.h"
#include "app/FontsAhead.h"
#include "config/AppPaths.h"
#include "run/StartUp.h"

int main(int, char *argv[])
{
    dravolin::prepareProcess();
    dravolin::readFontsAhead();
    int ownName = 1; // the program reads no options, the toolkit's own included
    dravolin::Application application(ownName, argv);
    QApplication::setApplicationName(dravolin::executableName());
    QApplication::setDesktopFileName(QStringLiteral("example.dravolin.Dravolin"));
    QApplication::setQuitOnLastWindowClosed(false); // the main window decides, not the log window
    dravolin::QVAppDelegate delegate;
    delegate.applicationDidFinishLaunching();
    const int code = QApplication::exec();
    delegate.applicationWillTerminate(code);
    return code;
}
