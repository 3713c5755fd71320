#include "run/OutputAnalysis.h"
#include "support/TestEntry.h"

#include <QTest>

#include <limits>

using namespace dravolin;
using namespace dravolin::test;

namespace {

QString str(const char *text)
{
    return QString::fromUtf8(text);
}

RunReport printed(const QString &output, const QStringList &folderNames = {})
{
    RunReport report;
    report.output = output;
    report.AllFoldersNames = folderNames;
    return report;
}

} // namespace

class TestOutputAnalysis : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstSummary_data();
    void firstSummary();
    void keepsCountsReversed_data();
    void keepsCountsReversed();
    void cutsLinesAtEveryNewline_data();
    void cutsLinesAtEveryNewline();
    void collectsErrorLines_data();
    void collectsErrorLines();
    void complaintsAboutFoldersAreNoErrors_data();
    void complaintsAboutFoldersAreNoErrors();
    void sumsClosingLines_data();
    void sumsClosingLines();
};

void TestOutputAnalysis::firstSummary_data()
{
    QTest::addColumn<RunReport>("report");
    QTest::addColumn<QString>("summary");
    const auto row = [](const char *name, quint64 errors, bool constructing, bool usingLUT, quint64 adapted,
                        quint64 skipped, const char *summary) {
        QTest::newRow(name) << RunReport{QString(), errors, constructing, usingLUT, adapted, skipped, {}, {}}
                            << str(summary);
    };
    row("done", 0, false, false, 5, 5, "\nDone!");
    row("one error", 1, false, false, 0, 0, "Done...\nEncountered 1 error.\nSee messages logged to console.");
    row("two errors", 2, false, false, 0, 0,
        "Done...\nEncountered 2 errors.\nSee messages logged to console.");
    row("one error with a table", 1, false, true, 1, 1,
        "Done...\nEncountered 1 error.\nSee messages logged to console.");
    row("one error constructing", 1, true, true, 0, 0,
        "Done constructing LUT. File placed on Desktop.\nEncountered 1 error.\nSee messages logged to "
        "console.");
    row("more errors constructing", 18446744073709551615U, true, false, 0, 0,
        "Done constructing LUT. File placed on Desktop.\nEncountered 18446744073709551615 errors.\n"
        "See messages logged to console.");
    row("constructing", 0, true, false, 0, 0, "\nDone constructing LUT. File placed on Desktop.");
    row("constructing goes before propagating", 0, true, true, 3, 4,
        "\nDone constructing LUT. File placed on Desktop.");
    row("propagated, none", 0, false, true, 0, 0,
        "Done!\nLUT tag propagated to 0 files.\nSkipped 0 DICOM files.");
    row("propagated, one each", 0, false, true, 1, 1,
        "Done!\nLUT tag propagated to 1 file.\nSkipped 1 DICOM file.");
    row("propagated, one and two", 0, false, true, 1, 2,
        "Done!\nLUT tag propagated to 1 file.\nSkipped 2 DICOM files.");
    row("propagated, many", 0, false, true, 1000, 1,
        "Done!\nLUT tag propagated to 1000 files.\nSkipped 1 DICOM file.");
}

void TestOutputAnalysis::firstSummary()
{
    QFETCH(RunReport, report);
    const RunJudgement judgement = judgeOutput(report);
    QTEST(judgement.summary, "summary");
    QCOMPARE(judgement.logText, QString());
    QVERIFY(!judgement.wantsLogWindow);
}

void TestOutputAnalysis::keepsCountsReversed_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<qint64>("count");
    const auto row = [](const char *line, qint64 count) { QTest::newRow(line) << str(line) << count; };
    row("E: There was 1 error", 1);
    row("E: There were 2 errors", 2);
    row("E: There were 12 errors", 21);
    row("E: There were 10 errors", 1);
    row("E: There were 100 errors", 1);
    row("E: There were 120 errors", 21);
    row("E: There were 1005 errors", 5001);
    row("E: There were 0 errors", 0);
    row("E: There were no errors", 0);
    row("E: There was", 0);            // nothing is left to cut from
    row("E: There were", 0);           // two characters, six to cut
    row("E: There was 1234", 0);       // "s 1234": exactly as many as are cut
    row("E: There was 12345", 0);      // only the "s" is left
    row("E: There was1234567", 1);     // the digit beside the "s" is left
    row("E: There were 7  errors", 7); // the blanks between are trimmed
    row("E: There were 7\t errors", 7);
    row("E: There were 7 error", 7);    // a blank fewer is cut
    row("E: There were 7 mistakes", 0); // "im 7": letters are left in front of the digit
    row("E: There were 5- errors", -5);
    row("E: There were 5+ errors", 5);
    row("E: There were 5+- errors", 0);
    row("E: There were 21x errors", 0); // "x12"
    row("E: There were x21 errors", 12);
    row("E: There were 7085774586302733229 errors", 9223372036854775807);
    row("E: There were 8085774586302733229 errors", 9223372036854775807);
    row("E: There were 99999999999999999999999 errors", 9223372036854775807);
    row("E: There were 8085774586302733229- errors", std::numeric_limits<qint64>::min());
    row("E: There were 99999999999999999999999- errors", std::numeric_limits<qint64>::min());
    row("E: There were \xd9\xa3 errors", 0); // another script's digit
}

