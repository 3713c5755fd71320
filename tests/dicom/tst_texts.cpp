#include "dicom/CharacterSet.h"
#include "dicom/ObjectFile.h"
#include "dicom/Objects.h"
#include "support/TestEntry.h"

using namespace dravolin;
using test::ScratchFolder;

// New values in the object's own character set, and objects that move to UTF-8.
class TestTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void encodesInTheObjectsCharacterSet_data();
    void encodesInTheObjectsCharacterSet();
    void writesTexts_data();
    void writesTexts();
    void refusesTextThatCannotBeMoved_data();
    void refusesTextThatCannotBeMoved();
};

void TestTexts::encodesInTheObjectsCharacterSet_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("characterSet");
    QTest::addColumn<std::optional<QByteArray>>("encoded");
    const QString umlaut = QStringLiteral("M\u00FCller");
    QTest::newRow("ASCII needs none")
        << QStringLiteral("Doe") << QByteArray() << std::optional<QByteArray>("Doe");
    QTest::newRow("Latin-1") << umlaut << QByteArray("ISO_IR 100") << std::optional<QByteArray>("M\xfcller");
    QTest::newRow("UTF-8") << umlaut << QByteArray("ISO_IR 192")
                           << std::optional<QByteArray>("M\xc3\xbcller");
    QTest::newRow("Cyrillic") << QStringLiteral("\u042F") << QByteArray("ISO_IR 144")
                              << std::optional<QByteArray>("\xcf");
    QTest::newRow("the first of several")
        << umlaut << QByteArray("ISO 2022 IR 100\\ISO 2022 IR 87") << std::optional<QByteArray>("M\xfcller");
    QTest::newRow("none named") << umlaut << QByteArray() << std::optional<QByteArray>();
    QTest::newRow("does not fit") << QStringLiteral("\u6F22") << QByteArray("ISO_IR 100")
                                  << std::optional<QByteArray>();
    QTest::newRow("unknown") << umlaut << QByteArray("ISO_IR 9") << std::optional<QByteArray>();
}

void TestTexts::encodesInTheObjectsCharacterSet()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, characterSet);
    QFETCH(std::optional<QByteArray>, encoded);
    QCOMPARE(encodeText(text, characterSet), encoded);
}

void TestTexts::writesTexts_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("expected");
    QTest::addColumn<bool>("moved");
    const QByteArray latin = "(0008,0005) CS [ISO_IR 100]\n(0008,0080) LO [Spital M\xfcnchen]\n"
                             "(0008,1140) SQ\n(fffe,e000) -\n(0010,0010) PN [\xc4nne]\n(fffe,e00d) -\n"
                             "(fffe,e0dd) -\n(0010,0010) PN [J\xfcrgen]\n";
    const QByteArray fits =
        QByteArray(latin).replace("J\xfcrgen", "\xd6zg\xfcr").replace("\xc4nne", "\xd6zg\xfcr");
    const QByteArray wide = "(0008,0005) CS [ISO_IR 192]\n(0008,0080) LO [Spital M\xc3\xbcnchen]\n"
                            "(0008,1140) SQ\n(fffe,e000) -\n(0010,0010) PN [\xe6\xbc\xa2]\n(fffe,e00d) -\n"
                            "(fffe,e0dd) -\n(0010,0010) PN [\xe6\xbc\xa2]\n";
    QTest::newRow("fits") << QStringLiteral("\u00D6zg\u00FCr") << latin << fits << false;
    QTest::newRow("moves to UTF-8, nested text too") << QStringLiteral("\u6F22") << latin << wide << true;
    QTest::newRow("moves from no character set")
        << QStringLiteral("\u00D6") << QByteArray("(0008,0080) LO [x]\n(0010,0010) PN [Doe]\n")
        << QByteArray("(0008,0005) CS [ISO_IR 192]\n(0008,0080) LO [x]\n(0010,0010) PN [\xc3\x96]\n") << true;
    // the example of DICOM PS3.5, H.3.1
    const QByteArray kanji = "\x1b$B;3ED\x1b(B^\x1b$BB@O:\x1b(B";
    const QByteArray wideKanji = QStringLiteral("\u5C71\u7530^\u592A\u90CE").toUtf8();
    for (const char *sets : {"\\ISO 2022 IR 87", "ISO 2022 IR 6\\ISO 2022 IR 87",
                             "ISO 2022 IR 13\\ISO 2022 IR 87", "\\ISO 2022 IR 159\\ISO 2022 IR 87"})
        QTest::addRow("moves from %s", sets)
            << QStringLiteral("\u00D6")
            << "(0008,0005) CS [" + QByteArray(sets) + "]\n(0008,1050) PN [Yamada^Tarou=" + kanji +
                   "]\n(0010,0010) PN [Doe]\n"
            << "(0008,0005) CS [ISO_IR 192]\n(0008,1050) PN [Yamada^Tarou=" + wideKanji +
                   "]\n(0010,0010) PN [\xc3\x96]\n"
            << true;
    for (const char *sets : {"ISO_IR 13", "ISO 2022 IR 13", "ISO 2022 IR 13\\ISO 2022 IR 87"})
        QTest::addRow("keeps what divides values, from %s", sets)
            << QStringLiteral("\u00D6")
            << "(0008,0005) CS [" + QByteArray(sets) +
                   "]\n(0010,0010) PN [Doe]\n(0018,1400) LO [\xd4\xcf\\x\xc0]\n"
            << "(0008,0005) CS [ISO_IR 192]\n(0010,0010) PN [\xc3\x96]\n(0018,1400) LO [" +
                   QStringLiteral("\uFF94\uFF8F\\x\uFF80").toUtf8() + "]\n"
            << true;
    QTest::newRow("moves from Latin-9")
        << QStringLiteral("\u6F22")
        << QByteArray("(0008,0005) CS [ISO_IR 203]\n(0008,0080) LO [\xa4]\n(0010,0010) PN [Doe]\n")
        << QByteArray("(0008,0005) CS [ISO_IR 192]\n(0008,0080) LO [\xe2\x82\xac]\n(0010,0010) PN "
                      "[\xe6\xbc\xa2]\n")
        << true;
}

