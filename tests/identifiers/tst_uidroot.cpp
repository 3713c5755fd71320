#include "identifiers/UidRoot.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin;

namespace {

// Roots that are valid without a CaseID, by their length.
const QString root24 = QStringLiteral("1.2.12345678901234567890");
const QString root44 = QStringLiteral("2.25.340282366920938463463374607431768211455");

QString digits(qsizetype count)
{
    return QString(count, u'7');
}

} // namespace

class TestUidRoot : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void checksRootAndCaseId_data();
    void checksRootAndCaseId();
    void givesTheRootWithoutBlanksAtItsEnds_data();
    void givesTheRootWithoutBlanksAtItsEnds();
    void filtersWhatIsTyped_data();
    void filtersWhatIsTyped();
    void generatesRoots_data();
    void generatesRoots();
    void generatedRootFitsBesideNineteenDigits();
    void dropsOneTrailingDot_data();
    void dropsOneTrailingDot();
    void composesStudyInstanceUids_data();
    void composesStudyInstanceUids();
};

void TestUidRoot::checksRootAndCaseId_data()
{
    QTest::addColumn<QString>("root");
    QTest::addColumn<QString>("caseId");
    QTest::addColumn<bool>("valid");
    const auto row = [](const char *name, const QString &root, const QString &caseId, bool valid) {
        QTest::newRow(name) << root << caseId << valid;
    };
    const QString none;
    row("empty", none, none, false);
    row("1.2.3 alone", QStringLiteral("1.2.3"), none, false);
    row("the bare prefix 2.25.", QStringLiteral("2.25."), none, false);
    row("blanks around it", QStringLiteral("  1.2.12345678901234567890  "), none, true);
    row("wrong prefix 1.3.", QStringLiteral("1.3.12345678901234567890123"), none, false);
    row("prefix 2.25.", QStringLiteral("2.25.12345678901234567890"), none, true);
    row("prefix 2.25 without its dot", QStringLiteral("2.2512345678901234567890"), none, false);
    row("prefix 2.26.", QStringLiteral("2.26.12345678901234567890"), none, false);
    row("prefix without its dot", QStringLiteral("1.23456789012345678901234"), none, false);
    row("prefix 2.2.", QStringLiteral("2.2.123456789012345678901234"), none, false);
    row("prefix further behind", QStringLiteral("0.1.2.12345678901234567890"), none, false);
    row("common short root", QStringLiteral("1.2.840.10008"), none, false);
    row("20 characters besides dots", QStringLiteral("1.2.") + digits(18), none, true);
    row("19 characters besides dots", QStringLiteral("1.2.") + digits(17), none, false);
    row("many dots do not count", QStringLiteral("1.2.........") + digits(17), none, false);
    row("CaseID does not help the root", QStringLiteral("1.2.") + digits(17), digits(5), false);
    row("a letter counts for the 20, not as a digit", QStringLiteral("1.2.x") + digits(17), none, false);
    row("a blank inside", QStringLiteral("1.2.12345 678901234567890"), none, false);
    row("a line break at the end", root24 + u'\n', none, false);
    row("empty component", QStringLiteral("1.2..12345678901234567890"), none, true);
    row("component with a leading zero", QStringLiteral("1.2.012345678901234567890"), none, true);
    row("trailing dot", root24 + u'.', none, true);
    row("two trailing dots", root24 + QStringLiteral(".."), none, true);
    row("CaseID of digits", root24, QStringLiteral("007"), true);
    row("CaseID 12.5", root24, QStringLiteral("12.5"), false);
    row("CaseID is a dot", root24, QStringLiteral("."), false);
    row("CaseID with a letter", root24, QStringLiteral("12a"), false);
    row("CaseID with a blank behind", root24, QStringLiteral("12 "), false);
    row("CaseID with a blank in front", root24, QStringLiteral(" 12"), false);
    row("CaseID of a blank", root24, QStringLiteral(" "), false);
    row("CaseID with a letter in the middle", root24, QStringLiteral("1a2"), false);
    row("44 characters and 19 digits make 64", root44, digits(19), true);
    row("44 characters and 20 digits make 65", root44, digits(20), false);
    row("zeros of the CaseID count", root44, QStringLiteral("00000000000000000001"), false);
    row("63 characters and no CaseID", QStringLiteral("1.2.") + digits(59), none, true);
    row("64 characters and no CaseID: the dot counts", QStringLiteral("1.2.") + digits(60), none, false);
    row("blanks of the root do not count", QStringLiteral("  1.2.") + digits(59) + u' ', none, true);
}

void TestUidRoot::checksRootAndCaseId()
{
    QFETCH(const QString, root);
    QFETCH(const QString, caseId);
    QFETCH(const bool, valid);
    QCOMPARE(checkRoot(root, caseId).valid, valid);
}

