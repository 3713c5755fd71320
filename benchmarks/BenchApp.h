#pragma once

#include "app/MainController.h"
#include "identifiers/Uuid.h"
#include "run/jobs/JobRunner.h"

#include <QApplication>
#include <QTemporaryDir>

#include <memory>

// The application as it is, with its window off screen, over folders made for a measurement.
namespace dravolin::bench {

enum class Tool { Real, Stub }; // dcmodify, or a program that ends at once

// Answers every question with "go on".
class WillingPresenter : public AlertPresenter
{
public:
    [[nodiscard]] AlertButton runModal(const ModalAlert &, QWidget *) override
    {
        return AlertButton::Alternate;
    }
    void beginSheet(const AlertSheet &, QWidget *) override {}
    void notify(const QString &, const QString &) override {}
};

class BenchApp
{
public:
    explicit BenchApp(Tool tool);
    ~BenchApp();
    BenchApp(const BenchApp &) = delete;
    BenchApp &operator=(const BenchApp &) = delete;

    [[nodiscard]] QString path(const QString &relative) const;
    // A folder of `files` DICOM files of 33 KB, made once and copied; with the stub tool the files are empty.
    QString makeFolder(const QString &relative, int files);
    // A tree of `folders` folders of `files` files in groups of a hundred; gives its top.
    QString makeTree(const QString &name, int folders, int files);

    // Drops `folder` on the application and runs the event loop until the run has ended; gives the seconds.
    [[nodiscard]] double run(const QString &folder);
    // The same with several paths at once.
    [[nodiscard]] double run(const QStringList &paths) { return dropAndWait(paths); }
    // The processor time of all threads in the last run, children apart.
    [[nodiscard]] double ownProcessorSeconds() const { return m_ownProcessorSeconds; }
    // The same without starting anything; what would be started is kept. Gives the number of scripts.
    int captureJobs(const QString &folder);
    // Starts what was kept, the scripts and the search for DICOMDIR files, one after another; gives the
    // seconds.
    [[nodiscard]] double runNatively();

    [[nodiscard]] MainController &controller() { return *m_controller; }

private:
    class CapturingRunner;

    void placeResources(Tool tool);
    void makeImage();
    void start(JobRunner &jobs);
    double dropAndWait(const QStringList &paths);

    QTemporaryDir m_folder;
    AppPaths m_paths;
    PosixJobRunner m_jobs;
    NOXUtils::RandomUuidSource m_uuids;
    WillingPresenter m_presenter;
    std::unique_ptr<MainController> m_controller;
    QByteArray m_image; // a DICOM file
    QStringList m_scriptFolders;
    double m_ownProcessorSeconds = 0;
};

// Sets HOME and the platform, then makes the application object.
[[nodiscard]] std::unique_ptr<QApplication> makeApplication(int &argc, char **argv);

// Whether that part of a benchmark was named on the command line, or none was.
[[nodiscard]] bool isWanted(const char *part);

} // namespace dravolin::bench
