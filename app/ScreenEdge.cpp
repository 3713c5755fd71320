#include "app/ScreenEdge.h"

#include <QScreen>

#include <algorithm>

namespace dravolin {

int heightBelowScreen(const QWidget &widget)
{
    QScreen &screen = *widget.screen();
    const QPoint lowest = widget.mapToGlobal(widget.rect().bottomLeft());
    if (screen.virtualSiblingAt({lowest.x(), screen.geometry().bottom() + 1}))
        return 0;
    return std::clamp(lowest.y() - screen.availableGeometry().bottom(), 0, widget.height());
}

} // namespace dravolin
