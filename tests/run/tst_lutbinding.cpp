#include "RunTrace.h"
#include "support/TestEntry.h"

#include "base/PathText.h"
#include "run/LutSteps.h"
#include "run/RunDriver.h"

#include <QTest>

using namespace dravolin;
using namespace dravolin::test;

namespace {

const QString tag = QStringLiteral("0010,1000");

QString refusal(Refusal reason, const QString &table)
{
    return QStringLiteral("refuse %1: %2").arg(nameOf(reason), table);
}

} // namespace

// The selected table is matched against the configuration and loaded.
class TestLutBinding : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void bindsTheMarkedAttribute();
    void bindsTheFirstOfEqualMarkers();
    void bindsATagThatIsNotInTheList();
    void marksAreComparedWhole_data();
    void marksAreComparedWhole();
    void aMissingMarkerIsReportedBeforeABadFile();
    void filesWithoutATableAreRefused_data();
    void filesWithoutATableAreRefused();
    void filesThatPass_data();
    void filesThatPass();
    void refusalLeavesTheRulesAsTheyAre();
    void namesAreNoPlaceholders();
    void keepsTheOldTableWhenAFileCannotBeRead_data();
    void keepsTheOldTableWhenAFileCannotBeRead();
    void otherFilesReplaceTheTable_data();
    void otherFilesReplaceTheTable();

private:
    void select(const QString &name, const QByteArray &content);
    std::unique_ptr<TestRun> m_run;
    RunOptions m_options;
    NewValueDict m_values;
    QStringList m_tags;
};

void TestLutBinding::init()
{
    m_run = std::make_unique<TestRun>();
    m_options = {};
    m_values = {
        {tag, str("<LUT_Site>")}, {str("0008,0080"), str("<LUT_Other>")}, {str("0010,0040"), str("O")}};
    m_tags = {str("0008,0080"), str("0010,0040"), tag, tag}; // twice: one is removed
    m_run->state.set(&RunState::newValueDict, m_values);
    m_run->state.set(&RunState::allTagsToAnonymize, m_tags);
}

void TestLutBinding::select(const QString &name, const QByteArray &content)
{
    m_options.selectedLUT = name;
    m_options.selectedLUTpath = m_run->writeFile(str("home/Desktop/table.txt"), fromBytes(content));
}

void TestLutBinding::bindsTheMarkedAttribute()
{
    select(str("Site"), "<missing>\tX\nA\tB\n");
    QVERIFY(bindTable(m_run->context, m_options));
    QCOMPARE(m_options.theLUTtag, tag);
    QCOMPARE(m_run->state.get(&RunState::usingLUT), true);
    QCOMPARE(m_run->state.get(&RunState::selectedLUTdict),
             (LutTable{{str("<missing>"), str("x")}, {str("A"), str("B")}}));
    m_values.remove(tag);
    QCOMPARE(m_run->state.get(&RunState::newValueDict), m_values);
    QCOMPARE(m_run->state.get(&RunState::allTagsToAnonymize),
             (QStringList{str("0008,0080"), str("0010,0040"), tag}));
    QCOMPARE(m_run->host.calls, QStringList());
}

void TestLutBinding::bindsTheFirstOfEqualMarkers()
{
    m_values.insert(str("0020,0010"), str("<LUT_Site>"));
    m_values.insert(str("0008,0090"), str("<LUT_Site>"));
    m_run->state.set(&RunState::newValueDict, m_values);
    select(str("Site"), "<missing>\tX\n");
    QVERIFY(bindTable(m_run->context, m_options));
    QCOMPARE(m_options.theLUTtag, str("0008,0090"));
    QCOMPARE(m_run->state.get(&RunState::newValueDict).value(tag), str("<LUT_Site>"));
    QCOMPARE(m_run->state.get(&RunState::newValueDict).value(str("0020,0010")), str("<LUT_Site>"));
    QCOMPARE(m_run->state.get(&RunState::newValueDict).size(), 4);
}

