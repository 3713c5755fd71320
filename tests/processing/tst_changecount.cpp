#include "base/Files.h"
#include "processing/ChangeCount.h"
#include "processing/FolderAnonymization.h"
#include "processing/FolderTree.h"
#include "PropagationRun.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin;
using namespace dravolin::test;

namespace {

FileCounts counted(const TestRun &run)
{
    return run.state.get(&RunState::files);
}

FileCounts counts(quint64 changed, quint64 unchanged, quint64 leftOut, quint64 folders)
{
    return {.changed = changed, .unchanged = unchanged, .leftOut = leftOut, .folders = folders};
}

} // namespace

// What a run says it did to the files, whatever the tool says.
class TestChangeCount : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void countsTheFilesOfATree();
    void countsNamedFilesOnly();
    void aToolThatDoesNothingChangesNothing();
    void aFolderWithoutAJobCounts();
    void aSecondPassCountsNoFileTwice();
    void withoutATableNoNamesAreKept();

private:
    // The tool rewrites every file whose name begins with "d".
    void rewrite(const Job &job);

    std::unique_ptr<PropagationRun> m_run;
};

void TestChangeCount::init()
{
    m_run = std::make_unique<PropagationRun>();
    m_run->jobs.answer = [this](const Job &job) {
        rewrite(job);
        return m_run->answer(job);
    };
}

void TestChangeCount::rewrite(const Job &job)
{
    for (const QString &name : listNames(job.folder)) {
        const QString path = joinPath(job.folder, name);
        if (name.startsWith(u'd') && !isFolder(path))
            QVERIFY(writeText(path, readText(path).value_or(QString()) + u'+'));
    }
}

void TestChangeCount::countsTheFilesOfATree()
{
    for (const char *name : {"d1", "d2", "readme", ".hidden", "sub/d3", "sub/deep/other"})
        m_run->writeFile(QStringLiteral("in/") + QString::fromLatin1(name));
    anonymizeFolderTree(m_run->context, m_run->path(QStringLiteral("in")), {});
    QCOMPARE(counted(*m_run), counts(3, 2, 1, 3));
}

void TestChangeCount::countsNamedFilesOnly()
{
    for (const char *name : {"d1", "d2", "readme", "other"})
        m_run->writeFile(QStringLiteral("in/") + QString::fromLatin1(name));
    const QString folder = m_run->path(QStringLiteral("in"));
    const QStringList files = {joinPath(folder, QStringLiteral("d1")),
                               joinPath(folder, QStringLiteral("readme")), QStringLiteral("/elsewhere/d9")};
    (void)anonymizeFiles(m_run->context, {}, files, folder, {});
    QCOMPARE(counted(*m_run), counts(1, 1, 1, 1));
}

void TestChangeCount::aToolThatDoesNothingChangesNothing()
{
    m_run->writeFile(QStringLiteral("in/a"));
    (void)anonymizeFolder(m_run->context, {}, m_run->path(QStringLiteral("in")), {});
    QCOMPARE(counted(*m_run), counts(0, 1, 0, 1));
}

void TestChangeCount::aFolderWithoutAJobCounts()
{
    m_run->writeFile(QStringLiteral("in/d1"));
    m_run->jobs.answer = [](const Job &) { return JobResult{}; };
    QCOMPARE(anonymizeFolder(m_run->context, {}, m_run->path(QStringLiteral("in")), {}), 1U);
    QCOMPARE(counted(*m_run), counts(0, 1, 0, 1));
}

void TestChangeCount::aSecondPassCountsNoFileTwice()
{
    m_run->file(QStringLiteral("d1"), "PAT123");
    m_run->file(QStringLiteral("d2"), "PAT123");
    m_run->file(QStringLiteral("readme"), "PAT123");
    m_run->state.set(&RunState::usingLUT, true);
    m_run->jobs.answer = [this](const Job &job) { return m_run->answer(job); };
    (void)anonymizeFolder(m_run->context, {}, m_run->dataFolder, {});
    QCOMPARE(counted(*m_run), counts(0, 3, 0, 1));
    m_run->jobs.answer = [this](const Job &job) {
        if (job.executable == QStringLiteral("/bin/sh"))
            rewrite(job);
        return m_run->answer(job);
    };
    (void)m_run->propagate({QStringLiteral("d1")});
    (void)m_run->propagate({QStringLiteral("d1"), QStringLiteral("readme")});
    QCOMPARE(counted(*m_run), counts(1, 2, 0, 1));
}

void TestChangeCount::withoutATableNoNamesAreKept()
{
    m_run->writeFile(QStringLiteral("in/a"));
    (void)anonymizeFolder(m_run->context, {}, m_run->path(QStringLiteral("in")), {});
    QCOMPARE(m_run->state.get(&RunState::unchangedFiles), QSet<QString>());
}

DRAVOLIN_TEST(TestChangeCount)
#include "tst_changecount.moc"
