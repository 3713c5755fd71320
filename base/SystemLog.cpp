#include "base/SystemLog.h"

#include <QDebug>

#include <poll.h>
#include <unistd.h>

namespace dravolin {

void logMessage(const QString &text)
{
    qWarning().noquote() << text;
}

bool canWriteToStandardError()
{
    pollfd output = {.fd = STDERR_FILENO, .events = POLLOUT, .revents = 0};
    return ::poll(&output, 1, 0) == 1 && (output.revents & POLLOUT) != 0;
}

} // namespace dravolin
