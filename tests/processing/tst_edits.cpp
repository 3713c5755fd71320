#include "processing/Edits.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin;

namespace {

const QString name = QStringLiteral("0010,0010");
const QString birthDate = QStringLiteral("0010,0030");

// What is done to an object, and how it is said to the tool.
class TestEdits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choicesDecideWhatIsDone_data();
    void choicesDecideWhatIsDone();
    void malformedTagsMakeNoEdit();
    void aShellSeesQuotesAndAProcessDoesNot();
    void everyKindHasItsOption();
};

void TestEdits::choicesDecideWhatIsDone_data()
{
    QTest::addColumn<Qt::CheckState>("generate");
    QTest::addColumn<Qt::CheckState>("only");
    QTest::addColumn<bool>("newUid");
    QTest::addColumn<bool>("tags");
    QTest::newRow("neither") << Qt::Unchecked << Qt::Unchecked << false << true;
    QTest::newRow("generate") << Qt::Checked << Qt::Unchecked << true << true;
    QTest::newRow("generate half on") << Qt::PartiallyChecked << Qt::Unchecked << false << true;
    QTest::newRow("only generate") << Qt::Checked << Qt::Checked << true << false;
    QTest::newRow("only generate half on") << Qt::Checked << Qt::PartiallyChecked << true << false;
    QTest::newRow("only, nothing to generate") << Qt::Unchecked << Qt::Checked << false << false;
}

void TestEdits::choicesDecideWhatIsDone()
{
    QFETCH(const Qt::CheckState, generate);
    QFETCH(const Qt::CheckState, only);
    QFETCH(const bool, newUid);
    QFETCH(const bool, tags);
    const TagRules rules = {{name, birthDate}, {{name, QStringLiteral("ANON")}, {birthDate, QString()}}};
    QList<Edit> expected;
    if (newUid)
        expected.append({Edit::Kind::NewSopInstanceUid, {}, {}});
    if (tags)
        expected += {{Edit::Kind::Insert, name, QStringLiteral("ANON")},
                     {Edit::Kind::EraseEverywhere, birthDate, {}}};
    const Edits made = edits(rules, {.generateSOP = generate, .onlyGenerateSOP = only});
    QVERIFY(made.list == expected);
    QCOMPARE(made.malformedTags, QStringList());
}

void TestEdits::malformedTagsMakeNoEdit()
{
    const Edits made = edits({{QString(), QStringLiteral(" 0010,0010x "), QStringLiteral("short")}, {}}, {});
    QVERIFY(made.list.isEmpty());
    QCOMPARE(made.malformedTags, QStringList({QStringLiteral("0010,0010x"), QStringLiteral("short")}));
}

void TestEdits::aShellSeesQuotesAndAProcessDoesNot()
{
    const QList<Edit> list = {{Edit::Kind::Insert, name, QStringLiteral("a\"b $c")}};
    QCOMPARE(shellText(list), QStringLiteral(" -i \"(0010,0010)=a\"b $c\""));
    QCOMPARE(argumentList(list), QStringList({QStringLiteral("-i"), QStringLiteral("(0010,0010)=a\"b $c")}));
}

void TestEdits::everyKindHasItsOption()
{
    const QList<Edit> list = {{Edit::Kind::NewSopInstanceUid, {}, {}},
                              {Edit::Kind::Insert, name, QStringLiteral("x")},
                              {Edit::Kind::Modify, name, QStringLiteral("y")},
                              {Edit::Kind::EraseEverywhere, birthDate, {}}};
    QCOMPARE(shellText(list),
             QStringLiteral(" -gin -i \"(0010,0010)=x\" -m \"(0010,0010)=y\" -ea \"(0010,0030)\""));
    QCOMPARE(argumentList(list).join(u' '),
             QStringLiteral("-gin -i (0010,0010)=x -m (0010,0010)=y -ea (0010,0030)"));
}

} // namespace

DRAVOLIN_TEST(TestEdits)
#include "tst_edits.moc"
