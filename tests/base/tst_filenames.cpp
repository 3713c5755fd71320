#include "base/PathText.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin;

// Names and bytes, without a file system.
class TestFileNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bytesBecomeTextAndBytesAgain_data();
    void bytesBecomeTextAndBytesAgain();
    void everyPairOfBytesSurvives();
    void textThatNamesNoBytesStillBecomesBytes();
    void decodesUtf8Strictly_data();
    void decodesUtf8Strictly();
    void joinsPaths_data();
    void joinsPaths();
    void takesPathsApart_data();
    void takesPathsApart();
};

namespace {

QString text(const char16_t *units)
{
    return QStringView(units).toString(); // fromUtf16 would drop a byte-order mark
}

} // namespace

void TestFileNames::bytesBecomeTextAndBytesAgain_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const QByteArray &bytes, const QString &expected) {
        QTest::newRow(name) << bytes << expected;
    };
    const auto lone = [](char16_t unit) { return QString(QChar(unit)); };
    row("empty", "", QString());
    row("ASCII", "a b", text(u"a b"));
    row("UTF-8 of two bytes", "M\xC3\xBCller", text(u"M\u00FCller"));
    row("UTF-8 of four bytes", "\xF0\x9F\x98\x80", text(u"\U0001F600"));
    row("pair whose second half looks like an escaped byte", "\xF0\x9F\x92\x80", text(u"\U0001F480"));
    row("the same beside a wrong byte", "\xF0\x9F\x92\x80\x80", text(u"\U0001F480") + lone(0xDC80));
    row("Latin-1", "M\xFCller", u'M' + lone(0xDCFC) + text(u"ller"));
    row("lowest wrong byte", "\x80", lone(0xDC80));
    row("highest wrong byte", "\xFF", lone(0xDCFF));
    row("truncated sequence at the end", "a\xE2\x82", u'a' + lone(0xDCE2) + lone(0xDC82));
    row("truncated sequence before a letter",
        "\xE2\x82"
        "a",
        lone(0xDCE2) + lone(0xDC82) + u'a');
    row("overlong slash", "\xC0\xAF", lone(0xDCC0) + lone(0xDCAF));
    row("encoded surrogate", "\xED\xA0\x80", lone(0xDCED) + lone(0xDCA0) + lone(0xDC80));
    row("encoded escape", "\xED\xB2\x80", lone(0xDCED) + lone(0xDCB2) + lone(0xDC80));
    row("above U+10FFFF", "\xF4\x90\x80\x80", lone(0xDCF4) + lone(0xDC90) + lone(0xDC80) + lone(0xDC80));
    row("wrong byte beside UTF-8", "\xC3\xA9\xE9\xC3\xA9", text(u"\u00E9") + lone(0xDCE9) + text(u"\u00E9"));
    row("byte-order mark in front",
        "\xEF\xBB\xBF"
        "a",
        text(u"\uFEFFa"));
    row("byte-order mark alone", "\xEF\xBB\xBF", text(u"\uFEFF"));
    row("two byte-order marks", "\xEF\xBB\xBF\xEF\xBB\xBF", text(u"\uFEFF\uFEFF"));
    row("byte-order mark inside",
        "a\xEF\xBB\xBF"
        "b",
        text(u"a\uFEFFb"));
    row("byte-order mark behind a wrong byte", "\xFF\xEF\xBB\xBF", lone(0xDCFF) + text(u"\uFEFF"));
    row("byte-order mark before a wrong byte", "\xEF\xBB\xBF\xFF", text(u"\uFEFF") + lone(0xDCFF));
    row("half a byte-order mark", "\xEF\xBB", lone(0xDCEF) + lone(0xDCBB));
    row("line breaks, quotes, dollars", "a\n\"b\"$`", text(u"a\n\"b\"$`"));
}

void TestFileNames::bytesBecomeTextAndBytesAgain()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, expected);
    QCOMPARE(fromBytes(bytes), expected);
    QCOMPARE(toBytes(expected), bytes);
}

void TestFileNames::everyPairOfBytesSurvives()
{
    for (int first = 1; first < 256; ++first) {
        for (int second = 1; second < 256; ++second) {
            const char name[] = {'x', static_cast<char>(first), static_cast<char>(second), 'y'};
            const QByteArray bytes(name, 4);
            QVERIFY2(toBytes(fromBytes(bytes)) == bytes, bytes.toHex().constData());
        }
    }
}

// Such text cannot come from a name; a window's field may hold it.
void TestFileNames::textThatNamesNoBytesStillBecomesBytes()
{
    const QByteArray replacement = "\xEF\xBF\xBD";
    for (const char16_t unit : QList<char16_t>{0xD800, 0xDBFF, 0xDC00, 0xDC7F, 0xDD00, 0xDFFF}) {
        const QByteArray bytes = toBytes(u'a' + QString(QChar(unit)) + u'b');
        QVERIFY2(bytes == "a" + replacement + "b" || bytes == "a?b", bytes.toHex().constData());
    }
}

