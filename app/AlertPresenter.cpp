#include "app/AlertPresenter.h"

#include "app/AlertSheetRunner.h"
#include "app/Notification.h"

#include <QPointer>

namespace dravolin {

AlertButton MessageBoxPresenter::runModal(const ModalAlert &alert, QWidget *window)
{
    QStringList buttons = {alert.defaultButton};
    if (!alert.alternateButton.isEmpty())
        buttons.append(alert.alternateButton);
    const int escape = alert.escape == AlertButton::Alternate ? 1 : 0;
    const QPointer<QMessageBox> box = createAlert(alert.title, alert.text, buttons, escape, window);
    box->exec();
    if (!box) // the window went away while the question was up
        return alert.escape;
    const AlertButton answer = pressedButton(*box) == 1 ? AlertButton::Alternate : AlertButton::Default;
    box->deleteLater();
    return answer;
}

void MessageBoxPresenter::beginSheet(const AlertSheet &sheet, QWidget *window)
{
    AlertSheetRunner::beginSheet(sheet, window);
}

void MessageBoxPresenter::notify(const QString &summary, const QString &body)
{
    sendNotification(summary, body);
}

} // namespace dravolin
