#include "TableRun.h"
#include "support/TestEntry.h"

#include "run/RunDriver.h"

#include <QTest>

using namespace dravolin;
using namespace dravolin::test;

// Whole runs that construct a table.
class TestConstructionRuns : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void constructionSetsTheSkippedFilesBack();
    void constructionChangesNoFile();
    void constructionWithATableBindsButDoesNotPropagate();
    void refusedConstructionStillNamesTheDesktop();
    void constructionIsNamedAfter_data();
    void constructionIsNamedAfter();
};

void TestConstructionRuns::constructionSetsTheSkippedFilesBack()
{
    TableRun run;
    run.state.set(&RunState::numLUTskippedFiles, quint64(3));
    run.switchOn(&Choices::prepopulate);
    Drop drop = run.drop({}, {});
    performRun(run.context, drop);
    QCOMPARE(run.state.get(&RunState::numLUTskippedFiles), quint64(0));
}

void TestConstructionRuns::constructionChangesNoFile()
{
    TableRun run;
    run.switchOn(&Choices::prepopulate);
    run.state.set(&RunState::LUTconstructionTag, str("0010,1000"));
    run.makeFolder(str("in/sub"));
    run.toolOutput[str("~/in")] = str("PAT1\n\nPAT2\n");
    Drop drop = run.drop({run.path(str("in"))}, {});
    performRun(run.context, drop);
    const QString path = run.path(str("home/Desktop/AnonymizationLUT_Site.txt"));
    QCOMPARE(
        run.jobTexts(),
        QStringList(str("/bin/sh -c \"~/in/.noxTemp.sh\"\nin ~/in\n"
                        "with DCMDICTPATH=~/app/resources/dicom.dic\n\"~/app/resources/dcmdump\" -M -Un +E "
                        "+F -q +sd +r +s --search 0010,1000 * | awk -F [][] '{print $2}' >.noxTemp.out")));
    const QStringList expected = loadCalls + QStringList{str("job ~/in"), str("tables: Site")} +
                                 endCalls(str("\nDone constructing LUT. File placed on Desktop."));
    QCOMPARE(run.host.calls, expected);
    QCOMPARE(readText(path), lutText(str("0010,1000"), {str("PAT1"), str("PAT2")}));
    QCOMPARE(run.state.get(&RunState::LUTtagSet), QSet<QString>());
}

void TestConstructionRuns::constructionWithATableBindsButDoesNotPropagate()
{
    TableRun run;
    run.switchOn(&Choices::prepopulate);
    run.state.set(&RunState::LUTconstructionTag, str("0010,1000"));
    run.file(str("in/a"), "A"); // that a propagation would rewrite
    Drop drop = run.dropWithTable({run.path(str("in"))}, {}, QString());
    performRun(run.context, drop);
    QCOMPARE(run.jobs.jobs.size(), 1);
    QCOMPARE(run.state.get(&RunState::usingLUT), true);
    QCOMPARE(run.summary(), str("\nDone constructing LUT. File placed on Desktop."));
    QVERIFY(pathExists(run.path(str("home/Desktop/AnonymizationLUT_Site1.txt"))));
}

void TestConstructionRuns::refusedConstructionStillNamesTheDesktop()
{
    TableRun run;
    run.switchOn(&Choices::prepopulate);
    Drop drop = run.dropWithTable({run.makeFolder(str("in"))}, {}, QString());
    removeFile(drop.options.selectedLUTpath);
    performRun(run.context, drop);
    QCOMPARE(run.summary(), str("Done constructing LUT. File placed on Desktop.\nEncountered 1 error."
                                "\nSee messages logged to console."));
    QCOMPARE(listNames(run.paths.desktopFolder), QStringList());
}

void TestConstructionRuns::constructionIsNamedAfter_data()
{
    QTest::addColumn<QString>("configuration");
    QTest::addColumn<QString>("name");
    QTest::newRow("the marker") << str("0010,1000\tx\t<LUT_Site>") << str("Site");
    QTest::newRow("the first marker") << str("0010,1000\tx\t<LUT_B>\n0010,0030\tx\t<LUT_A>") << str("A");
    QTest::newRow("a marker without a name") << str("0010,1000\tx\t<LUT_>") << str("XX");
    QTest::newRow("no marker") << QString() << str("XX");
}

void TestConstructionRuns::constructionIsNamedAfter()
{
    QFETCH(QString, configuration);
    QFETCH(QString, name);
    TableRun run;
    run.configure(configuration);
    run.switchOn(&Choices::prepopulate);
    Drop drop = run.drop({}, {});
    performRun(run.context, drop);
    QCOMPARE(listNames(run.paths.desktopFolder), QStringList(str("AnonymizationLUT_") + name + str(".txt")));
}

DRAVOLIN_TEST(TestConstructionRuns)
#include "tst_constructionruns.moc"