void TestFileNames::decodesUtf8Strictly_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("expected"); // null: not UTF-8
    const auto good = [](const char *name, const QByteArray &bytes, const QString &expected) {
        QTest::newRow(name) << bytes << expected;
    };
    const auto bad = [](const char *name, const QByteArray &bytes) {
        QTest::newRow(name) << bytes << QString();
    };
    good("empty", "", QLatin1String(""));
    good("ASCII", "abc\n", text(u"abc\n"));
    good("two, three and four bytes", "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80",
         text(u"\u00E9\u20AC\U0001F600"));
    good("zero byte", QByteArray("a\0b", 3), QStringLiteral("a") + QChar(u'\0') + u'b');
    good("replacement character itself", "\xEF\xBF\xBD", text(u"\uFFFD"));
    good("last code point", "\xF4\x8F\xBF\xBF", text(u"\U0010FFFF"));
    bad("one Latin-1 byte", "M\xFCller");
    bad("one bad byte behind good text", "0010,0010\t\tANON\n\xFF");
    bad("bad first byte", "\xFF"
                          "abc");
    bad("continuation byte alone", "a\x80"
                                   "b");
    bad("two bytes, cut at the end", "abc\xC3");
    bad("three bytes, cut after one at the end", "abc\xE2");
    bad("three bytes, cut after two at the end", "abc\xE2\x82");
    bad("four bytes, cut after three at the end", "abc\xF0\x9F\x98");
    bad("a cut sequence alone", "\xE2");
    bad("cut inside", "\xE2\x82"
                      "abc");
    bad("overlong slash", "\xC0\xAF");
    bad("overlong of three bytes", "\xE0\x80\xAF");
    bad("encoded surrogate", "\xED\xA0\x80");
    bad("pair of encoded surrogates", "\xED\xA0\xBD\xED\xB8\x80");
    bad("above U+10FFFF", "\xF4\x90\x80\x80");
    bad("UTF-16 with its mark", QByteArray("\xFF\xFE"
                                           "a\0",
                                           4));
}

void TestFileNames::decodesUtf8Strictly()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, expected);
    const std::optional<QString> decoded = decodeUtf8(bytes);
    QCOMPARE(decoded.has_value(), !expected.isNull());
    QCOMPARE(decoded.value_or(QString()), expected);
}

void TestFileNames::joinsPaths_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *folder, const char *name, const char *expected) {
        QTest::newRow(folder) << QString::fromLatin1(folder) << QString::fromLatin1(name)
                              << QString::fromLatin1(expected);
    };
    row("/data/s1", "dicom.dic", "/data/s1/dicom.dic");
    row("/data/s1/", "dicom.dic", "/data/s1/dicom.dic");
    row("/", "data", "/data");
}

void TestFileNames::joinsPaths()
{
    QFETCH(const QString, folder);
    QFETCH(const QString, name);
    QFETCH(const QString, expected);
    QCOMPARE(joinPath(folder, name), expected);
}

void TestFileNames::takesPathsApart_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("parent");
    QTest::addColumn<QString>("last");
    QTest::addColumn<QString>("extension");
    QTest::addColumn<QString>("withoutExtension");
    const auto row = [](const char *path, const char *parent, const char *last, const char *extension,
                        const char *base) {
        QTest::newRow(path) << QString::fromLatin1(path) << QString::fromLatin1(parent)
                            << QString::fromLatin1(last) << QString::fromLatin1(extension)
                            << QString::fromLatin1(base);
    };
    row("/data/s1/a.dcm", "/data/s1", "a.dcm", "dcm", "a");
    row("/data/s1/a", "/data/s1", "a", "", "a");
    row("/data/s1/a.b.TXT", "/data/s1", "a.b.TXT", "TXT", "a.b");
    row("/data/s1.x/a", "/data/s1.x", "a", "", "a");
    row("/a.dcm", "/", "a.dcm", "dcm", "a");
    row("/data/a.", "/data", "a.", "", "a");
    row("/data/a b.txt", "/data", "a b.txt", "txt", "a b");
    row("a.txt", "", "a.txt", "txt", "a");
    row("/data/.hidden", "/data", ".hidden", "", ".hidden");
    row("/data/.hidden.txt", "/data", ".hidden.txt", "txt", ".hidden");
}

void TestFileNames::takesPathsApart()
{
    QFETCH(const QString, path);
    QFETCH(const QString, parent);
    QFETCH(const QString, last);
    QFETCH(const QString, extension);
    QFETCH(const QString, withoutExtension);
    QCOMPARE(parentPath(path), parent);
    QCOMPARE(lastPathComponent(path), last);
    QCOMPARE(pathExtension(path), extension);
    QCOMPARE(dravolin::withoutExtension(lastPathComponent(path)), withoutExtension);
}

DRAVOLIN_TEST(TestFileNames)
#include "tst_filenames.moc"
