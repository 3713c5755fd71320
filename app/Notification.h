#pragma once

#include <QString>

namespace dravolin {

// Asks the desktop's notification service (D-Bus org.freedesktop.Notifications) to show two texts, and
// returns at once. Nothing happens where there is no such service. Main thread only.
void sendNotification(const QString &summary, const QString &body);

} // namespace dravolin
