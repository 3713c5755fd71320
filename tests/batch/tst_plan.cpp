#include "batch/Plan.h"
#include "support/ScratchFolder.h"
#include "support/TestEntry.h"

#include <memory>

using namespace dravolin;
using test::ScratchFolder;

// What is judged before anything is written.
class TestPlan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void judgesRows_data();
    void judgesRows();
    void leavesDestinationsOfItsOwnRun();
    void writesNothing();

private:
    [[nodiscard]] Plan planOf(const QByteArray &rows, const QStringList &casesThere = {}) const;
    std::unique_ptr<ScratchFolder> m_scratch;
};

void TestPlan::init()
{
    m_scratch = std::make_unique<ScratchFolder>();
    m_scratch->folder(QStringLiteral("in"));
    m_scratch->folder(QStringLiteral("in/below"));
    m_scratch->folder(QStringLiteral("other"));
    m_scratch->folder(QStringLiteral("empty"));
    m_scratch->folder(QStringLiteral("used"));
    m_scratch->file(QStringLiteral("used/x"));
    m_scratch->file(QStringLiteral("good.txt"), "0010,0030\tDate\n");
    m_scratch->file(QStringLiteral("bad.txt"),
                    "0010,0010\tName\n10,10\tName\n0010,9999\tx\ty\n7fe0,0010\tPixel Data\n"
                    "0010,0040\tSex\tM\n0010,0040\tSex\tF\n");
    m_scratch->file(QStringLiteral("marked.txt"), "0010,0030\tDate\t<LUT_Names>\n");
    m_scratch->file(QStringLiteral("AnonymizationLUT_Names.txt"), "<missing>\tx\n");
    m_scratch->file(QStringLiteral("AnonymizationLUT_Other.txt"), "<missing>\tx\n");
    m_scratch->file(QStringLiteral("incomplete_Names.txt"), "a\tb\n");
}

Plan TestPlan::planOf(const QByteArray &rows, const QStringList &casesThere) const
{
    BatchOptions options;
    options.list = m_scratch->file(QStringLiteral("list.csv"),
                                   "source,destination,case_id,configuration,table,uid_root\n" + rows);
    options.wholeFolder = m_scratch->path(QStringLiteral("list.run"));
    options.defaultConfiguration = m_scratch->path(QStringLiteral("good.txt"));
    return judgeList(options, [&casesThere](const QString &) { return casesThere; });
}

