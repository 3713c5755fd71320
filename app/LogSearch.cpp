#include "app/LogSearch.h"

#include <QElapsedTimer>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextCursor>

#include <climits>
#include <utility>

namespace dravolin {

LogSearch::LogSearch(QPlainTextEdit &view, std::function<bool()> isComplete, qint64 turn)
    : m_view(view), m_isComplete(std::move(isComplete)), m_turn(turn)
{
    m_nextTurn.setInterval(0);
    QObject::connect(&m_nextTurn, &QTimer::timeout, &m_nextTurn, [this] { searchForOneTurn(); });
}

void LogSearch::start(const QString &text, Done done)
{
    if (m_nextTurn.isActive() && text == m_matcher.pattern())
        return;
    m_matcher.setPattern(text);
    m_done = std::move(done);
    m_caret = m_view.textCursor().selectionEnd();
    m_at = m_caret;
    m_fromTheTop = false;
    m_nextTurn.start();
    searchForOneTurn();
}

void LogSearch::searchForOneTurn()
{
    QElapsedTimer timer;
    timer.start();
    while (searchBlock() == Step::GoesOn && timer.elapsed() < m_turn) {
    }
}

LogSearch::Step LogSearch::searchBlock()
{
    const QTextBlock block = m_view.document()->findBlock(m_at);
    if (!block.next().isValid() && !m_isComplete())
        return Step::Waits;
    if (select(block))
        return end(true);
    m_at = block.next().isValid() ? block.next().position() : INT_MAX;
    if (m_at == INT_MAX && !std::exchange(m_fromTheTop, true))
        m_at = 0;
    return m_fromTheTop && m_at > m_caret ? end(false) : Step::GoesOn;
}

bool LogSearch::select(const QTextBlock &block)
{
    const QString text = block.text().replace(QChar(QChar::Nbsp), u' ');
    const auto place = static_cast<int>(m_matcher.indexIn(text, m_at - block.position()));
    if (place < 0 || m_matcher.pattern().isEmpty())
        return false;
    QTextCursor match(block);
    match.setPosition(block.position() + place);
    match.setPosition(match.position() + static_cast<int>(m_matcher.pattern().size()),
                      QTextCursor::KeepAnchor);
    m_view.setTextCursor(match);
    return true;
}

LogSearch::Step LogSearch::end(bool found)
{
    stop();
    m_done(found);
    return Step::Ends;
}

} // namespace dravolin
