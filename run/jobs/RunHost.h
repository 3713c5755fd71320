#pragma once

#include <QString>
#include <QStringList>
#include <Qt>

#include <exception>
#include <functional>

// The narrow port through which a run sees the main window.
namespace dravolin {

enum class CheckBox { OverwriteSource, Prepopulate, GenerateSOP, OnlyGenerateSOP };
enum class TextField { UidRoot, CaseId, Diagnosis, Keywords, Credits };
// The controls that cannot be used during a run, in the order in which they are disabled.
enum class Control { OverwriteSource, SelectLUT, Prepopulate, SelectConfig, GenerateSOP, OnlyGenerateSOP };

enum class AlertButton { Default, Alternate };

// A question that stops everything until it is answered.
struct ModalAlert
{
    QString title;
    QString text;
    QString defaultButton;
    QString alternateButton;                   // "" for an alert with one button
    AlertButton escape = AlertButton::Default; // what Escape and the close button answer
};

// A question in a sheet on the main window.
struct AlertSheet
{
    static constexpr int firstButton = 1000; // codes of the buttons, in the order in which they are added
    static constexpr int secondButton = 1001;
    static constexpr int thirdButton = 1002;

    QString message;
    QString informativeText;
    QStringList buttons;                      // one to three
    int escape = firstButton;                 // what Escape and the close button answer
    std::function<void(int code)> completion; // called on the main thread; may be empty
};

struct PopupSelection
{
    int index = 0;
    QString title; // "" when the pop-up has no items
};

// Thrown by a RunHost off the main thread when the window is closing: the run has to end without another
// step.
class WindowClosing : public std::exception
{
public:
    [[nodiscard]] const char *what() const noexcept override { return "the main window is closing"; }
};

// Every operation may be called from any thread. It is carried out on the main thread and has happened when
// it returns, unless it says otherwise; off the main thread it throws WindowClosing once the window is
// closing.
class RunHost
{
public:
    virtual ~RunHost() = default;

    [[nodiscard]] virtual Qt::CheckState checkState(CheckBox box) = 0;
    [[nodiscard]] virtual QString text(TextField field) = 0;
    virtual void setText(TextField field, const QString &text) = 0;
    virtual void setRootValidity(const QString &label) = 0;
    [[nodiscard]] virtual QString selectedConfigTitle() = 0;
    [[nodiscard]] virtual PopupSelection selectedLUT() = 0;

    virtual void setStatus(const QString &text) = 0;
    virtual void setStatusToolTip(const QString &text) = 0;
    virtual void setEnabled(Control control, bool enabled) = 0;
    virtual void setSpinning(bool spinning) = 0;
    virtual void showSeparator() = 0;
    virtual void setProgress(double percent) = 0;
    virtual void setProgressVisible(bool visible) = 0;
    // Starts to resize the window to `height`, its top edge, x and width unchanged, and returns; `then` is
    // called on the main thread when it has that height, never when the window was closed before.
    virtual void growWindow(int height, std::function<void()> then) = 0;

    // Fills the table pop-up and selects its first item; without titles it says so and is disabled.
    virtual void setLUTTitles(const QStringList &titles) = 0;

    // Returns when the sheet is up, not when it is answered.
    virtual void showSheet(const AlertSheet &sheet) = 0;
    // Returns the answer.
    virtual AlertButton runModalAlert(const ModalAlert &alert) = 0;
    // Opens the log window some time after this returns.
    virtual void scheduleLogWindow(const QString &text) = 0;
    virtual void closeMainWindow() = 0;
};

} // namespace dravolin
