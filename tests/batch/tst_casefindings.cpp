#include "batch/CaseChecks.h"
#include "batch/CaseFindings.h"
#include "batch/Evidence.h"
#include "support/TestEntry.h"

#include <QJsonDocument>
#include <QTest>

using namespace dravolin;
using check::Grade;
using check::Verdict;

Q_DECLARE_METATYPE(dravolin::CaseFindings)

// What is kept of a check, and what it comes to.
class TestCaseFindings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void comesBackFromJson();
    void decides_data();
    void decides();
    void joinsGroupsByPlace();
    void judgesAReport_data();
    void judgesAReport();
    void namesFoldersByCaseId_data();
    void namesFoldersByCaseId();
};

namespace {

QJsonArray arrayOf(const char *json)
{
    return QJsonDocument::fromJson(json).array();
}

} // namespace

void TestCaseFindings::comesBackFromJson()
{
    const CaseFindings findings = {{1, 2, 3}, 4, 5, true, 6, 7, 8, 9, arrayOf(R"([{"place": "preamble"}])")};
    QCOMPARE(findingsFrom(jsonOf(findings)), findings);
}

void TestCaseFindings::decides_data()
{
    QTest::addColumn<CaseFindings>("findings");
    QTest::addColumn<Grade>("atLeast");
    QTest::addColumn<Verdict>("verdict");
    QTest::newRow("nothing") << CaseFindings{} << Grade::Possible << Verdict::Clean;
    QTest::newRow("possible") << CaseFindings{{0, 0, 1}} << Grade::Possible << Verdict::Found;
    QTest::newRow("below the grade") << CaseFindings{{0, 0, 1}} << Grade::Likely << Verdict::Clean;
    QTest::newRow("above it") << CaseFindings{{1, 0, 0}} << Grade::Likely << Verdict::Found;
    QTest::newRow("not as configured") << CaseFindings{{}, 1} << Grade::Certain << Verdict::Found;
    QTest::newRow("not checked") << CaseFindings{{}, 0, 1, true} << Grade::Certain << Verdict::Incomplete;
}

void TestCaseFindings::decides()
{
    QFETCH(const CaseFindings, findings);
    QFETCH(const Grade, atLeast);
    QTEST(findings.verdict(atLeast), "verdict");
}

void TestCaseFindings::joinsGroupsByPlace()
{
    CaseFindings one;
    one.files = {0, 1, 0};
    one.groups = arrayOf(R"([{"place": "A", "worst": "likely", "files": 1, "sources": "x",
                              "filesByGrade": {"certain": 0, "likely": 1, "possible": 0}}])");
    CaseFindings other;
    other.files = {2, 0, 3};
    other.valuesSearched = 5;
    other.groups = arrayOf(R"([{"place": "B", "worst": "possible", "files": 9},
                               {"place": "A", "worst": "certain", "files": 2, "sources": "y, x",
                                "filesByGrade": {"certain": 2, "likely": 0, "possible": 0}}])");
    CaseFindings expected;
    expected.files = {2, 1, 3};
    expected.valuesSearched = 5;
    expected.groups = arrayOf(R"([{"place": "A", "worst": "certain", "files": 3, "sources": "x, y",
                                   "filesByGrade": {"certain": 2, "likely": 1, "possible": 0}},
                                  {"place": "B", "worst": "possible", "files": 9}])");
    QCOMPARE(together({one, other}), expected);
}

void TestCaseFindings::judgesAReport_data()
{
    QTest::addColumn<QByteArray>("report");
    QTest::addColumn<Verdict>("verdict");
    const QByteArray clean = R"({"notDone": 0, "check": {"valuesSearched": 3}})";
    const QByteArray found = R"({"notDone": 0, "check": {"filesWithFindings": {"likely": 1}}})";
    QTest::newRow("clean") << QByteArray(R"({"cases": [)" + clean + "]}") << Verdict::Clean;
    QTest::newRow("found") << QByteArray(R"({"cases": [)" + clean + ',' + found + "]}") << Verdict::Found;
    QTest::newRow("below the grade") << QByteArray(R"({"atLeast": "certain", "cases": [)" + found + "]}")
                                     << Verdict::Clean;
    QTest::newRow("not done") << QByteArray(R"({"cases": [{"notDone": 1, "check": {"valuesSearched": 3}}]})")
                              << Verdict::Incomplete;
    QTest::newRow("not checked") << QByteArray(R"({"cases": [{"notDone": 0}]})") << Verdict::Incomplete;
}

void TestCaseFindings::judgesAReport()
{
    QFETCH(const QByteArray, report);
    QTEST(verdictOf(QJsonDocument::fromJson(report).object()), "verdict");
}

void TestCaseFindings::namesFoldersByCaseId_data()
{
    QTest::addColumn<QString>("caseId");
    QTest::addColumn<QString>("folder");
    QTest::newRow("plain") << QStringLiteral("P-17.a") << QStringLiteral("cases/P-17.a");
    QTest::newRow("no name") << QStringLiteral("a/b c") << QStringLiteral("cases/a%2Fb%20c");
    QTest::newRow("dots") << QStringLiteral("..")
                          << QStringLiteral(
                                 "cases/"
                                 "5ec1f7e700f37c3d0b2981d04855fc34b94aaa15457b05ca571817442d228f81");
}

void TestCaseFindings::namesFoldersByCaseId()
{
    QFETCH(const QString, caseId);
    QTEST(caseReports(caseId), "folder");
}

DRAVOLIN_TEST(TestCaseFindings)
#include "tst_casefindings.moc"
