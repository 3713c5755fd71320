#include "check/AssertionGuard.h"
#include "check/ByteWalk.h"
#include "check/Inflate.h"
#include "check/ObjectReader.h"
#include "ObjectBytes.h"
#include "support/TestEntry.h"

#include <QTest>

#include <cassert>
#include <random>

using namespace dravolin::check;
using namespace dravolin::test;

class TestByteWalk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCOMPARE(initialiseReader(), QString()); }
    void countsWhatTheLibraryReads_data();
    void countsWhatTheLibraryReads();
    void refusesBrokenObjects_data();
    void refusesBrokenObjects();
    void takesOtherFilesForNone_data();
    void takesOtherFilesForNone();
    void findsPixelDataAndWhatFollows();
    void everyCutEndsQuietly();
    void changedBytesEndQuietly();
    void survivesAFailedAssertion();
    void inflatesUpToALimit();
};

namespace {

const QByteArray name = element(0x00100010, "PN", "Meier^Hans");
const QByteArray id = element(0x00100020, "LO", "PID-4711");

} // namespace

void TestByteWalk::countsWhatTheLibraryReads_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<quint64>("values");
    const auto row = [](const char *rowName, const QByteArray &file, quint64 values) {
        QTest::newRow(rowName) << file << values;
    };
    const QByteArray creator = element(0x00090010, "LO", "MAKER");
    const QByteArray odd = elementOfLength(0x00100020, "LO", 3, "odd");
    const QByteArray implicitItem = item(implicitElement(0x00100020, "PID-1"));
    row("flat", object(name + id), 2);
    row("meta information without its length",
        QByteArray(128, '\0') + "DICM" + element(0x00020010, "UI", "1.2.840.10008.1.2.1") + name + id, 2);
    row("meta information of a wrong length", object(name).replace(140, 4, little32(2)), 1);
    row("no meta information", QByteArray(128, '\0') + "DICM" + name + id, 2);
    row("no preamble", object(name).sliced(132), 1);
    row("an unknown transfer syntax", object(name, "1.2.3.4"), 1);
    row("empty value", object(element(0x00080050, "SH", "") + name), 1);
    row("sequence with lengths", object(sequence(0x00081120, item(name + id) + item(name)) + name), 4);
    row("open sequence", object(openSequence(0x00081120, openItem(name + id) + openItem(name)) + name), 4);
    row("open sequence of items with lengths", object(openSequence(0x00081120, item(name)) + name), 2);
    row("empty sequence", object(sequence(0x00081120, {}) + name), 1);
    row("odd items that nobody measures", object(openSequence(0x00081120, openItem(odd) + item(odd)) + name),
        3);
    row("a hundred deep", object(nested(deepestNesting - 1) + name), 1);
    row("private attributes", object(creator + element(0x00091001, "UN", "secret") + name), 3);
    row("unknown sequence",
        object(creator +
               elementOfLength(0x00091002, "UN", undefinedLength,
                               openItem(implicitElement(0x00100020, "X1")) + sequenceEnd) +
               name),
        3);
    row("implicit", object(implicitElement(0x00100010, "Meier^Hans"), "1.2.840.10008.1.2"), 1);
    row("implicit sequence",
        object(implicitElement(0x00081120, implicitItem) + implicitElement(0x00100010, "Meier"),
               "1.2.840.10008.1.2"),
        2);
    row("implicit private sequence",
        object(implicitElement(0x00090010, "MAKER") + implicitElement(0x00091001, implicitItem),
               "1.2.840.10008.1.2"),
        2);
    row("sequence in a value of unknown VR",
        object(creator + element(0x00091002, "UN", item(implicitElement(0x00091003, implicitItem))) + name),
        3);
    row("no sequence in a value of unknown VR",
        object(creator + element(0x00091002, "UN", tagBytes(0xFFFEE000) + little32(8) + "12345678xx") + name),
        3);
    QByteArray deep = implicitElement(0x00100020, "PID-1");
    for (int i = 0; i < 3'000; ++i)
        deep = implicitElement(0x00081140, item(deep));
    row("a value of unknown VR, nested too deep to be taken as a sequence",
        object(creator + element(0x00091002, "UN", deep) + name), 3);
    row("nested icon", object(sequence(0x00880200, item(element(0x7FE00010, "OW", "abcd"))) + name), 1);
}