void TestUidRoot::givesTheRootWithoutBlanksAtItsEnds_data()
{
    QTest::addColumn<QString>("root");
    QTest::addColumn<QString>("expected");
    QTest::newRow("valid") << QStringLiteral("  1.2.12345678901234567890  ") << root24;
    QTest::newRow("tab") << QStringLiteral("\t1.2.12345678901234567890\t") << root24;
    QTest::newRow("invalid, too") << QStringLiteral(" x y ") << QStringLiteral("x y");
    QTest::newRow("blanks alone") << QStringLiteral("  ") << QString();
    QTest::newRow("trailing dot stays") << QStringLiteral(" 1.2. ") << QStringLiteral("1.2.");
    QTest::newRow("line break stays") << QStringLiteral("1.2.3 \n") << QStringLiteral("1.2.3 \n");
}

void TestUidRoot::givesTheRootWithoutBlanksAtItsEnds()
{
    QFETCH(const QString, root);
    QFETCH(const QString, expected);
    QCOMPARE(checkRoot(root, QString()).trimmedRoot, expected);
    QCOMPARE(checkRoot(root, QStringLiteral("x")).trimmedRoot, expected);
}

void TestUidRoot::filtersWhatIsTyped_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char16_t *text, const char16_t *expected) {
        QTest::newRow(name) << QString::fromUtf16(text) << QString::fromUtf16(expected);
    };
    row("a letter behind", u"123a", u"123");
    row("a letter in front", u"a123", u"123");
    row("several at both ends", u" \n-123.ab", u"123.");
    row("a letter in the middle stays", u"1a2", u"1a2");
    row("only the ends are looked at", u"x1 a 2y", u"1 a 2");
    row("dots stay", u".1.2.", u".1.2.");
    row("nothing allowed", u"abc", u"");
    row("empty", u"", u"");
    row("other decimal digits are not allowed", u"\u0661123\u0662", u"123");
    row("a pair of surrogates", u"1\U0001F600", u"1");
}

void TestUidRoot::filtersWhatIsTyped()
{
    QFETCH(const QString, text);
    QFETCH(const QString, expected);
    QCOMPARE(filterTypedIdentifier(text), expected);
}

void TestUidRoot::generatesRoots_data()
{
    QTest::addColumn<QString>("uuid");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *uuid, const QString &expected) {
        QTest::newRow(uuid) << QString::fromLatin1(uuid) << expected;
    };
    row("FFFFFFFF-FFFF-FFFF-FFFF-FFFFFFFFFFFF", root44);
    row("00000000-0000-0000-0000-000000000001", QStringLiteral("2.25.1"));
    row("00000000-0000-0000-0000-00000000000A", QStringLiteral("2.25.10"));
    row("00000000-0000-0000-0000-000000000000", QStringLiteral("2.25."));
}

void TestUidRoot::generatesRoots()
{
    QFETCH(const QString, uuid);
    QFETCH(const QString, expected);
    QCOMPARE(generatedRoot(uuid), expected);
}

void TestUidRoot::generatedRootFitsBesideNineteenDigits()
{
    const QString root = generatedRoot(QStringLiteral("FFFFFFFF-FFFF-FFFF-FFFF-FFFFFFFFFFFF"));
    QCOMPARE(root.size(), 44);
    QVERIFY(checkRoot(root, digits(19)).valid);
    QVERIFY(!checkRoot(root, digits(20)).valid);
}

void TestUidRoot::dropsOneTrailingDot_data()
{
    QTest::addColumn<QString>("root");
    QTest::addColumn<QString>("expected");
    QTest::newRow("none") << QStringLiteral("1.2.3") << QStringLiteral("1.2.3");
    QTest::newRow("one") << QStringLiteral("1.2.3.") << QStringLiteral("1.2.3");
    QTest::newRow("two: one goes") << QStringLiteral("1.2.3..") << QStringLiteral("1.2.3.");
    QTest::newRow("two characters") << QStringLiteral("1.") << QStringLiteral("1");
    QTest::newRow("a dot alone stays") << QStringLiteral(".") << QStringLiteral(".");
    QTest::newRow("empty") << QString() << QString();
}

void TestUidRoot::dropsOneTrailingDot()
{
    QFETCH(const QString, root);
    QFETCH(const QString, expected);
    QCOMPARE(withoutTrailingDot(root), expected);
}

void TestUidRoot::composesStudyInstanceUids_data()
{
    QTest::addColumn<QString>("caseId");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char *caseId, const char *expected) {
        QTest::newRow(name) << QString::fromLatin1(caseId) << QString::fromLatin1(expected);
    };
    row("007", "007", "1.2.3.7");
    row("0042", "0042", "1.2.3.42");
    row("000: the root alone", "000", "1.2.3");
    row("0: the root alone", "0", "1.2.3");
    row("empty: the root alone", "", "1.2.3");
    row("blanks alone: the root alone", " \t", "1.2.3");
    row("blanks at the ends", " 05\t", "1.2.3.5");
    row("zeros inside and behind stay", "1010", "1.2.3.1010");
}

void TestUidRoot::composesStudyInstanceUids()
{
    QFETCH(const QString, caseId);
    QFETCH(const QString, expected);
    QCOMPARE(studyInstanceUid(QStringLiteral("1.2.3"), caseId), expected);
}

DRAVOLIN_TEST(TestUidRoot)
#include "tst_uidroot.moc"
