#include "config/ConfigurationDiscovery.h"
#include "support/ScratchFolder.h"
#include "support/TestEntry.h"
#include "support/TestRun.h"

#include <QTest>

using namespace dravolin;
using test::LogCatcher;
using test::ScratchFolder;
using test::TestRun;

namespace {

const QString ctName = QStringLiteral("AnonymizationConfiguration_CT.txt");

} // namespace

class TestConfigurationDiscovery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_run = std::make_unique<TestRun>(); }
    void offersAFileByItsName_data();
    void offersAFileByItsName();
    void offersOnlyWhatLiesDirectlyInTheFolder();
    void doesNotLookAtTheKindOfAnEntry();
    void laterEntryOfAFolderWins();
    void folderThatCannotBeListedGivesNothing();
    void configurationAmongTheResourcesIsTheOnlyOne();
    void mergesThreeFolders();
    void laterFolderWins_data();
    void laterFolderWins();
    void createsTheSupportFolder();
    void goesOnWithoutASupportFolder();
    void applicationsFolderIsNotTheResourceFolder();
    void keepsConfigurationWithoutUnderscoreOnTheDesktopUnfound();
    void revertsToTheDefaultEachTimeNothingIsFound();
    void folderForTheCopyIsTheSupportFolder();
    void folderForTheCopyIsNotUsableWhenAFileIsThere();
    void copiesTheDefaultConfiguration();
    void copyIsFoundUnderTheNameDefault();
    void copyNeverReplacesAFile();
    void copyThatFailsChangesNothing();

private:
    QString configurationIn(const char16_t *folder, const QString &name = ctName) const
    {
        return m_run->writeFile(joinPath(QString::fromUtf16(folder), name));
    }
    std::unique_ptr<TestRun> m_run;
};

void TestConfigurationDiscovery::offersAFileByItsName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("title"); // null: not offered
    const auto row = [](const char16_t *name, const char16_t *title = nullptr) {
        const QString text = QStringView(name).toString();
        QTest::newRow(text.toUtf8().constData()) << text << QString::fromUtf16(title);
    };
    row(u"AnonymizationConfiguration_CT.txt", u"CT");
    row(u"AnonymizationConfiguration_CT.TXT", u"CT");
    row(u"anonymizationconfiguration_ct.txt", u"ct");
    row(u"ANONYMIZATIONCONFIGURATION_cT.Txt", u"cT");
    row(u"AnonymizationConfiguration_a.b.txt", u"a.b");
    row(u"AnonymizationConfiguration_ a b .txt", u" a b ");
    row(u"AnonymizationConfiguration__.txt", u"_");
    row(u"AnonymizationConfiguration_\u00C9\u00E9.txt", u"\u00C9\u00E9");
    row(u"AnonymizationConfiguration_\u0130.txt", u"\u0130");
    row(u"AnonymizationConfiguration_.txt.txt", u".txt");
    row(u"anonymizationconfiguration_.txt");
    row(u"AnonymizationConfiguration.txt");
    row(u"AnonymizationConfigurationCT.txt");
    row(u"Anonymizat\u0130onConfiguration_CT.txt");
    row(u"AnonymizationConfiguration_CT");
    row(u"AnonymizationConfiguration_CT.text");
    row(u"AnonymizationConfiguration_CT.txt ");
    row(u"AnonymizationConfiguration_CT.txt.bak");
    row(u"AnonymizationConfiguration_txt");
    row(u" AnonymizationConfiguration_CT.txt");
    row(u"\uFEFF"
        u"AnonymizationConfiguration_CT.txt");
    row(u"AnonymizationLUT_CT.txt");
}

void TestConfigurationDiscovery::offersAFileByItsName()
{
    QFETCH(const QString, name);
    QFETCH(const QString, title);
    const ScratchFolder scratch;
    const QString path = scratch.file(name);
    QCOMPARE(configsAtPath(scratch.path()), title.isNull() ? TitleToPath() : TitleToPath({{title, path}}));
}

void TestConfigurationDiscovery::offersOnlyWhatLiesDirectlyInTheFolder()
{
    const ScratchFolder scratch;
    scratch.folder(QStringLiteral("sub"));
    scratch.file(QStringLiteral("sub/") + ctName);
    QCOMPARE(configsAtPath(scratch.path()), TitleToPath());
}

