#include "app/MainWindowHost.h"

#include "app/Accessibility.h"
#include "app/FieldText.h"
#include "app/PopupPaths.h"
#include "app/ResultTexts.h"
#include "app/RootValidity.h"
#include "app/RunDialogs.h"
#include "app/ScreenEdge.h"
#include "app/WindowGrowth.h"
#include "base/Texts.h"
#include "config/DirectoryLocations.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QScopedValueRollback>
#include <QThread>
#include <QTimer>

#include <algorithm>

namespace dravolin {

MainWindowHost::MainWindowHost(Parts parts) : m_parts(std::move(parts))
{
    followChoices();
}

void MainWindowHost::followChoices()
{
    const Ui::MainWindow &c = m_parts.controls;
    const auto read = [this] { readChoices(); };
    for (const QCheckBox *box : {c.overWriteSourceCheckbox, c.prepopulateLUTcheckbox, c.generateSOPCheckbox,
                                 c.onlyGenerateSOPCheckbox})
        QObject::connect(box, &QCheckBox::stateChanged, &m_parts.window, read);
    for (const QComboBox *popup : {c.selectConfigPopupButton, c.selectLUTpopupButton}) {
        QObject::connect(popup, &QComboBox::currentIndexChanged, &m_parts.window, read);
        QObject::connect(popup, &QComboBox::currentTextChanged, &m_parts.window, read);
    }
    readChoices();
}

void MainWindowHost::readChoices()
{
    const Ui::MainWindow &c = m_parts.controls;
    const Choices shown = {
        .overwriteSource = c.overWriteSourceCheckbox->checkState(),
        .prepopulate = c.prepopulateLUTcheckbox->checkState(),
        .generateSOP = c.generateSOPCheckbox->checkState(),
        .onlyGenerateSOP = c.onlyGenerateSOPCheckbox->checkState(),
        .configuration = c.selectConfigPopupButton->currentText(),
        .table = c.selectLUTpopupButton->currentIndex() > 0
                     ? std::optional(c.selectLUTpopupButton->currentText())
                     : std::nullopt,
    };
    const std::lock_guard lock(m_mutex);
    m_choices = shown;
}

void MainWindowHost::onMain(const std::function<void()> &work)
{
    const auto withHandles = [&] {
        m_handles.releaseWhenScarce();
        work();
    };
    if (!m_parts.gate.run(withHandles))
        throw RunCancelled();
}

Choices MainWindowHost::choices()
{
    if (!m_parts.gate.onMainThread() && m_parts.gate.isClosed())
        throw RunCancelled();
    const std::lock_guard lock(m_mutex);
    return m_choices;
}

CaseTexts MainWindowHost::texts()
{
    CaseTexts texts;
    onMain([&] {
        const Ui::MainWindow &c = m_parts.controls;
        texts = {.diagnosis = c.diagnosisTextField->text(),
                 .caseId = c.caseIDTextField->text(),
                 .credits = c.creditsTextField->text(),
                 .keywords = c.keywordsTextField->text(),
                 .uidRoot = c.uidRootTextField->text()};
    });
    return texts;
}

void MainWindowHost::setRoot(const RootCheck &root)
{
    onMain([&] {
        QLineEdit *const edit = m_parts.controls.uidRootTextField;
        // setting the same text again would move the cursor of somebody who is typing
        if (edit->text() != root.trimmedRoot) {
            const QScopedValueRollback own(m_parts.ownChange, true);
            showKeepingCaret(*edit, root.trimmedRoot);
        }
        showValidity(m_parts.controls, root);
    });
}

bool MainWindowHost::ask(Question question)
{
    AlertButton answer = AlertButton::Default;
    onMain([&] { answer = m_parts.presenter.runModal(questionAlert(question), &m_parts.window); });
    return answer == AlertButton::Alternate;
}

void MainWindowHost::refuse(Refusal refusal, const QString &detail)
{
    onMain([&] {
        if (const std::optional<ModalAlert> alert = refusalAlert(refusal)) {
            (void)m_parts.presenter.runModal(*alert, &m_parts.window);
            if (refusal == Refusal::OutOfFileHandles)
                m_parts.window.close(); // intended: whatever was answered
            return;
        }
        AlertSheet sheet = refusalSheet(refusal, detail);
        sheet.completion = [this, refusal](int code) { answered(refusal, code); };
        m_parts.presenter.beginSheet(sheet, &m_parts.window);
    });
}

void MainWindowHost::answered(Refusal refusal, int code)
{
    const bool save = refusal == Refusal::NoTags && code == AlertSheet::firstButton;
    if (save)
        copyDefaultConfiguration(m_parts.paths, m_parts.paths.desktopFolder,
                                 QStringLiteral("AnonymizationConfiguration.txt"));
    if (save || code == AlertSheet::secondButton)
        m_parts.window.close();
}

void MainWindowHost::runBegins(const RunBeginning &beginning, std::function<void()> start)
{
    const QPointer<QWidget> focus = m_parts.window.focusWidget();
    m_handles.fill();
    clearResult();
    ++m_running;
    showBusy(true);
    for (const WindowStep &step : beginSteps(beginning)) {
        if (step.kind == WindowStep::Kind::Grow)
            growWindow(m_parts.window, m_parts.delays.windowGrowth, start);
        else
            performNow(step);
    }
    if (focus && !focus->isEnabled()) {
        m_focusBefore = focus;
        m_focusMeanwhile = m_parts.window.focusWidget();
    }
}

void MainWindowHost::giveFocusBack()
{
    // a user who has gone elsewhere in the meantime stays there
    if (m_focusBefore && m_parts.window.focusWidget() == m_focusMeanwhile)
        m_focusBefore->setFocus();
    m_focusBefore.clear();
}

void MainWindowHost::progress(const Progress &progress)
{
    perform(progressSteps(progress));
}

void MainWindowHost::runEnds(const RunJudgement &judgement)
{
    bool tablesExist = false;
    onMain([&] { tablesExist = m_tablesExist; });
    const WindowSteps steps = endSteps(judgement, tablesExist);
    const auto isStatus = [](const WindowStep &step) { return step.kind == WindowStep::Kind::Status; };
    const auto behindStatus = std::find_if(steps.begin(), steps.end(), isStatus) - steps.begin() + 1;
    perform(steps.first(behindStatus));
    onMain([&] { showResult(judgement); });
    perform(steps.sliced(behindStatus));
    onMain([&] {
        giveFocusBack();
        tellResult(judgement);
    });
}

void MainWindowHost::showBusy(bool busy)
{
    m_parts.controls.dragDropView->setRunning(busy);
    // a label whose text can be selected takes ten times as long to be laid out, and every progress text is
    m_parts.controls.outputTextField->setTextInteractionFlags(
        busy ? Qt::NoTextInteraction : Qt::TextSelectableByKeyboard | Qt::TextSelectableByMouse);
    setBusy(m_parts.window, busy);
    bringIntoSight(*m_parts.controls.outputTextField);
}

void MainWindowHost::clearResult()
{
    m_parts.controls.resultIcon->setKind(StatusIcon::Kind::None);
    m_parts.controls.factsLabel->hide();
}

void MainWindowHost::showResult(const RunJudgement &judgement)
{
    const Ui::MainWindow &c = m_parts.controls;
    m_running = qMax(0, m_running - 1);
    showBusy(m_running > 0);
    c.resultIcon->setKind(kindOf(judgement));
    c.factsLabel->setText(factsOf(judgement));
    c.factsLabel->show();
    for (QLabel *label : {c.outputTextField, c.factsLabel})
        label->setFocusPolicy(Qt::StrongFocus); // there is something to copy
}

void MainWindowHost::tellResult(const RunJudgement &judgement)
{
    const QString summary = judgement.summary.trimmed();
    const QString facts = factsOf(judgement);
    announce(*m_parts.controls.resultIcon, summary + u'\n' + facts);
    if (!QApplication::activeWindow())
        m_parts.presenter.notify(summary, facts);
}

void MainWindowHost::tablesFound(const TitleToPath &tables)
{
    onMain([&] {
        m_tablesExist = !tables.isEmpty();
        QComboBox *const popup = m_parts.controls.selectLUTpopupButton;
        popup->clear();
        if (tables.isEmpty()) {
            popup->addItem(Texts::tr("No look-up table files found"));
            popup->setEnabled(false);
            popup->setToolTip(Texts::tr("A table is a file named AnonymizationLUT_NAME.txt in\n%1\nor\n%2")
                                  .arg(m_parts.paths.desktopFolder, applicationSupportPath(m_parts.paths)));
            popup->setAccessibleDescription(popup->toolTip());
            return;
        }
        popup->addItem(Texts::tr("Don't use a look-up table"));
        popup->addItems(tables.keys());
        popup->setCurrentIndex(0);
        showPaths(*popup, tables, Texts::tr("New values for one attribute"));
    });
}

void MainWindowHost::perform(const WindowSteps &steps)
{
    const auto isPause = [](const WindowStep &step) { return step.kind == WindowStep::Kind::Pause; };
    for (auto next = steps.begin(); next != steps.end();) {
        if (isPause(*next)) {
            if (!m_parts.gate.onMainThread()) // a run that got no thread ends here, and the window goes on
                QThread::msleep(static_cast<unsigned long>(m_parts.delays.beforeSummary));
            ++next;
            continue;
        }
        const auto pause = std::find_if(next, steps.end(), isPause);
        // one hand-over; when memory fails a step, another goes on with the step behind it
        onMain([&] {
            while (next != pause)
                performNow(*next++);
        });
    }
}

void MainWindowHost::performNow(const WindowStep &step)
{
    Q_ASSERT(m_parts.gate.onMainThread());
    const Ui::MainWindow &c = m_parts.controls;
    switch (step.kind) {
    case WindowStep::Kind::Status: c.outputTextField->setText(step.text); break;
    case WindowStep::Kind::StatusToolTip: c.outputTextField->setToolTip(step.text); break;
    case WindowStep::Kind::Spinner: c.spIndicator->setSpinning(step.on); break;
    case WindowStep::Kind::Separator: c.horLine->show(); break;
    case WindowStep::Kind::Progress: c.progressBar->setValue(step.percent); break;
    case WindowStep::Kind::ProgressVisible: c.progressBar->setVisible(step.on); break;
    case WindowStep::Kind::ScheduleLog:
        QTimer::singleShot(m_parts.delays.beforeLogWindow, &m_parts.window,
                           [showLog = m_parts.showLog, text = step.text] { showLog(text); });
        break;
    default: control(step.kind)->setEnabled(step.on);
    }
}

QWidget *MainWindowHost::control(WindowStep::Kind kind) const
{
    const Ui::MainWindow &c = m_parts.controls;
    switch (kind) {
    case WindowStep::Kind::OverwriteSource: return c.overWriteSourceCheckbox;
    case WindowStep::Kind::SelectLUT: return c.selectLUTpopupButton;
    case WindowStep::Kind::Prepopulate: return c.prepopulateLUTcheckbox;
    case WindowStep::Kind::SelectConfig: return c.selectConfigPopupButton;
    case WindowStep::Kind::GenerateSOP: return c.generateSOPCheckbox;
    case WindowStep::Kind::OnlyGenerateSOP: return c.onlyGenerateSOPCheckbox;
    default: Q_UNREACHABLE();
    }
}

} // namespace dravolin
