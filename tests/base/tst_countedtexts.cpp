#include "base/Texts.h"
#include "support/TestEntry.h"

#include <QTest>

#include <limits>

using namespace dravolin;

class TestCountedTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void putsNumbersAndSuffixesInPlace_data();
    void putsNumbersAndSuffixesInPlace();
    void namesANumberOfTheSamePluralForm_data();
    void namesANumberOfTheSamePluralForm();
};

void TestCountedTexts::putsNumbersAndSuffixesInPlace_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<quint64>>("numbers");
    QTest::addColumn<QString>("filled");
    const auto row = [](const char *text, const QList<quint64> &numbers, const char *filled) {
        QTest::newRow(filled) << QString::fromUtf8(text) << numbers << QString::fromUtf8(filled);
    };
    row("%1 error%2", {1}, "1 error");
    row("%1 error%2", {2}, "2 errors");
    row("%1 file%2, %3 object%4", {0, 1}, "0 files, 1 object");
    row("%1 Fehler", {2}, "2 Fehler");
    row("%3 übersprungen, %1 geändert", {1, 7}, "7 übersprungen, 1 geändert");
    row("%1 error%2", {std::numeric_limits<quint64>::max()}, "18446744073709551615 errors");
}

void TestCountedTexts::putsNumbersAndSuffixesInPlace()
{
    QFETCH(QString, text);
    QFETCH(QList<quint64>, numbers);
    QTEST(withCounts(text, numbers), "filled");
}

void TestCountedTexts::namesANumberOfTheSamePluralForm_data()
{
    QTest::addColumn<quint64>("number");
    QTest::addColumn<int>("form");
    const auto row = [](quint64 number, int form) { QTest::addRow("%llu", number) << number << form; };
    row(0, 0);
    row(1, 1);
    row(999999, 999999);
    row(1000000, 1000000);
    row(2000001, 1000001);
    row(std::numeric_limits<quint64>::max(), 1551615);
}

void TestCountedTexts::namesANumberOfTheSamePluralForm()
{
    QFETCH(quint64, number);
    QTEST(pluralNumber(number), "form");
}

DRAVOLIN_TEST(TestCountedTexts)
#include "tst_countedtexts.moc"
