#include "base/PathText.h"
#include "batch/CaseWork.h"
#include "support/ScratchFolder.h"
#include "support/TestEntry.h"

#include <memory>

using namespace dravolin;
using test::ScratchFolder;

namespace {

BatchOptions optionsIn(const ScratchFolder &scratch, const QString &folder)
{
    BatchOptions options;
    options.list = scratch.path(QStringLiteral("list.csv"));
    options.wholeFolder = scratch.path(folder);
    options.key = scratch.path(QStringLiteral("key"));
    options.defaultConfiguration = scratch.path(QStringLiteral("rules.txt"));
    return options;
}

// A call of a run that has that folder, from the time on when its list was judged.
class Call
{
public:
    Call(const ScratchFolder &scratch, const QString &folder) : m_options(optionsIn(scratch, folder))
    {
        QString problem;
        const bool isMade = createFolder(m_options.wholeFolder);
        m_journal = Journal::open(scratch.path(folder + QStringLiteral("/journal")), &problem);
        m_files = std::make_unique<PlannedFiles>(m_options.wholeFolder);
        // out1 is that of case 1
        m_plan = judgeList(m_options, [](const QString &destination) {
            return QStringList{lastPathComponent(destination).mid(3)};
        });
        scanSources(m_plan, 1, m_files.get(), [] { return false; });
        if (!isMade || !m_journal || !m_plan.problems.isEmpty())
            QTest::qFail("the call cannot begin", __FILE__, __LINE__);
        else
            m_work = std::make_unique<CaseWork>(m_plan, *m_files, m_options, m_key, *m_journal);
    }

    CaseWork &work() { return *m_work; }
    // Begins a round, and gives the failure of all so far.
    QString beginRound()
    {
        m_work->beginRound();
        return m_work->failure();
    }

private:
    BatchOptions m_options;
    ProjectKey m_key{QByteArray(ProjectKey::size, 'k')};
    std::unique_ptr<Journal> m_journal;
    std::unique_ptr<PlannedFiles> m_files;
    Plan m_plan;
    std::unique_ptr<CaseWork> m_work;
};

} // namespace

// Whose a destination is.
class TestCaseWork : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void keepsOtherCallsOutOfADestination();
    void refusesADestinationThatWasFilledMeanwhile();
    void goesOnInADestinationOfItsOwnRun();
    void opensOnlySoManyDestinationsAtOnce();

private:
    void writeList(int cases) const;
    [[nodiscard]] QStringList results() const;
    std::unique_ptr<ScratchFolder> m_scratch;
    const QString m_one = QStringLiteral("one");
    const QString m_other = QStringLiteral("other");
    const QString m_leftOver = QStringLiteral("out1/.dravolin-7.part");
};

void TestCaseWork::init()
{
    m_scratch = std::make_unique<ScratchFolder>();
    m_scratch->file(QStringLiteral("rules.txt"), "0010,0030\tBirth date\n");
    m_scratch->folder(QStringLiteral("in"));
    m_scratch->file(QStringLiteral("in/no object"));
    writeList(1);
}

void TestCaseWork::writeList(int cases) const
{
    QByteArray rows = "source,destination,case_id\n";
    for (int number = 1; number <= cases; ++number)
        rows += "in,out" + QByteArray::number(number) + ',' + QByteArray::number(number) + '\n';
    m_scratch->file(QStringLiteral("list.csv"), rows);
}

QStringList TestCaseWork::results() const
{
    return listNames(m_scratch->path(QStringLiteral("out1")));
}

void TestCaseWork::keepsOtherCallsOutOfADestination()
{
    Call one(*m_scratch, m_one);
    QCOMPARE(one.beginRound(), QString());
    m_scratch->file(m_leftOver);
    Call other(*m_scratch, m_other);
    const QString folder = m_scratch->path(QStringLiteral("out1"));
    QCOMPARE(other.beginRound(), QStringLiteral("another call is at work in ") + folder);
    QCOMPARE(results(), QStringList(lastPathComponent(m_leftOver)));

    removeFile(m_scratch->path(m_leftOver));
    one.work().leaveCase(0);
    QCOMPARE(Call(*m_scratch, m_other).beginRound(), QString());
}

void TestCaseWork::refusesADestinationThatWasFilledMeanwhile()
{
    Call one(*m_scratch, m_one);
    m_scratch->file(m_leftOver);
    const QString problem =
        QStringLiteral("the destination %1 is in use").arg(m_scratch->path(QStringLiteral("out1")));
    QCOMPARE(one.beginRound(), problem);
    QCOMPARE(Call(*m_scratch, m_one).beginRound(), problem); // it has not become this run's own
    QCOMPARE(results(), QStringList(lastPathComponent(m_leftOver)));
}

void TestCaseWork::goesOnInADestinationOfItsOwnRun()
{
    QCOMPARE(Call(*m_scratch, m_one).beginRound(), QString());
    m_scratch->file(m_leftOver);
    m_scratch->file(QStringLiteral("out1/result"));
    QCOMPARE(Call(*m_scratch, m_one).beginRound(), QString());
    QCOMPARE(results(), QStringList(QStringLiteral("result")));
}

void TestCaseWork::opensOnlySoManyDestinationsAtOnce()
{
    constexpr int most = 500;
    writeList(most + 1);
    Call one(*m_scratch, m_one);
    QCOMPARE(one.beginRound(), QString());
    QCOMPARE(one.work().casesEnded(), most);
    QCOMPARE(one.beginRound(), QString());
    QCOMPARE(one.work().casesEnded(), most + 1);
}

DRAVOLIN_TEST(TestCaseWork)
#include "tst_casework.moc"
