#include "base/Files.h"
#include "support/ScratchFolder.h"
#include "support/TestEntry.h"

#include <QTest>

#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

using namespace dravolin;
using namespace dravolin::test;

namespace {

// Files that somebody else needs are left alone, whatever a path says.
class TestFileSafety : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPathWithANulIsNoPath();
    void writingMayRefuseALink();
    void aFailedCopyLeavesNothing();
    void aCopyNeverReplaces();
    void anEnormousFileIsNotRead();
    void aDeviceIsNotRead();

private:
    ScratchFolder m_scratch;
};

void TestFileSafety::aPathWithANulIsNoPath()
{
    const QString file = m_scratch.path(QStringLiteral("x.dcm"));
    QVERIFY(writeText(file, QStringLiteral("pixels")));
    const QString path = file + QChar(QChar::Null) + QStringLiteral("/.noxTemp.sh");
    QVERIFY(!writeText(path, QStringLiteral("script")));
    QVERIFY(!makeExecutable(path));
    QVERIFY(!pathExists(path));
    QVERIFY(!entryKind(path));
    QVERIFY(!readBytes(path));
    QVERIFY(!createFolder(path));
    QVERIFY(!copyFile(file, path));
    QVERIFY(!copyFile(path, m_scratch.path(QStringLiteral("copy"))));
    removeFile(path);
    QCOMPARE(listNames(path), QStringList());
    QCOMPARE(readText(file), QStringLiteral("pixels"));
}

void TestFileSafety::writingMayRefuseALink()
{
    const QString target = m_scratch.path(QStringLiteral("precious"));
    const QString link = m_scratch.path(QStringLiteral("link"));
    QVERIFY(writeText(target, QStringLiteral("kept")));
    QCOMPARE(::symlink(toBytes(target).constData(), toBytes(link).constData()), 0);
    QVERIFY(!writeText(link, QStringLiteral("script"), Links::Refuse));
    QCOMPARE(readText(target), QStringLiteral("kept"));
    QVERIFY(writeText(link, QStringLiteral("table")));
    QCOMPARE(readText(target), QStringLiteral("table"));
}

void TestFileSafety::aFailedCopyLeavesNothing()
{
    const QString from = m_scratch.path(QStringLiteral("from"));
    const QString to = m_scratch.path(QStringLiteral("to"));
    QVERIFY(writeText(from, QString(10000, u'x')));
    rlimit before = {};
    QCOMPARE(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto previous = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small = {100, before.rlim_max}; // the disk is full after 100 bytes
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &small), 0);
    const bool copied = copyFile(from, to);
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &before), 0);
    std::signal(SIGXFSZ, previous);
    QVERIFY(!copied);
    QVERIFY(!pathExists(to));
}

void TestFileSafety::aCopyNeverReplaces()
{
    const QString from = m_scratch.path(QStringLiteral("new"));
    const QString to = m_scratch.path(QStringLiteral("old"));
    QVERIFY(writeText(from, QStringLiteral("new")));
    QVERIFY(writeText(to, QStringLiteral("old")));
    QVERIFY(!copyFile(from, to));
    QCOMPARE(readText(to), QStringLiteral("old"));
}

void TestFileSafety::anEnormousFileIsNotRead()
{
    const QString file = m_scratch.path(QStringLiteral("sparse"));
    QVERIFY(writeText(file, QString()));
    QCOMPARE(::truncate(toBytes(file).constData(), off_t(1) << 40), 0);
    QVERIFY(!readBytes(file));
}

void TestFileSafety::aDeviceIsNotRead()
{
    QVERIFY(!readBytes(QStringLiteral("/dev/zero")));
}

} // namespace

DRAVOLIN_TEST(TestFileSafety)
#include "tst_filesafety.moc"
