#include "base/Files.h"
#include "processing/LutConstruction.h"
#include "run/jobs/ScriptJob.h"
#include "support/TestEntry.h"
#include "support/TestRun.h"

#include <QTest>

using namespace dravolin;
using test::TestRun;

namespace {

QStringList sortedList(const QSet<QString> &values)
{
    QStringList list(values.cbegin(), values.cend());
    list.sort();
    return list;
}

} // namespace

// What a construction collects.
class TestLutValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void valuesAreTheLinesAsTheyAre_data();
    void valuesAreTheLinesAsTheyAre();
    void valuesAddUpOverCalls();
    void outputThatIsNotUtf8HasNoValues();
    void noOutputFileIsNoValue();
    void keepsValuesOfAnOutputFileThatNobodyReplaced();
    void toolsTextIsNotCollected();
    void keepsTheOutputInsideAndDeletesTheOneBeside();
    void jobThatCannotStartIsOneError();

private:
    [[nodiscard]] QSet<QString> values() const { return m_run->state.get(&RunState::LUTtagSet); }
    void printed(const QByteArray &text);
    std::unique_ptr<TestRun> m_run;
    QString m_folder;
};

void TestLutValues::init()
{
    m_run = std::make_unique<TestRun>();
    m_folder = m_run->makeFolder(QStringLiteral("data/A"));
    m_run->state.set(&RunState::LUTconstructionTag, QStringLiteral("0010,1000"));
}

void TestLutValues::valuesAreTheLinesAsTheyAre_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("collected");
    const auto add = [](const char *name, const QByteArray &text, const QStringList &collected) {
        QTest::newRow(name) << text << collected;
    };
    add("nothing", "", {});
    add("empty lines", "\n\n\n", {});
    add("lines", "\nB\nA\n\nC", {QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")});
    add("twice", "A\nA\nA\n", {QStringLiteral("A")});
    add("case", "abc\nABC\n", {QStringLiteral("ABC"), QStringLiteral("abc")});
    add("blanks around", " A\nA\nA \n", {QStringLiteral(" A"), QStringLiteral("A"), QStringLiteral("A ")});
    add("blanks alone", " \n\t\n", {QStringLiteral("\t"), QStringLiteral(" ")});
    add("other line breaks",
        "A\r\nB\vC\xE2\x80\xA8"
        "D",
        {QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C"), QStringLiteral("D")});
    add("umlauts", "M\xC3\xBCller\n", {QStringLiteral("M\u00FCller")});
}

void TestLutValues::valuesAreTheLinesAsTheyAre()
{
    QFETCH(QByteArray, text);
    QFETCH(QStringList, collected);
    printed(text);
    QCOMPARE(collectFromTree(m_run->context, m_folder), 0U);
    QCOMPARE(sortedList(values()), collected);
}

void TestLutValues::valuesAddUpOverCalls()
{
    printed("A\nB\n");
    QCOMPARE(collectFromTree(m_run->context, m_folder), 0U);
    printed("B\nC\n");
    QCOMPARE(collectFromFiles(m_run->context, {joinPath(m_folder, QStringLiteral("f"))}), 0U);
    QCOMPARE(values(), (QSet<QString>{QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")}));
}

void TestLutValues::outputThatIsNotUtf8HasNoValues()
{
    printed("A\nM\xFCller\n");
    QCOMPARE(collectFromTree(m_run->context, m_folder), 0U);
    QCOMPARE(values(), QSet<QString>());
}

void TestLutValues::noOutputFileIsNoValue()
{
    QCOMPARE(collectFromTree(m_run->context, m_folder), 0U);
    QCOMPARE(values(), QSet<QString>());
}

void TestLutValues::keepsValuesOfAnOutputFileThatNobodyReplaced()
{
    m_run->writeFile(QStringLiteral("data/A/.noxTemp.out"), QStringLiteral("old\n"));
    QCOMPARE(collectFromTree(m_run->context, m_folder), 0U);
    QCOMPARE(values(), QSet<QString>{QStringLiteral("old")});
}

void TestLutValues::toolsTextIsNotCollected()
{
    printed("E: There was 1 error\n");
    QCOMPARE(collectFromTree(m_run->context, m_folder), 0U);
    QCOMPARE(m_run->state.get(&RunState::output), QString());
    QCOMPARE(m_run->state.get(&RunState::errCount), 0U);
}

void TestLutValues::keepsTheOutputInsideAndDeletesTheOneBeside()
{
    const QString beside = m_run->writeFile(QStringLiteral("data/A.noxTemp.out"));
    const QString inside = m_run->writeFile(QStringLiteral("data/A/.noxTemp.out"));
    QStringList seen;
    m_run->jobs.answer = [&](const Job &) {
        seen = {pathExists(beside) ? QStringLiteral("beside") : QString(),
                pathExists(inside) ? QStringLiteral("inside") : QString()};
        m_run->writeFile(QStringLiteral("data/A.noxTemp.out"));
        return JobResult{JobOutcome::Ran, {}};
    };
    QCOMPARE(collectFromTree(m_run->context, m_folder), 0U);
    QCOMPARE(seen, (QStringList{QString(), QStringLiteral("inside")}));
    QVERIFY(!pathExists(beside));
    QVERIFY(pathExists(inside));
    QVERIFY(!pathExists(joinPath(m_folder, scriptFileName)));
}

void TestLutValues::jobThatCannotStartIsOneError()
{
    QCOMPARE(collectFromTree(m_run->context, m_run->path(QStringLiteral("data/missing"))), 1U);
    QCOMPARE(collectFromFiles(m_run->context, {QStringLiteral("/dev/null/file")}), 1U);
    QVERIFY(m_run->jobs.jobs.isEmpty());

    m_run->writeFile(QStringLiteral("data/A/.noxTemp.out"), QStringLiteral("old\n"));
    m_run->jobs.answer = [](const Job &) { return JobResult{JobOutcome::CouldNotStart, {}}; };
    QCOMPARE(collectFromTree(m_run->context, m_folder), 1U);
    QCOMPARE(values(), QSet<QString>());
}

void TestLutValues::printed(const QByteArray &text)
{
    m_run->jobs.answer = [text](const Job &job) {
        const bool written = writeText(joinPath(job.folder, outputFileName), fromBytes(text));
        return written ? JobResult{JobOutcome::Ran, {}} : JobResult{};
    };
}

DRAVOLIN_TEST(TestLutValues)
#include "tst_lutvalues.moc"
