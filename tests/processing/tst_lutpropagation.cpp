#include "PropagationRun.h"
#include "support/TestEntry.h"

#include "base/Files.h"
#include "run/jobs/ScriptJob.h"

#include <QTest>

#include <memory>

using namespace dravolin;
using test::LogCatcher;
using test::PropagationRun;
using test::scriptHeader;

class TestLutPropagation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void asksAndModifiesFileByFile();
    void fileWithoutValueIsLeftAlone_data();
    void fileWithoutValueIsLeftAlone();
    void skippedFilesAreCounted();
    void toolsTextIsCollectedFileByFile();
    void keepsTheOutputInsideAndDeletesTheOneBeside();
    void keepsCountingFilesThatTheToolCouldNotChange();
    void scriptThatCannotBeWrittenIsNoError();
    void jobThatCannotStartIsNoError();
    void keepsSkippingByTheExactWordAlone();
    void withoutPipeTheUserIsToldAndTheFolderIsLeft();
    void keepsAskingWithoutATag();

private:
    std::unique_ptr<PropagationRun> m_run;
};

void TestLutPropagation::init()
{
    m_run = std::make_unique<PropagationRun>();
}

void TestLutPropagation::asksAndModifiesFileByFile()
{
    const QStringList entries = {m_run->file(QStringLiteral("b.dcm"), "PAT123"),
                                 m_run->file(QStringLiteral("a.dcm"), "NEW")};
    QCOMPARE(m_run->propagate(entries), 0U);
    QCOMPARE(
        m_run->jobTexts(),
        (QStringList{
            QStringLiteral("? b.dcm @ /data/A"),
            QStringLiteral("\"/dcmodify\" -ie -nb -m \"(0010,1000)=Subject_001\" \"b.dcm\"  >.noxTemp.out "
                           "2>&1 @ /data/A"),
            QStringLiteral("? a.dcm @ /data/A"),
            QStringLiteral("\"/dcmodify\" -ie -nb -m \"(0010,1000)=<missing>\" \"a.dcm\"  >.noxTemp.out "
                           "2>&1 @ /data/A")}));
    const Job &search = m_run->jobs.jobs.at(0).job;
    QCOMPARE(search.executable, m_run->paths.dcmdump());
    QCOMPARE(search.arguments, (QStringList{QStringLiteral("-M"), QStringLiteral("-Un"), QStringLiteral("+E"),
                                            QStringLiteral("-s"), QStringLiteral("--search"), m_run->tag,
                                            QStringLiteral("b.dcm")}));
    const Job &modify = m_run->jobs.jobs.at(1).job;
    QCOMPARE(modify.executable, QStringLiteral("/bin/sh"));
    QCOMPARE(modify.arguments, (QStringList{QStringLiteral("-c"),
                                            u'"' + m_run->dataFolder + QStringLiteral("/.noxTemp.sh\"")}));
    QCOMPARE(modify.pipeOutput, false);
    for (const Job &job : {search, modify}) {
        QCOMPARE(job.environment, QStringList{QStringLiteral("DCMDICTPATH=") + m_run->paths.dictionary()});
        QCOMPARE(job.folder, m_run->dataFolder);
    }
    QVERIFY(m_run->jobs.jobs.at(1).script.startsWith(scriptHeader));
    QVERIFY(!pathExists(joinPath(m_run->dataFolder, scriptFileName)));
    QCOMPARE(m_run->adapted(), 2U);
    QCOMPARE(m_run->skipped(), 0U);
}

void TestLutPropagation::fileWithoutValueIsLeftAlone_data()
{
    QTest::addColumn<QByteArray>("printed");
    QTest::newRow("nothing printed") << QByteArray();
    QTest::newRow("one piece") << QByteArray("(0010,1000)\n");
    QTest::newRow("two pieces") << QByteArray("(0010,1000) LO\n");
    QTest::newRow("not UTF-8") << QByteArray("(0010,1000) LO [M\xFCller]   # 6, 1 x\n");
}

void TestLutPropagation::fileWithoutValueIsLeftAlone()
{
    QFETCH(QByteArray, printed);
    m_run->writeFile(QStringLiteral("data/A/a"));
    m_run->printed.insert(QStringLiteral("a"), printed);
    QCOMPARE(m_run->propagate({QStringLiteral("a")}), 0U);
    QCOMPARE(m_run->jobTexts(), QStringList{QStringLiteral("? a @ /data/A")});
    QCOMPARE(m_run->adapted(), 0U);
    QCOMPARE(m_run->skipped(), 0U);
}

void TestLutPropagation::skippedFilesAreCounted()
{
    m_run->state.set(&RunState::numLUTskippedFiles, quint64(3));
    QCOMPARE(m_run->propagate(
                 {m_run->file(QStringLiteral("a"), "PHANTOM"), m_run->file(QStringLiteral("b"), "PHANTOM")}),
             0U);
    QCOMPARE(m_run->jobTexts(),
             (QStringList{QStringLiteral("? a @ /data/A"), QStringLiteral("? b @ /data/A")}));
    QCOMPARE(m_run->adapted(), 0U);
    QCOMPARE(m_run->skipped(), 5U);
}

void TestLutPropagation::toolsTextIsCollectedFileByFile()
{
    m_run->state.set(&RunState::output, QStringLiteral("before\n"));
    m_run->scriptOutput = QStringLiteral("W: text without a line break at its end");
    QCOMPARE(m_run->propagate(
                 {m_run->file(QStringLiteral("a"), "PAT123"), m_run->file(QStringLiteral("b"), "PAT123")}),
             0U);
    QCOMPARE(m_run->state.get(&RunState::output),
             QStringLiteral("before\n") + m_run->scriptOutput + m_run->scriptOutput);
}

