#include "app/LogWindowController.h"

#include "ui_LogWindow.h"

#include <QScreen>

namespace dravolin {

LogWindowController::LogWindowController() : m_window(std::make_unique<QWidget>())
{
    Ui::LogWindow layout;
    layout.setupUi(m_window.get());
    m_logTextView = layout.logTextView;
}

LogWindowController::~LogWindowController() = default;

void LogWindowController::showWithText(const QString &text)
{
    centerOnScreen(*m_window);
    m_window->show();
    m_logTextView->setPlainText(text);
}

void centerOnScreen(QWidget &window)
{
    const QRect available = window.screen()->availableGeometry();
    window.move(available.center() - window.rect().center());
}

} // namespace dravolin
