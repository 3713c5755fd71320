#include "PropagationRun.h"
#include "support/TestEntry.h"

#include "base/Files.h"
#include "run/jobs/ScriptJob.h"
#include "support/AsOrdinaryUser.h"

#include <QTest>

#include <memory>

#include <sys/stat.h>
#include <unistd.h>

using namespace dravolin;
using test::AsOrdinaryUser;
using test::LogCatcher;
using test::PropagationRun;
using test::scriptHeader;

// Which entries of which folders are processed.
class TestPropagationWalk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void passesOverEntries_data();
    void passesOverEntries();
    void everyEntryMovesTheProgressBar();
    void entriesAreLookedForInTheFolder();
    void unreadableAttributesAreLogged();
    void attributesInAClosedFolderAreLogged();
    void nothingToDo_data();
    void nothingToDo();
    void walksSubfoldersBeforeTheirParents();
    void walkListsTheFolderAgain();
    void walkAddsErrorsAndGoesOn();
    void walkLeavesLinksAlone();
    void namesThatAreNotUtf8AreProcessed();

private:
    std::unique_ptr<PropagationRun> m_run;
};

void TestPropagationWalk::init()
{
    m_run = std::make_unique<PropagationRun>();
}

void TestPropagationWalk::passesOverEntries_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("processed");
    const auto add = [](const QString &name, bool processed) {
        QTest::newRow(qPrintable(name)) << name << processed;
    };
    add(QStringLiteral("a.dcm"), true);
    add(QStringLiteral("a"), true);
    add(QStringLiteral("bak"), true);
    add(QStringLiteral("a.BAK"), true);
    add(QStringLiteral("a.dcm.bak2"), true);
    add(QStringLiteral("a.bak.dcm"), true);
    add(QStringLiteral("-x"), true);
    add(QStringLiteral("a b \"$\n"), true);
    add(QStringLiteral("a.dcm.bak"), false);
    add(QStringLiteral("a.bak"), false);
    add(QStringLiteral(".hidden"), false);
    add(QStringLiteral(".hidden.dcm"), false);
    add(QStringLiteral(".noxTemp.out"), false);
    add(QStringLiteral("folder"), false);
    add(QStringLiteral("link to a file"), false);
    add(QStringLiteral("link to nothing"), false);
    add(QStringLiteral("pipe"), false);
}

void TestPropagationWalk::passesOverEntries()
{
    QFETCH(QString, name);
    QFETCH(bool, processed);
    const QByteArray path = toBytes(joinPath(m_run->dataFolder, name));
    if (name == QStringLiteral("folder"))
        QCOMPARE(::mkdir(path.constData(), 0777), 0);
    else if (name == QStringLiteral("pipe"))
        QCOMPARE(::mkfifo(path.constData(), 0666), 0);
    else if (name == QStringLiteral("link to a file"))
        QCOMPARE(::symlink("/etc/passwd", path.constData()), 0);
    else if (name == QStringLiteral("link to nothing"))
        QCOMPARE(::symlink("nothing", path.constData()), 0);
    else
        m_run->writeFile(QStringLiteral("data/A/") + name);
    const LogCatcher log;
    QCOMPARE(m_run->propagate({name}), 0U);
    QCOMPARE(m_run->jobTexts(),
             processed ? QStringList(QStringLiteral("? %1 @ /data/A").arg(name)) : QStringList());
    QCOMPARE(LogCatcher::messages(), QStringList());
    QCOMPARE(m_run->host.calls, QStringList(QStringLiteral("file 1/1")));
}

void TestPropagationWalk::everyEntryMovesTheProgressBar()
{
    QStringList entries = {QStringLiteral(".hidden"), QStringLiteral("a.bak"), QStringLiteral("none")};
    m_run->writeFile(QStringLiteral("data/A/.hidden"));
    m_run->writeFile(QStringLiteral("data/A/a.bak"));
    for (int i = 0; i < 5; ++i)
        entries.append(m_run->file(QString::number(i), "PAT123"));
    const LogCatcher log;
    QCOMPARE(m_run->propagate(entries), 0U);
    QStringList expected;
    for (int i = 1; i <= 8; ++i)
        expected.append(QStringLiteral("file %1/8").arg(i));
    QCOMPARE(m_run->host.calls, expected);
}

void TestPropagationWalk::entriesAreLookedForInTheFolder()
{
    m_run->printed.insert(QStringLiteral("a"), PropagationRun::printedFor("PHANTOM"));
    m_run->writeFile(QStringLiteral("data/A/a"));
    QCOMPARE(m_run->propagate({QStringLiteral("/elsewhere/a"), QStringLiteral("a")}), 0U);
    QCOMPARE(m_run->jobTexts(), QStringList(2, QStringLiteral("? a @ /data/A")));
    QCOMPARE(m_run->skipped(), 2U);
}

void TestPropagationWalk::unreadableAttributesAreLogged()
{
    const LogCatcher log;
    QCOMPARE(m_run->propagate({QStringLiteral("gone %1"), m_run->file(QStringLiteral("a"), "PAT123")}), 0U);
    QCOMPARE(LogCatcher::messages(),
             QStringList{QStringLiteral("Could not get attributes for file: ") + m_run->dataFolder +
                         QStringLiteral("/gone %1 (No such file or directory)")});
    QCOMPARE(m_run->adapted(), 1U);
}