void TestLutPropagation::keepsTheOutputInsideAndDeletesTheOneBeside()
{
    const QString beside = m_run->writeFile(QStringLiteral("data/A.noxTemp.out"));
    m_run->scriptOutput = QStringLiteral("text");
    QCOMPARE(m_run->propagate({m_run->file(QStringLiteral("a"), "PAT123")}), 0U);
    QVERIFY(!pathExists(beside));
    QCOMPARE(readText(joinPath(m_run->dataFolder, outputFileName)), m_run->scriptOutput);
}

void TestLutPropagation::keepsCountingFilesThatTheToolCouldNotChange()
{
    m_run->scriptOutput = QStringLiteral("E: unable to load file a: x\nE: There was 1 error\n");
    QCOMPARE(m_run->propagate({m_run->file(QStringLiteral("a"), "PAT123")}), 0U);
    QCOMPARE(m_run->adapted(), 1U);
}

void TestLutPropagation::scriptThatCannotBeWrittenIsNoError()
{
    const QStringList entries = {m_run->file(QStringLiteral("a"), "PAT123"),
                                 m_run->file(QStringLiteral("b"), "PHANTOM")};
    m_run->makeFolder(QStringLiteral("data/A/.noxTemp.sh"));
    m_run->writeFile(QStringLiteral("data/A/.noxTemp.out"), QStringLiteral("old"));
    QCOMPARE(m_run->propagate(entries), 0U);
    QCOMPARE(m_run->jobTexts(),
             (QStringList{QStringLiteral("? a @ /data/A"), QStringLiteral("? b @ /data/A")}));
    QCOMPARE(m_run->adapted(), 0U);
    QCOMPARE(m_run->skipped(), 1U);
    QCOMPARE(m_run->state.get(&RunState::output), QString());
    QCOMPARE(m_run->state.get(&RunState::errCount), 0U);
    QCOMPARE(m_run->state.get(&RunState::jobs).couldNotStart, 1U);
}

void TestLutPropagation::jobThatCannotStartIsNoError()
{
    m_run->jobs.answer = [](const Job &) { return JobResult{JobOutcome::CouldNotStart, {}}; };
    QCOMPARE(m_run->propagate({m_run->file(QStringLiteral("a"), "PAT123")}), 0U);
    m_run->jobs.answer = [this](const Job &job) {
        return job.pipeOutput ? m_run->answer(job) : JobResult{JobOutcome::CouldNotStart, {}};
    };
    QCOMPARE(m_run->propagate({m_run->file(QStringLiteral("a"), "PAT123")}), 0U);
    QCOMPARE(m_run->jobs.jobs.size(), 3);
    QCOMPARE(m_run->adapted(), 0U);
    QCOMPARE(m_run->state.get(&RunState::errCount), 0U);
}

void TestLutPropagation::keepsSkippingByTheExactWordAlone()
{
    m_run->state.set(&RunState::selectedLUTdict, LutTable{{QStringLiteral("A"), QStringLiteral("<SKIP>")},
                                                          {QStringLiteral("B"), QStringLiteral("<skip>")}});
    QCOMPARE(m_run->propagate({m_run->file(QStringLiteral("a"), "A"), m_run->file(QStringLiteral("b"), "B")}),
             0U);
    QCOMPARE(m_run->adapted(), 1U); // the file gets the word as its value
    QCOMPARE(m_run->skipped(), 1U);
}

void TestLutPropagation::withoutPipeTheUserIsToldAndTheFolderIsLeft()
{
    m_run->jobs.answer = [this](const Job &job) {
        return job.arguments.last() == QStringLiteral("b") ? JobResult{JobOutcome::NoPipe, {}}
                                                           : m_run->answer(job);
    };
    const LogCatcher log;
    QCOMPARE(m_run->propagate({m_run->file(QStringLiteral("a"), "PHANTOM"),
                               m_run->file(QStringLiteral("b"), "PHANTOM"),
                               m_run->file(QStringLiteral("c"), "PHANTOM")}),
             1U);
    QCOMPARE(LogCatcher::messages(), QStringList{QStringLiteral("Running out of fileHandles")});
    QCOMPARE(m_run->jobTexts(),
             (QStringList{QStringLiteral("? a @ /data/A"), QStringLiteral("? b @ /data/A")}));
    QCOMPARE(m_run->skipped(), 1U);
    QCOMPARE(m_run->host.calls, QStringList({QStringLiteral("file 1/3"), QStringLiteral("file 2/3"),
                                             QStringLiteral("refuse OutOfFileHandles: ")}));
    QCOMPARE(m_run->state.get(&RunState::errCount), 0U); // for the caller to add
}

void TestLutPropagation::keepsAskingWithoutATag()
{
    m_run->options.theLUTtag.reset();
    QCOMPARE(m_run->propagate({m_run->file(QStringLiteral("a"), "PAT123")}), 0U);
    QCOMPARE(m_run->jobs.jobs.first().job.arguments,
             (QStringList{QStringLiteral("-M"), QStringLiteral("-Un"), QStringLiteral("+E"),
                          QStringLiteral("-s"), QStringLiteral("--search"), QString(), QStringLiteral("a")}));
}

DRAVOLIN_TEST(TestLutPropagation)
#include "tst_lutpropagation.moc"
