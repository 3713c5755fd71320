#pragma once

#include "identifiers/UidRoot.h"

namespace Ui {
class MainWindow;
}

namespace dravolin {

// Says beside the root's field whether the root can be used, and marks the field that is to blame when it
// cannot. Main thread only.
void showValidity(const Ui::MainWindow &controls, const RootCheck &root);

} // namespace dravolin
