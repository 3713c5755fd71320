#include "check/Numbers.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin::check;

Q_DECLARE_METATYPE(dravolin::check::NumberForm)

class TestNumbers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesWholeNumbers_data();
    void writesWholeNumbers();
    void writesTheFirstNumbersOfALongRow();
};

namespace {

template <typename Number>
QByteArray bytesOf(std::initializer_list<Number> numbers)
{
    return QByteArray(reinterpret_cast<const char *>(numbers.begin()),
                      static_cast<qsizetype>(numbers.size() * sizeof(Number)));
}

} // namespace

void TestNumbers::writesWholeNumbers_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<NumberForm>("form");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const QByteArray &bytes, NumberForm form, const char16_t *text) {
        QTest::newRow(name) << bytes << form << QStringView(text).toString();
    };
    using enum NumberForm;
    row("none", "1234", None, u"");
    row("empty", {}, Unsigned32, u"");
    row("16 bits", bytesOf<quint16>({65535, 1}), Unsigned16, u"65535 1 ");
    row("16 bits, signed", bytesOf<qint16>({-2}), Signed16, u"-2 ");
    row("32 bits", bytesOf<quint32>({4000000000U}), Unsigned32, u"4000000000 ");
    row("32 bits, signed", bytesOf<qint32>({-2000000000}), Signed32, u"-2000000000 ");
    row("64 bits", bytesOf<quint64>({10'000'000'000'000'000'000U}), Unsigned64, u"10000000000000000000 ");
    row("64 bits, signed", bytesOf<qint64>({-5}), Signed64, u"-5 ");
    row("floats", bytesOf<float>({17439.0F, 0.5F, -3.0F}), Float32, u"17439 -3 ");
    row("doubles", bytesOf<double>({515638083.0, 1e300}), Float64, u"515638083 ");
    row("an incomplete number", bytesOf<quint16>({7}) + "x", Unsigned16, u"7 ");
}

void TestNumbers::writesWholeNumbers()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const NumberForm, form);
    QTEST(decimalText(bytes, form), "expected");
}

void TestNumbers::writesTheFirstNumbersOfALongRow()
{
    const QByteArray bytes(2000, '\0');
    QCOMPARE(decimalText(bytes, NumberForm::Unsigned16), QStringLiteral("0 ").repeated(64));
}

DRAVOLIN_TEST(TestNumbers)
#include "tst_numbers.moc"
