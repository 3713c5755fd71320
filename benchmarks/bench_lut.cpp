// Look-up tables against the tools that everybody has: awk, sort and a shell loop. Prints both times of each
// round side by side and the median of their ratios.
//
//   bench_lut [ROUNDS]
#include "app/MainController.h"
#include "config/FileSystem.h"
#include "config/LutFile.h"
#include "processing/LutConstruction.h"
#include "processing/LutPropagation.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

using namespace dravolin;

namespace {

constexpr int rowCount = 1000000;
constexpr int entryCount = 20000;
constexpr int imageCount = 300;

int rounds = 5;

[[noreturn]] void fail(const char *what)
{
    std::fprintf(stderr, "%s\n", what);
    std::exit(1);
}

void shell(const QString &command)
{
    if (std::system(toBytes(command).constData()) != 0)
        fail("a command of the benchmark failed");
}

QString inQuotes(const QString &path)
{
    return u'\'' + path + u'\'';
}

template <typename Work>
double seconds(Work &&work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e9;
}

// Runs both in turns, the order changing, and prints them.
template <typename Own, typename Other>
void compare(const char *what, const char *other, double limit, Own &&own, Other &&others)
{
    std::vector<double> ratios;
    for (int i = 0; i < rounds; ++i) {
        double ownTime = 0;
        double otherTime = 0;
        for (const bool ownTurn : {i % 2 == 0, i % 2 != 0})
            (ownTurn ? ownTime : otherTime) = ownTurn ? seconds(own) : seconds(others);
        ratios.push_back(ownTime / otherTime);
        std::printf("%-42s %8.3f s   %s %8.3f s   ratio %6.3f\n", what, ownTime, other, otherTime,
                    ratios.back());
        std::fflush(stdout);
    }
    std::sort(ratios.begin(), ratios.end());
    std::printf("%-42s median ratio %.3f, at most %.2f wanted\n\n", what, ratios.at(ratios.size() / 2),
                limit);
}

// A window that shows nothing.
class NoWindow : public RunHost
{
public:
    Qt::CheckState checkState(CheckBox) override { return Qt::Unchecked; }
    QString text(TextField) override { return {}; }
    void setText(TextField, const QString &) override {}
    void setRootValidity(const QString &) override {}
    QString selectedConfigTitle() override { return {}; }
    PopupSelection selectedLUT() override { return {}; }
    void setStatus(const QString &) override {}
    void setStatusToolTip(const QString &) override {}
    void setEnabled(Control, bool) override {}
    void setSpinning(bool) override {}
    void showSeparator() override {}
    void setProgress(double) override {}
    void setProgressVisible(bool) override {}
    void growWindow(int, std::function<void()>) override {}
    void setLUTTitles(const QStringList &) override {}
    void showSheet(const AlertSheet &) override {}
    AlertButton runModalAlert(const ModalAlert &) override { return AlertButton::Default; }
    void scheduleLogWindow(const QString &) override {}
    void closeMainWindow() override {}
};

class Bench
{
public:
    Bench();
    void loading();
    void memoryOfATable();
    void discovery(int tables);
    void construction(const char *locale);
    void propagation();

private:
    [[nodiscard]] QString path(const char *name) const
    {
        return joinPath(m_folder.path(), QString::fromUtf8(name));
    }
    QTemporaryDir m_folder;
    AppPaths m_paths;
    SharedRunState m_state;
    NoWindow m_window;
    PosixJobRunner m_jobs;
    NOXUtils::RandomUuidSource m_uuids;
    Delays m_delays;
    RunContext m_context{m_state, m_paths, m_window, m_jobs, m_uuids, m_delays};
    QString m_values;
    QString m_table;
};

Bench::Bench()
{
    m_paths.resourceFolder = path("resources");
    m_paths.applicationFolder = path("app");
    m_paths.desktopFolder = path("desktop");
    m_paths.applicationSupportFolders = {path("support")};
    for (const QString &folder : {m_paths.resourceFolder, m_paths.desktopFolder})
        (void)createFolder(folder);
    // distinct values in no order, of the usual length
    for (int i = 0; i < rowCount; ++i) {
        const qint64 number = (i * qint64{7919}) % rowCount;
        const QString value = QStringLiteral("%1-%2").arg(
            number % 7 < 3 ? QStringLiteral("Pat") : QStringLiteral("pAT"), QString::number(number * 31));
        m_values += value + u'\n';
        m_table +=
            value + QStringLiteral("\t\t") + QStringLiteral("Subject_") + QString::number(i + 1) + u'\n';
    }
    if (!writeText(path("values"), m_values) || !writeText(path("table"), m_table))
        fail("no room for the benchmark's files");
}

void Bench::loading()
{
    qsizetype rows = 0;
    compare(
        "loading a table of 1,000,000 rows", "awk", 3,
        [&] {
            const std::optional<LutTable> table = loadLut(path("table"));
            rows = table ? table->size() : 0;
        },
        [&] { shell(QStringLiteral("awk -F'\\t' '{a[$1]=$NF}' ") + inQuotes(path("table"))); });
    if (rows != rowCount)
        fail("the table was not loaded");
}

// In a child process, whose peak is nobody else's.
void Bench::memoryOfATable()
{
    std::fflush(stdout);
    const auto status = [](const char *key) {
        for (const QString &line :
             fromBytes(readBytes(QStringLiteral("/proc/self/status")).value_or(QByteArray())).split(u'\n')) {
            if (line.startsWith(QString::fromUtf8(key)))
                return line.section(u':', 1).simplified().section(u' ', 0, 0).toDouble() * 1024;
        }
        return 0.0;
    };
    if (::fork() == 0) {
        const double before = status("VmRSS");
        const std::optional<LutTable> table = loadLut(path("table"));
        const double file = static_cast<double>(toBytes(m_table).size());
        std::printf(
            "memory of that table: %.0f bytes a row beyond the file at the peak, %.0f bytes a row kept; "
            "below 300 wanted\n\n",
            (status("VmHWM") - before - file) / rowCount, (status("VmRSS") - before) / rowCount);
        std::fflush(stdout);
        ::_exit(table ? 0 : 1);
    }
    ::wait(nullptr);
}

void Bench::discovery(int tables)
{
    QTemporaryDir desktop;
    for (int i = 0; i < entryCount; ++i) {
        const QString name = (i < tables ? QStringLiteral("AnonymizationLUT_Study %1.txt")
                                         : QStringLiteral("Some document of the user, number %1.txt"))
                                 .arg(i);
        (void)writeText(joinPath(desktop.path(), name), QString());
    }
    AppPaths paths = m_paths;
    paths.desktopFolder = desktop.path();
    MessageBoxPresenter presenter;
    MainController controller(AppPorts{paths, m_jobs, m_uuids, presenter, m_delays});
    controller.window().show();
    double longest = 0;
    for (int i = 0; i < rounds; ++i) {
        longest = std::max(longest, seconds([&] {
                               controller.getLUTpathsAndPopulateButton();
                               QApplication::processEvents();
                           }));
        if (controller.controls().selectLUTpopupButton->count() != tables + 1)
            fail("the tables were not found");
    }
    std::printf("discovery among %d entries, %d of them tables: %.1f ms at most; 100 wanted\n\n", entryCount,
                tables, longest * 1000);
}

void Bench::construction(const char *locale)
{
    QLocale::setDefault(QLocale(QString::fromUtf8(locale)));
    const QStringList values = m_values.split(u'\n', Qt::SkipEmptyParts);
    m_state.set(&RunState::LUTtagSet, QSet<QString>(values.cbegin(), values.cend()));
    const QString written = joinPath(m_paths.desktopFolder, QStringLiteral("AnonymizationLUT_XX.txt"));
    const QByteArray what = QByteArray("sorting and writing 1,000,000 values, ") + locale;
    compare(
        what.constData(), "sort", 5,
        [&] {
            removeFile(written);
            writeConstructedLut(m_context, {});
        },
        [&] {
            shell(QStringLiteral("sort -f %1 -o %2").arg(inQuotes(path("values")), inQuotes(path("sorted"))));
        });
    if (loadLut(written).value_or(LutTable()).size() != rowCount + 1)
        fail("the table was not written");
    m_state.set(&RunState::LUTtagSet, QSet<QString>());
}

void Bench::propagation()
{
    const QString link = QStringLiteral("ln -s ");
    shell(link + QStringLiteral(DRAVOLIN_DCMODIFY) + u' ' + inQuotes(m_paths.dcmodify()));
    shell(link + QStringLiteral(DRAVOLIN_DCMDUMP) + u' ' + inQuotes(m_paths.dcmdump()));
    shell(link + QStringLiteral(DRAVOLIN_DICOM_DIC) + u' ' + inQuotes(m_paths.dictionary()));
    const QString folder = path("images");
    (void)createFolder(folder);
    (void)writeText(path("image.dump"),
                    QStringLiteral("(0002,0010) UI =LittleEndianExplicit\n"
                                   "(0008,0016) UI =CTImageStorage\n(0008,0018) UI [1.2.3.4]\n"
                                   "(0010,1000) LO [PAT123]\n"));
    shell(QStringLiteral("dump2dcm -q %1 %2").arg(inQuotes(path("image.dump")), inQuotes(path("image.dcm"))));
    for (int i = 0; i < imageCount; ++i)
        (void)copyFile(path("image.dcm"), joinPath(folder, QStringLiteral("image%1.dcm").arg(i)));
    m_state.set(&RunState::selectedLUTdict, LutTable{{QStringLiteral("PAT123"), QStringLiteral("PAT123")}});
    RunOptions options;
    options.theLUTtag = QStringLiteral("0010,1000");
    (void)writeText(
        path("loop.sh"),
        QStringLiteral("for f in *; do %1 -M -Un +E -s --search 0010,1000 \"$f\" >/dev/null; %2 -ie -nb -m "
                       "\"(0010,1000)=PAT123\" \"$f\" >.noxTemp.out 2>&1; done\n")
            .arg(m_paths.dcmdump(), m_paths.dcmodify()));
    compare(
        "propagation over 300 files", "shell loop", 1.05,
        [&] {
            m_state.set(&RunState::numLUTadaptedFiles, quint64{0});
            (void)propagateThroughTree(m_context, folder, options);
        },
        [&] {
            shell(QStringLiteral("cd %1 && env -i DCMDICTPATH=%2 /bin/sh ../loop.sh")
                      .arg(inQuotes(folder), inQuotes(m_paths.dictionary())));
        });
    if (m_state.get(&RunState::numLUTadaptedFiles) != imageCount)
        fail("not every file was changed");
}

} // namespace

int main(int argc, char *argv[])
{
    ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QApplication application(argc, argv);
    if (argc > 1)
        rounds = std::max(1, std::atoi(argv[1]));
    Bench bench;
    bench.memoryOfATable();
    bench.loading();
    bench.construction("C");
    bench.construction("en_US");
    bench.discovery(0);
    bench.discovery(100);
    bench.discovery(entryCount);
    bench.propagation();
    return 0;
}
