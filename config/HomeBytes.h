#pragma once

#include <QString>

namespace dravolin {

// `path` as Qt names a place in the user's home, with the bytes of the home's name in their places: Qt loses
// those that are not UTF-8. Any other path as it is. Any thread.
[[nodiscard]] QString withBytesOfHome(const QString &path);

} // namespace dravolin
