#include "config/ConfigurationFile.h"
#include "support/ScratchFolder.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin;
using test::ScratchFolder;

class TestConfigurationFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsOneLine_data();
    void readsOneLine();
    void cleansValues_data();
    void cleansValues();
    void skipsComments_data();
    void skipsComments();
    void endsLinesAtEveryNewline_data();
    void endsLinesAtEveryNewline();
    void lastValueOfATagWins_data();
    void lastValueOfATagWins();
    void listsEachTagOnceInOrderOfCodeUnits();
    void loadsNothingFromWhatCannotBeRead_data();
    void loadsNothingFromWhatCannotBeRead();
    void loadsAFile();
    void loadsAnEmptyFileAsOneEmptyLine();
};

void TestConfigurationFile::readsOneLine_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("value"); // null: no value
    const auto row = [](const char *name, const char *line, const char *tag, const char *value = nullptr) {
        QTest::newRow(name) << QString::fromLatin1(line) << QString::fromLatin1(tag)
                            << QString::fromLatin1(value);
    };
    row("tag alone", "0010,0030", "0010,0030");
    row("empty line", "", "");
    row("line of spaces", "     ", "");
    row("line of tabs", "\t\t\t", "");

    row("tag, tab, name", "0010,0030\tName", "0010,0030");
    row("tag, tab, name, tab, value", "0010,0030\tName\tANON", "0010,0030", "ANON");
    row("tag, tab, name with three spaces and a value", "0010,0030\tName   ANON", "0010,0030", "ANON");
    row("tag, tab, name with two spaces and a word", "0010,0030\tName  ANON", "0010,0030");
    row("tag, tab, pieces: the last counts", "0010,0030\tName   x   ANON", "0010,0030", "ANON");
    row("tag, tab, tab, value", "0010,0030\t\tANON", "0010,0030", "ANON");
    row("four columns: the last counts", "0010,0030\tName\tx\tANON", "0010,0030", "ANON");
    row("three columns: spaces in the last stay", "0010,0030\tName\tA   B", "0010,0030", "A   B");
    row("tabs behind are trimmed first", "0010,0030\tName\t", "0010,0030");
    row("blanks around the columns", "  0010,0030 \t Name \t ANON  ", "0010,0030", "ANON");
    row("two columns, marker alone", "0010,0020\t<LUT_PatientID>", "0010,0020");
    row("three columns, marker", "0010,0020\tPatient ID\t<LUT_PatientID>", "0010,0020", "<LUT_PatientID>");

    row("tag, three spaces, name", "0010,0030   Name", "0010,0030");
    row("tag, three spaces, name, three spaces, value", "0010,0030   Name   ANON", "0010,0030", "ANON");
    row("four space columns: the last counts", "0010,0030   Name   x   ANON", "0010,0030", "ANON");
    row("one space does not separate", "0010,0030 Name", "0010,0030 Name");
    row("two spaces do not separate", "0010,0030  Name", "0010,0030  Name");
    row("four spaces and a word", "0010,0030    Name", "0010,0030");
    row("five spaces and a word", "0010,0030     Name", "0010,0030");
    row("six spaces and a word", "0010,0030      ANON", "0010,0030", "ANON");
    row("seven spaces and a word", "0010,0030       ANON", "0010,0030", "ANON");
    row("three spaces inside a value cut it", "0010,0030   Name   A   B", "0010,0030", "B");

    row("A   N   V<tab>R: text behind the tab is ignored", "A   N   V\tR", "A", "V");
    row("A   N   V<tab>R<tab>S: equal counts mean tabs", "A   N   V\tR\tS", "A   N   V", "S");
    row("A   N<tab>V: equal counts mean tabs", "A   N\tV", "A   N");
    row("A   N<tab>V   W: equal counts mean tabs", "A   N\tV   W", "A   N", "W");
    row("A<tab>N   V   W: spaces behind the tab do not choose the layout", "A\tN   V   W", "A", "W");

    row("parentheses stay", "(0010,0030)\tName\tANON", "(0010,0030)", "ANON");
    row("case stays", "0020,000D\tName\tAnOn", "0020,000D", "AnOn");
    row("anything is a tag", "hello", "hello");
    row("a remark behind one space belongs to the tag", "0010,0010 # x", "0010,0010 # x");
    row("# in a column is no comment", "0010,0010\t#\t# x", "0010,0010", "# x");
    row("shell characters stay", "0010,0010\tName\ta\"b$c`d\\e", "0010,0010", "a\"b$c`d\\e");
    row("keeps two quotes as a value", "0008,0020\tStudy Date\t\"\"", "0008,0020", "\"\"");
    row("keeps a plus sign in a tag", "+010,0010\tPatient's Name", "+010,0010");
    row("no-break spaces are trimmed",
        "\xA0"
        "0010,0030\tName\t\xA0"
        "ANON\xA0",
        "0010,0030", "ANON");
}

