#include "check/Search.h"
#include "check/Values.h"
#include "ObjectBytes.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin::check;
using namespace dravolin::test;

// Values that stand where the search goes from one piece of a large value to the next.
class TestSearch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void findsValuesAcrossPieces_data();
    void findsValuesAcrossPieces();
    void keepsEscapesFromPieceToPiece_data();
    void keepsEscapesFromPieceToPiece();

private:
    [[nodiscard]] qsizetype findingsIn(const QByteArray &bytes) const;

    Values m_values;
};

namespace {

constexpr qsizetype pieceSize = 262144;

} // namespace

void TestSearch::initTestCase()
{
    QCOMPARE(initialiseReader(), QString());
    m_values.add(ValueClass::Identifier, 0x00100020, QStringLiteral("PID-5530718"));
    m_values.add(ValueClass::Person, 0x00100010, QStringLiteral("Brückner^Jörg"));
    m_values.add(ValueClass::Person, 0x00100010, QStringLiteral("春山^茜里"));
    m_values.add(ValueClass::Person, 0x00100010, QStringLiteral("편^서린"));
}

// In a file that is no object.
qsizetype TestSearch::findingsIn(const QByteArray &bytes) const
{
    Searcher searcher(m_values.patterns(), nullptr, false);
    return searcher.search(lookAt(bytes), QStringLiteral("IM1")).findings.size();
}

void TestSearch::findsValuesAcrossPieces_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QByteArray>("filler");
    const auto row = [](const char *name, const QByteArray &value, const QByteArray &filler) {
        QTest::newRow(name) << value << filler;
    };
    row("number among zeros", "PID-5530718", QByteArray(1, '\0'));
    row("number in a text", "PID-5530718", "some words ");
    row("number without a blank anywhere", "/PID-5530718/", "-");
    row("Latin-1",
        "Br\xFC"
        "ckner/J\xF6rg",
        "some words ");
    row("UTF-8",
        "Br\xC3\xBC"
        "ckner/J\xC3\xB6rg",
        "\xC3\xA9t\xC3\xA9 ");
    row("UTF-16", QByteArray("B\0r\0\xFC\0c\0k\0n\0e\0r\0", 16), QByteArray("-\0", 2));
    row("UTF-16 of the other byte order", QByteArray("\0B\0r\0\xFC\0c\0k\0n\0e\0r", 16),
        QByteArray("\0-", 2));
    row("UTF-8 of three bytes", "\xE6\x98\xA5\xE5\xB1\xB1^\xE8\x8C\x9C\xE9\x87\x8C", "\xE3\x80\x82");
    row("ISO 2022 Japanese", "\x1B$B=U;3\x1B(B^\x1B$B0+N$\x1B(B ", "\x1B$B<+A3\x1B(B, ");
    row("ISO 2022 Korean", "\x1B$)C\xC6\xED^\x1B$)C\xBC\xAD\xB8\xB0 ", "\x1B$)C\xB0\xA1\n");
}

void TestSearch::findsValuesAcrossPieces()
{
    QFETCH(const QByteArray, value);
    QFETCH(const QByteArray, filler);
    // whole fillers, so that a letter of several bytes is not cut
    const QByteArray before = filler.repeated((pieceSize - value.size()) / filler.size());
    for (const qsizetype inNextPiece : {qsizetype{1}, value.size() / 2}) {
        const qsizetype missing = pieceSize - value.size() + inNextPiece - before.size();
        const QByteArray nearer = QByteArray("\n\0", 2).repeated((missing + 1) / 2);
        QCOMPARE(findingsIn(before + nearer + value + '\n' + filler), 1);
    }
}

void TestSearch::keepsEscapesFromPieceToPiece_data()
{
    QTest::addColumn<QByteArray>("front");
    QTest::addColumn<QByteArray>("filler");
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("Japanese") << QByteArray("\x1B$B") << QByteArray("<+A3") << QByteArray("=U;30+N$");
    QTest::newRow("Korean, with blanks")
        << QByteArray("\x1B$)C") << QByteArray("\xB0\xA1 ") << QByteArray("\xC6\xED\xBC\xAD\xB8\xB0");
    QTest::newRow("Korean, without any")
        << QByteArray("\x1B$)C") << QByteArray("\xB0\xA1") << QByteArray("\xC6\xED\xBC\xAD\xB8\xB0");
}

// An escape sequence at the beginning holds for all of a long line.
void TestSearch::keepsEscapesFromPieceToPiece()
{
    QFETCH(const QByteArray, front);
    QFETCH(const QByteArray, filler);
    QFETCH(const QByteArray, value);
    const QByteArray line = front + filler.repeated(pieceSize / filler.size() + 10);
    QCOMPARE(findingsIn(line + value + filler), 1);
}

DRAVOLIN_TEST(TestSearch)
#include "tst_search.moc"
