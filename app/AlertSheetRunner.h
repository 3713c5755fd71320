#pragma once

#include "app/Alerts.h"

#include <QMessageBox>
#include <QObject>
#include <QWidget>

namespace dravolin {

// Runs one alert as a sheet on a window and calls its completion with the code of the pressed button. Main
// thread only.
class AlertSheetRunner : public QObject
{
    Q_OBJECT

public:
    // Puts up `sheet` on `window` and returns at once. The runner keeps itself alive while the sheet is up;
    // the completion is called last. With the window the sheet goes without an answer.
    static AlertSheetRunner *beginSheet(const AlertSheet &sheet, QWidget *window);

    [[nodiscard]] QMessageBox *alert() const { return m_alert; }

    // What the end of a sheet sets off; only the runner's own alert may end.
    void alertDidEnd(QMessageBox *ended);

private:
    AlertSheetRunner(const AlertSheet &sheet, QWidget *window);

    AlertSheet m_sheet;
    QMessageBox *m_alert;
};

// A message box with `title`, `text` and `buttons` in the given order, the first of them the default, the one
// at `escape` pressed by Escape and by the close button. All texts are shown as they are, never as markup.
[[nodiscard]] QMessageBox *createAlert(const QString &title, const QString &text, const QStringList &buttons,
                                       int escape, QWidget *window);

// The index of the pressed button in the order in which the buttons were added. Their places on the screen
// depend on the platform's theme.
[[nodiscard]] int pressedButton(const QMessageBox &alert);

// Puts an alert that is up above the application's other windows and gives it the keyboard; leaves one that
// is not up alone.
void bringToFront(QMessageBox &alert);

} // namespace dravolin
