#pragma once

#include <QWidget>

namespace dravolin {

// The main window's frame; its layout is resources/MainWindow.ui. Main thread only.
class MainWindow : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

Q_SIGNALS:
    // The window is about to go, whoever closed it.
    void willClose();
    // Once, while it is painted for the first time.
    void firstPainted();

protected:
    void closeEvent(QCloseEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_painted = false;
    int m_belowScreen = 0; // pixels of its height
};

} // namespace dravolin
