#include "dicom/ElementReader.h"
#include "dicom/Values.h"
#include "support/ScratchFolder.h"
#include "support/TestEntry.h"

#include <memory>

using namespace dravolin;
using test::ScratchFolder;

namespace {

constexpr Notation explicitLittle = {};
constexpr Notation implicitLittle = {.explicitVr = false, .bigEndian = false};

const QByteArray item("\xfe\xff\x00\xe0", 4);
const QByteArray itemEnd("\xfe\xff\x0d\xe0\0\0\0\0", 8);
const QByteArray sequenceEnd("\xfe\xff\xdd\xe0\0\0\0\0", 8);
const QByteArray undefined("\xff\xff\xff\xff", 4);
const QByteArray sequenceTag("\x08\x00\x40\x11", 4);
const QByteArray openSequence = sequenceTag + QByteArray("SQ\0\0", 4) + undefined;
const QByteArray openItem = item + undefined;

QByteArray rows()
{
    return elementBytes(0x00280010, vr('U', 'S'), explicitLittle, explicitLittle.bytes16(16));
}

QByteArray repeated(const QByteArray &bytes, int times)
{
    return bytes.repeated(times);
}

} // namespace

// The walk over a data set: what it finds, and that damage is told wherever it is.
class TestElementReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsElements_data();
    void findsElements();
    void tellsDamage_data();
    void tellsDamage();
    void endsAtEveryCutWithoutHarm();

private:
    // One letter or tag for every token, then "." or what is damaged.
    [[nodiscard]] static QString walked(const QByteArray &dataSet, const Notation &notation);
};

QString TestElementReader::walked(const QByteArray &dataSet, const Notation &notation)
{
    using Token = ElementReader::Token;
    const ScratchFolder folder;
    QString problem;
    const auto file = SourceFile::open(folder.file(QStringLiteral("x"), dataSet), &problem);
    ElementReader reader(*file, 0, file->size(), notation);
    QString text;
    while (true) {
        switch (reader.next()) {
        case Token::Element: text += tagText(reader.current().tag); break;
        case Token::Sequence: text += tagText(reader.current().tag) + u'<'; break;
        case Token::Item: text += u'['; break;
        case Token::ItemEnd: text += u']'; break;
        case Token::SequenceEnd: text += u'>'; break;
        case Token::End: return text + u'.';
        case Token::Damaged: return text + reader.problem();
        }
    }
}

void TestElementReader::findsElements_data()
{
    QTest::addColumn<QByteArray>("dataSet");
    QTest::addColumn<bool>("explicitVr");
    QTest::addColumn<QString>("found");
    const QString sequence = QStringLiteral("(0008,1140)<[(0028,0010)]>.");
    const QByteArray implicitRows = QByteArray("\x28\x00\x10\x00\x02\0\0\0\x10\0", 10);

    QTest::newRow("nothing") << QByteArray() << true << QStringLiteral(".");
    QTest::newRow("undefined lengths")
        << openSequence + openItem + rows() + itemEnd + sequenceEnd << true << sequence;
    QTest::newRow("defined lengths") << sequenceTag + QByteArray("SQ\0\0\x12\0\0\0", 8) + item +
                                            QByteArray("\x0a\0\0\0", 4) + rows()
                                     << true << sequence;
    QTest::newRow("an empty sequence") << sequenceTag + QByteArray("SQ\0\0\0\0\0\0", 8) + rows() << true
                                       << QStringLiteral("(0008,1140)<>(0028,0010).");
    QTest::newRow("a sequence as UN, implicit inside")
        << sequenceTag + QByteArray("UN\0\0\x12\0\0\0", 8) + item + QByteArray("\x0a\0\0\0", 4) + implicitRows
        << true << sequence;
    QTest::newRow("the same without lengths")
        << sequenceTag + QByteArray("UN\0\0", 4) + undefined + openItem + implicitRows + itemEnd + sequenceEnd
        << true << sequence;
    QTest::newRow("implicit") << sequenceTag + undefined + openItem + implicitRows + itemEnd + sequenceEnd
                              << false << sequence;
    QTest::newRow("fragments are one element")
        << QByteArray("\xe0\x7f\x10\x00OB\0\0", 8) + undefined + item + QByteArray("\0\0\0\0", 4) + item +
               QByteArray("\x04\0\0\0abcd", 8) + sequenceEnd + rows()
        << true << QStringLiteral("(7fe0,0010)(0028,0010).");
    QTest::newRow("zeros behind the end")
        << rows() + QByteArray(500, '\0') << true << QStringLiteral("(0028,0010).");
}

