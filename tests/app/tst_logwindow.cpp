#include "app/AlertSheetRunner.h"
#include "app/LogWindowController.h"
#include "app/TestApp.h"
#include "base/Files.h"
#include "support/TestEntry.h"

#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QScreen>
#include <QTest>
#include <QTextBlock>

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
    void showsAGiantLineInBlocks_data();
    void showsAGiantLineInBlocks();
    void copiesAGiantLineAsOne();
    void closesByKeys_data();
    void closesByKeys();
    void copiesEverything();
    void findsOneAfterTheOther();
    void savesEverything();
    void tellsWhenItCannotSave();
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

void TestLogWindow::showsAGiantLineInBlocks_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<int>>("lengths");
    QTest::newRow("a long line") << QString(40960, u'x') << QList<int>{40960};
    QTest::newRow("a giant line between others")
        << QStringLiteral("one\n") + QString(150000, u'x') + QStringLiteral("\nthree")
        << QList<int>{3, 40960, 40960, 40960, 27120, 5};
    QTest::newRow("characters of two units stay whole")
        << QStringLiteral("x") + QStringLiteral("\U0001F600").repeated(40000) << QList<int>{40959, 39042};
}

void TestLogWindow::showsAGiantLineInBlocks()
{
    QFETCH(QString, text);
    LogWindowController log;
    log.showWithText(text);
    const auto blockLengths = [&] {
        QList<int> found;
        for (QTextBlock block = log.logTextView()->document()->begin(); block.isValid(); block = block.next())
            found.append(block.length() - 1);
        return found;
    };
    QFETCH(QList<int>, lengths);
    QTRY_COMPARE(blockLengths(), lengths);
}

void TestLogWindow::copiesAGiantLineAsOne()
{
    const QString text = QStringLiteral("one\n") + QString(150000, u'x') + QStringLiteral("\nthree\n");
    LogWindowController log;
    log.showWithText(text);
    QPlainTextEdit *const view = log.logTextView();
    QTRY_COMPARE(view->document()->blockCount(), 7);
    view->selectAll();
    view->copy();
    QCOMPARE(QGuiApplication::clipboard()->text(), text);

    QTextCursor part = view->textCursor();
    part.setPosition(2);
    part.setPosition(4 + 40960 + 1 + 10, QTextCursor::KeepAnchor); // ten characters into the second block
    view->setTextCursor(part);
    view->copy();
    QCOMPARE(QGuiApplication::clipboard()->text(), text.sliced(2, 2 + 40960 + 10));
}

void TestLogWindow::closesByKeys_data()
{
    QTest::addColumn<QKeySequence>("keys");
    QTest::newRow("Escape") << QKeySequence(Qt::Key_Escape);
    QTest::newRow("Ctrl+W") << QKeySequence(Qt::CTRL | Qt::Key_W);
}

void TestLogWindow::closesByKeys()
{
    QFETCH(QKeySequence, keys);
    LogWindowController log;
    log.showWithText(QStringLiteral("E: bad"));
    log.window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(log.window()));
    QTest::keySequence(log.window(), keys);
    QTRY_VERIFY(!log.window()->isVisible());
}

void TestLogWindow::copiesEverything()
{
    const QString text = QStringLiteral("E: bad\n").repeated(20000); // more than comes in at once
    LogWindowController log;
    log.showWithText(text);
    QTest::mouseClick(log.window()->findChild<QPushButton *>(QStringLiteral("copyButton")), Qt::LeftButton);
    QCOMPARE(QGuiApplication::clipboard()->text(), text);
}

void TestLogWindow::findsOneAfterTheOther()
{
    LogWindowController log;
    log.showWithText(QStringLiteral("one two\nthree Two"));
    auto *const field = log.window()->findChild<QLineEdit *>(QStringLiteral("findField"));
    auto *const result = log.window()->findChild<QLabel *>(QStringLiteral("findResult"));
    const auto find = [&](const QString &text) {
        field->setText(text);
        QTest::keyClick(field, Qt::Key_Return);
        return log.logTextView()->textCursor().selectionStart();
    };
    QCOMPARE(find(QStringLiteral("two")), 4);
    QCOMPARE(find(QStringLiteral("two")), 14);
    QCOMPARE(find(QStringLiteral("two")), 4); // from the top again
    QCOMPARE(result->text(), QString());
    QCOMPARE(find(QStringLiteral("four")), 4);
    QCOMPARE(result->text(), QStringLiteral("Not found"));
    QCOMPARE(find(QStringLiteral("one")), 0);
    QCOMPARE(result->text(), QString());
}

void TestLogWindow::savesEverything()
{
    const QString text = QStringLiteral("E: bäd\n").repeated(20000);
    const QString file = joinPath(m_home.path(), QStringLiteral("saved.txt"));
    LogWindowController log;
    log.showWithText(text);
    QTest::mouseClick(log.window()->findChild<QPushButton *>(QStringLiteral("saveButton")), Qt::LeftButton);
    auto *const dialog = log.window()->findChild<QFileDialog *>();
    QVERIFY(dialog);
    QCOMPARE(dialog->acceptMode(), QFileDialog::AcceptSave);
    Q_EMIT dialog->fileSelected(file);
    QCOMPARE(readText(file), text);
    QVERIFY(!log.window()->findChild<QMessageBox *>());
}

void TestLogWindow::tellsWhenItCannotSave()
{
    const QString file = joinPath(m_home.path(), QStringLiteral("missing/saved.txt"));
    LogWindowController log;
    log.showWithText(QStringLiteral("E: bad"));
    QTest::mouseClick(log.window()->findChild<QPushButton *>(QStringLiteral("saveButton")), Qt::LeftButton);
    Q_EMIT log.window()->findChild<QFileDialog *>()->fileSelected(file);
    auto *const alert = log.window()->findChild<QMessageBox *>();
    QVERIFY(alert);
    QCOMPARE(alert->text(), QStringLiteral("The log could not be saved."));
    QCOMPARE(alert->informativeText(), file);
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
