#include "identifiers/Uuid.h"
#include "support/TestEntry.h"

#include <QRegularExpression>
#include <QSet>
#include <QTest>

using namespace dravolin;

class TestUuid : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void makesRandomUuidsOf36UpperCaseCharacters();
    void makesANewUuidAtEachCall();
    void writesUuidsInDecimal_data();
    void writesUuidsInDecimal();
};

void TestUuid::makesRandomUuidsOf36UpperCaseCharacters()
{
    NOXUtils::RandomUuidSource source;
    static const QRegularExpression form(
        QStringLiteral("\\A[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[89AB][0-9A-F]{3}-[0-9A-F]{12}\\z"));
    for (int i = 0; i < 100; ++i) {
        const QString uuid = source.uniqueString();
        QVERIFY2(form.match(uuid).hasMatch(), qPrintable(uuid));
    }
}

void TestUuid::makesANewUuidAtEachCall()
{
    NOXUtils::RandomUuidSource source;
    QSet<QString> seen;
    for (int i = 0; i < 1000; ++i)
        seen.insert(source.uniqueString());
    QCOMPARE(seen.size(), 1000);
}

void TestUuid::writesUuidsInDecimal_data()
{
    QTest::addColumn<QString>("uuid");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *uuid, const char *expected) {
        QTest::newRow(uuid) << QString::fromLatin1(uuid) << QString::fromLatin1(expected);
    };
    row("FFFFFFFF-FFFF-FFFF-FFFF-FFFFFFFFFFFF", "340282366920938463463374607431768211455");
    row("ffffffff-ffff-ffff-ffff-ffffffffffff", "340282366920938463463374607431768211455");
    row("00000000-0000-0000-0000-000000000001", "1");
    row("00000000-0000-0000-0000-000000000000", "0");
    row("00000000-0000-0000-0001-000000000000", "281474976710656");
    row("80000000-0000-0000-0000-000000000000", "170141183460469231731687303715884105728");
    row("F81D4FAE-7DEC-11D0-A765-00A0C91E6BF6", "329800735698586629295641978511506172918");
    row("01234567-89AB-4DEF-8123-456789ABCDEF", "1512366075203566475363147076673981935");
}

void TestUuid::writesUuidsInDecimal()
{
    QFETCH(const QString, uuid);
    QFETCH(const QString, expected);
    QCOMPARE(NOXUtils::decimalRepresentationOfUUID(uuid), expected);
}

DRAVOLIN_TEST(TestUuid)
#include "tst_uuid.moc"
