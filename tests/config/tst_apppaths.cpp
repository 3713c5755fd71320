#include "config/AppPaths.h"
#include "support/ScratchFolder.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin;
using test::ScratchFolder;

class TestAppPaths : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void resourcesLieBesideTheExecutable();
    void resourcesLieInShareWhenNoneAreBeside();
    void namesTheResources();
    void joinsTheDictionaryWithOneSeparator();
    void usersOwnFoldersComeFromTheDesktop();
    void foldersMayHaveNamesThatAreNotUtf8_data();
    void foldersMayHaveNamesThatAreNotUtf8();
    void ownExecutableIsThisOne();
    void executableIsCalledDravolin();
};

void TestAppPaths::resourcesLieBesideTheExecutable()
{
    const ScratchFolder scratch;
    scratch.folder(QStringLiteral("bin"));
    scratch.folder(QStringLiteral("bin/resources"));
    const AppPaths paths = AppPaths::forExecutable(scratch.path(QStringLiteral("bin/Dravolin")));
    QCOMPARE(paths.applicationFolder, scratch.path(QStringLiteral("bin")));
    QCOMPARE(paths.resourceFolder, scratch.path(QStringLiteral("bin/resources")));
}

void TestAppPaths::resourcesLieInShareWhenNoneAreBeside()
{
    const ScratchFolder scratch;
    scratch.folder(QStringLiteral("bin"));
    const AppPaths paths = AppPaths::forExecutable(scratch.path(QStringLiteral("bin/Dravolin")));
    QCOMPARE(paths.applicationFolder, scratch.path(QStringLiteral("bin")));
    QCOMPARE(paths.resourceFolder, scratch.path(QStringLiteral("share/dravolin")));
}

void TestAppPaths::namesTheResources()
{
    AppPaths paths;
    paths.resourceFolder = QStringLiteral("/opt/x/resources");
    QCOMPARE(paths.resource(QStringLiteral("a.txt")), QStringLiteral("/opt/x/resources/a.txt"));
    QCOMPARE(paths.dcmodify(), QStringLiteral("/opt/x/resources/dcmodify"));
    QCOMPARE(paths.dcmdump(), QStringLiteral("/opt/x/resources/dcmdump"));
    QCOMPARE(paths.dictionary(), QStringLiteral("/opt/x/resources/dicom.dic"));
    QCOMPARE(paths.defaultConfiguration(),
             QStringLiteral("/opt/x/resources/DefaultAnonymizationConfiguration.txt"));
}

void TestAppPaths::joinsTheDictionaryWithOneSeparator()
{
    AppPaths paths;
    paths.resourceFolder = QStringLiteral("/opt/x/resources/");
    QCOMPARE(paths.dictionary(), QStringLiteral("/opt/x/resources/dicom.dic"));
}

void TestAppPaths::usersOwnFoldersComeFromTheDesktop()
{
    const ScratchFolder scratch;
    const QByteArray home = toBytes(scratch.path());
    qputenv("HOME", home);
    qputenv("XDG_CONFIG_HOME", home + "/config");
    qputenv("XDG_DATA_HOME", home + "/data");
    qputenv("XDG_DATA_DIRS", "/usr/local/share:/usr/share");
    scratch.folder(QStringLiteral("config"));
    AppPaths paths = AppPaths::forExecutable(QStringLiteral("/opt/x/bin/Dravolin"));
    QCOMPARE(paths.desktopFolder, scratch.path(QStringLiteral("Desktop")));
    QCOMPARE(paths.applicationSupportFolders,
             QStringList({scratch.path(QStringLiteral("data")), QStringLiteral("/usr/local/share"),
                          QStringLiteral("/usr/share")}));

    scratch.file(QStringLiteral("config/user-dirs.dirs"), "XDG_DESKTOP_DIR=\"$HOME/Schreibtisch\"\n");
    paths = AppPaths::forExecutable(QStringLiteral("/opt/x/bin/Dravolin"));
    QCOMPARE(paths.desktopFolder, scratch.path(QStringLiteral("Schreibtisch")));
}

void TestAppPaths::foldersMayHaveNamesThatAreNotUtf8_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("end");
    QTest::newRow("UTF-8") << QByteArray("/J\u00FCrgen") << QByteArray();
    QTest::newRow("UTF-8, with a slash at its end") << QByteArray("/J\u00FCrgen") << QByteArray("/");
    QTest::newRow("Latin-1") << QByteArray("/J\xFCrgen") << QByteArray();
    QTest::newRow("Latin-1, with a slash at its end") << QByteArray("/J\xFCrgen") << QByteArray("/");
}

void TestAppPaths::foldersMayHaveNamesThatAreNotUtf8()
{
    QFETCH(const QByteArray, name);
    QFETCH(const QByteArray, end);
    const ScratchFolder scratch;
    const QByteArray home = toBytes(scratch.path()) + name;
    qputenv("HOME", home + end);
    qunsetenv("XDG_CONFIG_HOME");
    qunsetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_DIRS", "/usr/share");
    const AppPaths paths = AppPaths::forExecutable(QStringLiteral("/opt/x/bin/Dravolin"));
    QCOMPARE(toBytes(paths.desktopFolder), home + "/Desktop");
    QCOMPARE(toBytes(paths.applicationSupportFolders.join(u' ')), home + "/.local/share /usr/share");
}

void TestAppPaths::ownExecutableIsThisOne()
{
    QVERIFY(AppPaths::ownExecutable().endsWith(QStringLiteral("/config_tests")));
    QVERIFY(pathExists(AppPaths::ownExecutable()));
}

void TestAppPaths::executableIsCalledDravolin()
{
    QCOMPARE(executableName(), QStringLiteral("Dravolin"));
}

DRAVOLIN_TEST(TestAppPaths)
#include "tst_apppaths.moc"
