#include "dicom/Treatment.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin;

using Kind = AttributeRule::Kind;

Q_DECLARE_METATYPE(dravolin::AttributeRules)

// What a configuration's edits mean for objects, and which of them mean nothing.
class TestTreatment : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void turnsEditsIntoRules_data();
    void turnsEditsIntoRules();
    void namesEditsThatDoNothing_data();
    void namesEditsThatDoNothing();
};

void TestTreatment::turnsEditsIntoRules_data()
{
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<bool>("withTable");
    QTest::addColumn<AttributeRules>("rules");
    const QString tag = QStringLiteral("0020,000D");
    const QString marker = QStringLiteral("<LUT_x>");
    QTest::newRow("erase") << Edit{Edit::Kind::EraseEverywhere, tag, {}} << false
                           << AttributeRules{{0x0020000d, {Kind::Erase, {}}}};
    QTest::newRow("erase by the tool's other spelling")
        << Edit{Edit::Kind::EraseEverywhere, QStringLiteral("+020,000d"), {}} << false
        << AttributeRules{{0x0020000d, {Kind::Erase, {}}}};
    QTest::newRow("empty") << Edit{Edit::Kind::Insert, tag, QStringLiteral("\"\"")} << false
                           << AttributeRules{{0x0020000d, {Kind::Set, {}}}};
    QTest::newRow("set") << Edit{Edit::Kind::Insert, tag, QStringLiteral("1.2")} << false
                         << AttributeRules{{0x0020000d, {Kind::Set, QStringLiteral("1.2")}}};
    QTest::newRow("marker with a table") << Edit{Edit::Kind::Insert, tag, marker} << true
                                         << AttributeRules{{0x0020000d, {Kind::FromTable, {}}}};
    QTest::newRow("marker without one is a value") << Edit{Edit::Kind::Insert, tag, marker} << false
                                                   << AttributeRules{{0x0020000d, {Kind::Set, marker}}};
    QTest::newRow("new UIDs are not a rule")
        << Edit{Edit::Kind::NewSopInstanceUid, {}, {}} << false << AttributeRules{};
}

void TestTreatment::turnsEditsIntoRules()
{
    QFETCH(Edit, edit);
    QFETCH(bool, withTable);
    QFETCH(AttributeRules, rules);
    QStringList problems;
    QCOMPARE(attributeRules({edit}, withTable, &problems), rules);
    QCOMPARE(problems, QStringList());
}

void TestTreatment::namesEditsThatDoNothing_data()
{
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("problem");
    QTest::newRow("letters") << QStringLiteral("00100g010") << QString()
                             << QStringLiteral("\"00100g010\" is no tag");
    QTest::newRow("unknown") << QStringLiteral("0010,9999") << QStringLiteral("x")
                             << QStringLiteral("(0010,9999) is not known, so no value can be written for it");
    QTest::newRow("private") << QStringLiteral("0009,1001") << QStringLiteral("x")
                             << QStringLiteral("(0009,1001) is not known, so no value can be written for it");
    QTest::newRow("text for a number") << QStringLiteral("0028,0010") << QStringLiteral("many")
                                       << QStringLiteral("\"many\" is no value for (0028,0010)");
    QTest::newRow("a plus sign inside")
        << QStringLiteral("0+10,0010") << QString() << QStringLiteral("\"0+10,0010\" is no tag");
    QTest::newRow("text for a sequence") << QStringLiteral("0008,1140") << QStringLiteral("x")
                                         << QStringLiteral("\"x\" is no value for (0008,1140)");
    QTest::newRow("the object's own UID") << QStringLiteral("0008,0018") << QString()
                                          << QStringLiteral("(0008,0018) cannot be the same in all files");
    for (const char *tag : {"7fe0,0008", "7FE0,0009", "7fe0,0010"}) {
        const QString written = QString::fromLatin1(tag);
        const QString problem =
            QStringLiteral("(%1) is pixel data, which is never altered").arg(written.toLower());
        QTest::addRow("erases %s", tag) << written << QString() << problem;
        QTest::addRow("sets %s", tag) << written << QStringLiteral("0") << problem;
    }
    QTest::newRow("file meta information") << QStringLiteral("0002,0016") << QString()
                                           << QStringLiteral("(0002,0016) is written anew in every file");
}

void TestTreatment::namesEditsThatDoNothing()
{
    QFETCH(QString, tag);
    QFETCH(QString, value);
    QFETCH(QString, problem);
    const Edit::Kind kind = value.isEmpty() ? Edit::Kind::EraseEverywhere : Edit::Kind::Insert;
    QStringList problems;
    QCOMPARE(attributeRules({{kind, tag, value}}, false, &problems), AttributeRules());
    QCOMPARE(problems, QStringList{problem});
}

DRAVOLIN_TEST(TestTreatment)

#include "tst_treatment.moc"
