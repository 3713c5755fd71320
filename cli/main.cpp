#include "base/PathText.h"
#include "cli/Commands.h"

#include <QCoreApplication>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QStringList arguments; // as bytes: names that are no UTF-8 must arrive
    for (int i = 1; i < argc; ++i)
        arguments.append(dravolin::fromBytes(argv[i]));
    return dravolin::cli::runCommand(arguments);
}
