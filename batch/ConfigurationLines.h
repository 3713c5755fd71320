#pragma once

#include <QString>
#include <QStringList>

namespace dravolin {

// A text for each line of a configuration's `text` that a run does not carry out although its attribute could
// be treated: the run sets that attribute itself, or another line decides it. In the order of lines. Pure
// function, any thread.
[[nodiscard]] QStringList linesOfNoEffect(const QString &text);

} // namespace dravolin
