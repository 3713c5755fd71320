#include "app/AlertPresenter.h"
#include "app/AlertSheetRunner.h"
#include "app/LogWindowController.h"
#include "support/TestEntry.h"

#include <QApplication>
#include <QLabel>
#include <QPointer>
#include <QProcess>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

using namespace dravolin;

namespace {

// An ampersand is shown and marks no key.
QAbstractButton *buttonNamed(const QMessageBox &box, QString caption)
{
    caption.replace(QStringLiteral("&"), QStringLiteral("&&"));
    for (QAbstractButton *button : box.buttons())
        if (button->text() == caption)
            return button;
    return nullptr;
}

class TestAlerts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sheetTellsTheButtonsCode_data();
    void sheetTellsTheButtonsCode();
    void sheetIsUpAtOnceAndGoesAfterItsAnswer();
    void textsAreShownAsTheyAre();
    void modalAlertGivesTheButton_data();
    void modalAlertGivesTheButton();
    void logShowsTheTextAsGiven();
    void longLogComesInWhileTheWindowReacts();
    void aForeignAlertIsAnAssertion(); // last: behind a fork the thread sanitizer lets no thread start
};

AlertSheet threeButtons()
{
    AlertSheet sheet;
    sheet.message = QStringLiteral("Message");
    sheet.buttons = {QStringLiteral("First & Quit"), QStringLiteral("Second"), QStringLiteral("Third")};
    return sheet;
}

void TestAlerts::sheetTellsTheButtonsCode_data()
{
    QTest::addColumn<QString>("press");
    QTest::addColumn<int>("escape");
    QTest::addColumn<int>("code");
    QTest::newRow("first") << QStringLiteral("First & Quit") << 1000 << 1000;
    QTest::newRow("second") << QStringLiteral("Second") << 1000 << 1001;
    QTest::newRow("third") << QStringLiteral("Third") << 1000 << 1002;
    QTest::newRow("Return presses the first") << QStringLiteral("<Return>") << 1002 << 1000;
    QTest::newRow("Escape presses the chosen one") << QStringLiteral("<Escape>") << 1001 << 1001;
    QTest::newRow("the close button, too") << QStringLiteral("<close>") << 1001 << 1001;
}

void TestAlerts::sheetTellsTheButtonsCode()
{
    QFETCH(QString, press);
    QFETCH(int, escape);
    QFETCH(int, code);
    QWidget window;
    window.show();
    AlertSheet sheet = threeButtons();
    sheet.escape = escape;
    QList<int> codes;
    sheet.completion = [&codes](int pressed) { codes.append(pressed); };
    QMessageBox *const box = AlertSheetRunner::beginSheet(sheet, &window)->alert();
    if (press == QStringLiteral("<Return>"))
        QTest::keyClick(box, Qt::Key_Return);
    else if (press == QStringLiteral("<Escape>"))
        QTest::keyClick(box, Qt::Key_Escape);
    else if (press == QStringLiteral("<close>"))
        box->close();
    else
        QTest::mouseClick(buttonNamed(*box, press), Qt::LeftButton);
    QCOMPARE(codes, QList<int>{code});
}

void TestAlerts::sheetIsUpAtOnceAndGoesAfterItsAnswer()
{
    QWidget window;
    window.show();
    const QPointer<AlertSheetRunner> runner = AlertSheetRunner::beginSheet(threeButtons(), &window);
    const QPointer<QMessageBox> box = runner->alert();
    QVERIFY(box->isVisible());
    QCOMPARE(box->windowModality(), Qt::WindowModal);
    QCOMPARE(box->parentWidget(), &window);
    QTest::keyClick(box, Qt::Key_Return);
    QTRY_VERIFY(!runner);
    QVERIFY(!box);
}

void TestAlerts::textsAreShownAsTheyAre()
{
    QWidget window;
    AlertSheet sheet = threeButtons();
    sheet.message = QStringLiteral("<b>100%</b> & %1");
    sheet.informativeText = QStringLiteral("\nPath: /a/%s/%1/<i>x</i>\n\n\n");
    QMessageBox *const box = AlertSheetRunner::beginSheet(sheet, &window)->alert();
    QCOMPARE(box->text(), sheet.message);
    QCOMPARE(box->informativeText(), sheet.informativeText);
    for (const QLabel *label : box->findChildren<QLabel *>())
        QCOMPARE(label->textFormat(), Qt::PlainText);
    QCOMPARE(box->buttons().size(), 3);
    QVERIFY(buttonNamed(*box, QStringLiteral("First & Quit")));
}