void TestLutBinding::bindsATagThatIsNotInTheList()
{
    m_run->state.set(&RunState::allTagsToAnonymize, QStringList(str("0008,0080")));
    select(str("Site"), "<missing>\tX\n");
    QVERIFY(bindTable(m_run->context, m_options));
    QCOMPARE(m_run->state.get(&RunState::allTagsToAnonymize), QStringList(str("0008,0080")));
    QCOMPARE(m_run->state.get(&RunState::usingLUT), true);
}

void TestLutBinding::marksAreComparedWhole_data()
{
    QTest::addColumn<QString>("marker");
    for (const char *marker : {"<LUT_site>", "<lut_Site>", "<LUT_Site", "<LUT_Site> ", " <LUT_Site>",
                               "LUT_Site", "<LUT_Site>x", "<LUT_Sit>", ""})
        QTest::newRow(marker) << str(marker);
}

void TestLutBinding::marksAreComparedWhole()
{
    QFETCH(QString, marker);
    m_values[tag] = marker;
    m_run->state.set(&RunState::newValueDict, m_values);
    select(str("Site"), "<missing>\tX\n");
    const LutTable old = {{str("old"), str("table")}};
    m_run->state.set(&RunState::selectedLUTdict, old);
    QVERIFY(!bindTable(m_run->context, m_options));
    QCOMPARE(m_run->host.calls, QStringList(refusal(Refusal::NoTagForTable, str("Site"))));
    QCOMPARE(m_run->state.get(&RunState::selectedLUTdict), old); // the file was not read
}

void TestLutBinding::aMissingMarkerIsReportedBeforeABadFile()
{
    m_run->state.set(&RunState::usingLUT, true);
    m_run->state.set(&RunState::newValueDict, NewValueDict());
    m_run->state.set(&RunState::selectedLUTdict, LutTable{{str("old"), str("table")}});
    m_options.selectedLUT = str("Site");
    m_options.selectedLUTpath = m_run->path(str("missing.txt"));
    QVERIFY(!bindTable(m_run->context, m_options));
    QCOMPARE(m_run->host.calls, QStringList(refusal(Refusal::NoTagForTable, str("Site"))));
    QCOMPARE(m_run->state.get(&RunState::usingLUT), false);
    QCOMPARE(m_run->state.get(&RunState::selectedLUTdict), (LutTable{{str("old"), str("table")}}));
    QCOMPARE(m_options.theLUTtag, std::nullopt);
}

void TestLutBinding::filesWithoutATableAreRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("reason");
    const int unreadable = static_cast<int>(Refusal::TableUnreadable);
    const int withoutMissing = static_cast<int>(Refusal::TableWithoutMissing);
    QTest::newRow("empty") << QByteArray() << unreadable;
    QTest::newRow("not UTF-8") << QByteArray("<missing>\tX\nM\xFCller\tS1\n") << unreadable;
    QTest::newRow("comments alone") << QByteArray("# <missing>\tX\n") << unreadable;
    QTest::newRow("one-field lines alone") << QByteArray("<missing>\nA\n") << unreadable;
    QTest::newRow("without <missing>") << QByteArray("A\tB\n") << withoutMissing;
    QTest::newRow("<missing> in another case") << QByteArray("<Missing>\tX\n") << withoutMissing;
    QTest::newRow("<missing> without a text") << QByteArray("<missing>\nA\tB\n") << withoutMissing;
}

void TestLutBinding::filesWithoutATableAreRefused()
{
    QFETCH(QByteArray, content);
    QFETCH(int, reason);
    m_run->state.set(&RunState::usingLUT, true);
    select(str("Site"), content);
    QVERIFY(!bindTable(m_run->context, m_options));
    QCOMPARE(m_run->host.calls, QStringList(refusal(static_cast<Refusal>(reason), str("Site"))));
    QCOMPARE(m_run->state.get(&RunState::usingLUT), false);
    QCOMPARE(m_options.theLUTtag, std::nullopt);
}

