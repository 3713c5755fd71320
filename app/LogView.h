#pragma once

#include <QPlainTextEdit>

class QTextBlock;

namespace dravolin {

// The text of the log window. A block is laid out as a whole, so a giant line is shown in several; and each
// block is looked at when the width changes, so very many lines are shown with many in each. What is copied
// is as it came, line by line. Main thread only.
class LogView : public QPlainTextEdit
{
    Q_OBJECT

public:
    using QPlainTextEdit::QPlainTextEdit;

protected:
    void resizeEvent(QResizeEvent *event) override;
    [[nodiscard]] QMimeData *createMimeDataFromSelection() const override;

private:
    void scrollTo(int position); // its line becomes the first in view
};

// Begins a new block at `end`, which is at the end of a document: the line goes on in it.
void goOnInNewBlock(QTextCursor &end);

// Inserts `lines` at `end`, which is at the end of a document. A line end behind them begins a new block,
// those between them do not.
void insertAsOneBlock(QTextCursor &end, QString lines);

// Makes the scroll bar count the lines of `first` and all blocks behind it: a block that is not laid out yet
// is one line to a view, and the scroll bar jumps when it becomes many. For after each change.
void countLines(const QTextBlock &first);

} // namespace dravolin
