#include "base/Files.h"
#include "config/LutFile.h"
#include "support/TableText.h"
#include "support/TestEntry.h"

#include <QTemporaryDir>
#include <QTest>

using namespace dravolin;
using test::described;

namespace {

void row(const char *name, const QByteArray &content, const char *table)
{
    QTest::newRow(name) << content << QString::fromUtf8(table);
}

} // namespace

class TestLutFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheFields_data();
    void readsTheFields();
    void readsTheLines_data();
    void readsTheLines();
    void tidiesTheMissingText_data();
    void tidiesTheMissingText();
    void takesTheMissingTextAsWritten_data();
    void takesTheMissingTextAsWritten();
    void hasNoTableWithoutText_data();
    void hasNoTableWithoutText();
    void unreadableFilesHaveNoTable();
    void manyLinesComeInWhole();
    void aLongLineComesInWhole();
    void marksInsideStayCharacters();
};

void TestLutFile::readsTheFields_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("table");
    row("one tab", "ABC\tS1", "ABC=S1");
    row("three tabs", "ABC\t\t\tSubject_001", "ABC=Subject_001");
    row("middle field is ignored", "ABC\tX\tSubject_001", "ABC=Subject_001");
    row("three spaces", "ABC   DEF", "ABC=DEF");
    row("four spaces", "ABC    DEF", "ABC=DEF");
    row("six spaces", "ABC      DEF", "ABC=DEF");
    row("two spaces", "ABC  DEF", "");
    row("one field", "ABC", "");
    row("one tab at the end is trimmed", "ABC\t", "");
    row("tabs alone", "\t\t\t", "");
    row("middle field between spaces", "ABC   X   DEF", "ABC=DEF");
    row("spaces inside the key, as many fields as by the tab", "John   Doe\tS1", "John   Doe=S1");
    row("more fields by spaces than by the tab", "John   Doe   X\tS1", "John=X");
    row("two tabs outnumber one run of spaces", "John   Doe\t\tS1", "John   Doe=S1");
    row("spaces behind the first tab do not count", "John\tDoe   X   Y", "John=Doe   X   Y");
    row("keeps an empty new value of spaces before a tab", "A   B   \tX", "A=");
    row("fields are trimmed", "  ABC \t \tDEF  ", "ABC=DEF");
    row("no-break spaces are trimmed",
        "\xC2\xA0"
        "ABC\xC2\xA0\t\xE2\x80\x83"
        "DEF\xC2\xA0",
        "ABC=DEF");
    row("blanks inside stay", "John Doe\tSubject  1", "John Doe=Subject  1");
    row("a dot stays", "ABC\t.", "ABC=.");
    row("dots stay", "...\t...", "...=...");
    row("skip", "PHANTOM\t<skip>", "PHANTOM=<skip>");
    row("other values keep their case", "ABC\tNot Known", "ABC=Not Known");
    row("key may be anything", "\"$x`\\\t'%1'", "\"$x`\\='%1'");
    row("umlauts", "M\xC3\xBCller\tS\xC3\xA4", "M\xC3\xBCller=S\xC3\xA4");
    row("beyond the first plane", "\xF0\x9F\x98\x80\tS1", "\xF0\x9F\x98\x80=S1");
}

void TestLutFile::readsTheFields()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, table);
    QCOMPARE(described(parseLut(content)), table);
    QCOMPARE(described(parseLut(content + '\n')), table);
}

void TestLutFile::readsTheLines_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("table");
    row("LF", "A\t1\nB\t2\n", "A=1|B=2");
    row("CR LF", "A\t1\r\nB\t2\r\n", "A=1|B=2");
    row("CR", "A\t1\rB\t2", "A=1|B=2");
    row("VT and FF", "A\t1\vB\t2\fC\t3", "A=1|B=2|C=3");
    row("next line",
        "A\t1\xC2\x85"
        "B\t2",
        "A=1|B=2");
    row("line and paragraph separator",
        "A\t1\xE2\x80\xA8"
        "B\t2\xE2\x80\xA9"
        "C\t3",
        "A=1|B=2|C=3");
    row("no line break at the end", "A\t1\nB\t2", "A=1|B=2");
    row("empty lines", "\n\nA\t1\n\n\nB\t2\n\n", "A=1|B=2");
    row("comment", "# A\t0\nA\t1\n#B\t2", "A=1");
    row("blanks before a comment", "  # text\tx\n\t#text\tx\nA\t1", "A=1");
    row("hash behind other text", "A#\t1 # one\nB #\t2", "A#=1 # one|B #=2");
    row("hash as a value", "A\t#1", "A=#1");
    row("a later line wins", "A\t1\nB\t2\nA\t3", "A=3|B=2");
    row("a later line with one field does not", "A\t1\nA", "A=1");
    row("keys differ by case", "abc\t1\nABC\t2", "ABC=2|abc=1");
    row("byte-order mark",
        "\xEF\xBB\xBF"
        "A\t1\nB\t2",
        "A=1|B=2");
    row("nothing but comments", "#\n# text\tx\n", "");
    row("nothing but one-field lines", "A\nB\n", "");
    row("one line break", "\n", "");
}

void TestLutFile::readsTheLines()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, table);
    QCOMPARE(described(parseLut(content)), table);
}

