#pragma once

#include <QString>

namespace dravolin {

// What separates the columns of configurations and tables, besides a tab.
inline const QString columnSpaces = QStringLiteral("   ");

} // namespace dravolin
