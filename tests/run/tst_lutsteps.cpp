#include "RunTrace.h"
#include "support/TestEntry.h"

#include "base/Files.h"
#include "run/LutSteps.h"
#include "run/jobs/ScriptJob.h"

#include <QTest>

using namespace dravolin;
using namespace dravolin::test;

namespace {

const QString tag = QStringLiteral("0010,1000");

QString propagating(int done, int all)
{
    return QStringLiteral("propagated %1/%2 folders").arg(done).arg(all);
}

} // namespace

// Constructing and propagating, without the rest of a run.
class TestLutSteps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void refreshFillsThePopUp();
    void refreshWithoutTablesSaysSo();
    void constructionTakesFoldersThenFiles();
    void constructionCountsWhatWasDropped_data();
    void constructionCountsWhatWasDropped();
    void constructionStartsFromNothing();
    void constructionWritesAndOffersTheTable();
    void constructionOffersTheNumberedTable();
    void constructionWritesAlsoAfterFailures();
    void constructionOfNothingWritesTheExplanation();
    void propagationShowsItsProgress();
    void propagationTakesFilesInTheFirstOnesFolder();
    void propagationStartsItsCountersButOne();
    void propagationAddsErrorsAndGoesOn();
    void propagationOfNothing();

private:
    QString dropped(const QString &name);
    [[nodiscard]] QString desktopPath(const QString &name) const
    {
        return joinPath(m_run->paths.desktopFolder, name);
    }
    template <typename Part, typename Field>
    [[nodiscard]] Field state(Field Part::*field) const
    {
        return m_run->state.get(field);
    }
    std::unique_ptr<TestRun> m_run;
    RunOptions m_options;
    QHash<QString, QString> m_values; // by folder: what the filter leaves of the tool's output
};

void TestLutSteps::init()
{
    m_run = std::make_unique<TestRun>();
    m_options = {};
    m_options.theLUTtag = tag;
    m_values.clear();
    m_run->state.set(&RunState::LUTconstructionTag, tag);
    m_run->jobs.answer = [this](const Job &job) {
        const bool failed = !job.pipeOutput && m_values.contains(job.folder) &&
                            !writeText(joinPath(job.folder, outputFileName), m_values.value(job.folder));
        return failed ? JobResult{} : JobResult{JobOutcome::Ran, "(0010,1000) LO [PHANTOM]  # 8, 1 x\n"};
    };
    m_run->state.set(&RunState::selectedLUTdict, LutTable{{str("PHANTOM"), str("<skip>")}});
}

// Makes a folder that is to be dropped and gives its path.
QString TestLutSteps::dropped(const QString &name)
{
    return m_run->makeFolder(str("data/") + name);
}

void TestLutSteps::refreshFillsThePopUp()
{
    m_run->state.set(&RunState::allLUTsPaths, TitleToPath{{str("old"), str("path")}});
    const TitleToPath expected = {{str("B"), m_run->writeFile(str("home/Desktop/AnonymizationLUT_B.txt"))},
                                  {str("A"), m_run->writeFile(str("app/AnonymizationLUT_A.txt"))},
                                  {QString(), m_run->writeFile(str("app/AnonymizationLUT_.txt"))}};
    refreshTables(m_run->context);
    QCOMPARE(state(&RunState::allLUTsPaths), expected);
    QCOMPARE(m_run->host.calls, QStringList(str("tables: |A|B")));
}

void TestLutSteps::refreshWithoutTablesSaysSo()
{
    m_run->state.set(&RunState::allLUTsPaths, TitleToPath{{str("old"), str("path")}});
    refreshTables(m_run->context);
    QCOMPARE(state(&RunState::allLUTsPaths), TitleToPath());
    QCOMPARE(m_run->host.calls, QStringList(str("tables: ")));
}

