#include "config/DirectoryLocations.h"
#include "support/ScratchFolder.h"
#include "support/TestEntry.h"
#include "support/TestRun.h"

#include <QTest>

#include <cerrno>
#include <cstring>

using namespace dravolin;
using test::LogCatcher;
using test::ScratchFolder;

namespace {

LocationError oldError()
{
    return {QStringLiteral("old"), 17, {}};
}

QVariantMap userInfoOf(const QString &text)
{
    return {{QStringLiteral("NSLocalizedDescription"), text}};
}

} // namespace

class TestDirectoryLocations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void reportsThatThereIsNoSuchDirectory();
    void reportsThatThereIsNoSuchDirectoryWithoutPlaceForAnError();
    void takesTheFirstDirectoryAndCreatesItWithParents();
    void withoutComponentTheDirectoryItselfIsMeant();
    void existingFolderIsSuccess();
    void passesOnTheSystemsError_data();
    void passesOnTheSystemsError();
    void supportFolderCarriesTheExecutablesName();
    void logsThatTheSupportFolderCannotBeMade();
    void logsThatTheSystemHasNoSupportFolder();
    void pathOfTheSupportFolderCreatesNothing();

private:
    std::unique_ptr<ScratchFolder> m_scratch;
    AppPaths m_paths;
};

void TestDirectoryLocations::init()
{
    m_scratch = std::make_unique<ScratchFolder>();
    m_paths = {};
    m_paths.applicationSupportFolders = {m_scratch->path(QStringLiteral("home/share")),
                                         m_scratch->path(QStringLiteral("system/share"))};
}

void TestDirectoryLocations::reportsThatThereIsNoSuchDirectory()
{
    std::optional<LocationError> error;
    m_paths.applicationSupportFolders.clear();
    QCOMPARE(findOrCreateDirectory(m_paths, SearchPathDirectory::ApplicationSupport, SearchPathDomain::User,
                                   QStringLiteral("Dravolin"), &error),
             std::optional<QString>());
    QVERIFY(error.has_value());
    QCOMPARE(error->domain, QStringLiteral("DirectoryLocationDomain"));
    QCOMPARE(error->code, 0);
    QVariantMap userInfo = userInfoOf(QStringLiteral("No path found for directory in domain."));
    userInfo.insert(QStringLiteral("NSSearchPathDirectory"), 14);
    userInfo.insert(QStringLiteral("NSSearchPathDomainMask"), 1);
    QCOMPARE(error->userInfo, userInfo);
    QCOMPARE(error->text(), QStringLiteral("No path found for directory in domain."));
}

void TestDirectoryLocations::reportsThatThereIsNoSuchDirectoryWithoutPlaceForAnError()
{
    QCOMPARE(
        findOrCreateDirectory(AppPaths(), SearchPathDirectory::Desktop, SearchPathDomain::User, QString()),
        std::optional<QString>());
}

void TestDirectoryLocations::takesTheFirstDirectoryAndCreatesItWithParents()
{
    std::optional<LocationError> error = oldError();
    const QString expected = m_scratch->path(QStringLiteral("home/share/Dravolin"));
    QCOMPARE(findOrCreateDirectory(m_paths, SearchPathDirectory::ApplicationSupport, SearchPathDomain::User,
                                   QStringLiteral("Dravolin"), &error),
             std::optional(expected));
    QVERIFY(!error.has_value());
    QVERIFY(isFolder(expected));
    QVERIFY(!pathExists(m_scratch->path(QStringLiteral("system"))));
}

void TestDirectoryLocations::withoutComponentTheDirectoryItselfIsMeant()
{
    m_paths.desktopFolder = m_scratch->path(QStringLiteral("home/Desktop"));
    QCOMPARE(findOrCreateDirectory(m_paths, SearchPathDirectory::Desktop, SearchPathDomain::User, QString()),
             std::optional(m_paths.desktopFolder));
    QVERIFY(isFolder(m_paths.desktopFolder));
}

void TestDirectoryLocations::existingFolderIsSuccess()
{
    m_scratch->folder(QStringLiteral("home"));
    m_scratch->folder(QStringLiteral("home/share"));
    const QString folder = m_scratch->folder(QStringLiteral("home/share/Dravolin"));
    const QString inside = m_scratch->file(QStringLiteral("home/share/Dravolin/kept"), "kept");
    std::optional<LocationError> error = oldError();
    QCOMPARE(findOrCreateDirectory(m_paths, SearchPathDirectory::ApplicationSupport, SearchPathDomain::User,
                                   QStringLiteral("Dravolin"), &error),
             std::optional(folder));
    QVERIFY(!error.has_value());
    QCOMPARE(readBytes(inside), std::optional(QByteArray("kept")));
}

void TestDirectoryLocations::passesOnTheSystemsError_data()
{
    QTest::addColumn<QString>("fileInTheWay");
    QTest::newRow("a file at the place") << QStringLiteral("home/share/Dravolin");
    QTest::newRow("a file above it") << QStringLiteral("home/share");
}

void TestDirectoryLocations::passesOnTheSystemsError()
{
    QFETCH(const QString, fileInTheWay);
    QVERIFY(createFolder(m_scratch->path(parentPath(fileInTheWay))));
    m_scratch->file(fileInTheWay);
    std::optional<LocationError> error;
    QCOMPARE(findOrCreateDirectory(m_paths, SearchPathDirectory::ApplicationSupport, SearchPathDomain::User,
                                   QStringLiteral("Dravolin"), &error),
             std::optional<QString>());
    QVERIFY(error.has_value());
    QCOMPARE(error->domain, QStringLiteral("POSIX"));
    QCOMPARE(error->code, ENOTDIR);
    QCOMPARE(error->userInfo, userInfoOf(QString::fromLocal8Bit(std::strerror(ENOTDIR))));
}

void TestDirectoryLocations::supportFolderCarriesTheExecutablesName()
{
    const LogCatcher log;
    const QString expected = m_scratch->path(QStringLiteral("home/share/Dravolin"));
    QCOMPARE(applicationSupportDirectory(m_paths), std::optional(expected));
    QVERIFY(isFolder(expected));
    QCOMPARE(log.messages(), QStringList());
}

void TestDirectoryLocations::logsThatTheSupportFolderCannotBeMade()
{
    const LogCatcher log;
    m_scratch->file(QStringLiteral("home"));
    QCOMPARE(applicationSupportDirectory(m_paths), std::optional<QString>());
    QCOMPARE(log.messages(),
             QStringList{QStringLiteral("Unable to find or create application support directory:\n") +
                         QString::fromLocal8Bit(std::strerror(ENOTDIR))});
}

void TestDirectoryLocations::logsThatTheSystemHasNoSupportFolder()
{
    const LogCatcher log;
    QCOMPARE(applicationSupportDirectory(AppPaths()), std::optional<QString>());
    QCOMPARE(log.messages(),
             QStringList{QStringLiteral("Unable to find or create application support directory:\n"
                                        "No path found for directory in domain.")});
}

void TestDirectoryLocations::pathOfTheSupportFolderCreatesNothing()
{
    QCOMPARE(applicationSupportPath(m_paths), m_scratch->path(QStringLiteral("home/share/Dravolin")));
    QCOMPARE(listNames(m_scratch->path()), QStringList());
    QCOMPARE(applicationSupportPath(AppPaths()), QString());
}

DRAVOLIN_TEST(TestDirectoryLocations)
#include "tst_directorylocations.moc"
