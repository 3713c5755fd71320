#include "app/MainWindow.h"

#include "app/ScreenEdge.h"

#include <QCloseEvent>

#include <utility>

namespace dravolin {

void MainWindow::closeEvent(QCloseEvent *event)
{
    event->accept();
    Q_EMIT willClose();
}

void MainWindow::moveEvent(QMoveEvent *event)
{
    QWidget::moveEvent(event);
    const int below = heightBelowScreen(*this);
    if (std::exchange(m_belowScreen, below) != below)
        update(); // what is painted depends on it
}

void MainWindow::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    if (!std::exchange(m_painted, true))
        Q_EMIT firstPainted();
}

} // namespace dravolin
