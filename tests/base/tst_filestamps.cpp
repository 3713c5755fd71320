#include "base/FileStamps.h"
#include "base/Files.h"
#include "support/ScratchFolder.h"
#include "support/TestEntry.h"

#include <QTest>

#include <filesystem>

using namespace dravolin;
using test::ScratchFolder;

class TestFileStamps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void anUntouchedFolderHasNoChanges();
    void tellsWhatBecameOfAFile_data();
    void tellsWhatBecameOfAFile();
    void aFolderThatCannotBeLookedAtHasNoChanges();
    void leavesHiddenFilesAndFoldersOut();
    void namesWithoutAFileAreLeftOut();
    void newFilesAreNoChanges();
    void aMissingFolderHasNoFiles();
    void aFileHasAStampAndNothingElse();

private:
    std::unique_ptr<ScratchFolder> m_folder;
};

void TestFileStamps::init()
{
    m_folder = std::make_unique<ScratchFolder>();
    m_folder->file(QStringLiteral("a"), "one");
    m_folder->file(QStringLiteral("b\u00FC"), "two");
}

void TestFileStamps::anUntouchedFolderHasNoChanges()
{
    const FolderStamps before(m_folder->path());
    (void)readBytes(m_folder->path(QStringLiteral("a")));
    FolderStamps::Changes changes = before.changes();
    changes.unchanged.sort();
    QCOMPARE(changes.changed, 0U);
    QCOMPARE(changes.unchanged, QStringList({QStringLiteral("a"), QStringLiteral("b\u00FC")}));
}

void TestFileStamps::tellsWhatBecameOfAFile_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<bool>("changed");
    for (const char *what : {"longer", "replaced"})
        QTest::newRow(what) << QString::fromLatin1(what) << true;
    for (const char *what : {"called something else for a while", "gone", "a folder now"})
        QTest::newRow(what) << QString::fromLatin1(what) << false;
}

void TestFileStamps::tellsWhatBecameOfAFile()
{
    QFETCH(QString, what);
    QFETCH(bool, changed);
    const FolderStamps before(m_folder->path());
    const QString path = m_folder->path(QStringLiteral("a"));
    if (what == QStringLiteral("longer")) {
        QVERIFY(writeText(path, QStringLiteral("longer")));
    } else if (what == QStringLiteral("replaced")) { // by one of the same size
        m_folder->file(QStringLiteral("new"), "ONE");
        std::filesystem::rename(m_folder->path(QStringLiteral("new")).toStdString(), path.toStdString());
    } else if (what == QStringLiteral("called something else for a while")) {
        std::filesystem::rename(path.toStdString(), path.toStdString() + ".bak");
        m_folder->file(QStringLiteral("a"), "half");
        std::filesystem::rename(path.toStdString() + ".bak", path.toStdString());
    } else {
        removeFile(path);
        if (what != QStringLiteral("gone"))
            m_folder->folder(QStringLiteral("a"));
    }
    FolderStamps::Changes changes = before.changes();
    changes.unchanged.sort();
    QCOMPARE(changes.changed, changed ? 1U : 0U);
    QCOMPARE(changes.unchanged, (changed ? QStringList() : QStringList{QStringLiteral("a")}) +
                                    QStringList{QStringLiteral("b\u00FC")});
}

void TestFileStamps::aFolderThatCannotBeLookedAtHasNoChanges()
{
    const FolderStamps before(m_folder->path());
    const std::string path = m_folder->path().toStdString();
    std::filesystem::rename(path, path + ".elsewhere");
    const FolderStamps::Changes changes = before.changes();
    std::filesystem::rename(path + ".elsewhere", path);
    QCOMPARE(changes.changed, 0U);
    QCOMPARE(changes.unchanged.size(), 2);
}

void TestFileStamps::leavesHiddenFilesAndFoldersOut()
{
    m_folder->file(QStringLiteral(".hidden"));
    m_folder->folder(QStringLiteral(".folder"));
    m_folder->folder(QStringLiteral("sub"));
    m_folder->pipe(QStringLiteral("pipe"));
    m_folder->link(QStringLiteral("link"), QStringLiteral("a"));
    m_folder->link(QStringLiteral("broken"), QStringLiteral("nowhere"));
    const FolderStamps before(m_folder->path());
    QCOMPARE(before.leftOut(), 1U);
    QCOMPARE(before.changes().unchanged.size(), 3); // a link is the file that it leads to
}

void TestFileStamps::namesWithoutAFileAreLeftOut()
{
    m_folder->folder(QStringLiteral("sub"));
    const FolderStamps before(m_folder->path(),
                              {QStringLiteral("a"), QStringLiteral("sub"), QStringLiteral("c")});
    QCOMPARE(before.leftOut(), 2U);
    QCOMPARE(before.changes().unchanged, QStringList{QStringLiteral("a")});
}

void TestFileStamps::newFilesAreNoChanges()
{
    const FolderStamps before(m_folder->path());
    m_folder->file(QStringLiteral("a.bak"));
    QCOMPARE(before.changes().changed, 0U);
    QCOMPARE(before.changes().unchanged.size(), 2);
}

void TestFileStamps::aMissingFolderHasNoFiles()
{
    const QString missing = m_folder->path(QStringLiteral("missing"));
    QCOMPARE(FolderStamps(missing).changes().unchanged, QStringList());
    QCOMPARE(FolderStamps(missing, {QStringLiteral("a")}).leftOut(), 1U);
}

void TestFileStamps::aFileHasAStampAndNothingElse()
{
    const auto before = fileStamp(m_folder->path(QStringLiteral("a")));
    QVERIFY(before.has_value());
    QCOMPARE(before->size, 3);
    m_folder->file(QStringLiteral("a"), "longer");
    QVERIFY(fileStamp(m_folder->path(QStringLiteral("a"))) != before);
    QVERIFY(!fileStamp(m_folder->path()).has_value());
    QVERIFY(!fileStamp(m_folder->path(QStringLiteral("c"))).has_value());
}

DRAVOLIN_TEST(TestFileStamps)
#include "tst_filestamps.moc"