void TestLutSteps::constructionTakesFoldersThenFiles()
{
    const QString one = dropped(str("one"));
    const QString two = dropped(str("two"));
    const QString three = dropped(str("three"));
    m_values = {{one, str("B\n")}, {two, str("\nA\nB\n")}, {three, str("C\n")}};
    constructTable(m_run->context, {two, one}, {joinPath(three, str("f")), joinPath(one, str("g"))},
                   m_options);
    QCOMPARE(m_run->jobs.folders(), (QStringList{two, one, three}));
    QCOMPARE(state(&RunState::LUTtagSet), (QSet<QString>{str("A"), str("B"), str("C")}));
    QCOMPARE(m_run->host.calls, QStringList(str("tables: XX"))); // no status text, no progress
}

void TestLutSteps::constructionCountsWhatWasDropped_data()
{
    QTest::addColumn<int>("folders");
    QTest::addColumn<int>("files");
    QTest::addColumn<quint64>("total");
    QTest::newRow("nothing") << 0 << 0 << quint64(0);
    QTest::newRow("three folders") << 3 << 0 << quint64(3);
    QTest::newRow("three files") << 0 << 3 << quint64(1);
    QTest::newRow("two folders and a file") << 2 << 1 << quint64(3);
}

void TestLutSteps::constructionCountsWhatWasDropped()
{
    QFETCH(int, folders);
    QFETCH(int, files);
    QFETCH(quint64, total);
    QStringList droppedFolders;
    QStringList droppedFiles;
    for (int i = 0; i < folders; ++i) {
        droppedFolders.append(dropped(QString::number(i)));
        m_run->makeFolder(str("data/%1/sub").arg(i)); // not counted
    }
    for (int i = 0; i < files; ++i)
        droppedFiles.append(joinPath(dropped(str("files")), QString::number(i)));
    m_run->state.set(&RunState::totalFolders, quint64(77));
    m_run->state.set(&RunState::folderCount, quint64(77));
    constructTable(m_run->context, droppedFolders, droppedFiles, m_options);
    QCOMPARE(state(&RunState::totalFolders), total);
    QCOMPARE(state(&RunState::folderCount), total);
}

void TestLutSteps::constructionStartsFromNothing()
{
    m_run->state.set(&RunState::numLUTadaptedFiles, quint64(5));
    m_run->state.set(&RunState::numLUTskippedFiles, quint64(6));
    m_run->state.set(&RunState::LUTtagSet, QSet<QString>{str("old")});
    constructTable(m_run->context, {}, {}, m_options);
    QCOMPARE(state(&RunState::numLUTadaptedFiles), 0U);
    QCOMPARE(state(&RunState::numLUTskippedFiles), 0U);
    QCOMPARE(state(&RunState::LUTtagSet), QSet<QString>());
}

void TestLutSteps::constructionWritesAndOffersTheTable()
{
    const QString folder = dropped(str("one"));
    m_values = {{folder, str("b\nA\n")}};
    m_options.selectedLUT = str("Site");
    constructTable(m_run->context, {folder}, {}, m_options);
    const QString path = desktopPath(str("AnonymizationLUT_Site.txt"));
    QCOMPARE(readText(path), lutText(tag, {str("A"), str("b")}));
    QCOMPARE(state(&RunState::allLUTsPaths), (TitleToPath{{str("Site"), path}}));
    QCOMPARE(m_run->host.calls, QStringList(str("tables: Site")));
}

void TestLutSteps::constructionOffersTheNumberedTable()
{
    m_run->writeFile(str("home/Desktop/AnonymizationLUT_PatientID.txt"));
    m_run->writeFile(str("home/Desktop/AnonymizationLUT_PatientID1.txt"));
    m_options.selectedLUT = str("PatientID");
    constructTable(m_run->context, {}, {}, m_options);
    QCOMPARE(state(&RunState::allLUTsPaths).value(str("PatientID2")),
             desktopPath(str("AnonymizationLUT_PatientID2.txt")));
    QCOMPARE(m_run->host.calls, QStringList(str("tables: PatientID|PatientID1|PatientID2")));
}

void TestLutSteps::constructionWritesAlsoAfterFailures()
{
    const QString good = dropped(str("good"));
    m_values = {{good, str("A\n")}};
    constructTable(m_run->context, {m_run->path(str("none")), good}, {m_run->path(str("none/f"))}, m_options);
    QCOMPARE(state(&RunState::errCount), 2U);
    QCOMPARE(state(&RunState::folderCount), 3U);
    QCOMPARE(readText(desktopPath(str("AnonymizationLUT_XX.txt"))), lutText(tag, {str("A")}));
}

