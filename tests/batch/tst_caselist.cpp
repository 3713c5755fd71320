#include "batch/CaseList.h"
#include "support/ScratchFolder.h"
#include "support/TestEntry.h"

using namespace dravolin;

Q_DECLARE_METATYPE(QList<dravolin::ListProblem>)

// The list of cases as it is written.
class TestCaseList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsEveryColumn();
    void takesPathsFromTheListsFolder();
    void readsAFileWithAByteOrderMark();
    void namesEveryProblem_data();
    void namesEveryProblem();
};

void TestCaseList::readsEveryColumn()
{
    const CaseList list = parseCaseList(
        QStringLiteral(
            "case_id;source;destination;diagnosis;keywords;credits;configuration;table;uid_root;identifiers\n"
            " 7 ;in;/out;d;k;c;conf.txt;lut.txt;1.2;ids.txt\n"),
        QStringLiteral("/lists"));
    QCOMPARE(list.problems, QList<ListProblem>());
    const CaseRow expected = {2,
                              QStringLiteral("/lists/in"),
                              QStringLiteral("/out"),
                              QStringLiteral("7"),
                              QStringLiteral("d"),
                              QStringLiteral("k"),
                              QStringLiteral("c"),
                              QStringLiteral("/lists/conf.txt"),
                              QStringLiteral("/lists/lut.txt"),
                              QStringLiteral("1.2"),
                              QStringLiteral("/lists/ids.txt")};
    QCOMPARE(list.rows, QList<CaseRow>{expected});
}

void TestCaseList::takesPathsFromTheListsFolder()
{
    const CaseList list = parseCaseList(QStringLiteral("source,destination,case_id,table\n../a/./b,c/,1,\n"),
                                        QStringLiteral("/x/y"));
    QCOMPARE(list.rows.value(0).source, QStringLiteral("/x/a/b"));
    QCOMPARE(list.rows.value(0).destination, QStringLiteral("/x/y/c"));
    QCOMPARE(list.rows.value(0).table, QString());
}

void TestCaseList::readsAFileWithAByteOrderMark()
{
    const test::ScratchFolder folder;
    const QString path =
        folder.file(QStringLiteral("list.csv"), "\xef\xbb\xbfsource,destination,case_id\r\n\xc3\xa4,b,1\r\n");
    const CaseList list = readCaseList(path);
    QCOMPARE(list.problems, QList<ListProblem>());
    QCOMPARE(list.rows.value(0).source, folder.path(QStringLiteral("\u00E4")));
}

void TestCaseList::namesEveryProblem_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<ListProblem>>("problems");
    const QString head = QStringLiteral("source,destination,case_id\n");
    QTest::newRow("no case") << head
                             << QList<ListProblem>{{0, QStringLiteral("there is no case in the list")}};
    QTest::newRow("columns") << QStringLiteral("source,source,dest\nx,y,z\n")
                             << QList<ListProblem>{
                                    {1, QStringLiteral("the column \"source\" is there twice")},
                                    {1, QStringLiteral("there is no column \"dest\"")},
                                    {1, QStringLiteral("the column \"destination\" is missing")},
                                    {1, QStringLiteral("the column \"case_id\" is missing")}};
    QTest::newRow("values") << head + QStringLiteral("a,,1\nb,c\n")
                            << QList<ListProblem>{{2, QStringLiteral("has no destination")},
                                                  {3, QStringLiteral("has 2 values for 3 columns")}};
    QTest::newRow("repetitions") << head + QStringLiteral("a,x,1\nb,./x,1\n")
                                 << QList<ListProblem>{{3, QStringLiteral("has the case_id of line 2")}};
}

void TestCaseList::namesEveryProblem()
{
    QFETCH(QString, text);
    QFETCH(QList<ListProblem>, problems);
    QCOMPARE(parseCaseList(text, QStringLiteral("/")).problems, problems);
}

DRAVOLIN_TEST(TestCaseList)
#include "tst_caselist.moc"
