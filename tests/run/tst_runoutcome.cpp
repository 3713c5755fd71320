#include "run/OutputAnalysis.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin;
using namespace dravolin::test;

// What the window's sign tells: the texts of the judgement alone do not say whether all went well.
class TestRunOutcome : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysHowTheRunEnded_data();
    void saysHowTheRunEnded();
};

void TestRunOutcome::saysHowTheRunEnded_data()
{
    QTest::addColumn<RunReport>("report");
    QTest::addColumn<QString>("ended");
    const auto row = [](const char *name, quint64 errors, bool constructing, const char *output,
                        const char *ended) {
        RunReport report;
        report.output = QString::fromUtf8(output);
        report.AllFoldersNames = QStringList{QStringLiteral("study")};
        report.errCount = errors;
        report.constructing = constructing;
        QTest::newRow(name) << report << QString::fromUtf8(ended);
    };
    row("nothing said", 0, false, "", "");
    row("an error line", 0, false, "E: a", "errors");
    row("a count of files alone", 0, false, "E: There was 1 error", "errors");
    row("a line that counts for nothing", 0, false, "E: cannot put value into non-leaf elements!", "");
    row("a complaint about a folder alone", 0, false, "E: unable to load file study: a", "errors");
    row("a complaint that a count makes up for", 0, false,
        "E: There was 1 error\nE: unable to load file study: a", "");
    row("refused", 1, false, "", "refused");
    row("refused after an error line", 1, false, "E: a", "refused errors");
    row("constructed", 0, true, "", "constructed");
    row("constructed with an error line", 0, true, "E: a", "errors constructed");
    row("a construction that failed", 1, true, "", "refused");
}

void TestRunOutcome::saysHowTheRunEnded()
{
    QFETCH(const RunReport, report);
    const RunJudgement judgement = judgeOutput(report);
    QStringList ended;
    if (judgement.refused)
        ended.append(QStringLiteral("refused"));
    if (judgement.hasErrors)
        ended.append(QStringLiteral("errors"));
    if (judgement.constructed)
        ended.append(QStringLiteral("constructed"));
    QTEST(ended.join(u' '), "ended");
}

DRAVOLIN_TEST(TestRunOutcome)
#include "tst_runoutcome.moc"
