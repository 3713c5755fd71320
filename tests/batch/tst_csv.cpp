#include "batch/Csv.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin;

// Tables as text.
class TestCsv : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsRows_data();
    void readsRows();
    void tellsTheLineOfARow();
    void namesWhatIsNoTable_data();
    void namesWhatIsNoTable();
    void writesWhatItReads_data();
    void writesWhatItReads();
};

void TestCsv::readsRows_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<QStringList>>("rows");
    const auto fields = [](const char *text) { return QString::fromLatin1(text).split(u'|'); };
    QTest::newRow("nothing") << QString() << QList<QStringList>();
    QTest::newRow("commas, LF") << QStringLiteral("a,b\n1,2\n")
                                << QList<QStringList>{fields("a|b"), fields("1|2")};
    QTest::newRow("CR LF, no end") << QStringLiteral("a,b\r\n1,2")
                                   << QList<QStringList>{fields("a|b"), fields("1|2")};
    QTest::newRow("CR") << QStringLiteral("a,b\r1,2\r") << QList<QStringList>{fields("a|b"), fields("1|2")};
    QTest::newRow("semicolons") << QStringLiteral("a;b\n1,5;2")
                                << QList<QStringList>{fields("a|b"), fields("1,5|2")};
    QTest::newRow("tabs") << QStringLiteral("a\tb\n1\t2") << QList<QStringList>{fields("a|b"), fields("1|2")};
    QTest::newRow("quoted") << QStringLiteral("a,b\n\"x,\ny\",\"\"")
                            << QList<QStringList>{fields("a|b"), fields("x,\ny|")};
    QTest::newRow("quotes in quotes")
        << QStringLiteral("\"say \"\"a\"\"\",b") << QList<QStringList>{fields("say \"a\"|b")};
    QTest::newRow("empty fields") << QStringLiteral(",,") << QList<QStringList>{fields("||")};
    QTest::newRow("empty lines") << QStringLiteral("\na\n\n\nb\n\n")
                                 << QList<QStringList>{fields("a"), fields("b")};
}

void TestCsv::readsRows()
{
    QFETCH(QString, text);
    QFETCH(QList<QStringList>, rows);
    QList<QStringList> found;
    const Csv csv = parseCsv(text);
    for (const CsvRow &row : csv.rows)
        found.append(row.fields);
    QCOMPARE(found, rows);
    QCOMPARE(csv.problem, QString());
}

void TestCsv::tellsTheLineOfARow()
{
    QList<int> found;
    for (const CsvRow &row : parseCsv(QStringLiteral("a\r\n\r\n\"b\nb\"\r\nc")).rows)
        found.append(row.line);
    QCOMPARE(found, (QList<int>{1, 3, 5}));
}

void TestCsv::namesWhatIsNoTable_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("problem");
    QTest::newRow("never closed") << QStringLiteral("a,b\n1,\"2\n3")
                                  << QStringLiteral("the quotation mark in line 2 is never closed");
    QTest::newRow("text behind") << QStringLiteral("a,b\n\"s1\"zz,2\n")
                                 << QStringLiteral("there is text behind a closing quotation mark in line 2");
    QTest::newRow("a space behind, over two lines")
        << QStringLiteral("a,b\n\"s\n1\" ,2\n")
        << QStringLiteral("there is text behind a closing quotation mark in line 3");
    QTest::newRow("the first of two")
        << QStringLiteral("\"a\"b\n1,\"2\n3")
        << QStringLiteral("there is text behind a closing quotation mark in line 1");
}

void TestCsv::namesWhatIsNoTable()
{
    QFETCH(QString, text);
    QFETCH(QString, problem);
    QCOMPARE(parseCsv(text).problem, problem);
}

void TestCsv::writesWhatItReads_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("field");
    QTest::newRow("plain") << QStringLiteral("Doe Jane") << QStringLiteral("Doe Jane");
    QTest::newRow("comma") << QStringLiteral("Doe, Jane") << QStringLiteral("\"Doe, Jane\"");
    QTest::newRow("quote") << QStringLiteral("a\"b") << QStringLiteral("\"a\"\"b\"");
    QTest::newRow("line end") << QStringLiteral("a\r\nb") << QStringLiteral("\"a\r\nb\"");
}

void TestCsv::writesWhatItReads()
{
    QFETCH(QString, value);
    QFETCH(QString, field);
    QCOMPARE(csvField(value), field);
    QCOMPARE(parseCsv(csvLine({value, QStringLiteral("x")})).rows,
             (QList<CsvRow>{{1, {value, QStringLiteral("x")}}}));
}

DRAVOLIN_TEST(TestCsv)
#include "tst_csv.moc"
