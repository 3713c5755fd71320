#include "base/CharacterSets.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin;

class TestCharacterSets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void decodes_data();
    void decodes();
    void guesses_data();
    void guesses();
    void readsUtf16InEveryPosition();
};

void TestCharacterSets::decodes_data()
{
    QTest::addColumn<QByteArray>("terms");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char *terms, const QByteArray &bytes, const char16_t *text) {
        QTest::newRow(name) << QByteArray(terms) << bytes << QStringView(text).toString();
    };
    row("ASCII", "", "Meier^Hans", u"Meier^Hans");
    row("Latin-1", "ISO_IR 100", "M\xFCller", u"Müller");
    row("Latin-2", "ISO_IR 101", "\xA3\xF3\x64\xBC", u"Łódź");
    row("Cyrillic", "ISO_IR 144", "\xB8\xD2\xD0\xDD", u"Иван");
    row("Greek", "ISO_IR 126", "\xC4\xE9\xEF\xED", u"Διον");
    row("Arabic", "ISO_IR 127", "\xE2\xC8\xC7\xE6\xEA", u"قباني");
    row("Hebrew", "ISO_IR 138", "\xF9\xF8\xE5\xEF", u"שרון");
    row("Turkish", "ISO_IR 148",
        "\xC7"
        "avu\xFEo\xF0lu",
        u"Çavuşoğlu");
    row("Latin-9", "ISO_IR 203", "\xBC", u"Œ");
    row("Thai", "ISO_IR 166", "\xCA\xC1", u"สม");
    row("UTF-8", "ISO_IR 192", "\xE5\xB1\xB1\xE7\x94\xB0", u"山田");
    row("GB18030", "GB18030", "\xCD\xF5^\xD0\xA1\xB6\xAB", u"王^小东");
    row("half-width katakana", "ISO_IR 13", "\xD4\xCF\xC0\xDE^\xC0\xDB\xB3", u"ﾔﾏﾀﾞ^ﾀﾛｳ");
    row("Japanese with escapes", "\\ISO 2022 IR 87",
        "Yamada^Tarou=\x1B$B;3ED\x1B(B^\x1B$BB@O:\x1B(B=\x1B$B$d$^$@\x1B(B^\x1B$B$?$m$&\x1B(B",
        u"Yamada^Tarou=山田^太郎=やまだ^たろう");
    row("Japanese beside half-width katakana", "ISO 2022 IR 13\\ISO 2022 IR 87",
        "\xD4\xCF\xC0\xDE^\xC0\xDB\xB3=\x1B$B;3ED\x1B(J^\x1B$BB@O:\x1B(J", u"ﾔﾏﾀﾞ^ﾀﾛｳ=山田^太郎");
    row("Korean with escapes", "\\ISO 2022 IR 149",
        "Hong^Gildong=\x1B$)C\xFB\xF3^\x1B$)C\xD1\xCE\xD4\xD7=\x1B$)C\xC8\xAB^\x1B$)C\xB1\xE6\xB5\xBF",
        u"Hong^Gildong=洪^吉洞=홍^길동");
    row("Chinese with escapes", "\\ISO 2022 IR 58", "Zhang=\x1B$)A\xD5\xC5^\x1B$)A\xD0\xA1\xB6\xAB",
        u"Zhang=张^小东");
    row("Latin-2 by escape", "ISO 2022 IR 100\\ISO 2022 IR 101", "\x1B-B\xA3\xF3\x64\xBC", u"Łódź");
    row("escape that is not declared", "", "\x1B$B;3ED\x1B(B", u"山田");
    row("unknown escape", "", "\x1B%zMeier", u"%zMeier");
    row("unknown set", "ISO_IR 999", "Meier", u"Meier");
    row("bytes that mean nothing", "ISO_IR 192", "M\xFFr", u"M\uFFFDr");
}

void TestCharacterSets::decodes()
{
    QFETCH(const QByteArray, terms);
    QFETCH(const QByteArray, bytes);
    QTEST(CharacterSets(terms).decode(bytes), "expected");
}

void TestCharacterSets::guesses_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("expected");
    QTest::newRow("ASCII") << QByteArray("Meier") << QStringLiteral("Meier");
    QTest::newRow("UTF-8") << QByteArray("M\xC3\xBCller") << QStringLiteral("Müller");
    QTest::newRow("Latin-1") << QByteArray("M\xFCller") << QStringLiteral("Müller");
    QTest::newRow("both") << QByteArray("M\xFCller M\xC3\xBCller") << QStringLiteral("Müller Müller");
    QTest::newRow("cut UTF-8") << QByteArray("ab\xE5\xB1") << QStringLiteral("abå±");
}

void TestCharacterSets::guesses()
{
    QFETCH(const QByteArray, bytes);
    QTEST(decodeGuessing(bytes), "expected");
}

void TestCharacterSets::readsUtf16InEveryPosition()
{
    const QByteArray little("M\0\xFC\0", 4);
    const QByteArray big("\0M\0\xFC", 4);
    QCOMPARE(decodeUtf16(little, 0, ByteOrder::LittleEndian), QStringLiteral("Mü"));
    QCOMPARE(decodeUtf16('x' + little, 1, ByteOrder::LittleEndian), QStringLiteral("Mü"));
    QCOMPARE(decodeUtf16(big, 0, ByteOrder::BigEndian), QStringLiteral("Mü"));
    QCOMPARE(decodeUtf16('x' + big + 'y', 1, ByteOrder::BigEndian), QStringLiteral("Mü"));
    QCOMPARE(decodeUtf16({}, 1, ByteOrder::BigEndian), QString());
}

DRAVOLIN_TEST(TestCharacterSets)
#include "tst_charactersets.moc"
