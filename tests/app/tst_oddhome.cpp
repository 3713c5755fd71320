#include "app/Preferences.h"
#include "base/Files.h"
#include "support/ScratchFolder.h"
#include "support/TestEntry.h"
#include "support/TestRun.h"

#include <QTest>

using namespace dravolin;
using test::ScratchFolder;

// A home whose name is not UTF-8.
class TestOddHome : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void remembersTheRootInIt();
    void logsTheFileByItsName();

private:
    ScratchFolder m_scratch;
    const QString m_home = m_scratch.folder(fromBytes("h\xf4me"));
};

void TestOddHome::remembersTheRootInIt()
{
    qputenv("HOME", toBytes(m_home));
    qunsetenv("XDG_CONFIG_HOME");
    QCOMPARE(storedUidRoot(), QString());
    storeUidRoot(QStringLiteral("1.2.3"));
    QCOMPARE(storedUidRoot(), QStringLiteral("1.2.3"));
    QCOMPARE(readText(joinPath(m_home, QStringLiteral(".config/Dravolin/Dravolin.conf"))),
             QStringLiteral("[General]\nuidRoot=1.2.3\n"));
    QCOMPARE(listNames(m_scratch.path()), QStringList(fromBytes("h\xf4me"))); // and no folder beside it
}

void TestOddHome::logsTheFileByItsName()
{
    const QString file = joinPath(m_home, QStringLiteral(".config/Dravolin/Dravolin.conf"));
    removeFile(file);
    QVERIFY(createFolder(file));
    const test::LogCatcher log;
    storeUidRoot(QStringLiteral("1.2.3"));
    QCOMPARE(test::LogCatcher::messages(),
             QStringList(QStringLiteral("Could not store the UID root in file: ") + file));
}

DRAVOLIN_TEST(TestOddHome)
#include "tst_oddhome.moc"
