#pragma once

#include <QString>
#include <QStringList>

#include <functional>

// Questions and refusals as texts and buttons, apart from how they are shown.
namespace dravolin {

enum class AlertButton { Default, Alternate };

// A question that stops everything until it is answered.
struct ModalAlert
{
    QString title;
    QString text;
    QString defaultButton;
    QString alternateButton = {};              // "" for an alert with one button
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

} // namespace dravolin