void TestPropagationWalk::attributesInAClosedFolderAreLogged()
{
    m_run->file(QStringLiteral("a"), "PAT123");
    QCOMPARE(::chmod(toBytes(m_run->dataFolder).constData(), 0600), 0);
    QCOMPARE(::chmod(toBytes(m_run->folder.path()).constData(), 0755), 0);
    if (::geteuid() == 0)
        QCOMPARE(::chown(toBytes(m_run->dataFolder).constData(), 65534, 65534), 0);
    const LogCatcher log;
    {
        const AsOrdinaryUser user;
        QCOMPARE(m_run->propagate({QStringLiteral("a")}), 0U);
    }
    QCOMPARE(::chmod(toBytes(m_run->dataFolder).constData(), 0700), 0);
    QCOMPARE(LogCatcher::messages(),
             QStringList{QStringLiteral("Could not get attributes for file: ") + m_run->dataFolder +
                         QStringLiteral("/a (Permission denied)")});
    QCOMPARE(m_run->jobTexts(), QStringList());
}

void TestPropagationWalk::nothingToDo_data()
{
    QTest::addColumn<bool>("withFiles");
    QTest::addColumn<bool>("withFolder");
    QTest::newRow("no entries") << false << true;
    QTest::newRow("no folder") << true << false;
    QTest::newRow("neither") << false << false;
}

void TestPropagationWalk::nothingToDo()
{
    QFETCH(bool, withFiles);
    QFETCH(bool, withFolder);
    const QStringList entries = {m_run->file(QStringLiteral("a"), "PAT123")};
    QCOMPARE(propagateThroughFiles(m_run->context, withFiles ? entries : QStringList(),
                                   withFolder ? m_run->dataFolder : QString(), m_run->options),
             0U);
    QCOMPARE(m_run->jobTexts(), QStringList());
    QCOMPARE(m_run->host.calls, QStringList());
}

void TestPropagationWalk::walksSubfoldersBeforeTheirParents()
{
    m_run->writeFile(QStringLiteral("data/A/one/.deep/a"));
    m_run->writeFile(QStringLiteral("data/A/b"));
    m_run->makeFolder(QStringLiteral("data/A/two"));
    m_run->state.set(&RunState::totalFolders, quint64(4));
    m_run->state.set(&RunState::folderCount, quint64(0));
    propagateThroughTree(m_run->context, m_run->dataFolder, m_run->options);
    const QStringList texts = m_run->jobTexts();
    QCOMPARE(texts,
             (QStringList{QStringLiteral("? a @ /data/A/one/.deep"), QStringLiteral("? b @ /data/A")}));
    QStringList statuses = m_run->host.calls.filter(QStringLiteral("propagated"));
    QStringList expected;
    for (int i = 1; i <= 4; ++i)
        expected.append(QStringLiteral("propagated %1/4 folders").arg(i));
    QCOMPARE(statuses, expected);
    QCOMPARE(m_run->host.calls.last(), expected.last());
    QCOMPARE(m_run->state.get(&RunState::folderCount), 4U);
}

void TestPropagationWalk::walkListsTheFolderAgain()
{
    m_run->writeFile(QStringLiteral("data/A/sub/a"));
    m_run->jobs.answer = [this](const Job &job) {
        m_run->writeFile(QStringLiteral("data/A/new"));
        return m_run->answer(job);
    };
    propagateThroughTree(m_run->context, m_run->dataFolder, m_run->options);
    QCOMPARE(m_run->jobTexts(),
             (QStringList{QStringLiteral("? a @ /data/A/sub"), QStringLiteral("? new @ /data/A")}));
}

void TestPropagationWalk::walkAddsErrorsAndGoesOn()
{
    m_run->writeFile(QStringLiteral("data/A/sub/a"));
    m_run->writeFile(QStringLiteral("data/A/b"));
    m_run->jobs.answer = [](const Job &) { return JobResult{JobOutcome::NoPipe, {}}; };
    const LogCatcher log;
    propagateThroughTree(m_run->context, m_run->dataFolder, m_run->options);
    QCOMPARE(m_run->state.get(&RunState::errCount), 2U);
    QCOMPARE(m_run->state.get(&RunState::folderCount), 2U);
}

void TestPropagationWalk::walkLeavesLinksAlone()
{
    const QString other = m_run->makeFolder(QStringLiteral("other"));
    m_run->writeFile(QStringLiteral("other/a"));
    QCOMPARE(::symlink(toBytes(other).constData(),
                       toBytes(joinPath(m_run->dataFolder, QStringLiteral("link"))).constData()),
             0);
    const LogCatcher log;
    propagateThroughTree(m_run->context, m_run->dataFolder, m_run->options);
    QCOMPARE(m_run->jobTexts(), QStringList());
    QCOMPARE(m_run->state.get(&RunState::folderCount), 1U);
    QCOMPARE(LogCatcher::messages(), QStringList());
}

void TestPropagationWalk::namesThatAreNotUtf8AreProcessed()
{
    const QString name = fromBytes("M\xFCller");
    const QString folder = m_run->makeFolder(QStringLiteral("data/A/") + name);
    m_run->writeFile(QStringLiteral("data/A/") + name + u'/' + name);
    m_run->printed.insert(name, PropagationRun::printedFor("PAT123"));
    QByteArray script;
    m_run->jobs.answer = [&](const Job &job) {
        if (!job.pipeOutput)
            script = readBytes(joinPath(job.folder, scriptFileName)).value_or(QByteArray());
        return m_run->answer(job);
    };
    propagateThroughTree(m_run->context, m_run->dataFolder, m_run->options);
    QCOMPARE(m_run->jobs.folders(), (QStringList{folder, folder}));
    QCOMPARE(script, scriptHeader.toUtf8() + '"' + m_run->paths.dcmodify().toUtf8() +
                         "\" -ie -nb -m \"(0010,1000)=Subject_001\" \"M\xFCller\"  >.noxTemp.out 2>&1");
    QCOMPARE(m_run->adapted(), 1U);
}

DRAVOLIN_TEST(TestPropagationWalk)
#include "tst_propagationwalk.moc"
