#include "base/Files.h"
#include "base/NewFile.h"
#include "support/ScratchFolder.h"
#include "support/TestEntry.h"

#include <QTest>

#include <unistd.h>

using namespace dravolin;

// Files that are written only under a free name.
class TestNewFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFreeNameIsWritten();
    void aTakenNameIsLeftAlone();
    void aLinkThatLeadsNowhereIsTaken();
    void aFolderThatIsMissingFails();

private:
    [[nodiscard]] QString path(const char *name) const
    {
        return joinPath(m_folder.path(), QString::fromLatin1(name));
    }

    QTemporaryDir m_folder;
};

void TestNewFile::aFreeNameIsWritten()
{
    QCOMPARE(writeNewText(path("free"), QStringLiteral("tëxt")), NewFile::Written);
    QCOMPARE(readText(path("free")), QStringLiteral("tëxt"));
    QCOMPARE(writeNewText(path("empty"), QString()), NewFile::Written);
    QCOMPARE(readText(path("empty")), QString());
}

void TestNewFile::aTakenNameIsLeftAlone()
{
    QVERIFY(writeText(path("taken"), QStringLiteral("kept")));
    QCOMPARE(writeNewText(path("taken"), QStringLiteral("text")), NewFile::Taken);
    QCOMPARE(readText(path("taken")), QStringLiteral("kept"));
}

void TestNewFile::aLinkThatLeadsNowhereIsTaken()
{
    QCOMPARE(::symlink(toBytes(path("nowhere")).constData(), toBytes(path("link")).constData()), 0);
    QCOMPARE(writeNewText(path("link"), QStringLiteral("text")), NewFile::Taken);
    QVERIFY(!pathExists(path("nowhere")));
}

void TestNewFile::aFolderThatIsMissingFails()
{
    QCOMPARE(writeNewText(path("missing/file"), QStringLiteral("text")), NewFile::Failed);
}

DRAVOLIN_TEST(TestNewFile)
#include "tst_newfile.moc"
