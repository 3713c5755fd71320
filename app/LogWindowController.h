#pragma once

#include <QPlainTextEdit>
#include <QTimer>
#include <QWidget>

#include <memory>

namespace Ui {
class LogWindow;
}

class QLabel;
class QLineEdit;

namespace dravolin {

class LogSearch;

// The window that shows a run's error lines and notes. Main thread only; the window goes with its controller.
class LogWindowController
{
public:
    LogWindowController();
    ~LogWindowController();
    LogWindowController(const LogWindowController &) = delete;
    LogWindowController &operator=(const LogWindowController &) = delete;

    // Centres the window on its screen, shows it and replaces its whole text, which is shown as it is. A text
    // of many pages comes in piece by piece while the event loop runs, so that the window never stops to
    // react.
    void showWithText(const QString &text);

    // Shows the window again as it was, above the application's other windows.
    void bringToFront();

    [[nodiscard]] QPlainTextEdit *logTextView() const { return m_logTextView; }
    void setLogTextView(QPlainTextEdit *view) { m_logTextView = view; }
    [[nodiscard]] QWidget *window() const { return m_window.get(); }

private:
    void connectTools(const Ui::LogWindow &layout);
    void connectSearch(QLineEdit &field, QLabel &result);
    void save();
    void appendForOneTurn();
    [[nodiscard]] QString nextSlice() const; // whole lines

    std::unique_ptr<QWidget> m_window;
    QPlainTextEdit *m_logTextView = nullptr;
    QString m_text;
    bool m_isLong = false;
    qsizetype m_shown = 0; // how much of m_text is in the view
    QTimer m_nextTurn;
    std::unique_ptr<LogSearch> m_search;
};

// Moves a window to the middle of its screen; one that does not fit is made smaller, its title bar in sight.
void centerOnScreen(QWidget &window);

} // namespace dravolin
