#pragma once

#include <QString>

namespace dravolin {

enum class NewFile {
    Written,
    Taken, // something has this name already, be it a link that leads nowhere; it was left alone
    Failed // nothing of it stays behind
};

// Creates `path`, a name of base/PathText.h, with `text`. Of two that want the same name beside each other
// one gets it, and the other learns that it is taken. Any thread.
[[nodiscard]] NewFile writeNewText(const QString &path, const QString &text);

} // namespace dravolin
