#pragma once

#include <QLineEdit>
#include <QString>

namespace dravolin {

// Shows `text` in `edit`. When it is what is left of the text shown so far, the caret stays between the
// characters between which it is; else at its place. Main thread only.
void showKeepingCaret(QLineEdit &edit, const QString &text);

} // namespace dravolin
