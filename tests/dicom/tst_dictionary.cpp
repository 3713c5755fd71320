#include "dicom/Dictionary.h"
#include "support/TestEntry.h"

#include <dcmtk/config/osconfig.h>
#include <dcmtk/dcmdata/dctag.h>

using namespace dravolin;

// What the program was built with, beside the dictionary that DCMTK reads here.
class TestDictionary : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knowsRepresentations_data();
    void knowsRepresentations();
    void agreesWithDcmtk_data();
    void agreesWithDcmtk();
};

namespace {

// The two letters, or none.
QByteArray byDcmtk(TagNumber tag)
{
    const DcmTag known(groupOf(tag), elementOf(tag));
    const QByteArray name = known.getVRName();
    const QMap<QByteArray, QByteArray> several = {{"??", {}},   {"UN", {}},   {"ox", "OW"}, {"px", "OW"},
                                                  {"lt", "OW"}, {"xs", "US"}, {"up", "UL"}};
    return several.value(name, name);
}

QByteArray byUs(TagNumber tag)
{
    const Vr representation = dictionaryVr(tag);
    return representation == 0 ? QByteArray() : letters(representation);
}

} // namespace

void TestDictionary::knowsRepresentations_data()
{
    QTest::addColumn<TagNumber>("tag");
    QTest::addColumn<QByteArray>("representation");
    QTest::newRow("a name") << TagNumber(0x00100010) << QByteArray("PN");
    QTest::newRow("pixel data") << TagNumber(0x7fe00010) << QByteArray("OW");
    QTest::newRow("may have a sign") << TagNumber(0x00280106) << QByteArray("US");
    QTest::newRow("the length of a group") << TagNumber(0x00080000) << QByteArray("UL");
    QTest::newRow("an overlay") << TagNumber(0x60003000) << QByteArray("OW");
    QTest::newRow("the last overlay") << TagNumber(0x60fe3000) << QByteArray("OW");
    QTest::newRow("behind the last overlay") << TagNumber(0x61003000) << QByteArray();
    QTest::newRow("a private creator") << TagNumber(0x00290010) << QByteArray("LO");
    QTest::newRow("a private attribute") << TagNumber(0x00291010) << QByteArray();
    QTest::newRow("a private group's length") << TagNumber(0x00290000) << QByteArray();
    QTest::newRow("unknown") << TagNumber(0x00100011) << QByteArray();
    QTest::newRow("the first number") << TagNumber(0) << QByteArray("UL");
    QTest::newRow("the last number") << TagNumber(0xffffffff) << QByteArray();
}

void TestDictionary::knowsRepresentations()
{
    QFETCH(const TagNumber, tag);
    QTEST(byUs(tag), "representation");
}

void TestDictionary::agreesWithDcmtk_data()
{
    QTest::addColumn<QList<quint16>>("groups");
    QTest::addColumn<QList<quint16>>("elements");
    QList<quint16> evenGroups;
    QList<quint16> manyElements;
    for (quint32 group = 0; group <= 0xffff; group += 2)
        evenGroups.append(static_cast<quint16>(group));
    for (quint16 element = 0; element < 0x1400; ++element)
        manyElements.append(element);
    QTest::newRow("every group") << evenGroups << QList<quint16>{0, 0x10};
    QTest::newRow("many attributes of some groups")
        << QList<quint16>{0x0002, 0x0008, 0x0010, 0x0018, 0x0020, 0x0028, 0x1000, 0x1010,
                          0x3006, 0x5000, 0x501e, 0x6000, 0x60fe, 0x7fe0, 0xfffe}
        << manyElements;
}

void TestDictionary::agreesWithDcmtk()
{
    QFETCH(const QList<quint16>, groups);
    QFETCH(const QList<quint16>, elements);
    QStringList different;
    int known = 0;
    for (const quint16 group : groups) {
        for (const quint16 element : elements) {
            const TagNumber tag = static_cast<TagNumber>(group) << 16 | element;
            const QByteArray expected = byDcmtk(tag);
            known += expected.isEmpty() ? 0 : 1;
            if (byUs(tag) != expected)
                different.append(tagText(tag) + u' ' + QString::fromLatin1(expected));
        }
    }
    QCOMPARE(different, QStringList());
    QVERIFY(known > 300);
}

DRAVOLIN_TEST(TestDictionary)
#include "tst_dictionary.moc"
