#include "base/PathText.h"
#include "processing/FolderTree.h"
#include "support/TestEntry.h"
#include "support/TestRun.h"

#include <QTest>

#include <unistd.h>

using namespace dravolin;
using test::TestRun;

// The search for DICOMDIR files.
class TestDicomdirs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_run = std::make_unique<TestRun>(); }
    void startsFindInTheFolder();
    void keepsTheLinesThatEndWithTheName_data();
    void keepsTheLinesThatEndWithTheName();
    void findThatCannotBeStartedFindsNothing_data();
    void findThatCannotBeStartedFindsNothing();
    void findsThemInATree();
    void findsThemInFoldersWithOddNames_data();
    void findsThemInFoldersWithOddNames();

private:
    QStringList reallyFind(const QString &folder)
    {
        PosixJobRunner jobs;
        const RunContext &context = m_run->context;
        return findDicomdirs({context.state, context.paths, context.host, jobs, context.uuids}, folder);
    }
    std::unique_ptr<TestRun> m_run;
};

void TestDicomdirs::startsFindInTheFolder()
{
    QCOMPARE(findDicomdirs(m_run->context, QStringLiteral("/data/s1")), QStringList());
    QCOMPARE(m_run->jobs.jobs.size(), 1);
    const Job &job = m_run->jobs.jobs.first().job;
    QCOMPARE(job.executable, QStringLiteral("/usr/bin/find"));
    QCOMPARE(job.arguments, QStringList({QStringLiteral("."), QStringLiteral("-name"),
                                         QStringLiteral("DICOMDIR"), QStringLiteral("-print")}));
    QCOMPARE(job.folder, QStringLiteral("/data/s1"));
    QCOMPARE(job.environment, std::optional<QStringList>()); // the application's own
    QCOMPARE(job.pipeOutput, true);
}

void TestDicomdirs::keepsTheLinesThatEndWithTheName_data()
{
    QTest::addColumn<QByteArray>("printed");
    QTest::addColumn<QStringList>("expected");
    const QString one = QStringLiteral("./DICOMDIR");
    const QString two = QStringLiteral("./sub/DICOMDIR");
    QTest::newRow("nothing printed") << QByteArray() << QStringList();
    QTest::newRow("one") << QByteArray("./DICOMDIR\n") << QStringList{one};
    QTest::newRow("order is the tool's")
        << QByteArray("./sub/DICOMDIR\n./DICOMDIR\n") << QStringList({two, one});
    QTest::newRow("no newline at the end")
        << QByteArray("./DICOMDIR\n./sub/DICOMDIR") << QStringList({one, two});
    QTest::newRow("lower case is another name") << QByteArray("./dicomdir\n./DICOMDIR\n") << QStringList{one};
    QTest::newRow("something behind the name")
        << QByteArray("./DICOMDIR \n./DICOMDIR.bak\n") << QStringList();
    QTest::newRow("something else in front of it")
        << QByteArray("./xDICOMDIR\n") << QStringList{QStringLiteral("./xDICOMDIR")};
    QTest::newRow("line break in a folder's name")
        << QByteArray("./a\nb/DICOMDIR\n") << QStringList{QStringLiteral("b/DICOMDIR")};
    QTest::newRow("carriage return ends a line") << QByteArray("./DICOMDIR\r\n") << QStringList{one};
    QTest::newRow("UTF-8") << QByteArray("./M\xC3\xBCller/DICOMDIR\n")
                           << QStringList{QStringLiteral("./M\u00FCller/DICOMDIR")};
    QTest::newRow("one byte that is not UTF-8")
        << QByteArray("./DICOMDIR\n./M\xFCller/DICOMDIR\n") << QStringList();
}

void TestDicomdirs::keepsTheLinesThatEndWithTheName()
{
    QFETCH(const QByteArray, printed);
    QFETCH(const QStringList, expected);
    m_run->jobs.answer = [&](const Job &) { return JobResult{JobOutcome::Ran, printed}; };
    QCOMPARE(findDicomdirs(m_run->context, QStringLiteral("/data/s1")), expected);
}

void TestDicomdirs::findThatCannotBeStartedFindsNothing_data()
{
    QTest::addColumn<int>("outcome");
    QTest::newRow("not started") << static_cast<int>(JobOutcome::CouldNotStart);
    QTest::newRow("no pipe") << static_cast<int>(JobOutcome::NoPipe);
}

void TestDicomdirs::findThatCannotBeStartedFindsNothing()
{
    QFETCH(const int, outcome);
    m_run->jobs.answer = [&](const Job &) { return JobResult{static_cast<JobOutcome>(outcome), {}}; };
    QCOMPARE(findDicomdirs(m_run->context, QStringLiteral("/data/s1")), QStringList());
    QCOMPARE(reallyFind(m_run->path(QStringLiteral("missing"))), QStringList());
}

void TestDicomdirs::findsThemInATree()
{
    for (const char16_t *file : {u"Top/DICOMDIR", u"Top/sub/.hidden/DICOMDIR", u"Top/dicomdir",
                                 u"Top/sub/xDICOMDIR", u"Top/sub/DICOMDIR.bak", u"elsewhere/DICOMDIR"})
        m_run->writeFile(QString::fromUtf16(file));
    QCOMPARE(::symlink("../elsewhere", toBytes(m_run->path(QStringLiteral("Top/link"))).constData()), 0);
    QStringList found = reallyFind(m_run->path(QStringLiteral("Top")));
    found.sort();
    QCOMPARE(found, QStringList({QStringLiteral("./DICOMDIR"), QStringLiteral("./sub/.hidden/DICOMDIR")}));
    QCOMPARE(reallyFind(m_run->makeFolder(QStringLiteral("Top/sub/empty"))), QStringList());
}

void TestDicomdirs::findsThemInFoldersWithOddNames_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name : {"quote\"s", "$HOME", "`id`", "line\nbreak", "-name", "Latin-1 \xFC"})
        QTest::newRow(QByteArray(name).toPercentEncoding(" \"$`").constData()) << QByteArray(name);
}

void TestDicomdirs::findsThemInFoldersWithOddNames()
{
    QFETCH(const QByteArray, name);
    m_run->writeFile(fromBytes(name) + QStringLiteral("/DICOMDIR"));
    QCOMPARE(reallyFind(m_run->path(fromBytes(name))), QStringList{QStringLiteral("./DICOMDIR")});
}

DRAVOLIN_TEST(TestDicomdirs)
#include "tst_dicomdirs.moc"
