#include "app/MainWindow.h"

#include "app/ScreenEdge.h"

#include <QCloseEvent>
#include <QScrollArea>

#include <utility>

namespace dravolin {

void MainWindow::scrollWhereScreenIsSmall()
{
    const QSize room = roomOnScreen(*this);
    const auto fits = [&room](QSize size) { return size.boundedTo(room) == size; };
    if (m_area || fits(size()) || fits(minimumSizeHint()))
        return;
    m_area = new QScrollArea(this);
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setFocusPolicy(Qt::NoFocus);
    m_area->setWidgetResizable(true);
    m_area->setWidget(new QWidget);
    m_area->widget()->setLayout(layout()); // controls that never leave the window keep their order
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    event->accept();
    Q_EMIT willClose();
}

void MainWindow::moveEvent(QMoveEvent *event)
{
    QWidget::moveEvent(event);
    followScreenEdge();
}

void MainWindow::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    followScreenEdge();
}

void MainWindow::followScreenEdge()
{
    const int below = heightBelowScreen(*this);
    if (m_area) // no layout: it would let the area grow below the edge for a moment, and what is in it jump
        m_area->setGeometry(0, 0, width(), height() - below);
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
