#pragma once

#include "app/MainController.h"
#include "support/TestRun.h"

#include <QCheckBox>
#include <QMimeData>
#include <QPushButton>

#include <memory>

namespace dravolin::test {

// Answers questions without showing them, from lists; one that nobody expected fails the test.
class ScriptedPresenter : public AlertPresenter
{
public:
    QList<AlertButton> answers; // of modal alerts
    QList<ModalAlert> alerts;
    QList<AlertSheet> sheets; // the test calls their completions
    QStringList notes;        // "summary|body"

    [[nodiscard]] AlertButton runModal(const ModalAlert &alert, QWidget *window) override;
    void beginSheet(const AlertSheet &sheet, QWidget *window) override;
    void notify(const QString &summary, const QString &body) override;
};

// HOME and the XDG folders of this process point into `folder` from now on; call it before anything else.
void useHome(const QString &folder);

// A controller with its real window off screen, over a fake job runner, scripted questions and a temporary
// tree that holds one configuration ("Test") on the desktop and the pictures of the application. The window
// is not shown before start().
class TestApp
{
public:
    TestApp();
    ~TestApp();

    // Shows the window and waits until configurations are listed.
    void start();
    // Sends the drag and drop of `paths` to the drop view and waits until it was handed on.
    void drop(const QStringList &paths);
    // Waits until no run is under way.
    [[nodiscard]] bool waitForRuns();
    [[nodiscard]] QString status();
    [[nodiscard]] QString configurationPath() const;

    TestRun run; // its host is not used
    Delays delays{0, 0, 0, 0};
    ScriptedPresenter presenter;
    JobRunner *jobs = &run.jobs; // set another one before start()
    std::unique_ptr<MainController> controller;
    Ui::MainWindow *controls = nullptr;
};

// A file-name list as a drag carries it; owned by the caller.
[[nodiscard]] std::unique_ptr<QMimeData> fileNames(const QStringList &paths);

// A UID root that passes every check.
inline const QString validRoot = QStringLiteral("1.2.12345678901234567890");

} // namespace dravolin::test
