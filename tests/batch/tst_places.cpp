#include "batch/Places.h"
#include "support/ScratchFolder.h"
#include "support/TestEntry.h"

#include <memory>

using namespace dravolin;
using test::ScratchFolder;

// What a run would write to, told by what it is and not by its name.
class TestPlaces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void followsLinksInThePartThatExists_data();
    void followsLinksInThePartThatExists();
    void judgesRows_data();
    void judgesRows();
    void judgesFolderAndKey_data();
    void judgesFolderAndKey();

private:
    [[nodiscard]] QStringList problemsOf(const QString &rows, const QString &folder,
                                         const QString &key) const;
    [[nodiscard]] QStringList inScratch(const char *texts) const;
    std::unique_ptr<ScratchFolder> m_scratch;
};

void TestPlaces::init()
{
    m_scratch = std::make_unique<ScratchFolder>();
    for (const char *name : {"s1", "s1/below", "s2", "real"})
        m_scratch->folder(QString::fromLatin1(name));
    m_scratch->folder(fromBytes("\xff"));
    m_scratch->file(QStringLiteral("s2/key"));
    m_scratch->folder(QStringLiteral("own"));
    m_scratch->link(QStringLiteral("own/secret"), QStringLiteral("../s2"));
    m_scratch->link(QStringLiteral("s1alias"), QStringLiteral("s1"));
    m_scratch->link(QStringLiteral("alias"), QStringLiteral("real"));
    m_scratch->link(QStringLiteral("latin"), fromBytes("\xff"));
    m_scratch->link(QStringLiteral("nowhere"), QStringLiteral("s1/new"));
    m_scratch->link(QStringLiteral("keyalias"), QStringLiteral("s2/key"));
}

// Lines of text with @ for the folder.
QStringList TestPlaces::inScratch(const char *texts) const
{
    return *texts == 0 ? QStringList()
                       : QString::fromLatin1(texts).replace(u'@', m_scratch->path()).split(u'\n');
}

QStringList TestPlaces::problemsOf(const QString &rows, const QString &folder, const QString &key) const
{
    BatchOptions options;
    options.wholeFolder = m_scratch->path(folder);
    options.key = m_scratch->path(key);
    const CaseList list =
        parseCaseList(QStringLiteral("source,destination,case_id\n") + rows, m_scratch->path());
    QStringList found;
    for (const ListProblem &problem : placeProblems(list.rows, options))
        found.append(QStringLiteral("%1: %2").arg(QString::number(problem.line), problem.text));
    return found;
}

void TestPlaces::followsLinksInThePartThatExists_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("place");
    const auto row = [](const char *path, const QByteArray &place) {
        QTest::newRow(path) << QString::fromLatin1(path) << fromBytes(place);
    };
    row("s1", "s1");
    row("s1alias", "s1");
    row("s1alias/below/new/17", "s1/below/new/17");
    row("none/17", "none/17");
    row("nowhere/17", "nowhere/17");
    row("latin/new", "\xff/new");
}

void TestPlaces::followsLinksInThePartThatExists()
{
    QFETCH(QString, path);
    QFETCH(QString, place);
    const QString folder = placeOf(m_scratch->path());
    QCOMPARE(placeOf(m_scratch->path(path)), joinPath(folder, place));
    QCOMPARE(placeOf(QStringLiteral("/")), QStringLiteral("/"));
    QCOMPARE(placeOf(QString()), QString());
}

void TestPlaces::judgesRows_data()
{
    QTest::addColumn<QString>("rows");
    QTest::addColumn<QString>("problems");
    const auto row = [](const char *name, const char *rows, const char *problems) {
        QTest::newRow(name) << QString::fromLatin1(rows) << QString::fromLatin1(problems);
    };
    row("good", "s1,real/1,1\ns1,alias/2,2\ns2,alias/10,3\n", "");
    row("one destination by two names", "s1,real/17,1\ns2,alias/17,2\ns2,alias/17,3\n",
        "3: has the destination of line 2\n4: has the destination of line 2");
    row("destination in a destination", "s1,alias/17/x,1\ns2,real/17,2\n",
        "2: the destination lies inside that of line 3");
    row("destination in its source", "s1,s1alias/out,1\n",
        "2: the destination and the source of line 2 lie one inside the other");
    row("destination in another source", "s2,s1alias/out,1\ns1,out,2\n",
        "2: the destination and the source of line 3 lie one inside the other");
    row("destination around a source", "s1alias/below,out,1\ns2,s1,2\n",
        "3: the destination and the source of line 2 lie one inside the other");
    row("names that are no UTF-8", "s1,latin/1,1\ns2,latin/1/2,2\n",
        "3: the destination lies inside that of line 2");
}

void TestPlaces::judgesRows()
{
    QFETCH(QString, rows);
    QFETCH(QString, problems);
    QCOMPARE(problemsOf(rows, QStringLiteral("run"), QStringLiteral("run/secret/key")),
             inScratch(qPrintable(problems)));
}

void TestPlaces::judgesFolderAndKey_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("problems");
    const auto row = [](const char *name, const char *folder, const char *key, const char *problems) {
        QTest::newRow(name) << QString::fromLatin1(folder) << QString::fromLatin1(key)
                            << QString::fromLatin1(problems);
    };
    row("outside", "run", "key", "");
    row("folder in a source", "s1alias/run", "key", "2: the source holds the run's own folder");
    row("its secret in a source", "own", "key", "3: the source holds the run's own folder");
    row("folder in a destination", "alias/17/run", "key",
        "2: the destination and the run's own folder lie one inside the other");
    row("folder around a destination", "alias", "key",
        "2: the destination and the run's own folder lie one inside the other");
    row("new key in a source", "run", "s1alias/key", "2: the key @/s1alias/key lies in the source");
    row("old key in a source", "run", "keyalias", "3: the key @/keyalias lies in the source");
    row("key in a destination", "run", "alias/17/key", "2: the key @/alias/17/key lies in the destination");
}

void TestPlaces::judgesFolderAndKey()
{
    QFETCH(QString, folder);
    QFETCH(QString, key);
    QFETCH(QString, problems);
    QCOMPARE(problemsOf(QStringLiteral("s1,real/17,1\ns2,out,2\n"), folder, key),
             inScratch(qPrintable(problems)));
}

DRAVOLIN_TEST(TestPlaces)
#include "tst_places.moc"