void TestLutFile::tidiesTheMissingText_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("table");
    row("untouched", "<missing>\t\t<supply missing value replacement, eg: Unknown>", "<missing>=Unknown");
    row("untouched but for its case", "<missing>\t<SUPPLY missing value replacement, eg: unknown>",
        "<missing>=Unknown");
    row("keeps lower case only", "<missing>\tNot Known", "<missing>=not known");
    row("keeps lower case only of a name", "<missing>\tUnknown", "<missing>=unknown");
    row("keeps lower case only of the keyword", "<missing>\t<SKIP>", "<missing>=<skip>");
    row("keeps lower case only beyond ASCII", "<missing>\t\xC3\x84", "<missing>=\xC3\xA4");
    row("on any line", "A\tX\n<missing>\tY\nB\tZ", "<missing>=y|A=X|B=Z");
    row("by spaces", "<missing>   Y", "<missing>=y");
    row("empty", "<missing>   Y   \tX", "<missing>=");
    row("the key in another case is any key", "<Missing>\tY", "<Missing>=Y");
    row("as a new value it is any value", "A\t<Missing>", "A=<Missing>");
    row("later line wins", "<missing>\tA\n<missing>\tB", "<missing>=b");
}

void TestLutFile::tidiesTheMissingText()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, table);
    QCOMPARE(described(parseLut(content)), table);
}

void TestLutFile::takesTheMissingTextAsWritten_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("table");
    row("capital letters", "A\tB\n<missing>\tMixed Case Value\n", "<missing>=Mixed Case Value|A=B");
    row("the keyword in another case is any value", "<missing>\t<SKIP>", "<missing>=<SKIP>");
    row("untouched but for its case", "<missing>\t<SUPPLY missing value replacement, eg: unknown>",
        "<missing>=Unknown");
}

void TestLutFile::takesTheMissingTextAsWritten()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, table);
    QCOMPARE(described(parseLut(content, MissingText::AsWritten)), table);
}

void TestLutFile::hasNoTableWithoutText_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("byte-order mark alone") << QByteArray("\xEF\xBB\xBF");
    QTest::newRow("Latin-1 in one line of many") << QByteArray("A\t1\nM\xFCller\tS1\nB\t2\n");
    QTest::newRow("cut inside the last character") << QByteArray("A\tS\xC3");
    QTest::newRow("overlong") << QByteArray("A\t\xC0\x80");
    QTest::newRow("surrogate") << QByteArray("A\t\xED\xA0\x80");
    QTest::newRow("in a comment") << QByteArray("# \xFF\nA\t1\n");
}

void TestLutFile::hasNoTableWithoutText()
{
    QFETCH(QByteArray, content);
    QCOMPARE(described(parseLut(content)), QStringLiteral("none"));
}

void TestLutFile::unreadableFilesHaveNoTable()
{
    const QTemporaryDir folder;
    const QString path = joinPath(folder.path(), QStringLiteral("AnonymizationLUT_A.txt"));
    QCOMPARE(described(loadLut(path)), QStringLiteral("none"));
    QCOMPARE(described(loadLut(folder.path())), QStringLiteral("none"));
    QCOMPARE(described(loadLut(QString())), QStringLiteral("none"));
    QVERIFY(writeText(path, QString()));
    QCOMPARE(described(loadLut(path)), QStringLiteral("none"));
    QVERIFY(writeText(path, QStringLiteral("A\tB\n")));
    QCOMPARE(described(loadLut(path)), QStringLiteral("A=B"));
}

void TestLutFile::manyLinesComeInWhole()
{
    constexpr int rows = 20000; // several times what is decoded at once
    QByteArray content;
    for (int i = 0; i < rows; ++i)
        content +=
            "K\xC3\xA4" + QByteArray::number(i) + "\t\t\xE2\x82\xAC" + QByteArray::number(i * 7) + '\n';
    const std::optional<LutTable> table = parseLut(content);
    QVERIFY(table);
    QCOMPARE(table->size(), rows);
    for (int i = 0; i < rows; ++i)
        QCOMPARE(table->value(QStringLiteral("K\u00E4") + QString::number(i)),
                 QStringLiteral("\u20AC") + QString::number(i * 7));
}

void TestLutFile::aLongLineComesInWhole()
{
    const QByteArray key(200000, 'k');
    const QByteArray value(300000, 'v');
    for (const QByteArray &lineEnd : {QByteArray("\n"), QByteArray("\r"), QByteArray()}) {
        const std::optional<LutTable> table =
            parseLut("A\t1" + (lineEnd.isEmpty() ? "\n" : lineEnd) + key + '\t' + value + lineEnd);
        QVERIFY(table);
        QCOMPARE(table->size(), 2);
        QCOMPARE(table->value(QStringLiteral("A")), QStringLiteral("1"));
        QCOMPARE(table->value(QString::fromUtf8(key)), QString::fromUtf8(value));
    }
}

void TestLutFile::marksInsideStayCharacters()
{
    const QString mark(QChar::ByteOrderMark);
    QByteArray content;
    while (content.size() < 200000) // some line will stand at the beginning of what is decoded at once
        content += QByteArray("\xEF\xBB\xBF") + QByteArray::number(content.size()) + "\tX\n";
    content += "\xEF\xBB\xBFlast\tX";
    const std::optional<LutTable> table = parseLut(content);
    QVERIFY(table);
    QVERIFY(table->contains(QStringLiteral("0"))); // only the first one is a byte-order mark
    QVERIFY(table->contains(mark + QStringLiteral("last")));
    for (const QString &key : table->keys())
        QVERIFY(key == QStringLiteral("0") || key.startsWith(mark));
}

DRAVOLIN_TEST(TestLutFile)
#include "tst_lutfile.moc"
