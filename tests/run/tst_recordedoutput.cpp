#include "run/OutputAnalysis.h"
#include "support/TestEntry.h"

#include <QFile>
#include <QTest>

using namespace dravolin;
using namespace dravolin::test;

namespace {

QString str(const char *text)
{
    return QString::fromUtf8(text);
}

// What the tool has printed in a recorded case.
QString recorded(const QString &name)
{
    QFile file(str(TOOL_OUTPUT "/") + name + str(".txt"));
    if (!file.open(QIODevice::ReadOnly))
        QTest::qFail("a recorded output is missing", __FILE__, __LINE__);
    return QString::fromUtf8(file.readAll());
}

} // namespace

class TestRecordedOutput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void judgesWhatTheToolPrints_data();
    void judgesWhatTheToolPrints();
    void judgesAWholeRun();
    void notesStandBehindTheErrors_data();
    void notesStandBehindTheErrors();
};

void TestRecordedOutput::judgesWhatTheToolPrints_data()
{
    QTest::addColumn<QStringList>("folders");
    QTest::addColumn<QString>("summary");
    QTest::addColumn<QString>("logText");
    const auto row = [](const char *name, const QStringList &folders, const char *summary,
                        const char *logText) {
        QTest::newRow(name) << folders << str(summary) << str(logText);
    };
    row("mixed-folder", {str("series_a"), str("two words")}, "\nDone. 2 files with errors.",
        "E: unable to load file empty.dcm: End of stream\n\n"
        "E: unable to load file notes.txt: I/O suspension or premature end of stream\n\n");
    row("empty-folder", {}, "\nDone. 1 file with errors.",
        "E: unable to load file *: No such file or directory\n\n");
    row("twelve-unreadable", {}, "\nDone. 21 files with errors.",
        "E: unable to load file 01.dcm: End of stream\n\nE: unable to load file 02.dcm: End of stream\n\n"
        "E: unable to load file 03.dcm: End of stream\n\nE: unable to load file 04.dcm: End of stream\n\n"
        "E: unable to load file 05.dcm: End of stream\n\nE: unable to load file 06.dcm: End of stream\n\n"
        "E: unable to load file 07.dcm: End of stream\n\nE: unable to load file 08.dcm: End of stream\n\n"
        "E: unable to load file 09.dcm: End of stream\n\nE: unable to load file 10.dcm: End of stream\n\n"
        "E: unable to load file 11.dcm: End of stream\n\nE: unable to load file 12.dcm: End of stream\n\n");
    row("ten-subfolders",
        {str("s01"), str("s02"), str("s03"), str("s04"), str("s05"), str("s06"), str("s07"), str("s08"),
         str("s09"), str("s10")},
        "\nDone!", "");
    row("two-subfolders-one-unreadable", {str("s1"), str("s2")}, "\nDone. 1 file with errors.",
        "E: unable to load file bad.dcm: End of stream\n\n");
    row("sequence", {}, "\nDone!", "");
    row("not-a-tag", {}, "\nDone. 2 files with errors.",
        "E: modifying tag in file a.dcm: Unable to parse tag/dictionary name at beginning of path: "
        "(abcdefghi)\n\n"
        "E: modifying tag in file a.dcm: Invalid target tag!\n\n");
    row("private-without-creator", {}, "\nDone. 2 files with errors.",
        "E: modifying tag in file a.dcm: Invalid or empty private creator tag: (0009,0010)\n\n"
        "E: modifying tag in file a.dcm: Corrupted data\n\n");
    row("unknown-option", {}, "\nDone!", "");
    row("missing-tool", {}, "\nDone!", "");
    row("missing-dictionary", {}, "\nDone. 1 file with errors.",
        "E: DcmDataDictionary: Cannot open file: /nowhere/dicom.dic\n\n"
        "E: modifying tag in file a.dcm: Unable to parse tag/dictionary name at beginning of path: "
        "PatientName\n\n"
        "E: DcmFileFormat: Cannot determine Version of MetaHeader\n\n");
}

void TestRecordedOutput::judgesWhatTheToolPrints()
{
    QFETCH(QStringList, folders);
    QFETCH(QString, logText);
    RunReport report;
    report.output = recorded(QString::fromUtf8(QTest::currentDataTag()));
    report.AllFoldersNames = folders;

    const RunJudgement judgement = judgeOutput(report);

    QVERIFY(!report.output.isEmpty());
    QTEST(judgement.summary, "summary");
    QCOMPARE(judgement.logText, logText);
    QCOMPARE(judgement.wantsLogWindow, !logText.isEmpty());
}

