#include "dicom/Dates.h"
#include "dicom/ObjectFile.h"
#include "dicom/Objects.h"
#include "support/TestEntry.h"

using namespace dravolin;
using test::ScratchFolder;

// Dates that are moved, and those that are none.
class TestDates : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void movesDates_data();
    void movesDates();
    void movesDatesOfObjects_data();
    void movesDatesOfObjects();
};

void TestDates::movesDates_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QByteArray>("expected");
    const auto row = [](const char *name, const char *value, const char *expected) {
        QTest::newRow(name) << QByteArray(value) << QByteArray(expected);
    };
    row("a date", "20240301", "20230226");
    row("over a leap day", "20240229", "20230225");
    row("several", "20240301\\20240302", "20230226\\20230227");
    row("padded", "20240301 ", "20230226");
    row("with dots", "2024.03.01", "2023.02.26");
    row("date and time", "20240301235959.123456+0130", "20230226235959.123456+0130");
    row("hours alone", "2024030123", "2023022623");
    row("without day", "202403", "202302");
    row("without month", "2024", "2022");
    row("a year with a time zone", "2024-0500", "2022-0500");
    row("empty", "", "");
    row("one of two empty", "\\20240301", "\\20230226");
    row("no such day", "20240230", "");
    row("a name", "Doe^Jane", "");
    row("a name behind a date", "20240301 Doe", "");
    row("no year left", "00010101", "");
    row("a range", "20240301-20240302", "");
}

void TestDates::movesDates()
{
    QFETCH(QByteArray, value);
    QFETCH(QByteArray, expected);
    constexpr int days = 369;
    QCOMPARE(datesMovedBack(value, days), expected);
}

void TestDates::movesDatesOfObjects_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("expected");
    const QByteArray item =
        "(0040,a730) SQ\n(fffe,e000) -\n(0040,a121) DA [20240102]\n(fffe,e00d) -\n(fffe,e0dd) -\n";
    QTest::newRow("top level, times stay")
        << QByteArray("(0008,0020) DA [20240311]\n(0008,002a) DT [20240311101112]\n(0008,0030) TM [101112]\n"
                      "(0008,0201) SH [+0100]\n")
        << QByteArray("(0008,0020) DA [20240301]\n(0008,002a) DT [20240301101112]\n(0008,0030) TM [101112]\n"
                      "(0008,0201) SH [+0100]\n");
    QTest::newRow("nested") << item << QByteArray(item).replace("20240102", "20231223");
    QTest::newRow("written as text") << QByteArray(
                                            "(0008,0020) LO [20240311]\n(0008,002a) SH [20240311101112]\n"
                                            "(0008,0107) LO [20240311]\n(0008,0201) SH [20240311]\n")
                                     << QByteArray(
                                            "(0008,0020) LO [20240301]\n(0008,002a) SH [20240301101112]\n"
                                            "(0008,0107) LO [20240311]\n(0008,0201) SH [20240311]\n");
    QTest::newRow("a rule is stronger")
        << QByteArray("(0008,0021) DA [20240311]\n") << QByteArray("(0008,0021) DA [19000101]\n");
    QTest::newRow("versions of code tables stay")
        << QByteArray("(0008,0106) DT [20240311]\n") << QByteArray("(0008,0106) DT [20240311]\n");
}

void TestDates::movesDatesOfObjects()
{
    QFETCH(QByteArray, source);
    QFETCH(QByteArray, expected);
    const QByteArray head = "(0008,0016) UI [1.2.840.10008.5.1.4.1.1.2]\n(0008,0018) UI [1.2.3.4.1]\n";
    const QByteArray patient = "(0010,0020) LO [4711]\n";
    Treatment treatment;
    if (source.contains("(0008,0021)"))
        treatment.rules = test::rulesOf(QStringLiteral("0008,0021\t\t19000101"));
    treatment.daysBack = [](const QByteArray &patientId) { return patientId == "4711" ? 10 : 1; };
    for (const auto &[way, options] : test::waysOfWriting()) {
        const ScratchFolder folder;
        const auto made = [&](const char *name, const QByteArray &dump) {
            const QByteArray sorted = dump.contains("(0040,") ? patient + dump : dump + patient;
            return test::objectFile(folder, QString::fromLatin1(name), head + sorted, options);
        };
        const QString wanted = made("wanted", expected);
        const QString result = folder.path(QStringLiteral("result"));
        QCOMPARE(treatFile(made("source", source), result, treatment).facts.problem, QString());
        QCOMPARE(test::dataSetOf(result).toHex(' '), test::dataSetOf(wanted).toHex(' '));
    }
}

DRAVOLIN_TEST(TestDates)

#include "tst_dates.moc"
