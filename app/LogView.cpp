#include "app/LogView.h"

#include <QMimeData>
#include <QTextBlock>
#include <QTextCursor>

#include <algorithm>

namespace dravolin {

namespace {

constexpr int goesOn = 1; // the state of a block whose line goes on in the next

} // namespace

void goOnInNewBlock(QTextCursor &end)
{
    end.block().setUserState(goesOn);
    end.insertBlock();
}

QMimeData *LogView::createMimeDataFromSelection() const
{
    const int start = textCursor().selectionStart();
    const int end = textCursor().selectionEnd();
    QString text;
    for (QTextBlock block = document()->findBlock(start); block.isValid() && block.position() <= end;
         block = block.next()) {
        const int from = std::max(start - block.position(), 0);
        text += QStringView(block.text()).mid(from, end - block.position() - from);
        if (block.userState() != goesOn && block.position() + block.length() <= end)
            text += u'\n';
    }
    auto *const copy = new QMimeData;
    copy->setText(text);
    return copy;
}

} // namespace dravolin
