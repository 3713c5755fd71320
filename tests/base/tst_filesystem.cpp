#include "base/Files.h"
#include "support/OddNames.h"
#include "support/ScratchFolder.h"
#include "support/TestEntry.h"

#include <QTest>

#include <algorithm>
#include <memory>

using namespace dravolin;
using test::oddNames;
using test::ScratchFolder;

class TestFileSystem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void listsEveryNameByteForByte();
    void worksWithEveryName_data();
    void worksWithEveryName();
    void listsHiddenEntriesAndBrokenLinks();
    void listsNothingWhereNothingCanBeListed_data();
    void listsNothingWhereNothingCanBeListed();
    void listsFoldersByTheirOwnAttributes();
    void followsLinksOnlyForExistence();
    void readsExactBytes();
    void readsFilesWhoseSizeIsNotKnown();
    void doesNotReadWhatIsNoFile_data();
    void doesNotReadWhatIsNoFile();
    void doesNotWaitForAPipe();
    void readsTextOnlyWhenAllOfItIsUtf8();

private:
    [[nodiscard]] QString path(const QString &name) const { return m_scratch->path(name); }
    std::unique_ptr<ScratchFolder> m_scratch;
};

void TestFileSystem::init()
{
    m_scratch = std::make_unique<ScratchFolder>();
}

void TestFileSystem::listsEveryNameByteForByte()
{
    QList<QByteArray> listed;
    for (const QByteArray &name : oddNames)
        m_scratch->file(fromBytes(name));
    for (const QString &name : listNames(m_scratch->path()))
        listed.append(toBytes(name));
    QList<QByteArray> expected = oddNames;
    std::sort(listed.begin(), listed.end());
    std::sort(expected.begin(), expected.end());
    QCOMPARE(listed, expected);
}

void TestFileSystem::worksWithEveryName_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const QByteArray &name : oddNames)
        QTest::newRow(name.toPercentEncoding(" $\"'").constData()) << name;
}

void TestFileSystem::worksWithEveryName()
{
    QFETCH(const QByteArray, name);
    const QString folder = path(fromBytes(name));
    QVERIFY(createFolder(folder));
    QVERIFY(isFolder(folder));
    const QString inside = joinPath(folder, fromBytes(name));
    QVERIFY(writeText(inside, QStringLiteral("content")));
    struct stat attributes = {};
    const QByteArray expected = m_scratch->path().toUtf8() + '/' + name + '/' + name;
    QCOMPARE(::stat(expected.constData(), &attributes), 0);
    QCOMPARE(readText(inside), std::optional(QStringLiteral("content")));
    QVERIFY(makeExecutable(inside));
    const QString copy = joinPath(folder, QStringLiteral("copy ") + fromBytes(name));
    QVERIFY(copyFile(inside, copy));
    QVERIFY(pathExists(copy));
    removeFile(inside);
    QVERIFY(!pathExists(inside));
    QCOMPARE(listFolderNames(m_scratch->path()), QStringList{fromBytes(name)});
}

void TestFileSystem::listsHiddenEntriesAndBrokenLinks()
{
    m_scratch->file(QStringLiteral(".hidden"));
    m_scratch->link(QStringLiteral("broken"), QStringLiteral("nowhere"));
    m_scratch->pipe(QStringLiteral("pipe"));
    QStringList names = listNames(m_scratch->path());
    names.sort();
    QCOMPARE(names,
             QStringList({QStringLiteral(".hidden"), QStringLiteral("broken"), QStringLiteral("pipe")}));
}

void TestFileSystem::listsNothingWhereNothingCanBeListed_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << QStringLiteral("missing");
    QTest::newRow("a file") << QStringLiteral("file");
    QTest::newRow("below a file") << QStringLiteral("file/below");
    QTest::newRow("name too long") << QString(300, u'x');
    QTest::newRow("link to itself") << QStringLiteral("loop");
}

void TestFileSystem::listsNothingWhereNothingCanBeListed()
{
    QFETCH(const QString, name);
    m_scratch->file(QStringLiteral("file"));
    m_scratch->link(QStringLiteral("loop"), QStringLiteral("loop"));
    QCOMPARE(listNames(path(name)), QStringList());
    QCOMPARE(listFolderNames(path(name)), QStringList());
    QVERIFY(!isFolder(path(name)));
}

