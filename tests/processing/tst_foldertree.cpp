#include "base/Files.h"
#include "processing/FolderTree.h"
#include "support/OddNames.h"
#include "support/TestEntry.h"
#include "support/TestRun.h"

#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace dravolin;
using test::oddNames;
using test::TestRun;

class TestFolderTree : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void countsSubfoldersBeforeTheirParents();
    void namesAreLowerCasedAndKeptAsOftenAsTheyOccur();
    void countsFoldersByTheirOwnAttributes();
    void severalTreesAddUp();
    void deletesWhatEarlierRunsLeftInEveryFolder();
    void deletesNothingBesideAFolderOrBehindALink();
    void anonymizesSubfoldersBeforeTheirParents();
    void emptyFolderIsAJobAndAStep();
    void anonymizingDeletesNothing();
    void failedJobIsCountedAndTheWalkGoesOn();
    void walksFoldersWithOddNames();
    void tellsTheProgress();

private:
    QStringList count(const QString &folder)
    {
        (void)countFolderTree(m_run->context, folder);
        return m_run->state.get(&RunState::AllFoldersNames);
    }
    [[nodiscard]] QString path(const char16_t *relative) const
    {
        return m_run->path(QString::fromUtf16(relative));
    }
    void make(const QList<const char16_t *> &folders)
    {
        for (const char16_t *folder : folders)
            m_run->makeFolder(QString::fromUtf16(folder));
    }
    void link(const char16_t *relative, const char *target)
    {
        QCOMPARE(::symlink(target, toBytes(path(relative)).constData()), 0);
    }
    std::unique_ptr<TestRun> m_run;
};

void TestFolderTree::init()
{
    m_run = std::make_unique<TestRun>();
}

void TestFolderTree::countsSubfoldersBeforeTheirParents()
{
    make({u"Top/Xa/Za", u"Top/Ya"});
    QStringList expected;
    for (const QString &name : listNames(path(u"Top"))) // siblings come in the file system's order
        expected += name == QStringLiteral("Xa") ? QStringList({QStringLiteral("za"), QStringLiteral("xa")})
                                                 : QStringList{QStringLiteral("ya")};
    QCOMPARE(countFolderTree(m_run->context, path(u"Top")), 4U);
    QCOMPARE(m_run->state.get(&RunState::AllFoldersNames), expected);
    QCOMPARE(m_run->state.get(&RunState::totalFolders), 4U);
    QCOMPARE(m_run->state.get(&RunState::folderCount), 0U);
    QVERIFY(m_run->jobs.jobs.isEmpty());
    QCOMPARE(m_run->host.calls, QStringList());
}

void TestFolderTree::namesAreLowerCasedAndKeptAsOftenAsTheyOccur()
{
    make({u"Top/A/SAME/\u00C4\u00D6", u"Top/B"});
    QCOMPARE(count(path(u"Top/A")), QStringList({QStringLiteral("\u00E4\u00F6"), QStringLiteral("same")}));
    QCOMPARE(count(path(u"Top/A/SAME")), QStringList({QStringLiteral("\u00E4\u00F6"), QStringLiteral("same"),
                                                      QStringLiteral("\u00E4\u00F6")}));
}

void TestFolderTree::countsFoldersByTheirOwnAttributes()
{
    make({u"Top/.hidden", u"Top/Package.app/Contents", u"elsewhere/inside"});
    m_run->writeFile(QStringLiteral("Top/file"));
    link(u"Top/link", "../elsewhere");
    link(u"Top/loop", ".");
    link(u"Top/broken", "nowhere");
    QCOMPARE(::mkfifo(toBytes(path(u"Top/pipe")).constData(), 0600), 0);
    QStringList names = count(path(u"Top"));
    names.sort();
    QCOMPARE(names, QStringList({QStringLiteral(".hidden"), QStringLiteral("contents"),
                                 QStringLiteral("package.app")}));
    QCOMPARE(m_run->state.get(&RunState::totalFolders), 4U);

    anonymizeFolderTree(m_run->context, path(u"Top"), {});
    QStringList folders = m_run->jobs.folders();
    QCOMPARE(folders.takeLast(), path(u"Top"));
    folders.sort();
    QCOMPARE(folders, QStringList({path(u"Top/.hidden"), path(u"Top/Package.app"),
                                   path(u"Top/Package.app/Contents")}));
}

void TestFolderTree::severalTreesAddUp()
{
    make({u"One/a", u"Two"});
    QCOMPARE(countFolderTree(m_run->context, path(u"One")), 2U);
    QCOMPARE(countFolderTree(m_run->context, path(u"Two")), 3U);
    QCOMPARE(countFolderTree(m_run->context, path(u"Two")), 4U);
}

void TestFolderTree::deletesWhatEarlierRunsLeftInEveryFolder()
{
    const QStringList folders = {QStringLiteral("Top"), QStringLiteral("Top/a"), QStringLiteral("Top/a/.b")};
    for (const QString &folder : folders) {
        for (const char16_t *name :
             {u".noxTemp.sh", u".noxTemp.out", u"noxTemp.out", u".noxTemp.out2", u"image"})
            m_run->writeFile(joinPath(folder, QString::fromUtf16(name)));
    }
    (void)count(path(u"Top"));
    for (const QString &folder : folders) {
        QStringList left = listNames(m_run->path(folder));
        left.removeIf(
            [](const QString &name) { return name == QStringLiteral("a") || name == QStringLiteral(".b"); });
        left.sort();
        QCOMPARE(left, QStringList({QStringLiteral(".noxTemp.out2"), QStringLiteral("image"),
                                    QStringLiteral("noxTemp.out")}));
    }
}

