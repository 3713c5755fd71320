#pragma once

#include <QCloseEvent>
#include <QWidget>

#include <utility>

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
    void closeEvent(QCloseEvent *event) override
    {
        event->accept();
        Q_EMIT willClose();
    }
    void paintEvent(QPaintEvent *event) override
    {
        QWidget::paintEvent(event);
        if (!std::exchange(m_painted, true))
            Q_EMIT firstPainted();
    }

private:
    bool m_painted = false;
};

} // namespace dravolin
