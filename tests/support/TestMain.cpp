#include "support/TestEntry.h"

#ifdef QT_WIDGETS_LIB
#include "app/Application.h"
using dravolin::Application;
#else
#include <QCoreApplication>
using Application = QCoreApplication;
#endif

#include <cstdio>

// The main function of every room's tests: TESTS tst_NAME [options of Qt Test]. Without the name of a test it
// prints all names and ends with 2.
int main(int argc, char *argv[])
{
    Application application(argc, argv);
    const auto run = dravolin::test::TestEntry::find(QString::fromLocal8Bit(argc > 1 ? argv[1] : ""));
    if (!run) {
        std::puts(qPrintable(dravolin::test::TestEntry::names().join(u'\n')));
        return 2;
    }
    argv[1] = argv[0];
    return run(argc - 1, argv + 1);
}
