#include "app/QVAppDelegate.h"
#include "config/AppPaths.h"

#include <QApplication>

int main(int, char *argv[])
{
    int ownName = 1; // the program reads no options, the toolkit's own included
    QApplication application(ownName, argv);
    QApplication::setApplicationName(dravolin::executableName());
    QApplication::setDesktopFileName(QStringLiteral("example.dravolin.Dravolin"));
    QApplication::setQuitOnLastWindowClosed(false); // the main window decides, not the log window
    dravolin::QVAppDelegate delegate;
    delegate.applicationDidFinishLaunching();
    const int code = QApplication::exec();
    delegate.applicationWillTerminate(code);
    return code;
}
