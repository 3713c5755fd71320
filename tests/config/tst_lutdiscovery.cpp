#include "base/Files.h"
#include "config/LutDiscovery.h"
#include "support/AsOrdinaryUser.h"
#include "support/ScratchFolder.h"
#include "support/TestEntry.h"
#include "support/TestRun.h"

#include <QTest>

#include <sys/stat.h>

using namespace dravolin;
using test::AsOrdinaryUser;
using test::ScratchFolder;
using test::TestRun;

class TestLutDiscovery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesTablesAfterTheirFiles_data();
    void namesTablesAfterTheirFiles();
    void lookDirectlyInTheFolder();
    void typesAreNotLookedAt();
    void nameThatIsNotUtf8IsFound();
    void foldersThatCannotBeListedAreEmpty();
    void laterPlacesWin_data();
    void laterPlacesWin();
    void placesAreMerged();
    void exampleIsOfferedNowhere();
    void supportFolderIsMade();
};

void TestLutDiscovery::namesTablesAfterTheirFiles_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QStringList>("titles");
    const auto offered = [](const QString &file, const QString &title) {
        QTest::newRow(qPrintable(file)) << file << QStringList(title);
    };
    const auto ignored = [](const QString &file) {
        QTest::newRow(qPrintable(file)) << file << QStringList();
    };
    offered(QStringLiteral("AnonymizationLUT_PatientID.txt"), QStringLiteral("PatientID"));
    offered(QStringLiteral("ANONYMIZATIONLUT_Site.TXT"), QStringLiteral("Site"));
    offered(QStringLiteral("anonymizationlut_a B.Txt"), QStringLiteral("a B"));
    offered(QStringLiteral("AnonymizationLUT_.txt"), QString());
    offered(QStringLiteral("AnonymizationLUT_v1.2.txt"), QStringLiteral("v1.2"));
    offered(QStringLiteral("AnonymizationLUT_ x .txt"), QStringLiteral(" x "));
    offered(QStringLiteral("AnonymizationLUT_Example2.txt"), QStringLiteral("Example2"));
    offered(QStringLiteral("AnonymizationLUT_\u00C4.txt"), QStringLiteral("\u00C4"));
    ignored(QStringLiteral("AnonymizationLUT_Example.txt"));
    ignored(QStringLiteral("anonymizationlut_EXAMPLE.txt"));
    ignored(QStringLiteral("AnonymizationLUT_eXample.TXT"));
    ignored(QStringLiteral("AnonymizationLUT.txt"));
    ignored(QStringLiteral("AnonymizationLUT_A.text"));
    ignored(QStringLiteral("AnonymizationLUT_A"));
    ignored(QStringLiteral("AnonymizationLUT_A.txt~"));
    ignored(QStringLiteral("AnonymizationLUT_txt"));
    ignored(QStringLiteral(".AnonymizationLUT_A.txt"));
    ignored(QStringLiteral("My AnonymizationLUT_A.txt"));
    ignored(QStringLiteral("AnonymizationConfiguration_A.txt"));
}

void TestLutDiscovery::namesTablesAfterTheirFiles()
{
    QFETCH(QString, file);
    QFETCH(QStringList, titles);
    const ScratchFolder folder;
    const QString path = folder.file(file);
    TitleToPath expected;
    for (const QString &title : titles)
        expected.insert(title, path);
    QCOMPARE(lutsAtPath(folder.path()), expected);
}

void TestLutDiscovery::lookDirectlyInTheFolder()
{
    const ScratchFolder folder;
    folder.folder(QStringLiteral("sub"));
    folder.file(QStringLiteral("sub/AnonymizationLUT_A.txt"));
    QCOMPARE(lutsAtPath(folder.path()), TitleToPath());
}

void TestLutDiscovery::typesAreNotLookedAt()
{
    const ScratchFolder folder;
    const TitleToPath expected = {
        {QStringLiteral("folder"), folder.folder(QStringLiteral("AnonymizationLUT_folder.txt"))},
        {QStringLiteral("link"),
         folder.link(QStringLiteral("AnonymizationLUT_link.txt"), QStringLiteral("none"))},
        {QStringLiteral("pipe"), folder.pipe(QStringLiteral("AnonymizationLUT_pipe.txt"))}};
    QCOMPARE(lutsAtPath(folder.path()), expected);
}

