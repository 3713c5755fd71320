#include "batch/Plan.h"
#include "support/ScratchFolder.h"
#include "support/TestEntry.h"

using namespace dravolin;
using test::ScratchFolder;

// What a scan keeps of the files of a run.
class TestPlannedFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void givesFilesBackAsTheyWere();
    void leavesNothingBehind();
    void saysWhenItCannotBeWritten();
    void scansInTheOrderOfPaths();
};

void TestPlannedFiles::givesFilesBackAsTheyWere()
{
    const ScratchFolder scratch;
    PlannedFiles files(scratch.path());
    const PlannedFile first = {fromBytes("\xff/x"), 12, 34, "1.2", "1.3", false, {}};
    const PlannedFile second = {QStringLiteral("y"), 0, 0, {}, {}, true, QStringLiteral("is damaged")};
    files.add(first);
    const qint64 place = files.end();
    files.add(second);
    QVERIFY(files.isGood());
    for (const auto &[from, expected] : {std::pair(place, second), std::pair(qint64(0), first)}) {
        qint64 at = from;
        QCOMPARE(files.read(&at), expected);
        QCOMPARE(at, from == 0 ? place : files.end());
    }
    QVERIFY(files.isGood());
}

void TestPlannedFiles::leavesNothingBehind()
{
    const ScratchFolder scratch;
    PlannedFiles files(scratch.path());
    files.add({QStringLiteral("x"), 1, 2, {}, {}, false, {}});
    QVERIFY(files.isGood());
    QCOMPARE(listNames(scratch.path()), QStringList());
}

void TestPlannedFiles::saysWhenItCannotBeWritten()
{
    const ScratchFolder scratch;
    PlannedFiles files(scratch.path(QStringLiteral("none")));
    QVERIFY(!files.isGood());
}

void TestPlannedFiles::scansInTheOrderOfPaths()
{
    const ScratchFolder scratch;
    const QStringList paths = {QStringLiteral("a-x"), QStringLiteral("a.x"), QStringLiteral("a/b.x"),
                               QStringLiteral("a/b/x"), QStringLiteral("ab")};
    scratch.folder(QStringLiteral("in"));
    scratch.folder(QStringLiteral("in/a"));
    scratch.folder(QStringLiteral("in/a/b"));
    for (const QString &path : paths)
        scratch.file(QStringLiteral("in/") + path);
    Plan plan;
    plan.cases.resize(2);
    plan.cases[0].row.source = scratch.path(QStringLiteral("in"));
    plan.cases[1].row.source = scratch.path(QStringLiteral("in/ab"));
    PlannedFiles files(scratch.path());
    scanSources(plan, 2, &files, [] { return false; });
    QStringList found;
    qint64 place = plan.cases[0].firstFile;
    for (qsizetype i = 0; i < plan.cases[0].files; ++i)
        found.append(files.read(&place).path);
    QCOMPARE(found, paths);
    QCOMPARE(place, plan.cases[1].firstFile);
    QCOMPARE(plan.cases[0].folders, 3);
    QCOMPARE(plan.cases[0].troubled.size(), 5); // they are no DICOM files
    QCOMPARE(files.read(&place).path, QStringLiteral("ab"));
    QCOMPARE(plan.cases[1].files, 1);
}

DRAVOLIN_TEST(TestPlannedFiles)
#include "tst_plannedfiles.moc"
