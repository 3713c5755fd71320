#include "run/jobs/ToolOutput.h"
#include "support/ScratchFolder.h"
#include "support/TestEntry.h"
#include "support/TestRun.h"

#include <QTest>

using namespace dravolin;
using test::LogCatcher;
using test::ScratchFolder;

// Outputs above a size that the rows choose.
class TestToolOutput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSmallOutputIsReadAsAWhole();
    void ofALargeOneTheErrorsAreKept_data();
    void ofALargeOneTheErrorsAreKept();
    void linesAreFoundAcrossPieces();
    void aLargeOneThatCannotBeReadIsLogged_data();
    void aLargeOneThatCannotBeReadIsLogged();
    void whatIsNoFileIsNotRead();

private:
    ScratchFolder m_scratch;
};

void TestToolOutput::aSmallOutputIsReadAsAWhole()
{
    const QString path = m_scratch.file(QStringLiteral("small"), "W: a\nE: b\n");
    QCOMPARE(readOutput(path, OutputUse::Judged, 10), QStringLiteral("W: a\nE: b\n"));
    QCOMPARE(readOutput(path, OutputUse::Collected, 10), QStringLiteral("W: a\nE: b\n"));
}

void TestToolOutput::ofALargeOneTheErrorsAreKept_data()
{
    QTest::addColumn<QByteArray>("output");
    QTest::addColumn<QString>("kept");
    QTest::newRow("among warnings") << QByteArray("W: a\nE: b\nW: c\nE: d\nW: e\n")
                                    << QStringLiteral("E: b\nE: d\n");
    QTest::newRow("behind blanks") << QByteArray("W: warning\n \t\u00A0E: b\nW: c\n")
                                   << QStringLiteral(" \t\u00A0E: b\n");
    QTest::newRow("behind another line end")
        << QByteArray("W: warning\rE: b\u2028W: c\nW: d\n") << QStringLiteral("E: b\n");
    QTest::newRow("unfinished") << QByteArray("W: warning\nE: b") << QStringLiteral("E: b");
    QTest::newRow("what the next output goes on with")
        << QByteArray("E: b\nW: c\nW: unfinished") << QStringLiteral("E: b\nW: unfinished");
    QTest::newRow("none") << QByteArray("W: a\nW: b\nW: c\n") << QString();
    QTest::newRow("a mark at the beginning") << QByteArray("\xEF\xBB\xBF"
                                                           "E: b\nW: warning\n")
                                             << QStringLiteral("E: b\n");
}

void TestToolOutput::ofALargeOneTheErrorsAreKept()
{
    QFETCH(const QByteArray, output);
    QFETCH(const QString, kept);
    const QString path = m_scratch.file(QStringLiteral("large"), output);
    QCOMPARE(readOutput(path, OutputUse::Judged, 10).value_or(QStringLiteral("nothing")), kept);
}

// It is read in pieces of a mebibyte.
void TestToolOutput::linesAreFoundAcrossPieces()
{
    QByteArray output;
    QString kept;
    while (output.size() < 3 << 20) {
        const QByteArray error = "E: \u00FC " + QByteArray::number(output.size()) + '\n';
        output += QByteArray("W: DcmItem: odd \u00FC\n").repeated(7) + error;
        kept += QString::fromUtf8(error);
    }
    const QString path = m_scratch.file(QStringLiteral("pieces"), output);
    QVERIFY(readOutput(path, OutputUse::Judged, 1000) == kept);
}

void TestToolOutput::aLargeOneThatCannotBeReadIsLogged_data()
{
    QTest::addColumn<QByteArray>("output");
    QTest::addColumn<bool>("judged");
    QTest::newRow("values that are collected") << QByteArray("E: b\nvalue of some length\n") << false;
    QTest::newRow("not UTF-8") << QByteArray("E: b\nW: \xFC\nW: warning\n") << true;
    QTest::newRow("a character cut at the end") << QByteArray("E: b\nW: a warning \xC3") << true;
    QTest::newRow("one enormous line") << QByteArray(3 << 20, 'x') << true;
}

void TestToolOutput::aLargeOneThatCannotBeReadIsLogged()
{
    QFETCH(const QByteArray, output);
    QFETCH(const bool, judged);
    const QString path = m_scratch.file(QStringLiteral("large"), output);
    const LogCatcher log;
    QVERIFY(!readOutput(path, judged ? OutputUse::Judged : OutputUse::Collected, 10));
    QCOMPARE(LogCatcher::messages(),
             QStringList(QStringLiteral("Could not read the output of the tools: ") + path));
}

void TestToolOutput::whatIsNoFileIsNotRead()
{
    const LogCatcher log;
    QVERIFY(!readOutput(m_scratch.path(QStringLiteral("missing")), OutputUse::Judged, 10));
    QVERIFY(!readOutput(m_scratch.folder(QStringLiteral("folder")), OutputUse::Judged, 10));
    QVERIFY(!readOutput(m_scratch.pipe(QStringLiteral("pipe")), OutputUse::Judged, 10));
    QCOMPARE(LogCatcher::messages(), QStringList());
}

DRAVOLIN_TEST(TestToolOutput)
#include "tst_tooloutput.moc"
