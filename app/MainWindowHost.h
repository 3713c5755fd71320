#pragma once

#include "app/AlertPresenter.h"
#include "app/MainThreadGate.h"
#include "app/WindowSteps.h"
#include "base/FileHandleReserve.h"
#include "config/AppPaths.h"
#include "run/jobs/RunHost.h"

#include <QPointer>
#include <QWidget>

#include <mutex>

namespace Ui {
class MainWindow;
}

namespace dravolin {

// How long the window waits where it waits, in milliseconds.
struct Delays
{
    int beforeConfigurationScan = 250; // so that the window is on screen first
    int windowGrowth = 250;
    int beforeSummary = 500;
    int beforeLogWindow = 510; // just behind the summary
};

// The main window as runs see it. Any thread may call it, the widgets are touched on the main thread only,
// and a run's thread waits for that.
class MainWindowHost : public RunHost
{
public:
    // What the host works with; nothing of it is owned. `showLog` opens the log window, on the main thread.
    struct Parts
    {
        MainThreadGate &gate;
        QWidget &window;
        Ui::MainWindow &controls;
        AlertPresenter &presenter;
        const AppPaths &paths;
        const Delays &delays;
        bool &ownChange; // set while the host changes a field; main thread only
        std::function<void(const QString &)> showLog;
    };
    explicit MainWindowHost(Parts parts);

    [[nodiscard]] Choices choices() override;
    [[nodiscard]] CaseTexts texts() override;
    void setRoot(const RootCheck &root) override;
    [[nodiscard]] bool ask(Question question) override;
    // Alerts return when they were answered, sheets when they are up.
    void refuse(Refusal refusal, const QString &detail = {}) override;
    void runBegins(const RunBeginning &beginning, std::function<void()> start) override;
    void progress(const Progress &progress) override;
    void runEnds(const RunJudgement &judgement) override;
    void tablesFound(const TitleToPath &tables) override;

private:
    void followChoices();
    void readChoices();
    void onMain(const std::function<void()> &work);
    void perform(const WindowSteps &steps);
    void performNow(const WindowStep &step);
    [[nodiscard]] QWidget *control(WindowStep::Kind kind) const;
    void giveFocusBack();
    void showBusy(bool busy);
    void clearResult();
    void showResult(const RunJudgement &judgement);
    void tellResult(const RunJudgement &judgement);
    void answered(Refusal refusal, int code);

    Parts m_parts;
    // Main thread only.
    FileHandleReserve m_handles;
    bool m_tablesExist = false;
    int m_running = 0;
    QPointer<QWidget> m_focusBefore;    // the control that lost the focus when a run disabled it
    QPointer<QWidget> m_focusMeanwhile; // the one that got it
    // What is switched and selected: a run reads it for every folder and is not to wait each time until the
    // main thread has painted.
    std::mutex m_mutex;
    Choices m_choices;
};

} // namespace dravolin
