#include "BenchApp.h"

#include "base/Files.h"
#include "run/jobs/ScriptJob.h"
#include "ui_MainWindow.h"

#include <QElapsedTimer>
#include <QEvent>
#include <QEventLoop>
#include <QFile>
#include <QProcess>

#include <ctime>

namespace dravolin::bench {

namespace {

const QString capturedName = QStringLiteral(".captured.sh");
const QString jobList = QStringLiteral("jobs.list");

void require(bool condition, const char *what)
{
    if (!condition)
        qFatal("%s", what);
}

// Of this process without its children.
double processorSeconds()
{
    timespec time = {};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

// Emptied last when a run ends, the status field's tooltip tells that it has.
class EndOfRun : public QObject
{
public:
    explicit EndOfRun(QWidget *status) : m_status(status) { status->installEventFilter(this); }
    void wait() { m_loop.exec(); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::ToolTipChange && m_status->toolTip().isEmpty())
            m_loop.quit();
        return false;
    }

private:
    QWidget *m_status;
    QEventLoop m_loop;
};

} // namespace

// Starts nothing; keeps what a run starts, with a copy of each script beside it.
class BenchApp::CapturingRunner : public JobRunner
{
public:
    QByteArray list; // for the native loop
    QStringList scriptFolders;

    [[nodiscard]] JobResult run(const Job &job) override
    {
        QStringList words = QStringList(job.executable) + job.arguments;
        if (const std::optional<QString> script = readText(joinPath(job.folder, scriptFileName))) {
            const QString copy = joinPath(job.folder, capturedName);
            require(writeText(copy, *script) && makeExecutable(copy), "a script could not be kept");
            words.last().replace(scriptFileName, capturedName);
            scriptFolders.append(job.folder);
        }
        for (const QString &word : QStringList(job.folder) + words)
            list += toBytes(word) + '\0';
        list += '\0';
        return {JobOutcome::Ran, {}};
    }
};

BenchApp::BenchApp(Tool tool)
{
    placeResources(tool);
    if (tool == Tool::Real)
        makeImage();
    start(m_jobs);
}

BenchApp::~BenchApp() = default;

QString BenchApp::path(const QString &relative) const
{
    return joinPath(m_folder.path(), relative);
}

void BenchApp::placeResources(Tool tool)
{
    for (const char *folder : {"resources", "Desktop", "support"})
        require(createFolder(path(QString::fromUtf8(folder))), "a folder could not be made");
    m_paths.resourceFolder = path(QStringLiteral("resources"));
    m_paths.applicationFolder = m_folder.path();
    m_paths.desktopFolder = path(QStringLiteral("Desktop"));
    m_paths.applicationSupportFolders = {path(QStringLiteral("support"))};
    const QString program = QString::fromUtf8(tool == Tool::Real ? REAL_TOOL : STUB_TOOL);
    require(QFile::link(program, m_paths.dcmodify()) &&
                QFile::link(QString::fromUtf8(REAL_DICTIONARY), m_paths.dictionary()) &&
                writeText(m_paths.resource(QStringLiteral("AnonymizationConfiguration.txt")),
                          QStringLiteral(
                              "0010,0030\tBirth date\n0010,0040\tSex\tO\n0008,0080\tInstitution\tHidden\n"
                              "0008,0090\tReferring physician\n0008,1030\tStudy description\n")),
            "the resources could not be made");
}

// The smallest images that scanners make: 128 x 128 pixels of 16 bits.
void BenchApp::makeImage()
{
    const QString dump = path(QStringLiteral("image.dump"));
    const std::optional<QString> attributes = readText(QString::fromUtf8(IMAGE_DUMP));
    require(attributes && writeText(dump, *attributes + QStringLiteral("(7fe0,0010) OW =pixels.raw\n")) &&
                writeText(path(QStringLiteral("pixels.raw")), QString(128 * 128 * 2, u'x')),
            "the image could not be described");
    QProcess tool;
    tool.setWorkingDirectory(m_folder.path());
    tool.start(QStringLiteral("dump2dcm"), {dump, QStringLiteral("image.dcm")});
    require(tool.waitForFinished() && tool.exitCode() == 0, "dump2dcm could not make an image");
    m_image = readBytes(path(QStringLiteral("image.dcm"))).value();
}

void BenchApp::start(JobRunner &jobs)
{
    Delays delays = {0, 0, 0, 0}; // without the pauses for the eye
    m_controller.reset();
    m_controller = std::make_unique<MainController>(AppPorts{m_paths, jobs, m_uuids, m_presenter, delays});
    m_controller->initAndShow();
    QCoreApplication::processEvents();
    m_controller->getConfigurationFilePathsAndPopulateButton();
    m_controller->controls().overWriteSourceCheckbox->setChecked(true);
    m_controller->controls().diagnosisTextField->setText(QStringLiteral("Carcinoma"));
    m_controller->controls().caseIDTextField->setText(QStringLiteral("42"));
    QCoreApplication::processEvents();
}

QString BenchApp::makeFolder(const QString &relative, int files)
{
    const QString folder = path(relative);
    require(createFolder(folder), "a folder could not be made");
    for (int i = 0; i < files; ++i) {
        QFile file(joinPath(folder, QStringLiteral("IM%1").arg(i, 5, 10, QChar(u'0'))));
        require(file.open(QIODevice::WriteOnly) && file.write(m_image) == m_image.size(),
                "a file could not be written");
    }
    return folder;
}

QString BenchApp::makeTree(const QString &name, int folders, int files)
{
    constexpr int group = 100;
    for (int i = 0; i < folders; ++i)
        makeFolder(QStringLiteral("%1/%2/%3").arg(name).arg(i / group).arg(i % group), files);
    return path(name);
}

double BenchApp::dropAndWait(const QStringList &paths)
{
    EndOfRun end(m_controller->controls().outputTextField);
    const double processorStart = processorSeconds();
    QElapsedTimer timer;
    timer.start();
    m_controller->handleDroppedPaths(paths);
    end.wait();
    const double seconds = static_cast<double>(timer.nsecsElapsed()) / 1e9;
    m_ownProcessorSeconds = processorSeconds() - processorStart;
    while (m_controller->runIsUnderWay())
        QCoreApplication::processEvents();
    return seconds;
}

double BenchApp::run(const QString &folder)
{
    return dropAndWait({folder});
}

int BenchApp::captureJobs(const QString &folder)
{
    CapturingRunner capturing;
    start(capturing);
    (void)dropAndWait({folder});
    start(m_jobs);
    m_scriptFolders = capturing.scriptFolders;
    QFile list(path(jobList));
    require(list.open(QIODevice::WriteOnly) && list.write(capturing.list) == capturing.list.size(),
            "the list of jobs could not be written");
    return static_cast<int>(m_scriptFolders.size());
}

double BenchApp::runNatively()
{
    for (const QString &folder : std::as_const(m_scriptFolders))
        removeFile(joinPath(folder, outputFileName)); // so that each script has to make it, as in a run
    QProcess loop;
    loop.start(QString::fromUtf8(NATIVE_LOOP), {path(jobList), m_paths.dictionary()});
    require(loop.waitForFinished(-1) && loop.exitCode() == 0, "the native loop failed");
    return loop.readAllStandardOutput().trimmed().toDouble();
}

std::unique_ptr<QApplication> makeApplication(int &argc, char **argv)
{
    static const QTemporaryDir home;
    qputenv("HOME", toBytes(home.path()));
    qputenv("XDG_CONFIG_HOME", toBytes(home.path()));
    qputenv("XDG_RUNTIME_DIR", toBytes(home.path()));
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "*.warning=false"); // of the off-screen platform
    return std::make_unique<QApplication>(argc, argv);
}

bool isWanted(const char *part)
{
    const QStringList arguments = QCoreApplication::arguments();
    return arguments.size() == 1 || arguments.contains(QString::fromUtf8(part));
}

} // namespace dravolin::bench