void TestLutBinding::filesThatPass_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("<missing> alone") << QByteArray("<missing>\tX");
    QTest::newRow("<missing> on the last line") << QByteArray("A\tB\n<missing>\tX\n");
    QTest::newRow("<missing> with an empty text") << QByteArray("<missing>   Y   \tX\n");
    QTest::newRow("as it is written") << lutText(tag, {str("A")}).toUtf8();
}

void TestLutBinding::filesThatPass()
{
    QFETCH(QByteArray, content);
    select(str("Site"), content);
    QVERIFY(bindTable(m_run->context, m_options));
    QCOMPARE(m_run->host.calls, QStringList());
}

void TestLutBinding::refusalLeavesTheRulesAsTheyAre()
{
    for (const QByteArray &content : {QByteArray("A\tB\n"), QByteArray()}) {
        select(str("Site"), content);
        QVERIFY(!bindTable(m_run->context, m_options));
        QCOMPARE(m_run->state.get(&RunState::newValueDict), m_values);
        QCOMPARE(m_run->state.get(&RunState::allTagsToAnonymize), m_tags);
    }
}

void TestLutBinding::namesAreNoPlaceholders()
{
    m_values[tag] = str("<LUT_%2 %1>");
    m_run->state.set(&RunState::newValueDict, m_values);
    select(str("%2 %1"), "A\tB\n");
    QVERIFY(!bindTable(m_run->context, m_options));
    QCOMPARE(m_run->host.calls, QStringList(refusal(Refusal::TableWithoutMissing, str("%2 %1"))));
}

void TestLutBinding::keepsTheOldTableWhenAFileCannotBeRead_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("vanished") << str("vanished.txt");
    QTest::newRow("folder") << str("home");
    QTest::newRow("empty file") << str("empty.txt");
    QTest::newRow("not UTF-8") << str("latin1.txt");
    QTest::newRow("no path") << QString();
}

void TestLutBinding::keepsTheOldTableWhenAFileCannotBeRead()
{
    QFETCH(QString, path);
    m_run->writeFile(str("empty.txt"));
    m_run->writeFile(str("latin1.txt"), str("A\tB\n") + fromBytes("\xFC") + str("\tC\n"));
    const LutTable old = {{str("old"), str("table")}};
    m_run->state.set(&RunState::selectedLUTdict, old);
    const LogCatcher log;
    QVERIFY(!loadTable(m_run->context, path.isEmpty() ? path : m_run->path(path)));
    QCOMPARE(m_run->state.get(&RunState::selectedLUTdict), old);
    QCOMPARE(LogCatcher::messages(), QStringList());
    QCOMPARE(m_run->host.calls, QStringList());
}

void TestLutBinding::otherFilesReplaceTheTable_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<bool>("loaded");
    QTest::addColumn<int>("entries");
    QTest::newRow("a table") << str("A\tB\nC\tD\n") << true << 2;
    QTest::newRow("without <missing>") << str("A\tB\n") << true << 1;
    QTest::newRow("comments alone") << str("# A\tB\n") << false << 0;
    QTest::newRow("a line break alone") << str("\n") << false << 0;
}

void TestLutBinding::otherFilesReplaceTheTable()
{
    QFETCH(QString, content);
    QFETCH(bool, loaded);
    QFETCH(int, entries);
    m_run->state.set(&RunState::selectedLUTdict, LutTable{{str("old"), str("table")}});
    QCOMPARE(loadTable(m_run->context, m_run->writeFile(str("table.txt"), content)), loaded);
    const LutTable table = m_run->state.get(&RunState::selectedLUTdict);
    QCOMPARE(table.size(), entries);
    QVERIFY(!table.contains(str("old")));
}

DRAVOLIN_TEST(TestLutBinding)
#include "tst_lutbinding.moc"
