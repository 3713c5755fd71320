#include "base/PathText.h"
#include "processing/FolderTree.h"
#include "support/AsOrdinaryUser.h"
#include "support/TestEntry.h"
#include "support/TestRun.h"

#include <QTest>

#include <sys/stat.h>

using namespace dravolin;
using test::AsOrdinaryUser;
using test::TestRun;

// Walks over folders that cannot be listed, entered or found.
class TestClosedFolders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_run = std::make_unique<TestRun>(); }
    void folderThatCannotBeListedIsCountedAsEmpty_data();
    void folderThatCannotBeListedIsCountedAsEmpty();
    void entryWhoseAttributesCannotBeReadIsLeftOut();
    void whatIsNoFolderIsWalkedAsAnEmptyOne();

private:
    [[nodiscard]] QString path(const char16_t *relative) const
    {
        return m_run->path(QString::fromUtf16(relative));
    }
    std::unique_ptr<TestRun> m_run;
};

void TestClosedFolders::folderThatCannotBeListedIsCountedAsEmpty_data()
{
    QTest::addColumn<int>("permissions");
    QTest::addColumn<int>("errors");
    QTest::newRow("not even entered: its job fails") << 0000 << 1;
    QTest::newRow("entered and written: its job runs") << 0333 << 0;
}

void TestClosedFolders::folderThatCannotBeListedIsCountedAsEmpty()
{
    QFETCH(const int, permissions);
    QFETCH(const int, errors);
    m_run.reset();
    const AsOrdinaryUser user;
    m_run = std::make_unique<TestRun>();
    m_run->makeFolder(QStringLiteral("Top/Closed/inside"));
    QCOMPARE(::chmod(toBytes(path(u"Top/Closed")).constData(), static_cast<mode_t>(permissions)), 0);
    (void)countFolderTree(m_run->context, path(u"Top"));
    const QStringList names = m_run->state.get(&RunState::AllFoldersNames);
    anonymizeFolderTree(m_run->context, path(u"Top"), {});
    ::chmod(toBytes(path(u"Top/Closed")).constData(), 0777);
    QCOMPARE(names, QStringList{QStringLiteral("closed")});
    QCOMPARE(m_run->state.get(&RunState::errCount), static_cast<quint64>(errors));
    QCOMPARE(m_run->host.calls, QStringList({QStringLiteral("anonymized 1/2 folders"),
                                             QStringLiteral("anonymized 2/2 folders")}));
    m_run.reset();
}

void TestClosedFolders::entryWhoseAttributesCannotBeReadIsLeftOut()
{
    m_run.reset();
    const AsOrdinaryUser user;
    m_run = std::make_unique<TestRun>();
    m_run->makeFolder(QStringLiteral("Top/Listed only/inside"));
    QCOMPARE(::chmod(toBytes(path(u"Top/Listed only")).constData(), 0444), 0);
    (void)countFolderTree(m_run->context, path(u"Top"));
    const QStringList names = m_run->state.get(&RunState::AllFoldersNames);
    ::chmod(toBytes(path(u"Top/Listed only")).constData(), 0777);
    QCOMPARE(names, QStringList{QStringLiteral("listed only")});
    QCOMPARE(m_run->state.get(&RunState::totalFolders), 2U);
    m_run.reset();
}

// A folder that is gone when its turn comes.
void TestClosedFolders::whatIsNoFolderIsWalkedAsAnEmptyOne()
{
    QCOMPARE(countFolderTree(m_run->context, path(u"missing")), 1U);
    anonymizeFolderTree(m_run->context, path(u"missing"), {});
    QCOMPARE(m_run->state.get(&RunState::errCount), 1U);
    QCOMPARE(m_run->host.calls, QStringList{QStringLiteral("anonymized 1/1 folders")});
}

DRAVOLIN_TEST(TestClosedFolders)
#include "tst_closedfolders.moc"