void TestConfigurationFile::readsOneLine()
{
    QFETCH(const QString, line);
    QFETCH(const QString, tag);
    QFETCH(const QString, value);
    const TagRules rules = parseConfiguration(line);
    QCOMPARE(rules.allTagsToAnonymize, QStringList{tag});
    QCOMPARE(rules.newValueDict, value.isNull() ? NewValueDict() : NewValueDict({{tag, value}}));
}

void TestConfigurationFile::cleansValues_data()
{
    QTest::addColumn<QString>("written");
    QTest::addColumn<QString>("value");
    const auto row = [](const char *written, const char *value) {
        QTest::newRow(written) << QString::fromLatin1(written) << QString::fromLatin1(value);
    };
    row(".", "");
    row("...", "");
    row(" .. ", "");
    row(". .", ". .");
    row("1.2.3.", "1.2.3.");
    row(".5", ".5");
    row("..a..", "..a..");
    row("<LUT_x>", "<LUT_x>");
    row("ANON", "ANON");
    row("-", "-");
    row("two  blanks", "two  blanks");
}

void TestConfigurationFile::cleansValues()
{
    QFETCH(const QString, written);
    QFETCH(const QString, value);
    const NewValueDict expected = {{QStringLiteral("0010,0030"), value}};
    QCOMPARE(parseConfiguration(QStringLiteral("0010,0030\tName\t") + written).newValueDict, expected);
    QCOMPARE(parseConfiguration(QStringLiteral("0010,0030   Name   ") + written).newValueDict, expected);
    QCOMPARE(parseConfiguration(QStringLiteral("0010,0030\tName   ") + written).newValueDict, expected);
}

void TestConfigurationFile::skipsComments_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("#") << QStringLiteral("#");
    QTest::newRow("text behind it") << QStringLiteral("# 0010,0010\tName\tANON");
    QTest::newRow("blanks in front") << QStringLiteral(" \t # comment");
    QTest::newRow("no blank behind") << QStringLiteral("#0010,0010");
    QTest::newRow("two") << QStringLiteral("## comment");
}

void TestConfigurationFile::skipsComments()
{
    QFETCH(const QString, line);
    const TagRules rules = parseConfiguration(line);
    QCOMPARE(rules.allTagsToAnonymize, QStringList());
    QCOMPARE(rules.newValueDict, NewValueDict());
}

void TestConfigurationFile::endsLinesAtEveryNewline_data()
{
    QTest::addColumn<QString>("newline");
    QTest::addColumn<bool>("emptyLineBetween");
    QTest::newRow("LF") << QStringLiteral("\n") << false;
    QTest::newRow("CR") << QStringLiteral("\r") << false;
    QTest::newRow("CR LF") << QStringLiteral("\r\n") << true;
    QTest::newRow("VT") << QStringLiteral("\v") << false;
    QTest::newRow("FF") << QStringLiteral("\f") << false;
    QTest::newRow("next line") << QString(QChar(0x85)) << false;
    QTest::newRow("line separator") << QString(QChar(0x2028)) << false;
    QTest::newRow("paragraph separator") << QString(QChar(0x2029)) << false;
}

void TestConfigurationFile::endsLinesAtEveryNewline()
{
    QFETCH(const QString, newline);
    QFETCH(const bool, emptyLineBetween);
    const TagRules rules =
        parseConfiguration(QStringLiteral("0010,0030\tName\tA") + newline + QStringLiteral("0010,0040"));
    QStringList tags = {QStringLiteral("0010,0030"), QStringLiteral("0010,0040")};
    if (emptyLineBetween)
        tags.prepend(QString());
    QCOMPARE(rules.allTagsToAnonymize, tags);
    QCOMPARE(rules.newValueDict, NewValueDict({{QStringLiteral("0010,0030"), QStringLiteral("A")}}));
}

