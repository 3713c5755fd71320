#include "dicom/Sha256.h"
#include "support/TestEntry.h"

#include <QCryptographicHash>
#include <QRandomGenerator>
#include <QTest>

using namespace dravolin;

Q_DECLARE_METATYPE(dravolin::Sha256::By)

// Hashes as Qt takes them, whatever the pieces in which the bytes come.
class TestSha256 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hashesPieces_data();
    void hashesPieces();
    void hashesForTwo_data() { hashesPieces_data(); }
    void hashesForTwo();
};

namespace {

QByteArray randomBytes(QRandomGenerator &random, qsizetype size)
{
    QByteArray bytes(size, '\0');
    for (char &byte : bytes)
        byte = static_cast<char>(random.bounded(256));
    return bytes;
}

QByteArray expected(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

} // namespace

void TestSha256::hashesPieces_data()
{
    QTest::addColumn<Sha256::By>("way");
    QTest::newRow("by the library") << Sha256::By::Library;
    if (hasShaInstructions())
        QTest::newRow("by the processor") << Sha256::By::Processor;
}

void TestSha256::hashesPieces()
{
    QFETCH(Sha256::By, way);
    QRandomGenerator random(17);
    for (qsizetype size = 0; size < 300; ++size) {
        const QByteArray bytes = randomBytes(random, size);
        Sha256 hash(way);
        for (qsizetype at = 0; at < size;) {
            const qsizetype piece = std::min<qsizetype>(random.bounded(130), size - at);
            hash.add(QByteArrayView(bytes).sliced(at, piece));
            at += piece;
        }
        QCOMPARE(hash.digits(), expected(bytes));
    }
}

void TestSha256::hashesForTwo()
{
    QFETCH(Sha256::By, way);
    QRandomGenerator random(18);
    for (int round = 0; round < 200; ++round) {
        QByteArray one = randomBytes(random, random.bounded(200));
        QByteArray other = randomBytes(random, random.bounded(200));
        Sha256 hashOfOne(way);
        Sha256 hashOfOther(way);
        hashOfOne.add(one);
        hashOfOther.add(other);
        for (int piece = 0; piece < 3; ++piece) {
            const QByteArray both = randomBytes(random, random.bounded(500));
            Sha256::addToBoth(hashOfOne, hashOfOther, both);
            one += both;
            other += both;
        }
        QCOMPARE(hashOfOne.digits(), expected(one));
        QCOMPARE(hashOfOther.digits(), expected(other));
    }
}

DRAVOLIN_TEST(TestSha256)

#include "tst_sha256.moc"