void TestByteWalk::countsWhatTheLibraryReads()
{
    QFETCH(const QByteArray, file);
    const Walk walked = walk(file);
    QCOMPARE(walked.reason, QString());
    QCOMPARE(walked.kind, Walk::Kind::Object);
    QCOMPARE(walked.end, file.size());
    QTEST(walked.contents.values, "values");
    QVERIFY(readObject(file, walked, [](const Element &) {}));
}

void TestByteWalk::refusesBrokenObjects_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *rowName, const QByteArray &file, const char16_t *reason) {
        QTest::newRow(rowName) << file << QStringView(reason).toString();
    };
    const QByteArray openItemStart = tagBytes(0xFFFEE000) + little32(undefinedLength);
    row("too deep", object(nested(deepestNesting + 1)), u"its sequences are nested more than 100 deep");
    row("ten thousand deep", object(nested(10'000)), u"its sequences are nested more than 100 deep");
    row("value longer than the file", object(elementOfLength(0x00100010, "PN", 200, "Meier")),
        u"an attribute is longer than what holds it");
    row("value longer than its item",
        object(sequence(0x00081120, item(elementOfLength(0x00100010, "PN", 40, "Meier ")))),
        u"an attribute is longer than what holds it");
    row("huge length", object(elementOfLength(0x00091001, "UN", 0xFFFFFFF0, "Meier")),
        u"an attribute is longer than what holds it");
    row("item longer than its sequence",
        object(sequence(0x00081120, tagBytes(0xFFFEE000) + little32(100) + name)),
        u"an item is longer than what holds it");
    row("open sequence without end", object(elementOfLength(0x00081120, "SQ", undefinedLength, item(name))),
        u"it ends inside an attribute");
    row("open item without end",
        object(elementOfLength(0x00081120, "SQ", undefinedLength, openItemStart + name)),
        u"it ends inside an attribute");
    row("sequence without items",
        object(elementOfLength(0x00081120, "SQ", undefinedLength, name + sequenceEnd)),
        u"a sequence holds something else than items");
    row("cut in a header", object(name + id.first(5)), u"it ends inside an attribute");
    row("open text", object(elementOfLength(0x00091001, "UT", undefinedLength, "Meier")),
        u"an attribute without sequence has no length");
    const QByteArray odd = elementOfLength(0x00100020, "LO", 3, "odd");
    row("odd item", object(sequence(0x00081120, item(odd))), u"an item has an odd length");
    row("odd item without length", object(elementOfLength(0x00081120, "SQ", 27, openItem(odd))),
        u"an item has an odd length");
    row("pixel data as a sequence", object(openSequence(0x7FE00010, openItem(name))),
        u"its pixel data is a sequence");
    row("nested pixel data as a sequence",
        object(sequence(0x00880200, item(sequence(0x7FE00010, item(name))))),
        u"its pixel data is a sequence");
    row("open pixel data of another VR",
        object(elementOfLength(0x7FE00010, "UT", undefinedLength, item("abcd") + sequenceEnd)),
        u"an attribute without sequence has no length");
    row("a sequence in the meta information",
        QByteArray(128, '\0') + "DICM" + sequence(0x00020100, item(name)) + name,
        u"its meta information is broken");
    row("an end of items with a length",
        object(elementOfLength(0x00081120, "SQ", undefinedLength,
                               item(name) + tagBytes(0xFFFEE0DD) + little32(2) + "xx")),
        u"a sequence holds something else than items");
    row("broken meta information",
        QByteArray(128, '\0') + "DICM" + elementOfLength(0x00020010, "UI", 100, "1.2"),
        u"its meta information is broken");
    row("broken compression", object("no deflate stream", "1.2.840.10008.1.2.1.99"),
        u"its compressed data set cannot be read");
}

void TestByteWalk::refusesBrokenObjects()
{
    QFETCH(const QByteArray, file);
    const Walk walked = walk(file);
    QCOMPARE(walked.kind, Walk::Kind::Damaged);
    QTEST(walked.reason, "reason");
}

void TestByteWalk::takesOtherFilesForNone_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("Some text that is longer than a header.");
    QTest::newRow("zeros") << QByteArray(5000, '\0');
    QTest::newRow("begins like a data set") << element(0x00080005, "CS", "ISO_IR 100") + QByteArray(100, 'x');
}

void TestByteWalk::takesOtherFilesForNone()
{
    QFETCH(const QByteArray, file);
    const Walk walked = walk(file);
    QVERIFY(walked.kind == Walk::Kind::NoObject || (file.size() > 100 && walked.end < file.size()));
}

void TestByteWalk::findsPixelDataAndWhatFollows()
{
    const QByteArray front = name + id;
    const QByteArray pixels = element(0x7FE00010, "OW", "0123456789");
    const QByteArray padding = element(0xFFFCFFFC, "OB", "PAD!");
    const QByteArray file = object(front + pixels + padding) + "trailing bytes";
    const Walk walked = walk(file);
    QCOMPARE(walked.kind, Walk::Kind::Object);
    QCOMPARE(file.sliced(walked.end), QByteArray("trailing bytes"));
    QCOMPARE(walked.pixelElement.start, front.size());
    QCOMPARE(walked.pixelElement.end, front.size() + pixels.size());
    QCOMPARE(file.sliced(walked.dataSet + walked.pixelValue.start, walked.pixelValue.size()),
             QByteArray("0123456789"));
    QStringList seen;
    QVERIFY(readObject(file, walked, [&seen](const Element &element) {
        if (element.tag >> 16 > 2)
            seen.append(pathText(element.path, element.tag));
    }));
    QCOMPARE(seen, (QStringList{QStringLiteral("(0010,0010)"), QStringLiteral("(0010,0020)"),
                                QStringLiteral("(fffc,fffc)")}));
}

// Whatever is cut off, the walk ends, and what it lets through the library reads as a whole.
void TestByteWalk::everyCutEndsQuietly()
{
    const QByteArray items = openItem(name + id) + item(sequence(0x00081140, item(id)));
    const QByteArray file =
        object(openSequence(0x00081120, items) + name + element(0x7FE00010, "OW", "01234567"));
    qsizetype objects = 0;
    for (qsizetype size = 0; size <= file.size(); ++size) {
        const QByteArray cut = file.first(size);
        const Walk walked = walk(cut);
        QVERIFY(walked.end <= size);
        if (walked.kind != Walk::Kind::Object || walked.end == walked.dataSet)
            continue;
        ++objects;
        QVERIFY(readObject(cut, walked, [](const Element &) {}));
    }
    QVERIFY(objects > 0);
}

// Bytes put in by chance at places by chance: the same ones in every run.
void TestByteWalk::changedBytesEndQuietly()
{
    const QByteArray items = openItem(name + id) + item(sequence(0x00081140, item(id)));
    const QByteArray dataSet = openSequence(0x00081120, items) + name + element(0x7FE00010, "OW", "01234567");
    const QByteArray implicit = implicitElement(0x00081120, item(implicitElement(0x00100020, "PID-1")));
    const QByteArray files[] = {object(dataSet), object(implicit, "1.2.840.10008.1.2")};
    std::minstd_rand random(1);
    for (int round = 0; round < 4000; ++round) {
        QByteArray file = files[round % 2];
        for (int change = 0; change < 3; ++change)
            file[static_cast<qsizetype>(random() % static_cast<size_t>(file.size()))] =
                static_cast<char>(random());
        const Walk walked = walk(file);
        QVERIFY(walked.end <= file.size());
        if (walked.kind == Walk::Kind::Object)
            (void)readObject(file, walked, [](const Element &) {});
    }
}

void TestByteWalk::survivesAFailedAssertion()
{
    QVERIFY(survivesAssertions([] { return true; }));
    QVERIFY(!survivesAssertions([] { return false; }));
    QVERIFY(!survivesAssertions([] {
        __assert_fail("expression", "file", 1, "function");
        return true;
    }));
}

void TestByteWalk::inflatesUpToALimit()
{
    // a stored block
    const QByteArray text("0123456789");
    const QByteArray stream = QByteArray("\x01\x0A\x00\xF5\xFF", 5) + text;
    QCOMPARE(inflate(stream, 100).bytes, text);
    QVERIFY(inflate(stream, 100).complete);
    QCOMPARE(inflate(stream + "xyz", 100).used, stream.size());
    QVERIFY(!inflate(stream.chopped(1), 100).complete);
}

DRAVOLIN_TEST(TestByteWalk)
#include "tst_bytewalk.moc"