void TestConfigurationFile::lastValueOfATagWins_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("value");
    QTest::newRow("A, then B") << QStringLiteral("t\tn\tA\nt\tn\tB") << QStringLiteral("B");
    QTest::newRow("A, then none") << QStringLiteral("t\tn\tA\nt") << QStringLiteral("A");
    QTest::newRow("A, then a name only") << QStringLiteral("t\tn\tA\nt\tn") << QStringLiteral("A");
    QTest::newRow("A, then a dot") << QStringLiteral("t\tn\tA\nt\tn\t.") << QString();
    QTest::newRow("a dot, then A") << QStringLiteral("t\tn\t.\nt\tn\tA") << QStringLiteral("A");
    QTest::newRow("none, then A") << QStringLiteral("t\nt   n   A") << QStringLiteral("A");
}

void TestConfigurationFile::lastValueOfATagWins()
{
    QFETCH(const QString, text);
    QFETCH(const QString, value);
    const TagRules rules = parseConfiguration(text);
    QCOMPARE(rules.allTagsToAnonymize, QStringList{QStringLiteral("t")});
    QCOMPARE(rules.newValueDict, NewValueDict({{QStringLiteral("t"), value}}));
}

void TestConfigurationFile::listsEachTagOnceInOrderOfCodeUnits()
{
    const TagRules rules = parseConfiguration(QStringLiteral("b\n\na\nb\n   \nB\n\u00E9\na\n#c\n\xA0\n"));
    QCOMPARE(rules.allTagsToAnonymize, QStringList({QString(), QStringLiteral("B"), QStringLiteral("a"),
                                                    QStringLiteral("b"), QStringLiteral("\u00E9")}));
}

void TestConfigurationFile::loadsNothingFromWhatCannotBeRead_data()
{
    QTest::addColumn<QByteArray>("content"); // null: there is no file
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("one bad byte at the end") << QByteArray("0010,0030\tName\tANON\n\xFF");
    QTest::newRow("one bad byte in a comment") << QByteArray("# M\xFCller\n0010,0030\tName\tANON\n");
    QTest::newRow("cut at the end") << QByteArray("0010,0030\tName\tANON\n0010,0040\tName\t\xE2\x82");
    QTest::newRow("UTF-16") << QByteArray("\xFF\xFE"
                                          "0\0",
                                          4);
}

void TestConfigurationFile::loadsNothingFromWhatCannotBeRead()
{
    QFETCH(const QByteArray, content);
    const ScratchFolder scratch;
    const QString path = content.isNull() ? scratch.path(QStringLiteral("missing"))
                                          : scratch.file(QStringLiteral("c.txt"), content);
    const TagRules rules = loadConfiguration(path);
    QCOMPARE(rules.allTagsToAnonymize, QStringList());
    QCOMPARE(rules.newValueDict, NewValueDict());
    QCOMPARE(loadConfiguration(QString()).allTagsToAnonymize, QStringList());      // no configuration chosen
    QCOMPARE(loadConfiguration(scratch.path()).allTagsToAnonymize, QStringList()); // a folder
}

void TestConfigurationFile::loadsAFile()
{
    const ScratchFolder scratch;
    const TagRules rules = loadConfiguration(
        scratch.file(QStringLiteral("c.txt"), "# head\n0010,0030\tName\tM\xC3\xBCller\n0010,0040   Sex"));
    QCOMPARE(rules.allTagsToAnonymize,
             QStringList({QStringLiteral("0010,0030"), QStringLiteral("0010,0040")}));
    QCOMPARE(rules.newValueDict,
             NewValueDict({{QStringLiteral("0010,0030"), QStringLiteral("M\u00FCller")}}));
}

void TestConfigurationFile::loadsAnEmptyFileAsOneEmptyLine()
{
    const ScratchFolder scratch;
    QCOMPARE(loadConfiguration(scratch.file(QStringLiteral("c.txt"))).allTagsToAnonymize,
             QStringList{QString()});
}

DRAVOLIN_TEST(TestConfigurationFile)
#include "tst_configurationfile.moc"
