#include "support/TestEntry.h"

#include <QFileInfo>
#include <QMap>

namespace dravolin::test {

namespace {

// Made when the first entry needs it: the order in which files make their variables is open.
QMap<QString, TestEntry::Run> &entries()
{
    static QMap<QString, TestEntry::Run> all;
    return all;
}

} // namespace

TestEntry::TestEntry(const char *file, Run run)
{
    const QString name = QFileInfo(QString::fromUtf8(file)).completeBaseName();
    if (entries().contains(name))
        qFatal("two tests are named %s", qPrintable(name));
    entries().insert(name, run);
}

QStringList TestEntry::names()
{
    return entries().keys();
}

TestEntry::Run TestEntry::find(const QString &name)
{
    return entries().value(name);
}

} // namespace dravolin::test
