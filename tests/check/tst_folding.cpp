#include "check/Folding.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin::check;

class TestFolding : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void spellingsAreTheSameWords_data();
    void spellingsAreTheSameWords();
    void otherTextsAreOtherWords_data();
    void otherTextsAreOtherWords();
    void cutsTextsIntoWords_data();
    void cutsTextsIntoWords();
    void joinsNamesInTheirOrder();
};

namespace {

std::vector<quint64> hashes(const QString &text)
{
    std::vector<quint64> all;
    for (const Word &word : wordsOf(text))
        all.push_back(word.hash);
    return all;
}

void addTexts()
{
    QTest::addColumn<QString>("one");
    QTest::addColumn<QString>("other");
}

} // namespace

void TestFolding::spellingsAreTheSameWords_data()
{
    addTexts();
    const auto row = [](const char *name, const char16_t *one, const char16_t *other) {
        QTest::newRow(name) << QStringView(one).toString() << QStringView(other).toString();
    };
    row("case", u"Meier", u"mEIER");
    row("umlaut as two letters", u"Jörg", u"Joerg");
    row("umlaut without its dots", u"Jörg", u"Jorg");
    row("umlaut as letter and mark", u"J\u00F6rg", u"Jo\u0308rg");
    row("capital umlauts", u"ÄÖÜ", u"aeoeue");
    row("sharp s", u"Weiß", u"WEISS");
    row("capital sharp s", u"WEI\u1E9E", u"weiss");
    row("accents", u"Noël Façade", u"NOEL FACADE");
    row("letters with strokes", u"Øre Łódź", u"ore lodz");
    row("ligature", u"Æsir", u"Aesir");
    row("caret, comma, blanks", u"Meier^Hans", u"  Meier,\tHans ");
    row("underscores", u"Meier_Hans", u"Meier Hans");
    row("wide letters", u"\uFF2D\uFF45\uFF49\uFF45\uFF52", u"Meier");
    row("half-width katakana", u"\uFF94\uFF8F\uFF80\uFF9E", u"ヤマダ");
    row("wide digits", u"\uFF11\uFF12", u"12");
    row("Greek case", u"ΠΑΠΠΑΣ", u"παππας");
}

void TestFolding::spellingsAreTheSameWords()
{
    QFETCH(const QString, one);
    QFETCH(const QString, other);
    QVERIFY(!hashes(one).empty());
    QCOMPARE(hashes(one), hashes(other));
}

void TestFolding::otherTextsAreOtherWords_data()
{
    addTexts();
    QTest::newRow("another letter") << QStringLiteral("Meier") << QStringLiteral("Meyer");
    QTest::newRow("another order of letters") << QStringLiteral("12") << QStringLiteral("21");
    QTest::newRow("longer") << QStringLiteral("Mei") << QStringLiteral("Meier");
    QTest::newRow("a UID and its end") << QStringLiteral("1.2.3") << QStringLiteral("1.2.3.4");
    QTest::newRow("where the dot stands") << QStringLiteral("1.23") << QStringLiteral("12.3");
}

void TestFolding::otherTextsAreOtherWords()
{
    QFETCH(const QString, one);
    QFETCH(const QString, other);
    QVERIFY(hashes(one) != hashes(other));
}

void TestFolding::cutsTextsIntoWords_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("expected"); // with + where nothing separates it from the word before
    const auto row = [](const char *name, const char16_t *text, const char16_t *words) {
        QTest::newRow(name) << QStringView(text).toString()
                            << QStringView(words).toString().split(u'|', Qt::SkipEmptyParts);
    };
    row("nothing", u"", u"");
    row("separators alone", u" .-^", u"");
    row("letters and digits", u"PID-4711", u"PID|4711");
    row("letters and digits joined", u"IM0001a", u"IM|+0001|+a");
    row("a UID", u"UID 1.2.840.1 ", u"UID|1.2.840.1");
    row("a sentence's dot", u"Nr. 12. Ende", u"Nr|12|Ende");
    row("a date with hyphens", u"1970-01-31", u"1970|01|31");
    row("ideographs one by one", u"山田 太", u"山|+田|太");
    row("Hangul", u"김철", u"김|+철");
}

void TestFolding::cutsTextsIntoWords()
{
    QFETCH(const QString, text);
    QStringList words;
    for (const Word &word : wordsOf(text))
        words.append((word.joined ? QStringLiteral("+") : QString()) +
                     text.sliced(word.start, word.end - word.start));
    QTEST(words, "expected");
}

void TestFolding::joinsNamesInTheirOrder()
{
    QCOMPARE(joinedHash(u"Müller", u"Jörg"), wordsOf(u"MuellerJoerg").front().hash);
    QVERIFY(joinedHash(u"Jörg", u"Müller") != joinedHash(u"Müller", u"Jörg"));
}

DRAVOLIN_TEST(TestFolding)
#include "tst_folding.moc"
