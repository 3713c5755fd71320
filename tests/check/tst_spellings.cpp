#include "check/Spellings.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin::check;

class TestSpellings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesNamesApart_data();
    void takesNamesApart();
    void readsDates_data();
    void readsDates();
    void writesDatesInTheUsualForms();
};

void TestSpellings::takesNamesApart_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QList<QStringList>>("expected");
    const auto row = [](const char *name, const char16_t *value, const QList<QStringList> &parts) {
        QTest::newRow(name) << QStringView(value).toString() << parts;
    };
    row("empty", u"", {});
    row("delimiters alone", u"^^=^", {});
    row("family name", u"Meier", {{QStringLiteral("Meier")}});
    row("five components", u"Meier^Hans^Otto^Dr.^jun.",
        {{QStringLiteral("Meier"), QStringLiteral("Hans"), QStringLiteral("Otto")}});
    row("blanks at the ends", u" Meier ^ Hans ", {{QStringLiteral("Meier"), QStringLiteral("Hans")}});
    row("two groups", u"Yamada^Tarou=山田^太郎",
        {{QStringLiteral("Yamada"), QStringLiteral("Tarou")},
         {QStringLiteral("山田"), QStringLiteral("太郎")}});
    row("without caret", u"Meier, Hans", {{QStringLiteral("Meier"), QStringLiteral("Hans")}});
}

void TestSpellings::takesNamesApart()
{
    QFETCH(const QString, name);
    QList<QStringList> parts;
    for (const NameParts &group : namePartsOf(name))
        parts.append(group.parts);
    QTEST(parts, "expected");
}

void TestSpellings::readsDates_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QDate>("expected");
    QTest::newRow("DA") << QStringLiteral("19700131") << QDate(1970, 1, 31);
    QTest::newRow("DT") << QStringLiteral("19700131120000.5+0100") << QDate(1970, 1, 31);
    QTest::newRow("as of old") << QStringLiteral("1970.01.31") << QDate(1970, 1, 31);
    QTest::newRow("padded") << QStringLiteral(" 19700131 ") << QDate(1970, 1, 31);
    QTest::newRow("no such day") << QStringLiteral("19700231") << QDate();
    QTest::newRow("a year") << QStringLiteral("1970") << QDate();
    QTest::newRow("text") << QStringLiteral("today") << QDate();
}

void TestSpellings::readsDates()
{
    QFETCH(const QString, value);
    QTEST(dateOf(value), "expected");
}

void TestSpellings::writesDatesInTheUsualForms()
{
    const QStringList forms = spellingsOf(QDate(1970, 1, 5));
    for (const char16_t *form : {u"19700105", u"05011970", u"1970 01 05", u"05.01.1970", u"5.1.1970",
                                 u"01 05 1970", u"5 jan 1970", u"january 05 1970", u"5 januar 1970"})
        QVERIFY2(forms.contains(QStringView(form)), qPrintable(QStringView(form).toString()));
}

DRAVOLIN_TEST(TestSpellings)
#include "tst_spellings.moc"
