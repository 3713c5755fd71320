#include "app/Preferences.h"
#include "app/TestApp.h"
#include "support/ScratchFolder.h"
#include "support/TestEntry.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QTest>

using namespace dravolin;
using test::LogCatcher;
using test::ScratchFolder;

// The settings file, and what may stand in its place.
class TestPreferences : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void remembersTheRoot();
    void aPipeInItsPlaceIsNotWaitedFor_data();
    void aPipeInItsPlaceIsNotWaitedFor();
    void aLockOfAnotherIsNotWaitedFor_data();
    void aLockOfAnotherIsNotWaitedFor();
    void whatCannotBeStoredIsLogged();
    void damagedSettingsAreReplaced();

private:
    [[nodiscard]] QString failure() const
    {
        return QStringLiteral("Could not store the UID root in file: ") +
               m_scratch.path(QStringLiteral("xdg_config_home/Dravolin/Dravolin.conf"));
    }

    ScratchFolder m_scratch;
};

// Once: Qt asks for the place of the settings only once.
void TestPreferences::initTestCase()
{
    test::useHome(m_scratch.path());
}

void TestPreferences::init()
{
    QDir(m_scratch.path(QStringLiteral("xdg_config_home"))).removeRecursively();
    m_scratch.folder(QStringLiteral("xdg_config_home"));
    m_scratch.folder(QStringLiteral("xdg_config_home/Dravolin"));
}

void TestPreferences::remembersTheRoot()
{
    QCOMPARE(storedUidRoot(), QString());
    storeUidRoot(QStringLiteral("1.2.3"));
    QCOMPARE(storedUidRoot(), QStringLiteral("1.2.3"));
    storeUidRoot(QStringLiteral("1.2.4"));
    QCOMPARE(storedUidRoot(), QStringLiteral("1.2.4"));
}

void TestPreferences::aPipeInItsPlaceIsNotWaitedFor_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("the program's") << QStringLiteral("xdg_config_home/Dravolin/Dravolin.conf");
    QTest::newRow("the maker's") << QStringLiteral("xdg_config_home/Dravolin.conf");
}

void TestPreferences::aPipeInItsPlaceIsNotWaitedFor()
{
    QFETCH(const QString, name);
    m_scratch.pipe(name);
    QCOMPARE(storedUidRoot(), QString());
    const LogCatcher log;
    storeUidRoot(QStringLiteral("1.2.3"));
    QCOMPARE(LogCatcher::messages(), QStringList(failure()));
    QCOMPARE(entryKind(m_scratch.path(name)), EntryKind::Other);
}

void TestPreferences::aLockOfAnotherIsNotWaitedFor_data()
{
    QTest::addColumn<qint64>("age"); // seconds
    QTest::newRow("new") << qint64(0);
    QTest::newRow("as old as a window may be") << qint64(36000);
}

void TestPreferences::aLockOfAnotherIsNotWaitedFor()
{
    QFETCH(const qint64, age);
    storeUidRoot(QStringLiteral("1.2.3"));
    QLockFile lock(m_scratch.path(QStringLiteral("xdg_config_home/Dravolin/Dravolin.conf.lock")));
    QVERIFY(lock.lock());
    QFile file(lock.fileName());
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(-age), QFileDevice::FileModificationTime));
    const LogCatcher log;
    storeUidRoot(QStringLiteral("1.2.4"));
    QCOMPARE(LogCatcher::messages(), QStringList(failure()));
    QCOMPARE(storedUidRoot(), QStringLiteral("1.2.3"));
    lock.unlock();
    storeUidRoot(QStringLiteral("1.2.4"));
    QCOMPARE(storedUidRoot(), QStringLiteral("1.2.4"));
}

void TestPreferences::whatCannotBeStoredIsLogged()
{
    const QString folder = m_scratch.path(QStringLiteral("xdg_config_home/Dravolin"));
    QVERIFY(QDir(folder).removeRecursively());
    m_scratch.file(QStringLiteral("xdg_config_home/Dravolin"));
    const LogCatcher log;
    storeUidRoot(QStringLiteral("1.2.3"));
    QCOMPARE(LogCatcher::messages(), QStringList(failure()));
    QCOMPARE(entryKind(folder), EntryKind::File);
}

void TestPreferences::damagedSettingsAreReplaced()
{
    m_scratch.file(QStringLiteral("xdg_config_home/Dravolin/Dravolin.conf"), "[General\nuidRoot\xff");
    const LogCatcher log;
    QCOMPARE(storedUidRoot(), QString());
    storeUidRoot(QStringLiteral("1.2.3"));
    QCOMPARE(storedUidRoot(), QStringLiteral("1.2.3"));
    QCOMPARE(LogCatcher::messages(), QStringList());
}

DRAVOLIN_TEST(TestPreferences)
#include "tst_preferences.moc"
