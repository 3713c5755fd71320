#include "app/ScreenEdge.h"

#include <QPointer>
#include <QScreen>
#include <QScrollArea>

#include <algorithm>

namespace dravolin {

namespace {

QScrollArea *scrollAreaAround(const QWidget &widget)
{
    for (QWidget *parent = widget.parentWidget(); parent; parent = parent->parentWidget()) {
        if (auto *const area = qobject_cast<QScrollArea *>(parent))
            return area;
    }
    return nullptr;
}

} // namespace

int heightBelowScreen(const QWidget &widget)
{
    QScreen &screen = *widget.screen();
    const QPoint lowest = widget.mapToGlobal(widget.rect().bottomLeft());
    if (scrollAreaAround(widget) || screen.virtualSiblingAt({lowest.x(), screen.geometry().bottom() + 1}))
        return 0;
    return std::clamp(lowest.y() - screen.availableGeometry().bottom(), 0, widget.height());
}

QSize roomOnScreen(const QWidget &window)
{
    constexpr int titleBar = 30; // about as high as window managers make it
    return window.screen()->availableGeometry().size() - QSize(0, titleBar);
}

void bringIntoSight(QWidget &widget)
{
    QScrollArea *const area = scrollAreaAround(widget);
    if (!area)
        return;
    QMetaObject::invokeMethod(
        area,
        [area, sought = QPointer(&widget)] {
            if (sought)
                area->ensureWidgetVisible(sought, 0, area->viewport()->height() / 2);
        },
        Qt::QueuedConnection);
}

} // namespace dravolin
