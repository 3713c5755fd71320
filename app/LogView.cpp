#include "app/LogView.h"

#include <QAbstractTextDocumentLayout>
#include <QMimeData>
#include <QResizeEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>

#include <algorithm>

namespace dravolin {

namespace {

// The state of a block: how many lines it has, -1 where nobody has said.
constexpr int goesOn = 0; // one, which goes on in the next block

} // namespace

void goOnInNewBlock(QTextCursor &end)
{
    end.block().setUserState(goesOn);
    end.insertBlock();
}

void insertAsOneBlock(QTextCursor &end, QString lines)
{
    const bool isWhole = lines.endsWith(u'\n');
    QTextBlock block = end.block();
    lines.replace(QLatin1String("\r\n"), QLatin1String("\n")); // one line end in a document
    block.setUserState(static_cast<int>(lines.count(u'\n')) + (isWhole ? 0 : 1));
    lines.replace(u'\n', QChar(QChar::LineSeparator));
    if (isWhole)
        lines.back() = u'\n';
    end.insertText(lines);
}

void countLines(const QTextBlock &first)
{
    for (QTextBlock block = first; block.isValid(); block = block.next())
        if (block.userState() > 1 && block.layout()->lineCount() == 0)
            block.setLineCount(block.userState());
    auto *const layout = first.document()->documentLayout();
    Q_EMIT layout->documentSizeChanged(layout->documentSize());
}

void LogView::resizeEvent(QResizeEvent *event)
{
    const int top = cursorForPosition(QPoint(0, fontMetrics().height() / 2)).position();
    QPlainTextEdit::resizeEvent(event);
    if (event->size().width() == event->oldSize().width())
        return;
    countLines(document()->begin());
    scrollTo(top);
}

void LogView::scrollTo(int position)
{
    const QTextBlock block = document()->findBlock(position);
    document()->documentLayout()->blockBoundingRect(block); // lays it out
    const int line = block.layout()->lineForTextPosition(position - block.position()).lineNumber();
    verticalScrollBar()->setValue(block.firstLineNumber() + line);
}

QMimeData *LogView::createMimeDataFromSelection() const
{
    const int start = textCursor().selectionStart();
    const int end = textCursor().selectionEnd();
    QString text;
    for (QTextBlock block = document()->findBlock(start); block.isValid() && block.position() <= end;
         block = block.next()) {
        const int from = std::max(start - block.position(), 0);
        text +=
            block.text().mid(from, end - block.position() - from).replace(QChar(QChar::LineSeparator), u'\n');
        if (block.userState() != goesOn && block.position() + block.length() <= end)
            text += u'\n';
    }
    auto *const copy = new QMimeData;
    copy->setText(text);
    return copy;
}

} // namespace dravolin
