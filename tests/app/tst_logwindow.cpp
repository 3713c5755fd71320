#include "app/AlertSheetRunner.h"
#include "app/LogWindowController.h"
#include "app/TestApp.h"
#include "support/TestEntry.h"

#include <QScreen>
#include <QTest>

using namespace dravolin;
using namespace dravolin::test;

// How the log window opens.
class TestLogWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { useHome(m_home.path()); }

    void opensInTheMiddleOfItsScreen();
    void opensAtTheTopWithNothingSelected_data();
    void opensAtTheTopWithNothingSelected();
    void breaksLinesAtWords_data();
    void breaksLinesAtWords();
    void aSheetStaysInFront_data();
    void aSheetStaysInFront();

private:
    QTemporaryDir m_home;
};

void TestLogWindow::opensInTheMiddleOfItsScreen()
{
    LogWindowController log;
    log.window()->move(0, 0);
    log.showWithText(QStringLiteral("text"));
    const QPoint distance =
        log.window()->geometry().center() - log.window()->screen()->availableGeometry().center();
    QVERIFY2(distance.manhattanLength() <= 8, "off the middle by more than a frame's width");
}

void TestLogWindow::opensAtTheTopWithNothingSelected_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("a line") << QStringLiteral("E: bad\n");
    QTest::newRow("many pages") << QStringLiteral("E: bad\n").repeated(20000);
}

void TestLogWindow::opensAtTheTopWithNothingSelected()
{
    QFETCH(QString, text);
    LogWindowController log;
    log.showWithText(text);
    QTRY_COMPARE(log.logTextView()->toPlainText(), text);
    QVERIFY(!log.logTextView()->textCursor().hasSelection());
    QCOMPARE(log.logTextView()->textCursor().position(), 0);
}

void TestLogWindow::breaksLinesAtWords_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("mode");
    QTest::newRow("words") << QStringLiteral("one two ").repeated(100)
                           << int(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QTest::newRow("many lines") << QStringLiteral("one two\n").repeated(10000)
                                << int(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QTest::newRow("a giant line behind others")
        << QStringLiteral("one\ntwo\n") + QString(40000, u'x') << int(QTextOption::WrapAnywhere);
    QTest::newRow("a giant line before others")
        << QString(40000, u'x') + QStringLiteral("\none\ntwo") << int(QTextOption::WrapAnywhere);
}

void TestLogWindow::breaksLinesAtWords()
{
    QFETCH(QString, text);
    LogWindowController log;
    log.showWithText(text);
    QTEST(int(log.logTextView()->wordWrapMode()), "mode");
}

void TestLogWindow::aSheetStaysInFront_data()
{
    QTest::addColumn<bool>("sheetFirst");
    QTest::newRow("the sheet was there") << true;
    QTest::newRow("the log was there") << false;
}

void TestLogWindow::aSheetStaysInFront()
{
    QFETCH(bool, sheetFirst);
    TestApp app;
    app.start();
    if (!sheetFirst)
        app.controller->showLogWindowWithLogText(QStringLiteral("E: bad"));
    AlertSheet sheet;
    sheet.message = QStringLiteral("Message");
    sheet.buttons = {QStringLiteral("Ok")};
    QMessageBox *const box = AlertSheetRunner::beginSheet(sheet, &app.controller->window())->alert();
    QTRY_VERIFY(box->isActiveWindow());
    if (sheetFirst)
        app.controller->showLogWindowWithLogText(QStringLiteral("E: bad"));
    QCoreApplication::processEvents();
    QTRY_VERIFY(box->isActiveWindow());
    QVERIFY(app.controller->logWinController()->window()->isVisible());
}

DRAVOLIN_TEST(TestLogWindow)
#include "tst_logwindow.moc"
