#include "app/LogSearch.h"
#include "support/TestEntry.h"

#include <QPlainTextEdit>
#include <QTest>

using namespace dravolin;

// The search in a long text, a piece of it at a time.
class TestLogSearch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsInTurns();
    void findsWhatIsStillToCome();
    void endsASearch();
};

void TestLogSearch::findsInTurns()
{
    QPlainTextEdit view(QStringLiteral("one two\nthree\nTwo\u00a0four"));
    LogSearch search(
        view, [] { return true; }, 0); // a block for each turn
    QList<bool> results;
    QList<int> places;
    const auto find = [&](const QString &text) {
        const qsizetype before = results.size();
        search.start(text, [&](bool found) { results.append(found); });
        QTRY_COMPARE(results.size(), before + 1);
        places.append(view.textCursor().selectionStart());
    };
    for (const char *text : {"two", "two", "two", "two four", "five", ""})
        find(QString::fromLatin1(text));
    QCOMPARE(results, QList<bool>({true, true, true, true, false, false}));
    QCOMPARE(places, QList<int>({4, 14, 4, 14, 14, 14}));
}

void TestLogSearch::findsWhatIsStillToCome()
{
    QPlainTextEdit view(QStringLiteral("two\n"));
    view.moveCursor(QTextCursor::End);
    bool isComplete = false;
    LogSearch search(
        view, [&] { return isComplete; }, 0);
    QList<bool> results;
    search.start(QStringLiteral("two"), [&](bool found) { results.append(found); });
    for (int i = 0; i < 10; ++i)
        QCoreApplication::processEvents();
    QCOMPARE(results, QList<bool>());
    QTextCursor(view.textCursor()).insertText(QStringLiteral("one\ntwo"));
    isComplete = true;
    QTRY_COMPARE(results, QList<bool>{true});
    QCOMPARE(view.textCursor().selectionStart(), 8);
}

void TestLogSearch::endsASearch()
{
    QPlainTextEdit view(QStringLiteral("one\ntwo\nthree\nfour"));
    LogSearch search(
        view, [] { return true; }, 0);
    QStringList results;
    const auto find = [&](const char *text, const char *name) {
        search.start(QString::fromLatin1(text),
                     [&, name](bool) { results.append(QString::fromLatin1(name)); });
    };
    find("two", "first");
    find("three", "instead of it");
    find("three", "the same again");
    QTRY_COMPARE(results, QStringList(QStringLiteral("instead of it")));
    find("two", "stopped");
    search.stop();
    for (int i = 0; i < 10; ++i)
        QCoreApplication::processEvents();
    QCOMPARE(results, QStringList(QStringLiteral("instead of it")));
}

DRAVOLIN_TEST(TestLogSearch)
#include "tst_logsearch.moc"
