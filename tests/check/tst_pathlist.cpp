#include "base/PathText.h"
#include "check/FileTree.h"
#include "support/ScratchFolder.h"
#include "support/TestEntry.h"

using namespace dravolin;
using check::PathList;

// Paths of many files.
class TestPathList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void givesPathsBackAsTheyWere();
    void keepsAnyNumberOfPaths();
    void findsPathsInOrder();
    void tellsTheOrderOfTextsAndOfBytes();
    void listsATreeInTheOrderOfWholePaths();
};

void TestPathList::givesPathsBackAsTheyWere()
{
    const QStringList paths = {QStringLiteral("a"), QString(), QStringLiteral("b/\u00e4\U0001F600"),
                               fromBytes("\xff\x80/x")};
    PathList list;
    QVERIFY(list.isEmpty());
    for (const QString &path : paths)
        list.append(path);
    QCOMPARE(list.size(), 4);
    QCOMPARE(list[3], paths[3]);
    QCOMPARE(list.toList(), paths);
}

void TestPathList::keepsAnyNumberOfPaths()
{
    PathList list;
    QStringList paths; // of unequal lengths, in order
    std::vector<quint32> backwards;
    for (int i = 0; i < 1000; ++i) {
        paths.append(QStringLiteral("%1").arg(i, 4, 10, QLatin1Char('0')) + QString(i % 7, u'x'));
        backwards.insert(backwards.begin(), static_cast<quint32>(i));
        list.append(paths.last());
        QCOMPARE(list.size(), paths.size());
    }
    QCOMPARE(list.toList(), paths);
    for (qsizetype i = 0; i < paths.size(); ++i)
        QCOMPARE(list.indexOf(paths[i]), i);
    PathList reversed;
    for (auto path = paths.crbegin(); path != paths.crend(); ++path)
        reversed.append(*path);
    QCOMPARE(reversed.sorted(PathList::Order::Texts), backwards);
    QCOMPARE(reversed.sorted(PathList::Order::Bytes), backwards);
}

void TestPathList::findsPathsInOrder()
{
    PathList list;
    QCOMPARE(list.indexOf(QStringLiteral("a")), -1);
    // in order as texts, which their bytes are not
    const QStringList paths = {QStringLiteral("a"), QStringLiteral("a-"),      QStringLiteral("a/b"),
                               QStringLiteral("b"), QStringLiteral("b\u00e4"), QStringLiteral("b\U0001F600"),
                               fromBytes("b\xff"),  QStringLiteral("b\uFF01"), fromBytes("\xff")};
    QVERIFY(std::is_sorted(paths.cbegin(), paths.cend()));
    for (const QString &path : paths)
        list.append(path);
    for (qsizetype i = 0; i < paths.size(); ++i)
        QCOMPARE(list.indexOf(paths[i]), i);
    for (const QString &path : {QString(), QStringLiteral("a/"), QStringLiteral("c"),
                                QStringLiteral("b\u00e5"), QStringLiteral("b\uFF02"), fromBytes("\xff\xff")})
        QCOMPARE(list.indexOf(path), -1);
}

void TestPathList::tellsTheOrderOfTextsAndOfBytes()
{
    PathList list;
    QVERIFY(list.sorted(PathList::Order::Texts).empty());
    for (const QString &path : {QStringLiteral("b"), QStringLiteral("a\uFF01"), QStringLiteral("a\U0001F600"),
                                QStringLiteral("a"), QStringLiteral("a/"), QStringLiteral("a-"), QString()})
        list.append(path);
    QCOMPARE(list.sorted(PathList::Order::Texts), (std::vector<quint32>{6, 3, 5, 4, 2, 1, 0}));
    QCOMPARE(list.sorted(PathList::Order::Bytes), (std::vector<quint32>{6, 3, 5, 4, 1, 2, 0}));
}

void TestPathList::listsATreeInTheOrderOfWholePaths()
{
    const test::ScratchFolder scratch;
    QStringList paths = {QStringLiteral("a/x"), QStringLiteral("a/b/x"), QStringLiteral("a-x"),
                         QStringLiteral("a.x"), QStringLiteral("ab"),    QStringLiteral("a/b.x")};
    scratch.folder(QStringLiteral("a"));
    scratch.folder(QStringLiteral("a/b"));
    for (const QString &path : paths)
        scratch.file(path);
    paths.sort();
    QCOMPARE(check::listTree(scratch.path()).files.toList(), paths);
}

DRAVOLIN_TEST(TestPathList)
#include "tst_pathlist.moc"
