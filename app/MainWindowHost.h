#pragma once

#include "app/AlertPresenter.h"
#include "app/MainThreadGate.h"
#include "run/jobs/RunContext.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

#include <array>
#include <atomic>

namespace Ui {
class MainWindow;
}

namespace dravolin {

// The main window as runs see it; the only code that crosses threads. Any thread may call it, the widgets are
// touched on the main thread only.
class MainWindowHost : public RunHost
{
public:
    // None of the arguments is owned. `showLog` opens the log window, on the main thread.
    MainWindowHost(MainThreadGate &gate, QWidget &window, Ui::MainWindow &controls, AlertPresenter &presenter,
                   const Delays &delays, std::function<void(const QString &)> showLog);

    [[nodiscard]] Qt::CheckState checkState(CheckBox box) override;
    [[nodiscard]] QString text(TextField field) override;
    void setText(TextField field, const QString &text) override;
    void setRootValidity(const QString &label) override;
    [[nodiscard]] QString selectedConfigTitle() override;
    [[nodiscard]] PopupSelection selectedLUT() override;
    void setStatus(const QString &text) override;
    void setStatusToolTip(const QString &text) override;
    void setEnabled(Control control, bool enabled) override;
    void setSpinning(bool spinning) override;
    void showSeparator() override;
    void setProgress(double percent) override;
    void setProgressVisible(bool visible) override;
    void growWindow(int height, std::function<void()> then) override;
    void setLUTTitles(const QStringList &titles) override;
    void showSheet(const AlertSheet &sheet) override;
    AlertButton runModalAlert(const ModalAlert &alert) override;
    void scheduleLogWindow(const QString &text) override;
    void closeMainWindow() override;

private:
    void followCheckStates();
    void onMain(const std::function<void()> &work);
    template <typename Function>
    auto fromMain(Function &&function)
    {
        auto value = m_gate.get(std::forward<Function>(function));
        if (!value)
            throw WindowClosing();
        return *value;
    }
    [[nodiscard]] QCheckBox *widget(CheckBox box) const;
    [[nodiscard]] QLineEdit *widget(TextField field) const;
    [[nodiscard]] QWidget *widget(Control control) const;

    MainThreadGate &m_gate;
    QWidget &m_window;
    Ui::MainWindow &m_controls;
    AlertPresenter &m_presenter;
    const Delays &m_delays;
    std::function<void(const QString &)> m_showLog;
    // What the check boxes show, by CheckBox: a run reads them for every folder and is not to wait each time
    // until the main thread has painted.
    std::array<std::atomic<Qt::CheckState>, 4> m_checkStates = {};
};

} // namespace dravolin
