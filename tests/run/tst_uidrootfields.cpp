#include "run/UidRootFields.h"
#include "support/TestEntry.h"
#include "support/TestRun.h"

#include <QTest>

using namespace dravolin;
using test::FixedUuidSource;
using test::RecordingHost;
using test::rootCall;

namespace {

const QString validRoot = QStringLiteral("1.2.12345678901234567890");
const QString largestUuid = QStringLiteral("FFFFFFFF-FFFF-FFFF-FFFF-FFFFFFFFFFFF");
const QString largestRoot = QStringLiteral("2.25.340282366920938463463374607431768211455");
} // namespace

class TestUidRootFields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void checkWritesTheRootBackAndSetsTheLabel_data();
    void checkWritesTheRootBackAndSetsTheLabel();
    void creationReplacesTheRootAndChecksIt_data();
    void creationReplacesTheRootAndChecksIt();
    void creationTakesANewUuidEachTime();
    void creationCuresARootButNotACaseId_data();
    void creationCuresARootButNotACaseId();
    void composesFromAValidRoot_data();
    void composesFromAValidRoot();
    void composesFromAFreshRootWhenTheFieldsIsInvalid_data();
    void composesFromAFreshRootWhenTheFieldsIsInvalid();
    void everyCompositionWithoutAValidRootIsFresh();

private:
    void setFields(const QString &root, const QString &caseId)
    {
        m_host.fields.uidRoot = root;
        m_host.fields.caseId = caseId;
    }
    RecordingHost m_host;
    FixedUuidSource m_uuids;
};

void TestUidRootFields::init()
{
    m_host.calls.clear();
    m_host.fields = {};
    m_uuids.uuids.clear();
}

void TestUidRootFields::checkWritesTheRootBackAndSetsTheLabel_data()
{
    QTest::addColumn<QString>("root");
    QTest::addColumn<QString>("caseId");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<QString>("rootAfterwards");
    QTest::newRow("valid") << validRoot << QString() << true << validRoot;
    QTest::newRow("valid with blanks")
        << QStringLiteral("  ") + validRoot + QStringLiteral("  ") << QString() << true << validRoot;
    QTest::newRow("trailing dot stays") << validRoot + u'.' << QString() << true << validRoot + u'.';
    QTest::newRow("invalid with blanks")
        << QStringLiteral(" 1.2.3\t") << QString() << false << QStringLiteral("1.2.3");
    QTest::newRow("empty") << QString() << QString() << false << QString();
    QTest::newRow("CaseID 12.5") << validRoot << QStringLiteral("12.5") << false << validRoot;
    QTest::newRow("CaseID with a blank") << validRoot << QStringLiteral(" 7") << false << validRoot;
}

void TestUidRootFields::checkWritesTheRootBackAndSetsTheLabel()
{
    QFETCH(const QString, root);
    QFETCH(const QString, caseId);
    QFETCH(const bool, valid);
    QFETCH(const QString, rootAfterwards);
    setFields(root, caseId);
    QCOMPARE(checkUidRoot(m_host), valid);
    QCOMPARE(m_host.calls, QStringList(rootCall(rootAfterwards, valid)));
    QCOMPARE(m_host.fields.caseId, caseId);
}

void TestUidRootFields::creationReplacesTheRootAndChecksIt_data()
{
    QTest::addColumn<QString>("uuid");
    QTest::addColumn<QString>("root");
    QTest::addColumn<bool>("valid");
    QTest::newRow("all F") << largestUuid << largestRoot << true;
    QTest::newRow("one") << QStringLiteral("00000000-0000-0000-0000-000000000001") << QStringLiteral("2.25.1")
                         << false;
    QTest::newRow("zero") << QStringLiteral("00000000-0000-0000-0000-000000000000") << QStringLiteral("2.25.")
                          << false;
}

void TestUidRootFields::creationReplacesTheRootAndChecksIt()
{
    QFETCH(const QString, uuid);
    QFETCH(const QString, root);
    QFETCH(const bool, valid);
    setFields(QStringLiteral("what was there"), QStringLiteral("7"));
    m_uuids.uuids = {uuid};
    createUidRoot(m_host, m_uuids);
    QCOMPARE(m_host.calls, QStringList(rootCall(root, valid)));
    QCOMPARE(m_uuids.uuids, QStringList());
}

void TestUidRootFields::creationTakesANewUuidEachTime()
{
    m_uuids.uuids = {QStringLiteral("00000000-0000-0000-0000-00000000000A"),
                     QStringLiteral("00000000-0000-0000-0000-00000000000B")};
    createUidRoot(m_host, m_uuids);
    QCOMPARE(m_host.fields.uidRoot, QStringLiteral("2.25.10"));
    createUidRoot(m_host, m_uuids);
    QCOMPARE(m_host.fields.uidRoot, QStringLiteral("2.25.11"));
}