void TestConfigurationDiscovery::doesNotLookAtTheKindOfAnEntry()
{
    const ScratchFolder scratch;
    const QString folder = scratch.folder(QStringLiteral("AnonymizationConfiguration_folder.txt"));
    const QString broken =
        scratch.link(QStringLiteral("AnonymizationConfiguration_broken.txt"), QStringLiteral("nowhere"));
    QCOMPARE(configsAtPath(scratch.path()),
             TitleToPath({{QStringLiteral("folder"), folder}, {QStringLiteral("broken"), broken}}));
}

void TestConfigurationDiscovery::laterEntryOfAFolderWins()
{
    const ScratchFolder scratch;
    for (const char16_t *name : {u"AnonymizationConfiguration_x.txt", u"anonymizationconfiguration_x.txt",
                                 u"AnonymizationConfiguration_x.TXT", u"ANONYMIZATIONCONFIGURATION_x.txt"})
        scratch.file(QString::fromUtf16(name));
    QCOMPARE(configsAtPath(scratch.path()),
             TitleToPath({{QStringLiteral("x"), scratch.path(listNames(scratch.path()).last())}}));
}

void TestConfigurationDiscovery::folderThatCannotBeListedGivesNothing()
{
    const ScratchFolder scratch;
    QCOMPARE(configsAtPath(scratch.path(QStringLiteral("missing"))), TitleToPath());
    QCOMPARE(configsAtPath(scratch.file(QStringLiteral("file"))), TitleToPath());
    QCOMPARE(configsAtPath(QString()), TitleToPath());
}

void TestConfigurationDiscovery::configurationAmongTheResourcesIsTheOnlyOne()
{
    const QString bundled =
        configurationIn(u"app/resources", QStringLiteral("AnonymizationConfiguration.txt"));
    configurationIn(u"home/Desktop");
    configurationIn(u"app");
    configurationIn(u"home/share/Dravolin");
    const FoundConfigurations found = findConfigurations(m_run->paths);
    QCOMPARE(found.allConfigPaths, TitleToPath({{QStringLiteral("Bundled Configuration"), bundled}}));
    QVERIFY(!found.revertedToDefault);
}

void TestConfigurationDiscovery::mergesThreeFolders()
{
    const QString a = configurationIn(u"home/Desktop", QStringLiteral("AnonymizationConfiguration_a.txt"));
    const QString b = configurationIn(u"app", QStringLiteral("AnonymizationConfiguration_b.txt"));
    const QString c =
        configurationIn(u"home/share/Dravolin", QStringLiteral("AnonymizationConfiguration_c.txt"));
    const FoundConfigurations found = findConfigurations(m_run->paths);
    QCOMPARE(found.allConfigPaths,
             TitleToPath({{QStringLiteral("a"), a}, {QStringLiteral("b"), b}, {QStringLiteral("c"), c}}));
    QVERIFY(!found.revertedToDefault);
}

void TestConfigurationDiscovery::laterFolderWins_data()
{
    QTest::addColumn<QStringList>("folders");
    QTest::addColumn<QString>("winner");
    const QString desktop = QStringLiteral("home/Desktop");
    const QString application = QStringLiteral("app");
    const QString support = QStringLiteral("home/share/Dravolin");
    QTest::newRow("desktop and application") << QStringList({desktop, application}) << application;
    QTest::newRow("desktop and support") << QStringList({desktop, support}) << support;
    QTest::newRow("application and support") << QStringList({application, support}) << support;
    QTest::newRow("all three") << QStringList({support, application, desktop}) << support;
}

void TestConfigurationDiscovery::laterFolderWins()
{
    QFETCH(const QStringList, folders);
    QFETCH(const QString, winner);
    for (const QString &folder : folders)
        m_run->writeFile(joinPath(folder, ctName));
    QCOMPARE(findConfigurations(m_run->paths).allConfigPaths,
             TitleToPath({{QStringLiteral("CT"), joinPath(m_run->path(winner), ctName)}}));
}

void TestConfigurationDiscovery::createsTheSupportFolder()
{
    (void)findConfigurations(m_run->paths);
    QVERIFY(isFolder(m_run->path(QStringLiteral("home/share/Dravolin"))));
}

void TestConfigurationDiscovery::goesOnWithoutASupportFolder()
{
    const LogCatcher log;
    const QString path = configurationIn(u"home/Desktop");
    m_run->paths.applicationSupportFolders.clear();
    QCOMPARE(findConfigurations(m_run->paths).allConfigPaths, TitleToPath({{QStringLiteral("CT"), path}}));
    QCOMPARE(log.messages().size(), 1);
}

