#pragma once

#include <QCloseEvent>
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

protected:
    void closeEvent(QCloseEvent *event) override
    {
        event->accept();
        Q_EMIT willClose();
    }
};

} // namespace dravolin
