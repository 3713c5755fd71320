#include "app/MainWindow.h"

#include "app/ScreenEdge.h"

#include <QCloseEvent>
#include <QScrollArea>
#include <QVBoxLayout>

#include <utility>

namespace dravolin {

void MainWindow::scrollWhereScreenIsSmall()
{
    const QSize room = roomOnScreen(*this);
    const auto fits = [&room](QSize size) { return size.boundedTo(room) == size; };
    if (m_scrolls || fits(size()) || fits(minimumSizeHint()))
        return;
    m_scrolls = true;
    auto *const area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    area->setWidget(new QWidget);
    area->widget()->setLayout(layout()); // controls that never leave the window keep their order
    auto *const around = new QVBoxLayout(this);
    around->setContentsMargins({});
    around->addWidget(area);
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
    if (std::exchange(m_belowScreen, below) == below)
        return;
    if (m_scrolls)
        layout()->setContentsMargins(0, 0, 0, below); // all that is scrolled is then above the edge
    update();                                         // what is painted depends on it
}

void MainWindow::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    if (!std::exchange(m_painted, true))
        Q_EMIT firstPainted();
}

} // namespace dravolin