void TestLutDiscovery::nameThatIsNotUtf8IsFound()
{
    const ScratchFolder folder;
    const QString title = fromBytes("M\xFCnchen");
    const QString path = folder.file(QStringLiteral("AnonymizationLUT_") + title + QStringLiteral(".txt"));
    QCOMPARE(lutsAtPath(folder.path()), (TitleToPath{{title, path}}));
    QVERIFY(pathExists(lutsAtPath(folder.path()).value(title)));
}

void TestLutDiscovery::foldersThatCannotBeListedAreEmpty()
{
    const AsOrdinaryUser user;
    const ScratchFolder folder;
    QCOMPARE(lutsAtPath(folder.path(QStringLiteral("missing"))), TitleToPath());
    QCOMPARE(lutsAtPath(folder.file(QStringLiteral("file"))), TitleToPath());
    const QString closed = folder.folder(QStringLiteral("closed"));
    folder.file(QStringLiteral("closed/AnonymizationLUT_A.txt"));
    QCOMPARE(lutsAtPath(closed).size(), 1);
    QCOMPARE(::chmod(toBytes(closed).constData(), 0300), 0);
    QCOMPARE(lutsAtPath(closed), TitleToPath());
    QCOMPARE(::chmod(toBytes(closed).constData(), 0700), 0);
}

void TestLutDiscovery::laterPlacesWin_data()
{
    QTest::addColumn<int>("places");
    QTest::addColumn<QString>("winner");
    QTest::newRow("resources alone") << 1 << QStringLiteral("app/resources");
    QTest::newRow("application's folder over resources") << 2 << QStringLiteral("app");
    QTest::newRow("desktop over application's folder") << 3 << QStringLiteral("home/Desktop");
    QTest::newRow("support folder over desktop") << 4 << QStringLiteral("home/share/Dravolin");
}

void TestLutDiscovery::laterPlacesWin()
{
    QFETCH(int, places);
    QFETCH(QString, winner);
    TestRun run;
    const QStringList folders = {QStringLiteral("app/resources"), QStringLiteral("app"),
                                 QStringLiteral("home/Desktop"), QStringLiteral("home/share/Dravolin")};
    for (const QString &folder : folders.first(places))
        run.writeFile(folder + QStringLiteral("/AnonymizationLUT_A.txt"));
    QCOMPARE(
        findLuts(run.paths),
        (TitleToPath{{QStringLiteral("A"), run.path(winner + QStringLiteral("/AnonymizationLUT_A.txt"))}}));
}

void TestLutDiscovery::placesAreMerged()
{
    TestRun run;
    const TitleToPath expected = {
        {QStringLiteral("A"), run.writeFile(QStringLiteral("home/share/Dravolin/AnonymizationLUT_A.txt"))},
        {QStringLiteral("B"), run.writeFile(QStringLiteral("home/Desktop/AnonymizationLUT_B.txt"))},
        {QStringLiteral("C"), run.writeFile(QStringLiteral("app/AnonymizationLUT_C.txt"))},
        {QStringLiteral("D"), run.writeFile(QStringLiteral("app/resources/AnonymizationLUT_D.txt"))}};
    run.writeFile(QStringLiteral("home/AnonymizationLUT_E.txt"));
    QCOMPARE(findLuts(run.paths), expected);
}

void TestLutDiscovery::exampleIsOfferedNowhere()
{
    TestRun run;
    run.writeFile(QStringLiteral("app/resources/AnonymizationLUT_Example.txt"));
    run.writeFile(QStringLiteral("home/Desktop/AnonymizationLUT_EXAMPLE.txt"));
    QCOMPARE(findLuts(run.paths), TitleToPath());
}

void TestLutDiscovery::supportFolderIsMade()
{
    const TestRun run;
    QVERIFY(!pathExists(run.path(QStringLiteral("home/share/Dravolin"))));
    QCOMPARE(findLuts(run.paths), TitleToPath());
    QVERIFY(isFolder(run.path(QStringLiteral("home/share/Dravolin"))));
}

DRAVOLIN_TEST(TestLutDiscovery)
#include "tst_lutdiscovery.moc"
