#include "processing/LutPropagation.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin;

class TestPropagationCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsTheValue_data();
    void findsTheValue();
    void findsNoneInFewerThanThreePieces();
    void looksValuesUpAsTheyAre_data();
    void looksValuesUpAsTheyAre();
    void composesTheCommand_data();
    void composesTheCommand();
};

void TestPropagationCommand::findsTheValue_data()
{
    QTest::addColumn<QString>("printed");
    QTest::addColumn<QString>("value");
    const auto add = [](const char *name, const char *printed, const char *value) {
        QTest::newRow(name) << QString::fromUtf8(printed) << (value ? QString::fromUtf8(value) : QString());
    };
    add("usual line", "(0010,0020) LO [PAT123]                                #   6, 1 PatientID\n",
        "PAT123");
    add("keeps losing one more character at a blank", "(0010,0010) PN [John Doe]    #   8, 1 x\n", "Joh");
    add("keeps nothing of a value that begins with a blank", "(0010,0020) LO [ PAT]    #   4, 1 x\n", "");
    add("keeps cutting brackets inside", "(0010,0020) LO [A]B]    #   4, 1 x\n", "A]B");
    add("empty brackets", "(0010,0020) LO []    #   0, 0 x\n", "");
    add("number without brackets", "(0028,0010) US 512    #   2, 1 Rows\n", "512");
    add("no value", "(0010,0020) LO (no value available)    #   0, 0 PatientID\n", "(no");
    add("sequence", "(0008,1140) SQ (Sequence with explicit length #=1)    # 34, 1 x\n", "(Sequence");
    add("two blanks before the value", "(0010,0020) LO  [A]\n", "");
    add("three pieces without an end", "a b [c", "");
    add("three pieces", "a b cd", "cd");
    add("line break in the third piece", "a b [cd]\n", "cd]");
    add("third piece of the second line", "a b\nc d", "d");
}

void TestPropagationCommand::findsTheValue()
{
    QFETCH(QString, printed);
    QFETCH(QString, value);
    const std::optional<QString> found = searchedValue(printed);
    QVERIFY(found);
    QCOMPARE(*found, value);
}

void TestPropagationCommand::findsNoneInFewerThanThreePieces()
{
    QVERIFY(!searchedValue(QString()));
    QVERIFY(!searchedValue(QStringLiteral("[a]")));
    QVERIFY(!searchedValue(QStringLiteral("(0010,0020) [a]\n")));
}

void TestPropagationCommand::looksValuesUpAsTheyAre_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("newValue");
    const auto add = [](const char *value, const char *newValue) {
        QTest::newRow(value) << QString::fromUtf8(value) << QString::fromUtf8(newValue);
    };
    add("ABC", "S1");
    add("abc", "<missing>");
    add("ABC ", "<missing>");
    add("", "<missing>");
    add("EMPTY", "<missing>");
    add("SKIP", "<skip>");
    add("OTHER", "<SKIP>");
    add("<missing>", "unknown");
    add("John Doe", "S2");
    add("Joh", "<missing>");
}

void TestPropagationCommand::looksValuesUpAsTheyAre()
{
    QFETCH(QString, value);
    QFETCH(QString, newValue);
    const LutTable table = {{QStringLiteral("<missing>"), QStringLiteral("unknown")},
                            {QStringLiteral("ABC"), QStringLiteral("S1")},
                            {QStringLiteral("EMPTY"), QString()},
                            {QStringLiteral("SKIP"), QStringLiteral("<skip>")},
                            {QStringLiteral("OTHER"), QStringLiteral("<SKIP>")},
                            {QStringLiteral("John Doe"), QStringLiteral("S2")}};
    QCOMPARE(propagatedValue(table, value), newValue);
}

void TestPropagationCommand::composesTheCommand_data()
{
    QTest::addColumn<QString>("newValue");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("command");
    const auto add = [](const char *row, const QString &newValue, const QString &name, const QString &end) {
        QTest::newRow(row) << newValue << name << QStringLiteral("\"/a b/dcmodify\" -ie -nb -m ") + end;
    };
    add("plain", QStringLiteral("Subject_001"), QStringLiteral("a.dcm"),
        QStringLiteral("\"(0010,1000)=Subject_001\" \"a.dcm\"  >.noxTemp.out 2>&1"));
    add("keeps shell characters", QStringLiteral("\"$(x)`y`\\"), QStringLiteral("$n\".dcm"),
        QStringLiteral("\"(0010,1000)=\"$(x)`y`\\\" \"$n\".dcm\"  >.noxTemp.out 2>&1"));
    add("placeholders", QStringLiteral("%1"), QStringLiteral("%2 %3"),
        QStringLiteral("\"(0010,1000)=%1\" \"%2 %3\"  >.noxTemp.out 2>&1"));
    add("missing", QStringLiteral("<missing>"), QStringLiteral("-x"),
        QStringLiteral("\"(0010,1000)=<missing>\" \"-x\"  >.noxTemp.out 2>&1"));
}

void TestPropagationCommand::composesTheCommand()
{
    QFETCH(QString, newValue);
    QFETCH(QString, name);
    QFETCH(QString, command);
    QCOMPARE(propagationCommand(QStringLiteral("/a b/dcmodify"), QStringLiteral("0010,1000"), newValue, name),
             command);
}

DRAVOLIN_TEST(TestPropagationCommand)
#include "tst_propagationcommand.moc"