void TestUidRootFields::creationCuresARootButNotACaseId_data()
{
    QTest::addColumn<QString>("root");
    QTest::addColumn<QString>("caseId");
    QTest::addColumn<bool>("valid");
    QTest::newRow("1.2.3") << QStringLiteral("1.2.3") << QString() << true;
    QTest::newRow("2.25. alone") << QStringLiteral("2.25.") << QStringLiteral("007") << true;
    QTest::newRow("CaseID of 19 digits") << QString() << QString(19, u'1') << true;
    QTest::newRow("CaseID of 20 digits") << QString() << QString(20, u'1') << false;
    QTest::newRow("CaseID 12.5") << QString() << QStringLiteral("12.5") << false;
}

void TestUidRootFields::creationCuresARootButNotACaseId()
{
    QFETCH(const QString, root);
    QFETCH(const QString, caseId);
    QFETCH(const bool, valid);
    setFields(root, caseId);
    QVERIFY(!checkUidRoot(m_host));
    m_uuids.uuids = {largestUuid};
    createUidRoot(m_host, m_uuids);
    QCOMPARE(checkUidRoot(m_host), valid);
}

void TestUidRootFields::composesFromAValidRoot_data()
{
    QTest::addColumn<QString>("root");
    QTest::addColumn<QString>("caseId");
    QTest::addColumn<QString>("rootAfterwards");
    QTest::addColumn<QString>("uid");
    const auto row = [](const char *name, const QString &root, const char *caseId, const QString &after,
                        const QString &uid) {
        QTest::newRow(name) << root << QString::fromLatin1(caseId) << after << uid;
    };
    row("CaseID 007", validRoot, "007", validRoot, validRoot + QStringLiteral(".7"));
    row("CaseID 0042", validRoot, "0042", validRoot, validRoot + QStringLiteral(".42"));
    row("CaseID 000", validRoot, "000", validRoot, validRoot);
    row("CaseID empty", validRoot, "", validRoot, validRoot);
    row("blanks around the root", u' ' + validRoot + u' ', "1", validRoot, validRoot + QStringLiteral(".1"));
    row("one dot behind", validRoot + u'.', "1", validRoot, validRoot + QStringLiteral(".1"));
    row("one dot behind, no CaseID", validRoot + u'.', "", validRoot, validRoot);
    row("two dots behind: one is dropped", validRoot + QStringLiteral(".."), "1", validRoot + u'.',
        validRoot + QStringLiteral("..1"));
    row("44 characters and 19 digits", largestRoot, "1111111111111111111", largestRoot,
        largestRoot + QStringLiteral(".1111111111111111111"));
}

void TestUidRootFields::composesFromAValidRoot()
{
    QFETCH(const QString, root);
    QFETCH(const QString, caseId);
    QFETCH(const QString, rootAfterwards);
    QFETCH(const QString, uid);
    setFields(root, caseId);
    QCOMPARE(composeStudyInstanceUid(m_host, m_host.fields, m_uuids), uid);
    QCOMPARE(m_host.fields.uidRoot, rootAfterwards);
    QCOMPARE(m_host.fields.caseId, caseId);
}

void TestUidRootFields::composesFromAFreshRootWhenTheFieldsIsInvalid_data()
{
    QTest::addColumn<QString>("root");
    QTest::addColumn<QString>("caseId");
    QTest::addColumn<QString>("uid");
    const auto row = [](const char *name, const char *root, const char *caseId, const QString &uid) {
        QTest::newRow(name) << QString::fromLatin1(root) << QString::fromLatin1(caseId) << uid;
    };
    row("too short", "1.2.3", "", largestRoot);
    row("too short, with a CaseID", "1.2.3", "007", largestRoot + QStringLiteral(".7"));
    row("empty", "", "0", largestRoot);
    row("trailing dot stays in the field", "1.2.3.", "", largestRoot);
    row("blanks around the CaseID make it invalid", "1.2.12345678901234567890", " 7 ",
        largestRoot + QStringLiteral(".7"));
    row("CaseID that no root can cure", "1.2.12345678901234567890", "12.5",
        largestRoot + QStringLiteral(".12.5"));
}

void TestUidRootFields::composesFromAFreshRootWhenTheFieldsIsInvalid()
{
    QFETCH(const QString, root);
    QFETCH(const QString, caseId);
    QFETCH(const QString, uid);
    setFields(root, caseId);
    m_uuids.uuids = {largestUuid};
    QCOMPARE(composeStudyInstanceUid(m_host, m_host.fields, m_uuids), uid);
    QCOMPARE(m_host.fields.uidRoot, root);
    QCOMPARE(m_uuids.uuids, QStringList());
}

void TestUidRootFields::everyCompositionWithoutAValidRootIsFresh()
{
    m_uuids.uuids = {QStringLiteral("00000000-0000-0000-0000-00000000000A"),
                     QStringLiteral("00000000-0000-0000-0000-000000000000")};
    QCOMPARE(composeStudyInstanceUid(m_host, m_host.fields, m_uuids), QStringLiteral("2.25.10"));
    QCOMPARE(composeStudyInstanceUid(m_host, m_host.fields, m_uuids), QStringLiteral("2.25."));
}

DRAVOLIN_TEST(TestUidRootFields)
#include "tst_uidrootfields.moc"
