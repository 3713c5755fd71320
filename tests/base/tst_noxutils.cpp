#include "base/NOXUtils.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin;

class TestNOXUtils : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void trimsBlanksAndNothingElse_data();
    void trimsBlanksAndNothingElse();
    void trimsEverySpaceSeparator();
    void viewOfTrimmedTextPointsIntoTheText();
    void reverses_data();
    void reverses();
    void keepsTheHalvesOfASurrogatePairSwapped();
    void leavesItsArgumentsAsTheyAre();
    void dropsLeadingZeros_data();
    void dropsLeadingZeros();
    void givesThePluralSuffix_data();
    void givesThePluralSuffix();
};

void TestNOXUtils::trimsBlanksAndNothingElse_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char16_t *text, const char16_t *expected) {
        QTest::newRow(name) << QStringView(text).toString() << QStringView(expected).toString();
    };
    row("two spaces in front and a tab behind", u"  1.2.3\t", u"1.2.3");
    row("empty", u"", u"");
    row("blanks alone", u" \t \u00A0\u3000", u"");
    row("nothing to trim", u"a", u"a");
    row("inside stays", u" a \t b ", u"a \t b");
    row("no-break space", u"\u00A0a\u00A0", u"a");
    row("ideographic space", u"\u3000a\u3000", u"a");
    row("line break at the end is kept", u" a\n", u"a\n");
    row("blanks before a line break are kept", u" a \t\n", u"a \t\n");
    row("blanks behind a line break go", u"a\n \t", u"a\n");
    row("line break in front is kept", u"\n a", u"\n a");
    row("line break alone", u"\n", u"\n");
    row("carriage return", u"\ra\r", u"\ra\r");
    row("vertical tab and form feed", u"\v\fa\f\v", u"\v\fa\f\v");
    row("next line", u"\u0085a\u0085", u"\u0085a\u0085");
    row("line separator", u"\u2028a\u2028", u"\u2028a\u2028");
    row("paragraph separator", u"\u2029a\u2029", u"\u2029a\u2029");
    row("byte-order mark is no blank", u"\uFEFFa", u"\uFEFFa");
}

void TestNOXUtils::trimsBlanksAndNothingElse()
{
    QFETCH(const QString, text);
    QFETCH(const QString, expected);
    QCOMPARE(NOXUtils::stringByTrimmingLeadingAndTrailingspaces(text), expected);
    QCOMPARE(NOXUtils::trimmed(text).toString(), expected);
}

void TestNOXUtils::trimsEverySpaceSeparator()
{
    QString separators = QStringLiteral("\t \u00A0\u1680\u202F\u205F\u3000");
    for (char16_t unit = 0x2000; unit <= 0x200A; ++unit)
        separators += QChar(unit);
    for (const QChar separator : separators) {
        const QString text = separator + QStringLiteral("x") + separator;
        QVERIFY2(NOXUtils::stringByTrimmingLeadingAndTrailingspaces(text) == QStringLiteral("x"),
                 qPrintable(QString::number(separator.unicode(), 16)));
    }
}

void TestNOXUtils::viewOfTrimmedTextPointsIntoTheText()
{
    const QString text = QStringLiteral("  abc ");
    QCOMPARE(NOXUtils::trimmed(text).data(), text.constData() + 2);
}

void TestNOXUtils::reverses_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("three letters") << QStringLiteral("abc") << QStringLiteral("cba");
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("one letter") << QStringLiteral("x") << QStringLiteral("x");
    QTest::newRow("even length") << QStringLiteral("12 rorre") << QStringLiteral("error 21");
    QTest::newRow("combining mark") << QStringLiteral("ae\u0301") << QStringLiteral("\u0301ea");
}

void TestNOXUtils::reverses()
{
    QFETCH(const QString, text);
    QFETCH(const QString, expected);
    QCOMPARE(NOXUtils::reverseString(text), expected);
}

void TestNOXUtils::keepsTheHalvesOfASurrogatePairSwapped()
{
    const char16_t units[] = {u'a', 0xD83D, 0xDE00, u'b'};
    const char16_t swapped[] = {u'b', 0xDE00, 0xD83D, u'a'};
    QCOMPARE(NOXUtils::reverseString(QStringView(units, 4)), QString::fromUtf16(swapped, 4));
}

void TestNOXUtils::leavesItsArgumentsAsTheyAre()
{
    QString text = QStringLiteral(" 00abc ");
    const QChar *const before = text.constData();
    QString trimmed = NOXUtils::stringByTrimmingLeadingAndTrailingspaces(text);
    QString reversed = NOXUtils::reverseString(text);
    trimmed[0] = u'X';
    reversed[0] = u'X';
    QCOMPARE(text, QStringLiteral(" 00abc "));
    QCOMPARE(text.constData(), before);
}

void TestNOXUtils::dropsLeadingZeros_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("zeros in front") << QStringLiteral("007") << QStringLiteral("7");
    QTest::newRow("zeros alone") << QStringLiteral("000") << QString();
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("none") << QStringLiteral("7") << QStringLiteral("7");
    QTest::newRow("zeros inside and behind") << QStringLiteral("01020") << QStringLiteral("1020");
    QTest::newRow("a blank in front stops it") << QStringLiteral(" 07") << QStringLiteral(" 07");
}

void TestNOXUtils::dropsLeadingZeros()
{
    QFETCH(const QString, text);
    QFETCH(const QString, expected);
    QCOMPARE(NOXUtils::withoutLeadingZeros(text), expected);
}

void TestNOXUtils::givesThePluralSuffix_data()
{
    QTest::addColumn<quint64>("number");
    QTest::addColumn<QString>("expected");
    QTest::newRow("0") << quint64{0} << QStringLiteral("s");
    QTest::newRow("1") << quint64{1} << QString();
    QTest::newRow("2") << quint64{2} << QStringLiteral("s");
    QTest::newRow("11") << quint64{11} << QStringLiteral("s");
    QTest::newRow("all ones") << ~quint64{0} << QStringLiteral("s");
}

void TestNOXUtils::givesThePluralSuffix()
{
    QFETCH(const quint64, number);
    QFETCH(const QString, expected);
    QCOMPARE(NOXUtils::pluralSuffix(number), expected);
}

DRAVOLIN_TEST(TestNOXUtils)
#include "tst_noxutils.moc"
