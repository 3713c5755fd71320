#include "app/Application.h"

#include "base/SystemLog.h"

#include <new>

namespace dravolin {

bool Application::notify(QObject *receiver, QEvent *event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::bad_alloc &) {
        logMessage(QStringLiteral("Not enough memory"));
        return true;
    }
}

} // namespace dravolin
