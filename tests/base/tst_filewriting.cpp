#include "base/Files.h"
#include "support/ScratchFolder.h"
#include "support/TestEntry.h"

#include <QTest>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <memory>
#include <sys/resource.h>

using namespace dravolin;
using test::ScratchFolder;

// What changes the file system, and how failures are reported. Tests run as root, too, whom permissions do
// not stop; what cannot be written here cannot be written by anybody.
class TestFileWriting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_scratch = std::make_unique<ScratchFolder>(); }
    void writesInPlaceAndTruncates();
    void reportsWhatCannotBeWritten_data();
    void reportsWhatCannotBeWritten();
    void reportsATruncatedWrite();
    void makesExecutableForEverybody();
    void createsFoldersWithParents();
    void reportsFoldersThatCannotBeMade_data();
    void reportsFoldersThatCannotBeMade();
    void copiesButNeverOver();
    void removesFilesAndIgnoresFailures();

private:
    [[nodiscard]] QString path(const QString &name) const { return m_scratch->path(name); }
    std::unique_ptr<ScratchFolder> m_scratch;
};

void TestFileWriting::writesInPlaceAndTruncates()
{
    const QString target = m_scratch->file(QStringLiteral("target"), "something longer than what comes");
    QCOMPARE(::link(toBytes(target).constData(), toBytes(path(QStringLiteral("other"))).constData()), 0);
    QVERIFY(writeText(target, QStringLiteral("M\u00FCller \u20AC")));
    QCOMPARE(readBytes(target), std::optional(QByteArray("M\xC3\xBCller \xE2\x82\xAC")));
    QCOMPARE(readBytes(path(QStringLiteral("other"))), readBytes(target)); // the same file, not a new one
    QCOMPARE(listNames(m_scratch->path()).size(), 2);
    QVERIFY(writeText(target, QString()));
    QCOMPARE(readBytes(target), std::optional(QByteArray()));
}

void TestFileWriting::reportsWhatCannotBeWritten_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("folder missing") << path(QStringLiteral("missing/x"));
    QTest::newRow("path through a file") << QStringLiteral("/dev/null/x");
    QTest::newRow("a folder") << QStringLiteral("/");
    QTest::newRow("full disk") << QStringLiteral("/dev/full");
    QTest::newRow("read-only file system") << QStringLiteral("/proc/x");
    QTest::newRow("name too long") << u'/' + QString(300, u'x');
    QTest::newRow("empty path") << QString();
}

void TestFileWriting::reportsWhatCannotBeWritten()
{
    QFETCH(const QString, target);
    QVERIFY(!writeText(target, QStringLiteral("text")));
}

// A disk that gets full in the middle: some of the text is written, and that is not success.
void TestFileWriting::reportsATruncatedWrite()
{
    struct rlimit before = {};
    QCOMPARE(::getrlimit(RLIMIT_FSIZE, &before), 0);
    void (*handler)(int) = ::signal(SIGXFSZ, SIG_IGN);
    const struct rlimit small = {1000, before.rlim_max};
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &small), 0);
    const bool written = writeText(path(QStringLiteral("x")), QString(5000, u'x'));
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &before), 0);
    ::signal(SIGXFSZ, handler);
    QVERIFY(!written);
    QVERIFY(!pathExists(path(QStringLiteral("x"))));
}

void TestFileWriting::makesExecutableForEverybody()
{
    const QString script = m_scratch->file(QStringLiteral("script"));
    QVERIFY(makeExecutable(script));
    struct stat attributes = {};
    QCOMPARE(::stat(toBytes(script).constData(), &attributes), 0);
    QCOMPARE(attributes.st_mode & 07777U, 0777U);
    QCOMPARE(attributes.st_mode & 07777U, 511U);
    QVERIFY(!makeExecutable(path(QStringLiteral("missing"))));
}

void TestFileWriting::createsFoldersWithParents()
{
    const QString folder = path(QStringLiteral("a/b/c"));
    SystemError error{17, QStringLiteral("old")};
    QVERIFY(createFolder(folder, &error));
    QCOMPARE(error.code, 0);
    QCOMPARE(error.text, QString());
    QVERIFY(isFolder(folder));
    QVERIFY(createFolder(folder)); // exists already
    QVERIFY(createFolder(path(QStringLiteral("d/"))));
    QVERIFY(isFolder(path(QStringLiteral("d"))));
    m_scratch->link(QStringLiteral("link"), QStringLiteral("a"));
    QVERIFY(createFolder(path(QStringLiteral("link"))));
}

void TestFileWriting::reportsFoldersThatCannotBeMade_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("code");
    QTest::newRow("a file is there") << QStringLiteral("file") << ENOTDIR;
    QTest::newRow("below a file") << QStringLiteral("file/below") << ENOTDIR;
    QTest::newRow("name too long") << QString(300, u'x') << ENAMETOOLONG;
}

void TestFileWriting::reportsFoldersThatCannotBeMade()
{
    QFETCH(const QString, name);
    QFETCH(const int, code);
    m_scratch->file(QStringLiteral("file"));
    SystemError error;
    QVERIFY(!createFolder(path(name), &error));
    QCOMPARE(error.code, code);
    QCOMPARE(error.text, QString::fromLocal8Bit(::strerror(code)));
    QVERIFY(!createFolder(path(name)));
}

void TestFileWriting::copiesButNeverOver()
{
    const QString from = m_scratch->file(QStringLiteral("from"), "new");
    const QString to = path(QStringLiteral("to"));
    QVERIFY(copyFile(from, to));
    QCOMPARE(readBytes(to), std::optional(QByteArray("new")));
    const QString existing = m_scratch->file(QStringLiteral("existing"), "old");
    QVERIFY(!copyFile(from, existing));
    QCOMPARE(readBytes(existing), std::optional(QByteArray("old")));
    QVERIFY(!copyFile(path(QStringLiteral("missing")), path(QStringLiteral("copy"))));
    QVERIFY(!pathExists(path(QStringLiteral("copy"))));
    QVERIFY(!copyFile(from, path(QStringLiteral("missing/copy"))));
}

void TestFileWriting::removesFilesAndIgnoresFailures()
{
    const QString gone = m_scratch->file(QStringLiteral("gone"));
    removeFile(gone);
    QVERIFY(!pathExists(gone));
    removeFile(gone);
    removeFile(QString());
    const QString target = m_scratch->file(QStringLiteral("target"));
    m_scratch->link(QStringLiteral("link"), QStringLiteral("target"));
    removeFile(path(QStringLiteral("link")));
    QCOMPARE(listNames(m_scratch->path()), QStringList{QStringLiteral("target")});
    QVERIFY(createFolder(path(QStringLiteral("folder"))));
    removeFile(path(QStringLiteral("folder")));
    QVERIFY(isFolder(path(QStringLiteral("folder"))));
}

DRAVOLIN_TEST(TestFileWriting)
#include "tst_filewriting.moc"
