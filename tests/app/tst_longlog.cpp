#include "app/LogWindowController.h"
#include "app/TestApp.h"
#include "support/TestEntry.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>

using namespace dravolin;
using namespace dravolin::test;

namespace {

QString veryManyLines()
{
    QString text;
    for (int i = 0; i < 40000; ++i)
        text += QStringLiteral("E: unable to load file IM%1\n").arg(i, 6, 10, QChar(u'0'));
    return text;
}

} // namespace

// The log window with more lines than it shows in a block each.
class TestLongLog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { useHome(m_home.path()); }

    void showsVeryManyLinesInFewBlocks_data();
    void showsVeryManyLinesInFewBlocks();
    void copiesOfVeryManyLinesWhatIsSelected();
    void keepsItsPlaceAtAnotherWidth_data();
    void keepsItsPlaceAtAnotherWidth();
    void findsAmongVeryManyLines();
    void endsTheSearch_data();
    void endsTheSearch();

private:
    QTemporaryDir m_home;
};

void TestLongLog::showsVeryManyLinesInFewBlocks_data()
{
    const QString text = veryManyLines();
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    QTest::newRow("lines") << text << text;
    QTest::newRow("no end of the last line") << text.chopped(1) << text.chopped(1);
    const QString longer = (QString(99, u'x') + u'\n').repeated(12000);
    QTest::newRow("longer lines") << longer << longer;
    const QString empty = QString(30001, u'\n');
    QTest::newRow("empty lines") << empty << empty;
    const QString odd = QString(1000000, u'\n') + QString(16000, u'x') + QStringLiteral("\n\nlast");
    QTest::newRow("empty lines and a long one") << odd << odd;
    QTest::newRow("line ends of two characters")
        << QString(text).replace(u'\n', QStringLiteral("\r\n")) << text;
}

void TestLongLog::showsVeryManyLinesInFewBlocks()
{
    QFETCH(QString, text);
    QFETCH(QString, shown);
    LogWindowController log;
    log.showWithText(text);
    QTRY_COMPARE(log.logTextView()->toPlainText(), shown);
    QVERIFY(log.logTextView()->document()->blockCount() < 500);
}

void TestLongLog::copiesOfVeryManyLinesWhatIsSelected()
{
    const QString text = veryManyLines();
    LogWindowController log;
    log.showWithText(text);
    QPlainTextEdit *const view = log.logTextView();
    QTRY_COMPARE(view->document()->characterCount(), text.size() + 1);
    QTextCursor part = view->textCursor();
    part.setPosition(3000);
    part.setPosition(9000, QTextCursor::KeepAnchor);
    view->setTextCursor(part);
    view->copy();
    QCOMPARE(QGuiApplication::clipboard()->text(), text.sliced(3000, 6000));
    view->selectAll();
    view->copy();
    QCOMPARE(QGuiApplication::clipboard()->text(), text);
}

void TestLongLog::keepsItsPlaceAtAnotherWidth_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("a block for each line") << veryManyLines().first(30000 * 32);
    QTest::newRow("very many lines") << veryManyLines();
}

void TestLongLog::keepsItsPlaceAtAnotherWidth()
{
    QFETCH(QString, text);
    LogWindowController log;
    log.showWithText(text);
    QPlainTextEdit *const view = log.logTextView();
    QTRY_COMPARE(view->document()->characterCount(), text.size() + 1);
    QScrollBar *const bar = view->verticalScrollBar();
    const auto lines = static_cast<int>(text.count(u'\n'));
    const auto firstLine = [view] { return view->cursorForPosition(QPoint(0, 5)).position() / 32; };
    QTRY_VERIFY(bar->maximum() > lines - 100 && bar->maximum() < lines);
    bar->setValue(lines / 2);
    QCOMPARE(firstLine(), lines / 2);
    log.window()->resize(log.window()->size() + QSize(100, 0));
    QCOMPARE(firstLine(), lines / 2);
    QVERIFY(bar->maximum() > lines - 100 && bar->maximum() < lines);
    log.window()->resize(150, 400); // lines go on in the next row
    QCOMPARE(firstLine(), lines / 2);
}

void TestLongLog::findsAmongVeryManyLines()
{
    LogWindowController log;
    log.showWithText(veryManyLines());
    auto *const field = log.window()->findChild<QLineEdit *>(QStringLiteral("findField"));
    const auto find = [&](const char *text) {
        field->setText(QString::fromLatin1(text));
        QTest::keyClick(field, Qt::Key_Return);
    };
    const auto place = [&] { return log.logTextView()->textCursor().selectionStart(); };
    find("im039999"); // of the last block
    QTRY_COMPARE(place(), 39999 * 32 + 23);
    find("IM000000");
    QTRY_COMPARE(place(), 23);
    auto *const result = log.window()->findChild<QLabel *>(QStringLiteral("findResult"));
    find("nobody wrote this");
    QTRY_COMPARE(result->text(), QStringLiteral("Not found"));
    QCOMPARE(place(), 23);
    find("im000000");
    QTRY_COMPARE(result->text(), QString());
}

void TestLongLog::endsTheSearch_data()
{
    QTest::addColumn<bool>("typing");
    QTest::newRow("another letter") << true;
    QTest::newRow("another log") << false;
}

void TestLongLog::endsTheSearch()
{
    QFETCH(bool, typing);
    LogWindowController log;
    log.showWithText(veryManyLines().repeated(5)); // more than comes in at once
    auto *const field = log.window()->findChild<QLineEdit *>(QStringLiteral("findField"));
    field->setText(QStringLiteral("nobody wrote thi"));
    QTest::keyClick(field, Qt::Key_Return);
    if (typing)
        QTest::keyClick(field, Qt::Key_S);
    else
        log.showWithText(veryManyLines());
    QTRY_COMPARE(log.logTextView()->document()->characterCount(), (typing ? 5 : 1) * 40000 * 32 + 1);
    for (int i = 0; i < 100; ++i)
        QCoreApplication::processEvents();
    QCOMPARE(log.window()->findChild<QLabel *>(QStringLiteral("findResult"))->text(), QString());
}

DRAVOLIN_TEST(TestLongLog)
#include "tst_longlog.moc"
