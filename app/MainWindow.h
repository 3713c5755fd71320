#pragma once

#include <QWidget>

QT_BEGIN_NAMESPACE
class QScrollArea;
QT_END_NAMESPACE

namespace dravolin {

// The main window's frame; its layout is resources/MainWindow.ui. Main thread only.
class MainWindow : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    // Puts what the window shows into an area that can be scrolled, if the screen has no room for the least
    // that it needs. The area ends above the screen's lower edge, however high the window grows. Before it is
    // shown.
    void scrollWhereScreenIsSmall();

Q_SIGNALS:
    // The window is about to go, whoever closed it.
    void willClose();
    // Once, while it is painted for the first time.
    void firstPainted();

protected:
    void closeEvent(QCloseEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void followScreenEdge();

    QScrollArea *m_area = nullptr; // if there is something to scroll
    bool m_painted = false;
    int m_belowScreen = 0; // pixels of its height
};

} // namespace dravolin