void TestTexts::writesTexts()
{
    QFETCH(QString, value);
    QFETCH(QByteArray, source);
    QFETCH(QByteArray, expected);
    QFETCH(bool, moved);
    Treatment treatment;
    treatment.rules = test::rulesOf(QStringLiteral("0010,0010\t\t") + value);
    for (const auto &[way, options] : test::waysOfWriting()) {
        const ScratchFolder folder;
        const QString from = test::objectFile(folder, QStringLiteral("source"), source, options);
        const QString wanted = test::objectFile(folder, QStringLiteral("wanted"), expected, options);
        const QString result = folder.path(QStringLiteral("result"));
        const TreatedFile treated = treatFile(from, result, treatment);
        QCOMPARE(treated.facts.problem, QString());
        QCOMPARE(treated.movedToUtf8, moved);
        QCOMPARE(test::dataSetOf(result), test::dataSetOf(wanted));
    }
}

void TestTexts::refusesTextThatCannotBeMoved_data()
{
    QTest::addColumn<QByteArray>("characterSet");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("unknown set") << QByteArray("ISO_IR 9") << QByteArray("M\xfcnchen");
    QTest::newRow("unknown beside a Japanese one")
        << QByteArray("ISO_IR 9\\ISO 2022 IR 87") << QByteArray("M\xfcnchen");
    QTest::newRow("not of its set") << QByteArray("\\ISO 2022 IR 87") << QByteArray("M\xfcnchen");
    QTest::newRow("no letter of its set") << QByteArray("\\ISO 2022 IR 87") << QByteArray("\x1b$B))\x1b(B");
    QTest::newRow("half a letter") << QByteArray("\\ISO 2022 IR 87") << QByteArray("\x1b$B;3E\x1b(B");
}

void TestTexts::refusesTextThatCannotBeMoved()
{
    QFETCH(QByteArray, characterSet);
    QFETCH(QByteArray, text);
    const ScratchFolder folder;
    const QString from =
        test::objectFile(folder, QStringLiteral("source"),
                         "(0008,0005) CS [" + characterSet + "]\n(0008,0080) LO [" + text + "]\n");
    Treatment treatment;
    treatment.rules = test::rulesOf(QStringLiteral("0010,0010\t\t\u6F22"));
    QCOMPARE(treatFile(from, folder.path(QStringLiteral("result")), treatment).facts.problem,
             QStringLiteral("(0008,0080) holds text that cannot be moved to UTF-8"));
    QCOMPARE(listNames(folder.path()), QStringList{QStringLiteral("source")});
}

DRAVOLIN_TEST(TestTexts)

#include "tst_texts.moc"