void TestOutputAnalysis::keepsCountsReversed()
{
    QFETCH(QString, line);
    QTEST(closingLineCount(line), "count");
}

void TestOutputAnalysis::cutsLinesAtEveryNewline_data()
{
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("logText");
    const auto row = [](const char *name, const QString &newline) {
        QTest::newRow(name) << newline + str("E: a") + newline + str("E: b") + newline
                            << str("E: a\n\nE: b\n\n");
    };
    row("LF", str("\n"));
    row("VT", str("\v"));
    row("FF", str("\f"));
    row("CR", str("\r"));
    row("CR LF", str("\r\n"));
    row("U+0085", QChar(0x85));
    row("U+2028", QChar(0x2028));
    row("U+2029", QChar(0x2029));
    row("empty lines", str("\n\n \n\r\n"));
    QTest::newRow("no newline at the end") << str("E: a\nE: b") << str("E: a\n\nE: b\n\n");
    QTest::newRow("tab is none") << str("E: a\tE: b") << str("E: a\tE: b\n\n");
    QTest::newRow("NUL is none") << QString(str("E: a") + QChar(0) + str("E: b"))
                                 << QString(str("E: a") + QChar(0) + str("E: b\n\n"));
}

void TestOutputAnalysis::cutsLinesAtEveryNewline()
{
    QFETCH(QString, output);
    QTEST(judgeOutput(printed(output)).logText, "logText");
}

void TestOutputAnalysis::collectsErrorLines_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("logText");
    const auto row = [](const char *line, const char *logText) {
        QTest::newRow(line) << str(line) << str(logText);
    };
    row("E: anything", "E: anything\n\n");
    row("E:", "E:\n\n");
    row(" \t E: trimmed \t ", "E: trimmed\n\n");
    row("\xc2\xa0\xe3\x80\x80"
        "E: trimmed of other blanks\xe2\x80\x83",
        "E: trimmed of other blanks\n\n");
    row("W: a warning", "");
    row("F: a fatal error", "");
    row("I: E: no error", "");
    row("e: lower case", "");
    row("E no colon", "");
    row("dcmodify: Modify DICOM files", "");
    row("./.noxTemp.sh: 2: ../dcmodify: not found", "");
    row("", "");
    row("E: There wasp", "");
    row("E: There were 3 errors put value into non-leaf elements!", "");
    row("E: there were 3 errors", "E: there were 3 errors\n\n");
    row("E:  There were 3 errors", "E:  There were 3 errors\n\n");
    row("E: x put value into non-leaf elements!", "");
    row("E: x put value into non-leaf elements!  ", "");
    row("E: put value into non-leaf elements! Really", "E: put value into non-leaf elements! Really\n\n");
    row("E: Put value into non-leaf elements!", "E: Put value into non-leaf elements!\n\n");
    row("E:put value into non-leaf elements!", "");
    row("E: unable to load file x: put value into non-leaf elements!",
        "E: unable to load file x: put value into non-leaf elements!\n\n"); // a file's complaint is not tried
                                                                            // again
    row("E: unable to load file", "E: unable to load file\n\n");
    row("E: unable to load file ", "E: unable to load file\n\n");
    row("E: Unable to load file x: y", "E: Unable to load file x: y\n\n");
}

void TestOutputAnalysis::collectsErrorLines()
{
    QFETCH(QString, line);
    QFETCH(QString, logText);
    const RunJudgement judgement = judgeOutput(printed(line));
    QCOMPARE(judgement.logText, logText);
    QCOMPARE(judgement.wantsLogWindow, !logText.isEmpty());
    QCOMPARE(judgement.summary, logText.isEmpty() ? str("\nDone!") : str("\nDone, with 1 error."));
}