void TestConfigurationDiscovery::applicationsFolderIsNotTheResourceFolder()
{
    configurationIn(u"app/resources");
    QVERIFY(findConfigurations(m_run->paths).revertedToDefault);
}

void TestConfigurationDiscovery::keepsConfigurationWithoutUnderscoreOnTheDesktopUnfound()
{
    configurationIn(u"home/Desktop", QStringLiteral("AnonymizationConfiguration.txt"));
    QVERIFY(findConfigurations(m_run->paths).revertedToDefault);
}

void TestConfigurationDiscovery::revertsToTheDefaultEachTimeNothingIsFound()
{
    const TitleToPath expected = {
        {QStringLiteral("Bundled Default"),
         m_run->path(QStringLiteral("app/resources/DefaultAnonymizationConfiguration.txt"))}};
    for (int time = 0; time < 2; ++time) {
        const FoundConfigurations found = findConfigurations(m_run->paths);
        QCOMPARE(found.allConfigPaths, expected);
        QVERIFY(found.revertedToDefault);
    }
}

void TestConfigurationDiscovery::folderForTheCopyIsTheSupportFolder()
{
    const QString expected = m_run->path(QStringLiteral("home/share/Dravolin"));
    for (int time = 0; time < 2; ++time) { // made, then found
        const ConfigurationFolder folder = configurationFolder(m_run->paths);
        QCOMPARE(folder.path, expected);
        QVERIFY(folder.usable);
        QVERIFY(isFolder(expected));
    }
}

void TestConfigurationDiscovery::folderForTheCopyIsNotUsableWhenAFileIsThere()
{
    const QString path = m_run->writeFile(QStringLiteral("home/share/Dravolin"));
    const ConfigurationFolder folder = configurationFolder(m_run->paths);
    QCOMPARE(folder.path, path);
    QVERIFY(!folder.usable);
    m_run->paths.applicationSupportFolders.clear();
    QVERIFY(!configurationFolder(m_run->paths).usable);
}

void TestConfigurationDiscovery::copiesTheDefaultConfiguration()
{
    m_run->writeFile(QStringLiteral("app/resources/DefaultAnonymizationConfiguration.txt"),
                     QStringLiteral("default"));
    const QString folder = m_run->path(QStringLiteral("home/new/Desktop"));
    const QString expected = joinPath(folder, QStringLiteral("copy.txt"));
    QCOMPARE(copyDefaultConfiguration(m_run->paths, folder, QStringLiteral("copy.txt")), expected);
    QCOMPARE(readText(expected), std::optional(QStringLiteral("default")));
}

void TestConfigurationDiscovery::copyIsFoundUnderTheNameDefault()
{
    m_run->writeFile(QStringLiteral("app/resources/DefaultAnonymizationConfiguration.txt"));
    const QString copy = copyDefaultConfiguration(m_run->paths, configurationFolder(m_run->paths).path,
                                                  QStringLiteral("AnonymizationConfiguration_Default.txt"));
    const FoundConfigurations found = findConfigurations(m_run->paths);
    QCOMPARE(found.allConfigPaths, TitleToPath({{QStringLiteral("Default"), copy}}));
    QVERIFY(!found.revertedToDefault);
}

void TestConfigurationDiscovery::copyNeverReplacesAFile()
{
    m_run->writeFile(QStringLiteral("app/resources/DefaultAnonymizationConfiguration.txt"),
                     QStringLiteral("default"));
    const QString existing =
        m_run->writeFile(QStringLiteral("home/Desktop/copy.txt"), QStringLiteral("mine"));
    QCOMPARE(copyDefaultConfiguration(m_run->paths, m_run->paths.desktopFolder, QStringLiteral("copy.txt")),
             existing);
    QCOMPARE(readText(existing), std::optional(QStringLiteral("mine")));
}

void TestConfigurationDiscovery::copyThatFailsChangesNothing()
{
    const QString desktop = m_run->paths.desktopFolder;
    QCOMPARE(copyDefaultConfiguration(m_run->paths, desktop, QStringLiteral("copy.txt")),
             joinPath(desktop, QStringLiteral("copy.txt"))); // there is no default configuration
    QCOMPARE(listNames(desktop), QStringList());
}

DRAVOLIN_TEST(TestConfigurationDiscovery)
#include "tst_configurationdiscovery.moc"
