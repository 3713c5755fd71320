#include "real/RealLutTest.h"
#include "support/TestEntry.h"

#include "processing/LutConstruction.h"

#include <QTest>

using namespace dravolin;

// Tables from data.
class TestRealLutConstruction : public test::RealLutTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() { setUp(); }
    void constructsATableFromATree();
    void constructsATableFromNamedFiles();
    void keepsTheLastNameOpenAtItsEnd();
    void constructionOfALongListKeepsTheLastCommandsValues();
    void constructionWithoutSuchValuesWritesTheExplanation();
};

void TestRealLutConstruction::constructsATableFromATree()
{
    const QStringList images = {image(QStringLiteral("in/b.dcm"), QStringLiteral("PAT-1234")),
                                image(QStringLiteral("in/a b.dcm"), QStringLiteral("John Doe")),
                                image(QStringLiteral("in/deep/er/x"), QStringLiteral("abc")),
                                image(QStringLiteral("in/deep/er/y"), QStringLiteral("PAT-1234")),
                                image(QStringLiteral("in/none.dcm"), QString())};
    m_run->writeFile(QStringLiteral("in/deep/notes.txt"), QStringLiteral("[not a value]\n"));
    m_run->makeFolder(QStringLiteral("in/empty"));
    QList<std::optional<QByteArray>> before;
    for (const QString &one : images)
        before.append(readBytes(one));
    const test::LogCatcher log;

    QCOMPARE(construct({path("in")}, {}), QStringLiteral("\nDone constructing LUT. File placed on Desktop."));

    QCOMPARE(table(),
             lutText(tag, {QStringLiteral("abc"), QStringLiteral("John Doe"), QStringLiteral("PAT-1234")}));
    for (qsizetype i = 0; i < images.size(); ++i)
        QCOMPARE(readBytes(images.at(i)), before.at(i));
    QCOMPARE(test::LogCatcher::messages(), QStringList());
    QVERIFY(!pathExists(path("in/.noxTemp.sh")));
    QVERIFY(pathExists(path("in/.noxTemp.out")));
}

void TestRealLutConstruction::constructsATableFromNamedFiles()
{
    const QString a = image(QStringLiteral("in/a.dcm"), QStringLiteral("A"));
    const QString b = image(QStringLiteral("in/b b.dcm"), QStringLiteral("B"));
    image(QStringLiteral("in/c.dcm"), QStringLiteral("C"));
    image(QStringLiteral("in/sub/d.dcm"), QStringLiteral("D"));
    construct({}, {b, a});
    QCOMPARE(table(), lutText(tag, {QStringLiteral("A"), QStringLiteral("B")}));
}

void TestRealLutConstruction::keepsTheLastNameOpenAtItsEnd()
{
    const QString a = image(QStringLiteral("in/a"), QStringLiteral("A"));
    image(QStringLiteral("in/ab"), QStringLiteral("AB"));
    const QString b = image(QStringLiteral("in/b"), QStringLiteral("B"));
    image(QStringLiteral("in/bc"), QStringLiteral("BC"));
    construct({}, {a, b});
    QCOMPARE(table(), lutText(tag, {QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("BC")}));
}

void TestRealLutConstruction::constructionOfALongListKeepsTheLastCommandsValues()
{
    QStringList files;
    for (int i = 0; i < 4; ++i)
        files.append(image(QStringLiteral("in/%1").arg(i), QString::number(i)));
    const qsizetype length = constructionPrefix(m_run->paths.dcmdump(), tag).size() + 4 * 4 + 41;
    m_run->context.max_arg_len = length; // two commands with two files each
    construct({}, files);
    QCOMPARE(table(), lutText(tag, {QStringLiteral("2"), QStringLiteral("3")}));
}

void TestRealLutConstruction::constructionWithoutSuchValuesWritesTheExplanation()
{
    image(QStringLiteral("in/a"), QString());
    m_run->writeFile(QStringLiteral("in/notes.txt"), QStringLiteral("hello"));
    QCOMPARE(construct({path("in"), m_run->makeFolder(QStringLiteral("empty"))}, {}),
             QStringLiteral("\nDone constructing LUT. File placed on Desktop."));
    QCOMPARE(table(), lutText(tag, {}));
}

DRAVOLIN_TEST(TestRealLutConstruction)
#include "tst_reallutconstruction.moc"
