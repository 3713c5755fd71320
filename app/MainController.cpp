#include "app/MainController.h"

#include "app/AlertSheetRunner.h"
#include "app/FieldText.h"
#include "app/MainWindow.h"
#include "app/Preferences.h"
#include "run/DropIntake.h"
#include "run/RunDriver.h"
#include "run/UidRootFields.h"
#include "ui_MainWindow.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QTimer>

#include <algorithm>

namespace dravolin {

namespace {

// No generated root is longer than this.
void showWholeRoots(QLineEdit &field)
{
    constexpr int characters = 44;
    constexpr int frameAndCaret = 16;
    field.setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    field.setMinimumWidth(field.fontMetrics().horizontalAdvance(QString(characters, u'0')) + frameAndCaret);
}

// The screen's server keeps every icon in its full size.
QIcon smallIcon(const QPixmap &picture)
{
    constexpr QSize size(128, 128);
    return picture.isNull() ? QIcon()
                            : QIcon(picture.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

std::unique_ptr<Ui::MainWindow> layOut(QWidget &window)
{
    auto controls = std::make_unique<Ui::MainWindow>();
    controls->setupUi(&window);
    showWholeRoots(*controls->uidRootTextField);
    controls->resultIcon->setLabel(controls->outputTextField);
    controls->rootValidIcon->setLabel(controls->rootValidLabel);
    controls->caseIDIcon->setLabel(controls->caseIDHint);
    controls->horLine->hide();
    controls->progressBar->hide();
    return controls;
}

} // namespace

MainController::MainController(const AppPorts &ports)
    : m_paths(ports.paths), m_delays(ports.delays), m_presenter(ports.presenter),
      m_window(std::make_unique<MainWindow>()), m_controls(layOut(*m_window)),
      m_host({.gate = m_gate,
              .window = *m_window,
              .controls = *m_controls,
              .presenter = m_presenter,
              .paths = m_paths,
              .delays = m_delays,
              .ownChange = m_ownChange,
              .showLog = [this](const QString &text) { showLogWindowWithLogText(text); }}),
      m_context{m_state, m_paths, m_host, ports.jobs, ports.uuids},
      m_help({.window = *m_window,
              .paths = m_paths,
              .jobs = ports.jobs,
              .presenter = m_presenter,
              .opener = m_opener,
              .askForWebSite = [this] { toolbarTextClicked(); }})
{
    connectControls();
    connectKeys();
}

MainController::~MainController()
{
    m_gate.close();
    for (QThread *run : std::as_const(m_runs))
        run->wait();
    qDeleteAll(m_runs);
}

QWidget &MainController::window()
{
    return *m_window;
}

void MainController::connectControls()
{
    const Ui::MainWindow &c = *m_controls;
    const auto typed = [this](QLineEdit *edit, TextField field) {
        connect(edit, &QLineEdit::textChanged, this, [this, field] {
            if (!m_ownChange)
                controlTextDidChange(field);
        });
    };
    typed(c.uidRootTextField, TextField::UidRoot);
    typed(c.caseIDTextField, TextField::CaseId);
    // a screen reader changes texts and boxes without typing and clicking
    const auto switched = [this](QCheckBox *box, void (MainController::*rule)()) {
        connect(box, &QCheckBox::toggled, this, [this, rule] {
            if (!m_ownChange) // no rule sets off another
                (this->*rule)();
        });
    };
    switched(c.prepopulateLUTcheckbox, &MainController::prepopulateLUTcheckboxDidChange);
    switched(c.generateSOPCheckbox, &MainController::generateSOPCheckboxChanged);
    switched(c.onlyGenerateSOPCheckbox, &MainController::onlyGenerateSOPCheckboxChanged);
    connect(c.prepopulateLUTcheckbox, &QCheckBox::toggled, c.dragDropView, &QVDragDropView::setConstructing);
    connect(c.selectLUTpopupButton, &QComboBox::activated, this, &MainController::selectLUTcheckboxChanged);
    connect(c.selectConfigPopupButton, &QComboBox::textActivated, this,
            [this](const QString &title) { m_chosenConfiguration = title; });
    connect(c.createUIDrootButton, &QPushButton::clicked, this, &MainController::createUIDrootAction);
    connect(c.showConfigButton, &QPushButton::clicked, this, &MainController::showConfigInFinder);
    connect(c.webSiteButton, &QPushButton::clicked, this, &MainController::toolbarTextClicked);
    connect(c.helpButton, &QToolButton::clicked, this, [this] { m_help.popUp(*m_controls->helpButton); });
    connect(c.showLogButton, &QPushButton::clicked, this, &MainController::showLogAgain);
    connect(m_window.get(), &MainWindow::willClose, this, &MainController::windowWillClose);
    // decoding the pictures takes as long as half of the rest
    connect(
        m_window.get(), &MainWindow::firstPainted, this, [this] { loadPictures(); }, Qt::QueuedConnection);
}

void MainController::connectKeys()
{
    QWidget *const window = m_window.get();
    const auto key = [window](const QKeySequence &keys, auto *receiver, auto what) {
        connect(new QShortcut(keys, window), &QShortcut::activated, receiver, what);
    };
    key(QKeySequence::Open, m_controls->dragDropView, &QVDragDropView::chooseFolder);
    key(QKeySequence::HelpContents, &m_help, &HelpMenu::openGuide);
    key(Qt::CTRL | Qt::Key_L, this, &MainController::showLogAgain);
    key(Qt::CTRL | Qt::Key_Q, window, &QWidget::close);
}

void MainController::showLogAgain()
{
    if (m_logWinController)
        m_logWinController->bringToFront();
}

void MainController::initAndShow()
{
    m_window->scrollWhereScreenIsSmall();
    centerOnScreen(*m_window);
    m_window->show();
    m_controls->dragDropView->setDelegate(this);
    getLUTpathsAndPopulateButton();
    restoreUidRoot();
    QTimer::singleShot(m_delays.beforeConfigurationScan, this,
                       &MainController::getConfigurationFilePathsAndPopulateButton);
}

void MainController::loadPictures()
{
    m_controls->dragDropView->setImageFolder(m_paths.resourceFolder);
    QGuiApplication::setWindowIcon(smallIcon(m_controls->dragDropView->image()));
}

void MainController::restoreUidRoot()
{
    const QString root = storedUidRoot();
    if (root.isEmpty())
        return;
    {
        const QScopedValueRollback own(m_ownChange, true);
        m_controls->uidRootTextField->setText(root);
    }
    checkUIDroot();
}

void MainController::windowWillClose()
{
    const QString root = m_controls->uidRootTextField->text();
    if (!root.isEmpty())
        storeUidRoot(root);
    Q_EMIT closed();
}

bool MainController::runIsUnderWay() const
{
    return std::any_of(m_runs.cbegin(), m_runs.cend(), [](const QThread *run) { return run->isRunning(); });
}

void MainController::handleDroppedPaths(const QStringList &paths)
{
    if (const std::optional<Drop> drop = takeDrop(m_context, paths))
        startBackgroundTaskWithArguments(*drop);
}

void MainController::startBackgroundTaskWithArguments(Drop drop)
{
    // intended: one operation for both threads, the thread that calls it decides which half is meant
    if (m_gate.onMainThread())
        beginRun(m_context, [this, drop] { startRunThread(drop); });
    else
        (void)performRun(m_context, drop);
}

void MainController::startRunThread(const Drop &drop)
{
    QThread *const run = QThread::create([this, drop] {
        try {
            startBackgroundTaskWithArguments(drop);
        } catch (const RunCancelled &) {
            // the application is ending; what this run had still to do is left
        }
    });
    m_runs.append(run);
    connect(run, &QThread::finished, this, [this, run] {
        m_runs.removeOne(run);
        run->deleteLater();
    });
    run->start();
    if (run->isRunning() || run->isFinished())
        return;
    m_runs.removeOne(run); // no thread was to be had
    delete run;
    (void)giveUpRun(m_context);
}

void MainController::showLogWindowWithLogText(const QString &text)
{
    if (!m_gate.onMainThread()) {
        QMetaObject::invokeMethod(
            this, [this, text] { showLogWindowWithLogText(text); }, Qt::QueuedConnection);
        return;
    }
    m_logWinController = std::make_unique<LogWindowController>();
    m_logWinController->showWithText(text);
    m_controls->showLogButton->show();
    // what waits for an answer stays in front
    for (QMessageBox *sheet : m_window->findChildren<QMessageBox *>())
        bringToFront(*sheet);
}

bool MainController::checkUIDroot()
{
    return checkUidRoot(m_host);
}

void MainController::createUIDrootAction()
{
    createUidRoot(m_host, m_context.uuids);
}

void MainController::controlTextDidChange(TextField field)
{
    QLineEdit *const edit =
        field == TextField::UidRoot ? m_controls->uidRootTextField : m_controls->caseIDTextField;
    const QString filtered = filterTypedIdentifier(edit->text());
    if (filtered.size() < edit->text().size()) {
        const QScopedValueRollback own(m_ownChange, true);
        showKeepingCaret(*edit, filtered);
    }
    checkUIDroot();
}

} // namespace dravolin
