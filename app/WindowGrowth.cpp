#include "app/WindowGrowth.h"

#include "app/WindowSteps.h"

#include <QPropertyAnimation>

namespace dravolin {

void growWindow(QWidget &window, int milliseconds, std::function<void()> then)
{
    const QRect start = window.geometry();
    auto *growth = new QPropertyAnimation(&window, "geometry", &window);
    growth->setDuration(milliseconds);
    growth->setEasingCurve(QEasingCurve::InQuad);
    growth->setStartValue(start);
    growth->setEndValue(QRect(start.x(), start.y(), start.width(), runningHeight));
    // another growth stops this one, which is then not finished
    QObject::connect(growth, &QPropertyAnimation::stateChanged, &window,
                     [&window, then = std::move(then)](QAbstractAnimation::State state) {
                         if (state == QAbstractAnimation::Stopped && window.isVisible())
                             then();
                     });
    growth->start(QAbstractAnimation::DeleteWhenStopped);
}

} // namespace dravolin
