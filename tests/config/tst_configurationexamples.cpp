#include "base/Files.h"
#include "config/ConfigurationDiscovery.h"
#include "config/LutDiscovery.h"
#include "support/TestEntry.h"
#include "support/TestRun.h"

#include <QTest>

using namespace dravolin;
using test::TestRun;

// What lies in the configuration folder when a person is shown it.
class TestConfigurationExamples : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void emptyFolderGetsTheDefaultAndTheExamples();
    void missingFolderIsMadeAndFilled();
    void copiesAreOfferedWithTheDefaultFirst();
    void folderWithAnythingInItIsLeftAlone_data();
    void folderWithAnythingInItIsLeftAlone();
    void withoutTheDefaultThereAreNoExamplesEither();
    void folderThatCannotBeMadeIsNamedAllTheSame();
    void examplesAmongTheResourcesAreNotOffered();

private:
    std::unique_ptr<TestRun> m_run;
    QString m_folder;
};

void TestConfigurationExamples::init()
{
    m_run = std::make_unique<TestRun>();
    const auto write = [this](const char *name, const char *text) {
        m_run->writeFile(QStringLiteral("app/resources/") + QLatin1String(name), QLatin1String(text));
    };
    write("DefaultAnonymizationConfiguration.txt", "default");
    write("examples/AnonymizationConfiguration_KeepDates.txt", "dates");
    write("examples/AnonymizationConfiguration_ResearchMR.txt", "research");
    write("examples/AnonymizationLUT_Names.txt", "table");
    m_folder = m_run->path(QStringLiteral("home/share/Dravolin"));
}

void TestConfigurationExamples::emptyFolderGetsTheDefaultAndTheExamples()
{
    QVERIFY(createFolder(m_folder));
    QCOMPARE(configurationFolderWithExamples(m_run->paths), m_folder);
    QMap<QString, QString> texts;
    for (const QString &name : listNames(m_folder))
        texts.insert(name, readText(joinPath(m_folder, name)).value_or(QString()));
    const QMap<QString, QString> expected = {
        {QStringLiteral("AnonymizationConfiguration_Default.txt"), QStringLiteral("default")},
        {QStringLiteral("AnonymizationConfiguration_KeepDates.txt"), QStringLiteral("dates")},
        {QStringLiteral("AnonymizationConfiguration_ResearchMR.txt"), QStringLiteral("research")}};
    QCOMPARE(texts, expected);
}

void TestConfigurationExamples::missingFolderIsMadeAndFilled()
{
    QVERIFY(!pathExists(m_folder));
    QCOMPARE(configurationFolderWithExamples(m_run->paths), m_folder);
    QCOMPARE(listNames(m_folder).size(), 3);
}

void TestConfigurationExamples::copiesAreOfferedWithTheDefaultFirst()
{
    QCOMPARE(configurationFolderWithExamples(m_run->paths), m_folder);
    const FoundConfigurations found = findConfigurations(m_run->paths);
    QCOMPARE(found.allConfigPaths.keys(), QStringList({QStringLiteral("Default"), QStringLiteral("KeepDates"),
                                                       QStringLiteral("ResearchMR")}));
    QVERIFY(!found.revertedToDefault);
}

void TestConfigurationExamples::folderWithAnythingInItIsLeftAlone_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("a configuration") << QStringLiteral("AnonymizationConfiguration_Mine.txt");
    QTest::newRow("the default") << QStringLiteral("AnonymizationConfiguration_Default.txt");
    QTest::newRow("a table") << QStringLiteral("AnonymizationLUT_Names.txt");
    QTest::newRow("a hidden file") << QStringLiteral(".hidden");
}

void TestConfigurationExamples::folderWithAnythingInItIsLeftAlone()
{
    QFETCH(const QString, name);
    const QString mine =
        m_run->writeFile(QStringLiteral("home/share/Dravolin/") + name, QStringLiteral("mine"));
    QCOMPARE(configurationFolderWithExamples(m_run->paths), m_folder);
    QCOMPARE(listNames(m_folder), QStringList{name});
    QCOMPARE(readText(mine), std::optional(QStringLiteral("mine")));
}

void TestConfigurationExamples::withoutTheDefaultThereAreNoExamplesEither()
{
    removeFile(m_run->paths.defaultConfiguration());
    QCOMPARE(configurationFolderWithExamples(m_run->paths), m_folder);
    QCOMPARE(listNames(m_folder), QStringList());
}

void TestConfigurationExamples::folderThatCannotBeMadeIsNamedAllTheSame()
{
    m_run->writeFile(QStringLiteral("home/share/Dravolin"), QStringLiteral("a file"));
    QCOMPARE(configurationFolderWithExamples(m_run->paths), m_folder);
    QCOMPARE(readText(m_folder), std::optional(QStringLiteral("a file")));
}

void TestConfigurationExamples::examplesAmongTheResourcesAreNotOffered()
{
    const FoundConfigurations found = findConfigurations(m_run->paths);
    QCOMPARE(found.allConfigPaths.keys(), QStringList{QStringLiteral("Bundled Default")});
    QCOMPARE(findLuts(m_run->paths), TitleToPath());
}

DRAVOLIN_TEST(TestConfigurationExamples)
#include "tst_configurationexamples.moc"
