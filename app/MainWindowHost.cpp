#include "app/MainWindowHost.h"

#include "base/Texts.h"
#include "ui_MainWindow.h"

#include <QPropertyAnimation>
#include <QThread>
#include <QTimer>

namespace dravolin {

MainWindowHost::MainWindowHost(MainThreadGate &gate, QWidget &window, Ui::MainWindow &controls,
                               AlertPresenter &presenter, const Delays &delays,
                               std::function<void(const QString &)> showLog)
    : m_gate(gate), m_window(window), m_controls(controls), m_presenter(presenter), m_delays(delays),
      m_showLog(std::move(showLog))
{
    followCheckStates();
}

void MainWindowHost::followCheckStates()
{
    for (const CheckBox box : {CheckBox::OverwriteSource, CheckBox::Prepopulate, CheckBox::GenerateSOP,
                               CheckBox::OnlyGenerateSOP}) {
        std::atomic<Qt::CheckState> &state = m_checkStates.at(static_cast<size_t>(box));
        const QCheckBox *const control = widget(box);
        state = control->checkState();
        QObject::connect(control, &QCheckBox::stateChanged, &m_window,
                         [&state](int shown) { state = static_cast<Qt::CheckState>(shown); });
    }
}

void MainWindowHost::onMain(const std::function<void()> &work)
{
    if (!m_gate.run(work))
        throw WindowClosing();
}

QCheckBox *MainWindowHost::widget(CheckBox box) const
{
    Q_ASSERT(m_gate.onMainThread());
    switch (box) {
    case CheckBox::OverwriteSource: return m_controls.overWriteSourceCheckbox;
    case CheckBox::Prepopulate: return m_controls.prepopulateLUTcheckbox;
    case CheckBox::GenerateSOP: return m_controls.generateSOPCheckbox;
    case CheckBox::OnlyGenerateSOP: return m_controls.onlyGenerateSOPCheckbox;
    }
    Q_UNREACHABLE();
}

QLineEdit *MainWindowHost::widget(TextField field) const
{
    Q_ASSERT(m_gate.onMainThread());
    switch (field) {
    case TextField::UidRoot: return m_controls.uidRootTextField;
    case TextField::CaseId: return m_controls.caseIDTextField;
    case TextField::Diagnosis: return m_controls.diagnosisTextField;
    case TextField::Keywords: return m_controls.keywordsTextField;
    case TextField::Credits: return m_controls.creditsTextField;
    }
    Q_UNREACHABLE();
}

QWidget *MainWindowHost::widget(Control control) const
{
    Q_ASSERT(m_gate.onMainThread());
    switch (control) {
    case Control::OverwriteSource: return m_controls.overWriteSourceCheckbox;
    case Control::SelectLUT: return m_controls.selectLUTpopupButton;
    case Control::Prepopulate: return m_controls.prepopulateLUTcheckbox;
    case Control::SelectConfig: return m_controls.selectConfigPopupButton;
    case Control::GenerateSOP: return m_controls.generateSOPCheckbox;
    case Control::OnlyGenerateSOP: return m_controls.onlyGenerateSOPCheckbox;
    }
    Q_UNREACHABLE();
}

Qt::CheckState MainWindowHost::checkState(CheckBox box)
{
    if (!m_gate.onMainThread() && m_gate.isClosed())
        throw WindowClosing();
    return m_checkStates.at(static_cast<size_t>(box));
}

QString MainWindowHost::text(TextField field)
{
    return fromMain([&] { return widget(field)->text(); });
}

void MainWindowHost::setText(TextField field, const QString &text)
{
    onMain([&] {
        QLineEdit *const edit = widget(field);
        if (edit->text() == text)
            return; // setting it again would move the cursor of somebody who is typing
        const int cursor = edit->cursorPosition();
        edit->setText(text);
        edit->setCursorPosition(cursor);
    });
}

void MainWindowHost::setRootValidity(const QString &label)
{
    onMain([&] { m_controls.rootValidLabel->setText(label); });
}

QString MainWindowHost::selectedConfigTitle()
{
    return fromMain([&] { return m_controls.selectConfigPopupButton->currentText(); });
}

PopupSelection MainWindowHost::selectedLUT()
{
    return fromMain([&] {
        return PopupSelection{m_controls.selectLUTpopupButton->currentIndex(),
                              m_controls.selectLUTpopupButton->currentText()};
    });
}

void MainWindowHost::setStatus(const QString &text)
{
    onMain([&] { m_controls.outputTextField->setText(text); });
}

void MainWindowHost::setStatusToolTip(const QString &text)
{
    onMain([&] { m_controls.outputTextField->setToolTip(text); });
}

void MainWindowHost::setEnabled(Control control, bool enabled)
{
    onMain([&] { widget(control)->setEnabled(enabled); });
}

void MainWindowHost::setSpinning(bool spinning)
{
    onMain([&] { m_controls.spIndicator->setSpinning(spinning); });
}

void MainWindowHost::showSeparator()
{
    onMain([&] { m_controls.horLine->show(); });
}

void MainWindowHost::setProgress(double percent)
{
    onMain([&] { m_controls.progressBar->setValue(qRound(percent)); });
}

void MainWindowHost::setProgressVisible(bool visible)
{
    onMain([&] { m_controls.progressBar->setVisible(visible); });
}

void MainWindowHost::growWindow(int height, std::function<void()> then)
{
    onMain([&] {
        const QRect start = m_window.geometry();
        auto *growth = new QPropertyAnimation(&m_window, "geometry", &m_window);
        growth->setDuration(m_delays.windowGrowth);
        growth->setEasingCurve(QEasingCurve::InQuad);
        growth->setStartValue(start);
        growth->setEndValue(QRect(start.x(), start.y(), start.width(), height));
        QObject::connect(growth, &QPropertyAnimation::finished, &m_window, [this, then = std::move(then)] {
            if (m_window.isVisible())
                then();
        });
        growth->start(QAbstractAnimation::DeleteWhenStopped);
    });
}

void MainWindowHost::setLUTTitles(const QStringList &titles)
{
    onMain([&] {
        QComboBox *const popup = m_controls.selectLUTpopupButton;
        popup->clear();
        if (titles.isEmpty()) {
            popup->addItem(Texts::tr("No look-up table files found"));
            popup->setEnabled(false);
            return;
        }
        popup->addItem(Texts::tr("Don't use a look-up table"));
        popup->addItems(titles);
        popup->setCurrentIndex(0);
    });
}

void MainWindowHost::showSheet(const AlertSheet &sheet)
{
    onMain([&] { m_presenter.beginSheet(sheet, &m_window); });
}

AlertButton MainWindowHost::runModalAlert(const ModalAlert &alert)
{
    return fromMain([&] { return m_presenter.runModal(alert, &m_window); });
}

void MainWindowHost::scheduleLogWindow(const QString &text)
{
    onMain([&] {
        QTimer::singleShot(m_delays.beforeLogWindow, &m_window,
                           [showLog = m_showLog, text] { showLog(text); });
    });
}

void MainWindowHost::closeMainWindow()
{
    onMain([&] { m_window.close(); });
}

} // namespace dravolin
