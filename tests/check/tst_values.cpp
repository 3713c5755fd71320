#include "base/PathText.h"
#include "check/Values.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin;
using namespace dravolin::check;

// One value of an original and one text of a result.
class TestValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsValuesInTexts_data();
    void findsValuesInTexts();
    void leavesOutWhatRulesSet();
    void takesTheStrongestClassOfAValue();
    void countsValuesThatAreTooShort();
    void findsEachOfManyValues();
    void looksForWordsOfPaths_data();
    void looksForWordsOfPaths();
};

namespace {

// "certain Meier^Hans | possible 19700131"
QString told(const Patterns &patterns, const QString &text, TextKind kind)
{
    QStringList all;
    for (const Match &match : patterns.find(wordsOf(text), kind))
        all.append(nameOf(match.grade) + u' ' + fromBytes(patterns.at(match.pattern).value));
    return all.join(QStringLiteral(" | "));
}

} // namespace

Q_DECLARE_METATYPE(dravolin::check::ValueClass)
Q_DECLARE_METATYPE(dravolin::check::TextKind)

void TestValues::findsValuesInTexts_data()
{
    QTest::addColumn<ValueClass>("valueClass");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("text");
    QTest::addColumn<TextKind>("kind");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, ValueClass valueClass, const char16_t *value, const char16_t *text,
                        const char16_t *expected, TextKind kind = TextKind::Text) {
        QTest::newRow(name) << valueClass << QStringView(value).toString() << QStringView(text).toString()
                            << kind << QStringView(expected).toString();
    };
    using enum ValueClass;
    const char16_t *const hans = u"certain Brückner^Hans";
    row("name as it was", Person, u"Brückner^Hans", u"Brückner^Hans", hans);
    row("name in another order", Person, u"Brückner^Hans", u"hans BRUECKNER", hans);
    row("name in a text", Person, u"Brückner^Hans", u"Der Patient, Herr Hans Bruckner, kam.", hans);
    row("name written as one word", Person, u"Brückner^Hans", u"hansbrueckner", hans);
    row("name with a number behind", Person, u"Brückner^Hans", u"Brückner_Hans01", hans);
    row("family name alone", Person, u"Brückner^Hans", u"Herr Brückner", u"likely Brückner");
    row("family name far from the given name", Person, u"Brückner^Hans", u"Brückner a b c d e f g h i Hans",
        u"likely Brückner | likely Hans");
    row("part of a longer word", Person, u"Brückner^Hans", u"Brücknerstraße Hansa", u"");
    row("half of a double name", Person, u"Brückner-Hüsgen^Frauke", u"Frau Hüsgen", u"likely Hüsgen");
    row("short name", Person, u"Li^Bo", u"Li kam", u"possible Li");
    row("common word", Person, u"Lang^Rose", u"lateral, lang", u"possible Lang");
    row("two given names", Person, u"Brückner^Hans^Otto", u"Hans Otto", u"likely Hans | likely Otto");
    row("title and suffix", Person, u"Brückner^Hans^^Prof.^jun.", u"Prof. jun.", u"");
    row("ideographs", Person, u"Yamada^Tarou=山田^太郎", u"患者山田太郎様", u"certain 山田^太郎");
    row("Hangul", Person, u"Hong^Gildong=洪^吉洞=홍^길동", u"홍길동", u"certain 홍^길동");
    row("identifier", Identifier, u"PID-4711", u"see PID 4711.", u"certain PID-4711");
    row("identifier as part of a word", Identifier, u"4711123", u"x4711123", u"");
    row("identifier of digits in a longer number", Identifier, u"4711123", u"47111234 4711123.5", u"");
    row("short number", Identifier, u"4711", u"4711", u"possible 4711");
    row("number in a measured value", Identifier, u"47111", u"47111", u"possible 47111", TextKind::Numbers);
    row("long number in a measured value", Identifier, u"47111234", u"47111234", u"certain 47111234",
        TextKind::Numbers);
    row("several values", Identifier, u"OLD-118822\\INS-667788", u"INS-667788", u"certain INS-667788");
    row("UID", Uid, u"1.2.3.4711.12", u"1.2.3.4711.12", u"certain 1.2.3.4711.12");
    row("UID that begins another one", Uid, u"1.2.3.4711.12", u"1.2.3.4711.12.1", u"");
    row("registered UID", Uid, u"1.2.840.10008.5.1.4.1.1.2", u"1.2.840.10008.5.1.4.1.1.2", u"");
    row("date as DICOM writes it", Date, u"19700131", u"19700131", u"possible 19700131");
    row("date with a time", Date, u"19700131", u"19700131121500.000", u"possible 19700131");
    row("date with hyphens", Date, u"19700131", u"born 1970-01-31", u"possible 19700131");
    row("date with dots", Date, u"19700131", u"geb. 31.1.1970", u"possible 19700131");
    row("date with slashes", Date, u"19700131", u"01/31/1970", u"possible 19700131");
    row("date with a month's name", Date, u"19700131", u"31-Jan-1970", u"possible 19700131");
    row("exact time", Date, u"224011.584655", u"224011.584655", u"possible 224011.584655");
    row("time", Date, u"224011", u"224011", u"");
    row("date of a dummy", Date, u"19000101", u"19000101", u"");
    row("institution", Institution, u"Klinikum Südtal", u"KLINIKUM SUEDTAL", u"likely Klinikum Südtal");
    row("free text", FreeText, u"Knie rechts, Sturz", u"Knie rechts: Sturz", u"possible Knie rechts, Sturz");
    row("free text of one common word", FreeText, u"HEAD", u"HEAD", u"");
    row("telephone", Contact, u"+49 555 0174412", u"Tel. 49-555-0174412", u"certain +49 555 0174412");
    row("a dummy", Person, u"Anonymous", u"Anonymous", u"");
    row("a few letters in bytes", Identifier, u"AB1", u"AB1", u"", TextKind::Bytes);
    row("a name's part in bytes", Person, u"Brückner^Hans", u"brückner", u"likely Brückner", TextKind::Bytes);
    row("a whole short name in bytes", Person, u"Weber^Bo", u"Weber Bo", u"certain Weber^Bo",
        TextKind::Bytes);
}

