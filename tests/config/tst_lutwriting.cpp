#include "base/Files.h"
#include "config/LutFile.h"
#include "support/TableText.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin;
using test::described;

namespace {

const QString explanation = QStringLiteral(R"(#
# The format of this file is simple:
#
# <old_value>[one_or_more_tabs]<new_value>
#
#
# The first line *must* contain the <missing> value replacement.
# Enter anything to replace the missing value with.
# Note that you can enter <skip> to leave the value un-anonymized.
#
# Lines starting with # are considered to be comments
# !! Please make sure to use [tabs] (or a minimum of three spaces) to separate the fields in a row !!
# !! Please make sure there are no tabs or spaces after the last field in a row !!
#
# Note that propagating a LUT may take a lot of time,
# up to several mins/GB for non-4D data sets, even for data sets on an SSD.
#
#
# This LUT file was prepopulated using tag (0010,1000)
#
#
# THE ABOVE MESSAGE *MAY NOT* BE REMOVED
#
<missing>		<supply missing value replacement, eg: Unknown>
)");

} // namespace

class TestLutWriting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesTheExplanationToTheLetter();
    void writtenFileIsReadBack();
    void writesRows_data();
    void writesRows();
    void numbersTheValues();
    void theShippedExampleIsATable();
};

void TestLutWriting::writesTheExplanationToTheLetter()
{
    QCOMPARE(lutText(QStringLiteral("0010,1000"), {}), explanation);
    QCOMPARE(explanation.count(u'\n'), 24);
}

void TestLutWriting::writtenFileIsReadBack()
{
    const QString text = lutText(QStringLiteral("0010,1000"), {QStringLiteral("ABC"), QStringLiteral("DEF")});
    QCOMPARE(described(parseLut(text.toUtf8())),
             QStringLiteral("<missing>=Unknown|ABC=Subject_001|DEF=Subject_002"));
}

void TestLutWriting::writesRows_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("written");
    const auto add = [](const char *name, const QString &value, int position, const QString &written) {
        QTest::newRow(name) << value << position << written;
    };
    add("short", QStringLiteral("A"), 1, QStringLiteral("A\t\t\tSubject_001\n"));
    add("seven characters", QStringLiteral("1234567"), 2, QStringLiteral("1234567\t\t\tSubject_002\n"));
    add("eight characters", QStringLiteral("12345678"), 10, QStringLiteral("12345678\t\tSubject_010\n"));
    add("keeps counting UTF-16 units", QStringLiteral("\U0001F600\U0001F600\U0001F600\U0001F600"), 3,
        QStringLiteral("\U0001F600\U0001F600\U0001F600\U0001F600\t\tSubject_003\n"));
    add("seven umlauts", QString(7, QChar(u'\u00E4')), 4,
        QString(7, QChar(u'\u00E4')) + QStringLiteral("\t\t\tSubject_004\n"));
    add("999th", QStringLiteral("A"), 999, QStringLiteral("A\t\t\tSubject_999\n"));
    add("1000th", QStringLiteral("A"), 1000, QStringLiteral("A\t\t\tSubject_1000\n"));
    add("blanks stay", QStringLiteral(" A "), 5, QStringLiteral(" A \t\t\tSubject_005\n"));
    add("percent signs stay", QStringLiteral("%1%s"), 6, QStringLiteral("%1%s\t\t\tSubject_006\n"));
}

void TestLutWriting::writesRows()
{
    QFETCH(QString, value);
    QFETCH(int, position);
    QFETCH(QString, written);
    const QString text = lutText(QStringLiteral("0010,1000"), QStringList(position, value));
    QCOMPARE(text.sliced(text.lastIndexOf(u'\n', -2) + 1), written);
}

void TestLutWriting::numbersTheValues()
{
    QCOMPARE(lutText(QStringLiteral("0010,1000"), {QStringLiteral("B"), QStringLiteral("A")}),
             explanation + QStringLiteral("B\t\t\tSubject_001\nA\t\t\tSubject_002\n"));
}

void TestLutWriting::theShippedExampleIsATable()
{
    const QString path = QStringLiteral(DRAVOLIN_EXAMPLE_LUT);
    const QStringList lines = readText(path).value_or(QString()).split(u'\n');
    QCOMPARE(lines.mid(0, 23), explanation.split(u'\n').mid(0, 23));
    QCOMPARE(
        described(loadLut(path)),
        QStringLiteral("1-2345=Subject_001|<missing>=unknown|H-0012/2019=Subject_002|KH-77-A=Subject_003|"
                       "PAT-00417=Subject_004|PHANTOM=<skip>"));
}

DRAVOLIN_TEST(TestLutWriting)
#include "tst_lutwriting.moc"