void TestFileSystem::listsFoldersByTheirOwnAttributes()
{
    for (const char16_t *name : {u"folder", u".hidden folder", u"package.app"})
        QVERIFY(createFolder(path(QString::fromUtf16(name))));
    m_scratch->file(QStringLiteral("file"));
    m_scratch->link(QStringLiteral("link"), QStringLiteral("folder"));
    m_scratch->link(QStringLiteral("broken"), QStringLiteral("nowhere"));
    m_scratch->pipe(QStringLiteral("pipe"));
    QStringList names = listFolderNames(m_scratch->path());
    QStringList inOrder = listNames(m_scratch->path());
    inOrder.removeIf([&](const QString &name) { return !names.contains(name); });
    QCOMPARE(names, inOrder);
    names.sort();
    QCOMPARE(names, QStringList({QStringLiteral(".hidden folder"), QStringLiteral("folder"),
                                 QStringLiteral("package.app")}));
}

void TestFileSystem::followsLinksOnlyForExistence()
{
    QVERIFY(createFolder(path(QStringLiteral("folder"))));
    m_scratch->link(QStringLiteral("link"), QStringLiteral("folder"));
    m_scratch->link(QStringLiteral("broken"), QStringLiteral("nowhere"));
    QVERIFY(pathExists(path(QStringLiteral("link"))));
    QVERIFY(!isFolder(path(QStringLiteral("link"))));
    QVERIFY(entryKind(path(QStringLiteral("link"))) == EntryKind::Other);
    QVERIFY(!pathExists(path(QStringLiteral("broken"))));
}

void TestFileSystem::readsExactBytes()
{
    QByteArray bytes;
    for (int i = 0; i < 100000; ++i)
        bytes += static_cast<char>(i * 7);
    QCOMPARE(readBytes(m_scratch->file(QStringLiteral("large"), bytes)), std::optional(bytes));
    const std::optional<QByteArray> empty = readBytes(m_scratch->file(QStringLiteral("empty")));
    QVERIFY(empty.has_value());
    QVERIFY(empty->isEmpty());
}

void TestFileSystem::readsFilesWhoseSizeIsNotKnown()
{
    const std::optional<QByteArray> status = readBytes(QStringLiteral("/proc/self/status"));
    QVERIFY(status.has_value());
    QVERIFY(status->startsWith("Name:\t"));
    QVERIFY(status->endsWith('\n'));
}

void TestFileSystem::doesNotReadWhatIsNoFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << QStringLiteral("missing");
    QTest::newRow("a folder") << QStringLiteral("folder");
    QTest::newRow("broken link") << QStringLiteral("broken");
    QTest::newRow("below a file") << QStringLiteral("file/below");
    QTest::newRow("name too long") << QString(300, u'x');
}

void TestFileSystem::doesNotReadWhatIsNoFile()
{
    QFETCH(const QString, name);
    m_scratch->file(QStringLiteral("file"));
    QVERIFY(createFolder(path(QStringLiteral("folder"))));
    m_scratch->link(QStringLiteral("broken"), QStringLiteral("nowhere"));
    QCOMPARE(readBytes(path(name)), std::optional<QByteArray>());
    QCOMPARE(readText(path(name)), std::optional<QString>());
}

void TestFileSystem::doesNotWaitForAPipe()
{
    const QString pipe = m_scratch->pipe(QStringLiteral("pipe"));
    QCOMPARE(readText(pipe).value_or(QString()), QString()); // nobody writes
    QVERIFY(!writeText(pipe, QStringLiteral("x")));          // nobody reads
}

void TestFileSystem::readsTextOnlyWhenAllOfItIsUtf8()
{
    const auto read = [this](const QByteArray &bytes) {
        return readText(m_scratch->file(QStringLiteral("text"), bytes));
    };
    QCOMPARE(read("M\xC3\xBCller\n"), std::optional(QStringLiteral("M\u00FCller\n")));
    QCOMPARE(read(""), std::optional(QString()));
    QCOMPARE(read("good line\n\xFF\ngood line\n"), std::optional<QString>());
    QCOMPARE(read("good line\n\xE2\x82"), std::optional<QString>());
}

DRAVOLIN_TEST(TestFileSystem)
#include "tst_filesystem.moc"