void TestFolderTree::deletesNothingBesideAFolderOrBehindALink()
{
    make({u"Top/a"});
    const QString beside = m_run->writeFile(QStringLiteral("Top/a.noxTemp.out"));
    const QString behindLink = m_run->writeFile(QStringLiteral("elsewhere/.noxTemp.out"));
    link(u"Top/link", "../elsewhere");
    (void)count(path(u"Top"));
    QVERIFY(pathExists(beside));
    QVERIFY(pathExists(behindLink));
}

void TestFolderTree::anonymizesSubfoldersBeforeTheirParents()
{
    make({u"Top/Xa/Za", u"Top/Ya"});
    m_run->state.set(&RunState::totalFolders, quint64{4});
    QStringList expected;
    for (const QString &name : listNames(path(u"Top")))
        expected += name == QStringLiteral("Xa") ? QStringList({path(u"Top/Xa/Za"), path(u"Top/Xa")})
                                                 : QStringList{path(u"Top/Ya")};
    RunOptions options;
    options.createBAKfiles = true;
    m_run->state.set(&RunState::allTagsToAnonymize, QStringList{QStringLiteral("0010,0030")});
    anonymizeFolderTree(m_run->context, path(u"Top"), options);
    QCOMPARE(m_run->jobs.folders(), expected + QStringList{path(u"Top")});
    for (const auto &recorded : m_run->jobs.jobs)
        QCOMPARE(recorded.script.section(u'\n', 2),
                 u'"' + m_run->paths.dcmodify() +
                     QStringLiteral("\" -ie -imt -ea \"(0010,0030)\" * >.noxTemp.out 2>&1"));
    QCOMPARE(
        m_run->host.calls,
        QStringList({QStringLiteral("anonymized 1/4 folders"), QStringLiteral("anonymized 2/4 folders"),
                     QStringLiteral("anonymized 3/4 folders"), QStringLiteral("anonymized 4/4 folders")}));
    QCOMPARE(m_run->state.get(&RunState::folderCount), 4U);
    QCOMPARE(m_run->state.get(&RunState::AllFoldersNames), QStringList());
}

void TestFolderTree::emptyFolderIsAJobAndAStep()
{
    make({u"Empty"});
    (void)count(path(u"Empty"));
    anonymizeFolderTree(m_run->context, path(u"Empty"), {});
    QCOMPARE(m_run->jobs.folders(), QStringList{path(u"Empty")});
    QCOMPARE(m_run->host.calls, QStringList{QStringLiteral("anonymized 1/1 folders")});
}

void TestFolderTree::anonymizingDeletesNothing()
{
    make({u"Top/a"});
    m_run->writeFile(QStringLiteral("Top/a/.noxTemp.out"), QStringLiteral("old"));
    anonymizeFolderTree(m_run->context, path(u"Top"), {});
    QCOMPARE(readText(path(u"Top/a/.noxTemp.out")), std::optional(QStringLiteral("old")));
}

void TestFolderTree::failedJobIsCountedAndTheWalkGoesOn()
{
    make({u"Top/a/b"});
    // a pipe in the script's place, so that no script can be written
    QCOMPARE(::mkfifo(toBytes(path(u"Top/a/b/.noxTemp.sh")).constData(), 0600), 0);
    m_run->jobs.answer = [this](const Job &job) {
        return JobResult{job.folder == path(u"Top/a") ? JobOutcome::CouldNotStart : JobOutcome::Ran, {}};
    };
    anonymizeFolderTree(m_run->context, path(u"Top"), {});
    QCOMPARE(m_run->jobs.folders(), QStringList({path(u"Top/a"), path(u"Top")}));
    QCOMPARE(m_run->state.get(&RunState::errCount), 2U);
    QCOMPARE(m_run->state.get(&RunState::folderCount), 3U);
    QCOMPARE(m_run->host.calls.size(), 3);
}

void TestFolderTree::walksFoldersWithOddNames()
{
    QStringList expectedNames;
    QStringList expectedFolders;
    for (const QByteArray &name : oddNames) {
        const QString folder = m_run->makeFolder(QStringLiteral("Top/") + fromBytes(name));
        m_run->writeFile(QStringLiteral("Top/") + fromBytes(name) + QStringLiteral("/.noxTemp.out"));
        expectedFolders.append(folder);
        expectedNames.append(fromBytes(name).toLower());
    }
    QStringList names = count(path(u"Top"));
    names.sort();
    expectedNames.sort();
    QCOMPARE(names, expectedNames);
    anonymizeFolderTree(m_run->context, path(u"Top"), {});
    QStringList folders = m_run->jobs.folders();
    QCOMPARE(folders.takeLast(), path(u"Top"));
    folders.sort();
    expectedFolders.sort();
    QCOMPARE(folders, expectedFolders);
    QCOMPARE(m_run->state.get(&RunState::errCount), 0U);
    for (const QString &folder : expectedFolders)
        QCOMPARE(listNames(folder), QStringList());
}

void TestFolderTree::tellsTheProgress()
{
    tellFolders(m_run->context, Progress::Event::FoldersAnonymized);
    m_run->state.set(&RunState::folderCount, quint64{1234567});
    m_run->state.set(&RunState::totalFolders, quint64{98765432});
    tellFolders(m_run->context, Progress::Event::FoldersPropagated);
    QCOMPARE(m_run->host.calls, QStringList({QStringLiteral("anonymized 0/0 folders"),
                                             QStringLiteral("propagated 1234567/98765432 folders")}));
}

DRAVOLIN_TEST(TestFolderTree)
#include "tst_foldertree.moc"
