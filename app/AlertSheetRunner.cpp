#include "app/AlertSheetRunner.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>
#include <QVariant>

namespace dravolin {

namespace {

constexpr char indexProperty[] = "addedAs";

} // namespace

QMessageBox *createAlert(const QString &title, const QString &text, const QStringList &buttons, int escape,
                         QWidget *window)
{
    auto *alert = new QMessageBox(window);
    alert->setWindowTitle(QCoreApplication::applicationName());
    alert->setAccessibleName(title);
    alert->setText(title);
    alert->setInformativeText(text);
    for (QLabel *label : alert->findChildren<QLabel *>())
        label->setTextFormat(Qt::PlainText);
    if (auto *const heading = alert->findChild<QLabel *>(QStringLiteral("qt_msgbox_label"))) {
        QFont font = heading->font();
        font.setBold(true);
        heading->setFont(font);
    }
    if (window)
        alert->setIconPixmap(window->windowIcon().pixmap(QSize(48, 48), window->devicePixelRatioF()));
    for (int i = 0; i < buttons.size(); ++i) {
        QString caption = buttons.at(i);
        caption.replace(u'&', QStringLiteral("&&"));
        // one role for all keeps the platform from giving Escape a button of its own choice
        QPushButton *button = alert->addButton(caption, QMessageBox::ActionRole);
        button->setProperty(indexProperty, i);
        if (i == 0)
            alert->setDefaultButton(button);
        if (i == escape)
            alert->setEscapeButton(button);
    }
    return alert;
}

int pressedButton(const QMessageBox &alert)
{
    const QAbstractButton *button = alert.clickedButton();
    if (!button)
        button = alert.escapeButton(); // closed by the window manager
    return button->property(indexProperty).toInt();
}

void bringToFront(QMessageBox &alert)
{
    if (!alert.isVisible())
        return;
    alert.raise();
    alert.activateWindow();
}

AlertSheetRunner *AlertSheetRunner::beginSheet(const AlertSheet &sheet, QWidget *window)
{
    auto *runner = new AlertSheetRunner(sheet, window);
    runner->m_alert->open();
    bringToFront(*runner->m_alert); // the log window may be in front of the main window
    return runner;
}

AlertSheetRunner::AlertSheetRunner(const AlertSheet &sheet, QWidget *window)
    : QObject(window), m_sheet(sheet),
      m_alert(createAlert(sheet.message, sheet.informativeText, sheet.buttons,
                          sheet.escape - AlertSheet::firstButton, window))
{
    m_alert->setWindowModality(Qt::WindowModal);
    connect(m_alert, &QDialog::finished, this, [this] { alertDidEnd(m_alert); });
}

void AlertSheetRunner::alertDidEnd(QMessageBox *ended)
{
    if (ended != m_alert)
        qFatal("Got a alert different from what I expected -- This should never happen");
    deleteLater();
    m_alert->deleteLater();
    const auto completion = std::move(m_sheet.completion);
    if (completion)
        completion(AlertSheet::firstButton + pressedButton(*ended));
}

} // namespace dravolin