void TestPlan::judgesRows_data()
{
    QTest::addColumn<QByteArray>("rows");
    QTest::addColumn<QStringList>("problems"); // with "line: " in front and @ for the folder
    const auto lines = [](const char *text) {
        return *text == 0 ? QStringList() : QString::fromLatin1(text).split(u'\n');
    };
    QTest::newRow("good") << QByteArray("in,out,1,,,\nother,empty,2,,,1.2.345678901234567890123\n")
                          << lines("");
    QTest::newRow("missing source") << QByteArray("none,out,1,,,\n") << lines("2: there is no source @/none");
    QTest::newRow("destination in use")
        << QByteArray("in,used,1,,,\n") << lines("2: the destination @/used is in use");
    QTest::newRow("destination in the source")
        << QByteArray("in,in/new,1,,,\n")
        << lines("2: the destination and the source of line 2 lie one inside the other");
    QTest::newRow("destination around another source")
        << QByteArray("in/below,out,1,,,\nother,in,2,,,\n")
        << lines("3: the destination @/in is in use\n"
                 "3: the destination and the source of line 2 lie one inside the other");
    QTest::newRow("destinations one inside the other")
        << QByteArray("in,out,1,,,\nother,out/2,2,,,\n")
        << lines("3: the destination lies inside that of line 2");
    QTest::newRow("one destination twice, and none at all")
        << QByteArray("in,out,1,,,\nother,out,2,,,\nother,,3,,,\n")
        << lines("3: has the destination of line 2\n4: has no destination");
    QTest::newRow("unusable root") << QByteArray("in,out,1,,,1.2.3\n")
                                   << lines("2: the UID root 1.2.3 makes no UID with the case id 1");
    QTest::newRow("a root with a component that is none")
        << QByteArray("in,out,1,,,1.2.345..678901234567890123\nother,empty,2,,,1.2.0345678901234567890123\n")
        << lines("2: the UID root 1.2.345..678901234567890123 makes no UID with the case id 1\n"
                 "3: the UID root 1.2.0345678901234567890123 makes no UID with the case id 2");
    QTest::newRow("a root with a dot at its end")
        << QByteArray("in,out,1,,,1.2.345678901234567890123.\n") << lines("");
    QTest::newRow("two cases with one new study")
        << QByteArray("in,out,2,,,1.2.345678901234567890123\nother,empty,002,,,1.2.345678901234567890123.\n")
        << lines("3: its UID root and case id make the same Study Instance UID as those of line 2");
    QTest::newRow("lines that do nothing")
        << QByteArray("in,out,1,bad.txt,,\n")
        << lines("2: the configuration has a line that does nothing: 10,10\n"
                 "2: the configuration has a line that does nothing: (0010,0010) in line 1 is set by the run "
                 "itself\n"
                 "2: the configuration has a line that does nothing: (0010,0040) in line 5 is decided by "
                 "line 6\n"
                 "2: the configuration has a line that does nothing: (0010,9999) is not known, so no value "
                 "can be "
                 "written for it\n"
                 "2: the configuration has a line that does nothing: (7fe0,0010) is pixel data, which is "
                 "never altered");
    QTest::newRow("missing configuration")
        << QByteArray("in,out,1,none.txt,,\n")
        << lines("2: the configuration @/none.txt cannot be read, or is not UTF-8");
    QTest::newRow("a table") << QByteArray("in,out,1,marked.txt,AnonymizationLUT_Names.txt,\n") << lines("");
    QTest::newRow("a table that is not named")
        << QByteArray("in,out,1,,AnonymizationLUT_Names.txt,\n")
        << lines("2: the configuration does not name the table <LUT_Names>");
    QTest::newRow("another table than the named one")
        << QByteArray("in,out,1,marked.txt,AnonymizationLUT_Other.txt,\n")
        << lines("2: the configuration names the table <LUT_Names>, the row does not\n"
                 "2: the configuration does not name the table <LUT_Other>");
    QTest::newRow("all at once") << QByteArray("none,used,1,none.txt,,\nnone,out,2,,,7\n")
                                 << lines("2: there is no source @/none\n"
                                          "2: the configuration @/none.txt cannot be read, or is not UTF-8\n"
                                          "2: the destination @/used is in use\n"
                                          "3: there is no source @/none\n"
                                          "3: the UID root 7 makes no UID with the case id 2");
}

void TestPlan::judgesRows()
{
    QFETCH(QByteArray, rows);
    QFETCH(QStringList, problems);
    QStringList found;
    for (const ListProblem &problem : planOf(rows).problems)
        found.append(QStringLiteral("%1: %2").arg(QString::number(problem.line), problem.text));
    QCOMPARE(found, problems.replaceInStrings(QStringLiteral("@"), m_scratch->path()));
}

void TestPlan::leavesDestinationsOfItsOwnRun()
{
    QCOMPARE(planOf("in,used,1,,,\n", {QStringLiteral("1")}).problems, QList<ListProblem>());
    const QString other =
        QStringLiteral("the destination %1 holds what this run has made of the case 2; empty it "
                       "first, or take another")
            .arg(m_scratch->path(QStringLiteral("used")));
    QCOMPARE(planOf("in,used,1,,,\n", {QStringLiteral("2")}).problems, (QList<ListProblem>{{2, other}}));
}

void TestPlan::writesNothing()
{
    (void)planOf("in,out,1,,,\n");
    const QStringList before = listNames(m_scratch->path());
    Plan plan = planOf("in,out,1,,,\n");
    scanSources(plan, 2, nullptr, [] { return false; });
    QCOMPARE(plan.cases.value(0).folders, 2);
    QCOMPARE(listNames(m_scratch->path()), before);
}

DRAVOLIN_TEST(TestPlan)
#include "tst_plan.moc"
