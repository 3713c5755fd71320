#pragma once

#include <QPlainTextEdit>

namespace dravolin {

// The text of the log window. A block is laid out as a whole, so a giant line is shown in several; what is
// copied out of it is one line again. Main thread only.
class LogView : public QPlainTextEdit
{
    Q_OBJECT

public:
    using QPlainTextEdit::QPlainTextEdit;

protected:
    [[nodiscard]] QMimeData *createMimeDataFromSelection() const override;
};

// Begins a new block at `end`, which is at the end of a document: the line goes on in it.
void goOnInNewBlock(QTextCursor &end);

} // namespace dravolin