void TestOutputAnalysis::complaintsAboutFoldersAreNoErrors_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("named");
    QTest::addColumn<bool>("hit");
    const auto row = [](const char *name, const char *folder, const char *named, bool hit) {
        QTest::newRow(name) << QStringList(str(folder)) << str(named) << hit;
    };
    row("a folder", "series_a", "Series_A: No such file or directory", true);
    row("nothing behind the colon", "series_a", "Series_A:", true);
    row("another folder", "series_b", "Series_A: No such file or directory", false);
    row("a longer name", "series_a", "Series_AB: No such file or directory", false);
    row("a shorter name", "series_a", "Series_: No such file or directory", false);
    row("no colon", "series_a", "Series_A", false);
    row("a blank before the colon", "series_a", "Series_A : x", false);
    row("the name later in the line", "series_a", "x Series_A: y", false);
    row("blanks in the name", "two words", "Two Words: x", true);
    row("more blanks in front", "series_a", "  Series_A: x", true);
    row("a name that begins with a blank is trimmed away", " series_a", " Series_A: x", false);
    row("a name that ends with a blank", "series_a ", "Series_A : x", true);
    row("a colon in the name", "a:b", "A:B: x", true);
    row("a name that is the part before a colon", "a", "A:B: x", true);
    row("a colon at the end of the name", "a:", "A:: x", true);
    row("letters outside ASCII", "\xc3\xa4\xc3\xb6\xce\xa3", "\xc3\x84\xc3\x96\xce\xa3: x", false);
    row("lower-cased letters outside ASCII", "\xc3\xa4\xc3\xb6\xcf\x83", "\xc3\x84\xc3\x96\xce\xa3: x", true);
    row("a name in upper case is never met", "Series_A", "Series_A: x", false);
    row("a path, though the tool prints bare names", "/data/s1", "a.dcm: x", false);
    row("a path that is printed", "/data/s1", "/Data/S1: x", true);
    row("an empty name", "", ": x", true);
    QTest::newRow("no names") << QStringList() << str("Series_A: x") << false;
    QTest::newRow("the second name") << QStringList({str("x"), str("series_a")}) << str("Series_A: x")
                                     << true;
    QTest::newRow("met once though listed twice")
        << QStringList({str("series_a"), str("series_a")}) << str("Series_A: x") << true;
}

void TestOutputAnalysis::complaintsAboutFoldersAreNoErrors()
{
    QFETCH(QStringList, names);
    QFETCH(QString, named);
    QFETCH(bool, hit);
    const QString line = str("E: unable to load file ") + named;
    const RunJudgement judgement =
        judgeOutput(printed(line + str("\nE: There were 2 errors\nE: other\n"), names));
    QCOMPARE(judgement.summary,
             hit ? str("\nDone. 1 file with errors.") : str("\nDone. 2 files with errors."));
    QCOMPARE(judgement.logText, (hit ? QString() : line.trimmed() + str("\n\n")) + str("E: other\n\n"));
}

void TestOutputAnalysis::sumsClosingLines_data()
{
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("summary");
    const auto row = [](const char *name, const char *output, const char *summary) {
        QTest::newRow(name) << str(output) << str(summary);
    };
    row("no closing line: the collected lines count", "E: a\nE: b\n", "\nDone, with 2 errors.");
    row("a single one", "E: a\nE: There was 1 error\n", "\nDone. 1 file with errors.");
    row("keeps 12 as 21", "E: a\nE: There were 12 errors\n", "\nDone. 21 files with errors.");
    row("several add up", "E: There was 1 error\nE: a\nE: There were 2 errors\nE: There were 12 errors\n",
        "\nDone. 24 files with errors.");
    row("folders alone equal the count", "E: a\nE: unable to load file sub: x\nE: There was 1 error\n",
        "\nDone, with 1 error.");
    row("below zero", "E: a\nE: unable to load file sub: x\n",
        "\nDone. 18446744073709551615 files with errors.");
    row("keeps ten folders as minus nine",
        "E: a\nE: unable to load file sub: x\nE: unable to load file sub: x\nE: unable to load file sub: x\n"
        "E: unable to load file sub: x\nE: unable to load file sub: x\nE: unable to load file sub: x\n"
        "E: unable to load file sub: x\nE: unable to load file sub: x\nE: unable to load file sub: x\n"
        "E: unable to load file sub: x\nE: There were 10 errors\n",
        "\nDone. 18446744073709551607 files with errors.");
    row("beyond 64 bits",
        "E: a\nE: There were 7085774586302733229 errors\nE: There were 7085774586302733229 errors\n"
        "E: There were 3 errors\n",
        "\nDone. 1 file with errors.");
    row("a closing line alone is not seen", "E: There was 1 error\n", "\nDone!");
    row("folders alone are not seen", "E: unable to load file sub: x\n", "\nDone!");
}

void TestOutputAnalysis::sumsClosingLines()
{
    QFETCH(QString, output);
    const RunJudgement judgement = judgeOutput(printed(output, {str("sub")}));
    QTEST(judgement.summary, "summary");
    QCOMPARE(judgement.wantsLogWindow, !judgement.logText.isEmpty());
}

DRAVOLIN_TEST(TestOutputAnalysis)
#include "tst_outputanalysis.moc"
