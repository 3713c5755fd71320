#pragma once

#include "app/AlertPresenter.h"
#include "app/HelpMenu.h"
#include "app/LogWindowController.h"
#include "app/MainThreadGate.h"
#include "app/MainWindowHost.h"
#include "app/Opener.h"
#include "app/QVDragDropView.h"
#include "run/CheckBoxRules.h"
#include "run/jobs/RunContext.h"
#include "run/jobs/RunOptions.h"

#include <QObject>
#include <QThread>

#include <memory>

namespace Ui {
class MainWindow;
}

namespace dravolin {

class MainWindow;

// The two fields whose text is filtered while it is typed.
enum class TextField { UidRoot, CaseId };

// What the controller works with; the references outlive it.
struct AppPorts
{
    AppPaths paths;
    JobRunner &jobs;
    NOXUtils::UuidSource &uuids;
    AlertPresenter &presenter;
    Delays delays;
};

// Owns the main window and all run state, and names every operation of the application. It lives as long as
// the application, on the main thread. The operations that run control and processing share with the core
// forward to functions of the same subject, where their contracts stand; those may be called from a run's
// thread.
class MainController : public QObject, public QVDragDropViewDelegate
{
    Q_OBJECT

public:
    explicit MainController(const AppPorts &ports);
    // Ends the hand-overs of runs that are still under way and waits for their threads, children included.
    ~MainController() override;

    void initAndShow();
    void windowWillClose();
    // Whether a run's thread is alive.
    [[nodiscard]] bool runIsUnderWay() const;
    // Ends all hand-overs to the main thread: runs that are under way do not go on.
    void closeGate() { m_gate.close(); }
    [[nodiscard]] QWidget &window();
    [[nodiscard]] Ui::MainWindow &controls() { return *m_controls; }
    [[nodiscard]] SharedRunState &state() { return m_state; }
    [[nodiscard]] RunHost &host() { return m_host; }
    [[nodiscard]] LogWindowController *logWinController() { return m_logWinController.get(); }

    // Run control.
    void handleDroppedPaths(const QStringList &paths) override;
    void startBackgroundTaskWithArguments(Drop drop);
    [[nodiscard]] quint64 processDICOMfoldersAndIndividualFilesWithOptions(const QStringList &folders,
                                                                           const QStringList &files,
                                                                           RunOptions &options);
    void parseLog();
    void showLogWindowWithLogText(const QString &text);

    // Configurations and tables.
    QStringList loadTagsToAnonymizeFromPath(const QString &path);
    void getConfigurationFilePathsAndPopulateButton();
    [[nodiscard]] TitleToPath getConfigsAtPath(const QString &folder) const;
    void getLUTpathsAndPopulateButton();
    [[nodiscard]] TitleToPath getLUTsAtPath(const QString &folder) const;
    bool loadLUTdictAtPath(const QString &path);

    // Processing of folders and files; each gives a number of errors.
    [[nodiscard]] quint64 anonymizeTagsForDICOMFilesInFolderWithOptions(const QStringList &tags,
                                                                        const QString &folder,
                                                                        const RunOptions &options);
    [[nodiscard]] quint64 anonymizeTagsInDICOMFilesInFolderWithOptions(const QStringList &tags,
                                                                       const QStringList &files,
                                                                       const QString &folder,
                                                                       const RunOptions &options);
    quint64 recursivelyCountOfFolderInFolderTree(const QString &folder);
    [[nodiscard]] quint64 recursivelyAnonymizeTagsForDICOMFilesInFolderTreeWithOptions(
        const QStringList &tags, const QString &folder, const RunOptions &options);
    [[nodiscard]] QStringList findDICOMDIRsAtPath(const QString &folder);
    [[nodiscard]] quint64 prepopulateLUTforDICOMFilesOrRecursivelyForFolderWithOptions(
        const QStringList &files, const QString &folder, const RunOptions &options);
    quint64 recursivelyPropagateLUTtoDICOMFilesinFolderTreeWithOptions(const QString &folder,
                                                                       const RunOptions &options);
    [[nodiscard]] quint64 propagateLUTtoDICOMFilesInFolderWithOptions(const QStringList &entries,
                                                                      const QString &folder,
                                                                      const RunOptions &options);

    // Identifiers.
    bool checkUIDroot();
    void createUIDrootAction();
    void controlTextDidChange(TextField field);

    // Check boxes and buttons.
    void prepopulateLUTcheckboxDidChange();
    void selectLUTcheckboxChanged();
    void generateSOPCheckboxChanged();
    void onlyGenerateSOPCheckboxChanged();
    void toolbarTextClicked();
    void showConfigInFinder();

Q_SIGNALS:
    // The main window was closed: the application is to end.
    void closed();

private:
    void connectControls();
    void connectKeys();
    void showLogAgain();
    void loadPictures();
    void restoreUidRoot();
    void startRunThread(const Drop &drop);
    void apply(const CheckBoxChanges &changes);
    void refuseConstruction();
    void tellDefaultConfiguration();
    void saveDefaultConfigurationAndQuit();

    AppPaths m_paths;
    Delays m_delays;
    bool m_ownChange = false;      // the program itself changes a field or a box: no rule follows
    QString m_chosenConfiguration; // by the user, by its title; "" for none
    AlertPresenter &m_presenter;
    SharedRunState m_state;
    MainThreadGate m_gate;
    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<Ui::MainWindow> m_controls;
    MainWindowHost m_host;
    RunContext m_context;
    Opener m_opener;
    HelpMenu m_help;
    std::unique_ptr<LogWindowController> m_logWinController;
    QList<QThread *> m_runs; // alive until their threads have finished
};

} // namespace dravolin
