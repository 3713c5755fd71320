#include "base/Files.h"
#include "run/jobs/Script.h"
#include "run/jobs/ScriptJob.h"
#include "support/AsOrdinaryUser.h"
#include "support/ScratchFolder.h"
#include "support/TestEntry.h"
#include "support/TestRun.h"

#include <QTest>

#include <unistd.h>

using namespace dravolin;
using test::AsOrdinaryUser;
using test::LogCatcher;
using test::RecordingJobRunner;
using test::ScratchFolder;

// Jobs that do not start.
class TestScriptJobFailures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void startsNothingWithoutAScript_data();
    void startsNothingWithoutAScript();
    void startsNothingWhenThePermissionsCannotBeSet();
    void startsNothingInAFolderThatMayNotBeWritten_data();
    void startsNothingInAFolderThatMayNotBeWritten();
    void reportsAShellThatCouldNotBeStarted();
    void leavesTheFileBesideTheFolderWhenNothingRan();

private:
    std::unique_ptr<ScratchFolder> m_scratch;
    AppPaths m_paths;
    RecordingJobRunner m_jobs;
};

void TestScriptJobFailures::init()
{
    m_scratch = std::make_unique<ScratchFolder>();
    m_paths.resourceFolder = m_scratch->folder(QStringLiteral("resources"));
    m_jobs.jobs.clear();
    m_jobs.answer = nullptr;
}

void TestScriptJobFailures::startsNothingWithoutAScript_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("linkedTo"); // where ".noxTemp.sh" in the folder points to; null: no link
    QTest::newRow("folder missing") << QStringLiteral("missing") << QString();
    QTest::newRow("path through a file") << QStringLiteral("file/folder") << QString();
    QTest::newRow("folder is a file") << QStringLiteral("file") << QString();
    QTest::newRow("a folder has the script's name") << QStringLiteral("occupied") << QString();
    QTest::newRow("a pipe has the script's name") << QStringLiteral("piped") << QString();
    QTest::newRow("the disk is full") << QStringLiteral("folder") << QStringLiteral("/dev/full");
    QTest::newRow("read-only file system") << QStringLiteral("folder") << QStringLiteral("/proc/new");
    QTest::newRow("link to somebody's file") << QStringLiteral("folder") << QStringLiteral("../file");
    QTest::newRow("link to itself") << QStringLiteral("folder") << QStringLiteral(".noxTemp.sh");
    QTest::newRow("name too long") << QString(300, u'x') << QString();
}

void TestScriptJobFailures::startsNothingWithoutAScript()
{
    QFETCH(const QString, folder);
    QFETCH(const QString, linkedTo);
    const QString file = m_scratch->file(QStringLiteral("file"), "kept");
    for (const char16_t *name : {u"folder", u"occupied", u"occupied/.noxTemp.sh", u"piped"})
        m_scratch->folder(QString::fromUtf16(name));
    m_scratch->pipe(QStringLiteral("piped/.noxTemp.sh"));
    if (!linkedTo.isNull())
        m_scratch->link(QStringLiteral("folder/.noxTemp.sh"), linkedTo);
    m_scratch->file(QStringLiteral("folder/.noxTemp.out"), "of an earlier job");
    const LogCatcher log;
    const ScriptJobResult result =
        runScriptJob(m_jobs, m_paths, m_scratch->path(folder), QStringLiteral("commands"));
    QVERIFY(!result.ran);
    QCOMPARE(result.output, QString());
    QVERIFY(m_jobs.jobs.isEmpty());
    QCOMPARE(log.messages(), QStringList());
    QCOMPARE(readText(file), QStringLiteral("kept"));
}

// Another user's file may be writable, but only its owner can set its permissions.
void TestScriptJobFailures::startsNothingWhenThePermissionsCannotBeSet()
{
    if (::geteuid() != 0)
        QSKIP("only root can make another user's file, and CI is root");
    const QString folder = m_scratch->folder(QStringLiteral("folder"));
    const QString script = m_scratch->file(QStringLiteral("folder/.noxTemp.sh"));
    QVERIFY(makeExecutable(m_scratch->path()) && makeExecutable(folder) && makeExecutable(script));
    const LogCatcher log;
    const auto result = [&] {
        const AsOrdinaryUser user;
        return runScriptJob(m_jobs, m_paths, folder, QStringLiteral("commands"));
    }();
    QCOMPARE(readText(script), scriptText(QStringLiteral("commands"))); // written, and left behind
    QVERIFY(!result.ran);
    QVERIFY(m_jobs.jobs.isEmpty());
    QCOMPARE(log.messages(), QStringList());
}

void TestScriptJobFailures::startsNothingInAFolderThatMayNotBeWritten_data()
{
    QTest::addColumn<int>("permissions");
    QTest::newRow("read-only") << 0555;
    QTest::newRow("not to be entered") << 0666;
    QTest::newRow("nothing at all") << 0000;
}

void TestScriptJobFailures::startsNothingInAFolderThatMayNotBeWritten()
{
    QFETCH(const int, permissions);
    m_scratch.reset();
    const AsOrdinaryUser user;
    m_scratch = std::make_unique<ScratchFolder>();
    const QString folder = m_scratch->folder(QStringLiteral("folder"));
    QCOMPARE(::chmod(toBytes(folder).constData(), static_cast<mode_t>(permissions)), 0);
    const ScriptJobResult result = runScriptJob(m_jobs, m_paths, folder, QStringLiteral("commands"));
    ::chmod(toBytes(folder).constData(), 0777);
    QVERIFY(!result.ran);
    QVERIFY(m_jobs.jobs.isEmpty());
    QCOMPARE(listNames(folder), QStringList());
    m_scratch.reset();
}

void TestScriptJobFailures::reportsAShellThatCouldNotBeStarted()
{
    const QString folder = m_scratch->folder(QStringLiteral("folder"));
    m_scratch->file(QStringLiteral("folder/.noxTemp.out"), "of an earlier job");
    m_jobs.answer = [](const Job &) { return JobResult{JobOutcome::CouldNotStart, {}}; };
    const ScriptJobResult result = runScriptJob(m_jobs, m_paths, folder, QStringLiteral("commands"));
    QVERIFY(!result.ran);
    QCOMPARE(result.output, QString());
}

void TestScriptJobFailures::leavesTheFileBesideTheFolderWhenNothingRan()
{
    const QString beside = m_scratch->file(QStringLiteral("missing.noxTemp.out"), "x");
    QVERIFY(!runScriptJob(m_jobs, m_paths, m_scratch->path(QStringLiteral("missing")), QString()).ran);
    QVERIFY(pathExists(beside));
}

DRAVOLIN_TEST(TestScriptJobFailures)
#include "tst_scriptjobfailures.moc"