void TestLutSteps::constructionOfNothingWritesTheExplanation()
{
    m_run->state.set(&RunState::LUTconstructionTag, QString());
    constructTable(m_run->context, {}, {}, m_options);
    QVERIFY(m_run->jobs.jobs.isEmpty());
    QCOMPARE(readText(desktopPath(str("AnonymizationLUT_XX.txt"))), lutText(QString(), {}));
}

void TestLutSteps::propagationShowsItsProgress()
{
    const QString one = dropped(str("one"));
    const QString two = dropped(str("two"));
    m_run->writeFile(str("data/one/sub/a"));
    m_run->writeFile(str("data/two/b"));
    m_run->state.set(&RunState::totalFolders, quint64(3));
    propagateTable(m_run->context, {one, two}, {}, m_options);
    QCOMPARE(m_run->host.calls,
             (QStringList{str("propagation begins"), propagating(0, 3), str("file 1/1"), propagating(1, 3),
                          str("file 1/1"), propagating(2, 3), propagating(2, 3), str("file 1/1"),
                          propagating(3, 3), str("propagation ends")}));
    QCOMPARE(m_run->jobs.folders(), (QStringList{joinPath(one, str("sub")), two}));
    QCOMPARE(state(&RunState::numLUTskippedFiles), 2U);
}

void TestLutSteps::propagationTakesFilesInTheFirstOnesFolder()
{
    const QString one = dropped(str("one"));
    m_run->writeFile(str("data/two/a"));
    m_run->writeFile(str("data/two/b"));
    m_run->state.set(&RunState::totalFolders, quint64(2));
    propagateTable(m_run->context, {one}, {m_run->path(str("data/two/a")), str("/elsewhere/b")}, m_options);
    QCOMPARE(m_run->jobs.folders(), QStringList(2, m_run->path(str("data/two"))));
    QCOMPARE(m_run->host.calls, (QStringList{str("propagation begins"), propagating(0, 2), propagating(1, 2),
                                             str("file 1/2"), str("file 2/2"), str("propagation ends")}));
    QCOMPARE(state(&RunState::folderCount), 1U); // the files have no part in it
}

void TestLutSteps::propagationStartsItsCountersButOne()
{
    m_run->state.set(&RunState::folderCount, quint64(4));
    m_run->state.set(&RunState::totalFolders, quint64(5));
    m_run->state.set(&RunState::numLUTadaptedFiles, quint64(6));
    m_run->state.set(&RunState::numLUTskippedFiles, quint64(7));
    propagateTable(m_run->context, {}, {}, m_options);
    QCOMPARE(state(&RunState::folderCount), 0U);
    QCOMPARE(state(&RunState::totalFolders), 5U);
    QCOMPARE(state(&RunState::numLUTadaptedFiles), 0U);
    QCOMPARE(state(&RunState::numLUTskippedFiles), 7U);
}

void TestLutSteps::propagationAddsErrorsAndGoesOn()
{
    const QString one = dropped(str("one"));
    const QString two = dropped(str("two"));
    m_run->writeFile(str("data/one/a"));
    m_run->writeFile(str("data/two/b"));
    m_run->jobs.answer = [&](const Job &job) {
        return job.folder == one ? JobResult{JobOutcome::NoPipe, {}} : JobResult{JobOutcome::Ran, {}};
    };
    const LogCatcher log;
    propagateTable(m_run->context, {one, two}, {m_run->path(str("data/one/a"))}, m_options);
    QCOMPARE(state(&RunState::errCount), 2U);
    QCOMPARE(m_run->jobs.folders(), (QStringList{one, two, one}));
    QCOMPARE(m_run->host.calls.last(), str("propagation ends"));
}

void TestLutSteps::propagationOfNothing()
{
    propagateTable(m_run->context, {}, {}, m_options);
    QCOMPARE(m_run->host.calls, (QStringList{str("propagation begins"), str("propagation ends")}));
}

DRAVOLIN_TEST(TestLutSteps)
#include "tst_lutsteps.moc"