void TestValues::findsValuesInTexts()
{
    QFETCH(const ValueClass, valueClass);
    QFETCH(const QString, value);
    QFETCH(const QString, text);
    QFETCH(const TextKind, kind);
    Values values;
    values.add(valueClass, 0x00100010, value);
    QTEST(told(values.patterns(), text, kind), "expected");
}

void TestValues::leavesOutWhatRulesSet()
{
    Values values;
    values.leaveOut(QStringLiteral("CASE-0001"));
    values.add(ValueClass::Identifier, 0x00100020, QStringLiteral("CASE-0001"));
    values.add(ValueClass::Identifier, 0x00100020, QStringLiteral("CASE-0002"));
    QCOMPARE(told(values.patterns(), QStringLiteral("CASE-0001 CASE-0002"), TextKind::Text),
             QStringLiteral("certain CASE-0002"));
}

void TestValues::takesTheStrongestClassOfAValue()
{
    Values values;
    values.add(ValueClass::FreeText, 0x00081030, QStringLiteral("AB-123456"));
    values.add(ValueClass::Identifier, 0x00100020, QStringLiteral("AB-123456"));
    const std::vector<Match> matches = values.patterns().find(wordsOf(u"AB-123456"), TextKind::Text);
    QCOMPARE(matches.size(), 1U);
    QCOMPARE(matches[0].grade, Grade::Certain);
    QCOMPARE(values.patterns().at(matches[0].pattern).source, Tag{0x00100020});
}

void TestValues::countsValuesThatAreTooShort()
{
    Values values;
    values.add(ValueClass::Identifier, 0x00200010, QStringLiteral("1"));
    values.add(ValueClass::Identifier, 0x00200010, QStringLiteral("123"));
    QCOMPARE(values.tooShort(), quint64{1});
    QCOMPARE(values.searched(), quint64{1});
    QCOMPARE(values.searched(ValueClass::Identifier), quint64{1});
}

void TestValues::findsEachOfManyValues()
{
    constexpr int count = 20000;
    const auto value = [](int number) { return QStringLiteral("PID-%1 Z%2").arg(number).arg(number % 7); };
    Values values;
    for (int i = 0; i < count; ++i)
        values.add(ValueClass::Identifier, 0x00100020, value(i));
    QCOMPARE(values.patterns().size(), size_t{count});
    for (int i = 0; i < count; ++i)
        QCOMPARE(told(values.patterns(), value(i), TextKind::Text), QStringLiteral("certain ") + value(i));
    for (int i = count; i < 2 * count; ++i)
        QCOMPARE(told(values.patterns(), value(i), TextKind::Text), QString());
}

void TestValues::looksForWordsOfPaths_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char16_t *path, const char16_t *text,
                        const char16_t *expected) {
        QTest::newRow(name) << QStringView(path).toString() << QStringView(text).toString()
                            << QStringView(expected).toString();
    };
    row("a folder's word", u"Brandt_Eva/IM1.dcm", u"Frau Brandt", u"possible Brandt");
    row("a long number", u"a/778899.dcm", u"778899", u"possible 778899");
    row("a counter", u"IMAGES/IM000001", u"IM000001 IMAGES", u"");
    row("a padded counter", u"slice 000012.dcm", u"000012", u"");
}

void TestValues::looksForWordsOfPaths()
{
    QFETCH(const QString, path);
    QFETCH(const QString, text);
    Values values;
    values.addPath(path);
    QTEST(told(values.patterns(), text, TextKind::Text), "expected");
}

DRAVOLIN_TEST(TestValues)
#include "tst_values.moc"
