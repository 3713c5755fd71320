#include "app/FieldText.h"

namespace dravolin {

void showKeepingCaret(QLineEdit &edit, const QString &text)
{
    const qsizetype cutInFront = qMax(qsizetype(0), edit.text().indexOf(text));
    const int caret = edit.cursorPosition() - static_cast<int>(cutInFront);
    edit.setText(text);
    edit.setCursorPosition(qMax(0, caret));
}

} // namespace dravolin