void TestRecordedOutput::judgesAWholeRun()
{
    RunReport report;
    for (const char *name : {"ten-subfolders", "empty-folder", "sequence", "two-subfolders-one-unreadable"})
        report.output += recorded(str(name));
    report.AllFoldersNames = {str("s01"), str("s02"), str("s03"), str("s04"), str("s05"), str("s06"),
                              str("s07"), str("s08"), str("s09"), str("s10"), str("s1"),  str("s2")};
    report.DICOMDIRpaths = {str("./DICOMDIR")};

    const RunJudgement judgement = judgeOutput(report);

    // 1 - 10 for the ten subfolders, 1 for "*", 2 for the sequence, 3 - 2 for the last folder
    QCOMPARE(judgement.summary, str("\nDone. 18446744073709551611 files with errors."));
    QCOMPARE(judgement.logText, str("E: unable to load file *: No such file or directory\n\n"
                                    "E: unable to load file bad.dcm: End of stream\n\n"
                                    "Mind you: DICOMDIR files were found.\n"
                                    "They do not contain DICOM tags to anonymize but still contain PHI:\n"
                                    "./DICOMDIR\n\n"));
}

void TestRecordedOutput::notesStandBehindTheErrors_data()
{
    QTest::addColumn<RunReport>("report");
    QTest::addColumn<QString>("summary");
    QTest::addColumn<QString>("logText");
    const QString error = str("E: a\n");
    const QString dicomdirs = str("Mind you: DICOMDIR files were found.\n"
                                  "They do not contain DICOM tags to anonymize but still contain PHI:\n");
    const QString constructed = str("\n\nConstructed LUT file placed on Desktop.\n\n");
    const auto row = [](const char *name, const RunReport &report, const char *summary,
                        const QString &logText) { QTest::newRow(name) << report << str(summary) << logText; };
    row("construction", {error, 0, true, false, 0, 0, {}, {}}, "\nDone, with 1 error.",
        str("E: a\n\n") + constructed);
    row("construction goes before propagation", {error, 0, true, true, 3, 4, {}, {}}, "\nDone, with 1 error.",
        str("E: a\n\n") + constructed);
    row("propagation", {error, 0, false, true, 1, 0, {}, {}}, "\nDone, with 1 error.",
        str("E: a\n\n\n\nLUT tag propagated to 1 file.\nSkipped 0 DICOM files.\n\n"));
    row("propagation, plural and singular", {error, 0, false, true, 2, 1, {}, {}}, "\nDone, with 1 error.",
        str("E: a\n\n\n\nLUT tag propagated to 2 files.\nSkipped 1 DICOM file.\n\n"));
    row("a DICOMDIR alone", {{}, 0, false, false, 0, 0, {}, {str("./DICOMDIR")}}, "\nDone, with 0 errors.",
        dicomdirs + str("./DICOMDIR\n\n"));
    row("DICOMDIRs in order, one twice",
        {{}, 0, false, false, 0, 0, {}, {str("./b/DICOMDIR"), str("./DICOMDIR"), str("./b/DICOMDIR")}},
        "\nDone, with 0 errors.", dicomdirs + str("./b/DICOMDIR\n./DICOMDIR\n./b/DICOMDIR\n\n"));
    row("a refused run keeps nothing of its error count",
        {{}, 1, false, false, 0, 0, {}, {str("./DICOMDIR")}}, "\nDone, with 0 errors.",
        dicomdirs + str("./DICOMDIR\n\n"));
    row("a DICOMDIR and a closing line",
        {str("E: There were 12 errors"), 0, false, false, 0, 0, {}, {str("./DICOMDIR")}},
        "\nDone. 21 files with errors.", dicomdirs + str("./DICOMDIR\n\n"));
    row("errors, table note and DICOMDIR", {error, 0, false, true, 0, 2, {}, {str("./DICOMDIR")}},
        "\nDone, with 1 error.",
        str("E: a\n\n\n\nLUT tag propagated to 0 files.\nSkipped 2 DICOM files.\n\n") + dicomdirs +
            str("./DICOMDIR\n\n"));
    row("construction and DICOMDIR", {{}, 0, true, false, 0, 0, {}, {str("./DICOMDIR")}},
        "\nDone, with 0 errors.", constructed + dicomdirs + str("./DICOMDIR\n\n"));
    row("place markers in names", {str("E: %1\n"), 0, false, true, 1, 1, {}, {str("./%1/DICOMDIR")}},
        "\nDone, with 1 error.",
        str("E: %1\n\n\n\nLUT tag propagated to 1 file.\nSkipped 1 DICOM file.\n\n") + dicomdirs +
            str("./%1/DICOMDIR\n\n"));
}

void TestRecordedOutput::notesStandBehindTheErrors()
{
    QFETCH(RunReport, report);
    const RunJudgement judgement = judgeOutput(report);
    QTEST(judgement.summary, "summary");
    QTEST(judgement.logText, "logText");
    QVERIFY(judgement.wantsLogWindow);
}

DRAVOLIN_TEST(TestRecordedOutput)
#include "tst_recordedoutput.moc"