void TestElementReader::findsElements()
{
    QFETCH(QByteArray, dataSet);
    QFETCH(bool, explicitVr);
    QFETCH(QString, found);
    QCOMPARE(walked(dataSet, explicitVr ? explicitLittle : implicitLittle), found);
}

void TestElementReader::tellsDamage_data()
{
    QTest::addColumn<QByteArray>("dataSet");
    QTest::addColumn<QString>("found");
    const QByteArray level = openSequence + openItem;
    const QByteArray huge = QByteArray("\x10\x00\x10\x00UT\0\0\xfe\xff\xff\xff", 12);

    QTest::newRow("nested 10,000 deep")
        << repeated(level, 10000) + repeated(itemEnd + sequenceEnd, 10000)
        << QStringLiteral("(0008,1140)<[").repeated(256) + QStringLiteral("is nested more than 256 deep");
    QTest::newRow("a length beyond the end") << huge << QStringLiteral("ends in the middle of (0010,0010)");
    QTest::newRow("an item longer than its sequence")
        << sequenceTag + QByteArray("SQ\0\0\x12\0\0\0", 8) + item + QByteArray("\x0c\0\0\0", 4) + rows() +
               rows()
        << QStringLiteral("(0008,1140)<(fffe,e000) is longer than what holds it");
    QTest::newRow("an item outside a sequence")
        << openItem << QStringLiteral("has (fffe,e000) outside a sequence");
    QTest::newRow("an element inside a sequence")
        << openSequence + rows()
        << QStringLiteral("(0008,1140)<has (0028,0010) where an item of a sequence should begin");
    QTest::newRow("no letters for the representation")
        << QByteArray("\x10\x00\x10\x00\x01\x02\x00\x00", 8)
        << QStringLiteral("has an unreadable header at (0010,0010)");
    QTest::newRow("no delimiter") << openSequence + openItem + rows()
                                  << QStringLiteral(
                                         "(0008,1140)<[(0028,0010)ends in the middle of an element");
    QTest::newRow("fragments without an end")
        << QByteArray("\xe0\x7f\x10\x00OB\0\0", 8) + undefined + item + QByteArray("\xff\0\0\0", 4)
        << QStringLiteral("ends in the middle of the fragments of (7fe0,0010)");
    QTest::newRow("a sequence as UN that is none")
        << sequenceTag + QByteArray("UN\0\0\x08\0\0\0Doe^Jane", 16)
        << QStringLiteral("(0008,1140)<has (6f44,5e65) where an item of a sequence should begin");
}

void TestElementReader::tellsDamage()
{
    QFETCH(QByteArray, dataSet);
    QFETCH(QString, found);
    QCOMPARE(walked(dataSet, explicitLittle), found);
}

void TestElementReader::endsAtEveryCutWithoutHarm()
{
    const QByteArray whole = rows() + openSequence + openItem + rows() + itemEnd + sequenceEnd + rows();
    const QList<qsizetype> complete = {0, rows().size(), whole.size() - rows().size(), whole.size()};
    for (qsizetype size = 0; size <= whole.size(); ++size)
        QCOMPARE(walked(whole.first(size), explicitLittle).endsWith(u'.'), complete.contains(size));
}

DRAVOLIN_TEST(TestElementReader)

#include "tst_elementreader.moc"
