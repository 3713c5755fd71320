#pragma once

#include <QStringMatcher>
#include <QTimer>

#include <functional>

class QPlainTextEdit;
class QTextBlock;

namespace dravolin {

// Finds a text in a view, capitals or not, for a few milliseconds at a time while the event loop runs. Main
// thread only; the view has to outlive it.
class LogSearch
{
public:
    using Done = std::function<void(bool found)>;

    // `isComplete` tells whether the view has all of its text; its end is not searched before. A turn takes
    // `turn` milliseconds and the rest of the block that it is in.
    LogSearch(QPlainTextEdit &view, std::function<bool()> isComplete, qint64 turn = 10);

    // Selects the next place of `text` behind the caret, or the first of all when there is none, and calls
    // `done`: at once where one turn is enough. Ends another search; the same one goes on.
    void start(const QString &text, Done done);

    // Ends a search, of which nothing more is heard.
    void stop() { m_nextTurn.stop(); }

private:
    enum class Step { GoesOn, Waits, Ends };

    void searchForOneTurn();
    Step searchBlock();
    bool select(const QTextBlock &block); // what is found in it from m_at on
    Step end(bool found);

    QPlainTextEdit &m_view;
    std::function<bool()> m_isComplete;
    qint64 m_turn;
    QStringMatcher m_matcher{QString(), Qt::CaseInsensitive};
    Done m_done;
    int m_at = 0;    // the position from which on to look
    int m_caret = 0; // where the search began
    bool m_fromTheTop = false;
    QTimer m_nextTurn;
};

} // namespace dravolin