// Ends the process; run as a child.
void endForeignAlert()
{
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
        if (type != QtFatalMsg)
            return;
        std::fprintf(stderr, "%s", qPrintable(text));
        std::_Exit(3);
    });
    QWidget window;
    QMessageBox foreign;
    AlertSheetRunner::beginSheet(threeButtons(), &window)->alertDidEnd(&foreign);
}

void TestAlerts::aForeignAlertIsAnAssertion()
{
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {QStringLiteral("end_foreign_alert")});
    QVERIFY(child.waitForFinished());
    QCOMPARE(child.exitCode(), 3);
    QCOMPARE(child.readAllStandardError().split('\n').last(), // the platform may warn at start
             QByteArray("Got a alert different from what I expected -- This should never happen"));
}

void TestAlerts::modalAlertGivesTheButton_data()
{
    QTest::addColumn<QString>("press");
    QTest::addColumn<bool>("escapeIsAlternate");
    QTest::addColumn<bool>("alternate");
    QTest::newRow("default") << QStringLiteral("No, Cancel") << false << false;
    QTest::newRow("alternate") << QStringLiteral("Ok, go on") << false << true;
    QTest::newRow("Escape is the default") << QString() << false << false;
    QTest::newRow("Escape is the alternate") << QString() << true << true;
}

void TestAlerts::modalAlertGivesTheButton()
{
    QFETCH(QString, press);
    QFETCH(bool, escapeIsAlternate);
    QFETCH(bool, alternate);
    QWidget window;
    window.show();
    MessageBoxPresenter presenter;
    QTimer::singleShot(0, &window, [&] {
        auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        QVERIFY(box);
        if (press.isEmpty())
            QTest::keyClick(box, Qt::Key_Escape);
        else
            QTest::mouseClick(buttonNamed(*box, press), Qt::LeftButton);
    });
    const ModalAlert alert = {QStringLiteral("Title"), QStringLiteral("Text"), QStringLiteral("No, Cancel"),
                              QStringLiteral("Ok, go on"),
                              escapeIsAlternate ? AlertButton::Alternate : AlertButton::Default};
    QCOMPARE(presenter.runModal(alert, &window), alternate ? AlertButton::Alternate : AlertButton::Default);
}

void TestAlerts::logShowsTheTextAsGiven()
{
    LogWindowController log;
    const QString text = QStringLiteral("E: <b>one</b> %1 & two\n\n\n\n\tthree  ");
    log.showWithText(QStringLiteral("earlier"));
    log.showWithText(text);
    QVERIFY(log.window()->isVisible());
    QCOMPARE(log.window()->windowTitle(), QStringLiteral("Dravolin Log"));
    QCOMPARE(log.logTextView()->toPlainText(), text);
    QVERIFY(log.logTextView()->isReadOnly());
    QCOMPARE(log.logTextView()->accessibleName(), QStringLiteral("Log"));
}

void TestAlerts::longLogComesInWhileTheWindowReacts()
{
    LogWindowController log;
    QString text;
    for (int i = 0; i < 100000; ++i)
        text += QStringLiteral("E: unable to load file IM%1: premature end of stream\n\n").arg(i);
    text += QString(16000, u'x') + QStringLiteral("\nlast");
    log.showWithText(text);
    QVERIFY(log.logTextView()->document()->characterCount() < text.size()); // not all at once
    QTRY_COMPARE(log.logTextView()->toPlainText(), text);
    QCOMPARE(log.logTextView()->textCursor().position(), 0); // and the top stays in view

    log.showWithText(text);
    log.showWithText(QStringLiteral("short"));
    QTest::qWait(0);
    QCOMPARE(log.logTextView()->toPlainText(), QStringLiteral("short"));
}

// The process that the test starts.
const test::TestEntry foreignAlert("end_foreign_alert", [](int, char *[]) {
    endForeignAlert();
    return 0;
});

} // namespace

DRAVOLIN_TEST(TestAlerts)
#include "tst_alerts.moc"
