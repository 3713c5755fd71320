#include "batch/ProjectKey.h"
#include "support/ScratchFolder.h"
#include "support/TestEntry.h"

#include <QRegularExpression>

#include <sys/stat.h>

using namespace dravolin;
using test::ScratchFolder;

// The key of a project, and the UIDs that come from it.
class TestProjectKey : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void givesTheSameUidEveryTime();
    void givesUidsOfTheRightForm();
    void namesFilesByLettersAndDigits();
    void makesAKeyOnceAndForItsOwnerAlone();
    void refusesKeys_data();
    void refusesKeys();
};

void TestProjectKey::givesTheSameUidEveryTime()
{
    // computed with Python's hmac and uuid modules
    const ProjectKey key(QByteArray(32, '\x01'));
    QCOMPARE(key.newUid("1.2.3"), QByteArray("2.25.208763813419888720380519283432839582253"));
    QVERIFY(ProjectKey(QByteArray(32, '\x02')).newUid("1.2.3") != key.newUid("1.2.3"));
}

void TestProjectKey::givesUidsOfTheRightForm()
{
    const ProjectKey key(QByteArray(32, '\x03'));
    const QRegularExpression form(QStringLiteral("^2\\.25\\.[1-9][0-9]{0,38}$"));
    QSet<QByteArray> all;
    for (int i = 0; i < 1000; ++i) {
        const QByteArray uid = key.newUid("1.2." + QByteArray::number(i));
        QVERIFY2(form.match(QString::fromLatin1(uid)).hasMatch(), uid.constData());
        all.insert(uid);
    }
    QCOMPARE(all.size(), 1000);
}

void TestProjectKey::namesFilesByLettersAndDigits()
{
    const QString name = ProjectKey(QByteArray(32, '\x04')).shortName("1.2.3");
    QVERIFY(QRegularExpression(QStringLiteral("^[A-Z2-7]{8}$")).match(name).hasMatch());
}

void TestProjectKey::makesAKeyOnceAndForItsOwnerAlone()
{
    const ScratchFolder folder;
    const QString path = folder.path(QStringLiteral("key"));
    QString problem;
    const std::optional<ProjectKey> made = ProjectKey::readOrMake(path, &problem);
    const std::optional<ProjectKey> again = ProjectKey::readOrMake(path, &problem);
    QCOMPARE(problem, QString());
    QVERIFY(made && again);
    QCOMPARE(again->newUid("1.2"), made->newUid("1.2"));
    struct stat attributes = {};
    QCOMPARE(::stat(toBytes(path).constData(), &attributes), 0);
    QCOMPARE(int(attributes.st_mode & 0777), 0600);
}

void TestProjectKey::refusesKeys_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("problem");
    const QString digits = QStringLiteral("the key file %1 does not hold 64 hexadecimal digits");
    QTest::newRow("empty") << QByteArray() << 0600 << digits;
    QTest::newRow("short") << QByteArray(62, 'a') << 0600 << digits;
    QTest::newRow("readable for others")
        << QByteArray(64, 'a') << 0640
        << QStringLiteral("the key file %1 can be read by others; chmod 600 makes it secret");
}

void TestProjectKey::refusesKeys()
{
    QFETCH(QByteArray, content);
    QFETCH(int, mode);
    QFETCH(QString, problem);
    const ScratchFolder folder;
    const QString path = folder.file(QStringLiteral("key"), content);
    QCOMPARE(::chmod(toBytes(path).constData(), static_cast<mode_t>(mode)), 0);
    QString found;
    QVERIFY(!ProjectKey::readOrMake(path, &found));
    QCOMPARE(found, problem.arg(path));
    QCOMPARE(readBytes(path), std::optional(content));
}

DRAVOLIN_TEST(TestProjectKey)
#include "tst_projectkey.moc"
