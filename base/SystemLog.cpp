#include "base/SystemLog.h"

#include <QDebug>

namespace dravolin {

void logMessage(const QString &text)
{
    qWarning().noquote() << text;
}

} // namespace dravolin
