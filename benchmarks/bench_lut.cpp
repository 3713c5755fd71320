// Look-up tables beside the tools that everybody has: awk, sort and a shell loop.
//
//   bench_lut [ROUNDS]
#include "Figures.h"
#include "NobodyThere.h"

#include "app/MainController.h"
#include "base/Files.h"
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
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

using namespace dravolin;
using bench::Figures;
using bench::NobodyThere;

namespace {

constexpr int rowCount = 1000000;
constexpr int entryCount = 20000;
constexpr int imageCount = 300;

int rounds = 5;
Figures figures;

[[noreturn]] void fail(const char *what)
{
    std::fprintf(stderr, "%s\n", what);
    std::exit(2);
}

void write(const QString &path, const QString &text)
{
    if (!writeText(path, text))
        fail("a file of the benchmark could not be written");
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

// Processor time of this process and of the children that have ended.
double processorSeconds()
{
    double sum = 0;
    for (const auto who : {RUSAGE_SELF, RUSAGE_CHILDREN}) {
        rusage usage = {};
        ::getrusage(who, &usage);
        for (const timeval &time : {usage.ru_utime, usage.ru_stime})
            sum += static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    }
    return sum;
}

struct Times
{
    double wall = 0;
    double processor = 0;
};

template <typename Work>
Times timed(Work &&work)
{
    const double before = processorSeconds();
    QElapsedTimer timer;
    timer.start();
    work();
    return {static_cast<double>(timer.nsecsElapsed()) / 1e9, processorSeconds() - before};
}

// Runs both in turns, the order changing, and prints both times of each round and the median of their ratios;
// a limit of 0 is none. Other work on the machine moves the wall clock's ratio more than the processor
// time's.
template <typename Own, typename Other>
void compare(const QByteArray &what, double limit, Own &&own, Other &&others)
{
    std::vector<double> wall;
    std::vector<double> processor;
    for (int i = 0; i < rounds; ++i) {
        Times ownTimes;
        Times otherTimes;
        for (const bool ownTurn : {i % 2 == 0, i % 2 != 0})
            (ownTurn ? ownTimes : otherTimes) = ownTurn ? timed(own) : timed(others);
        wall.push_back(ownTimes.wall / otherTimes.wall);
        processor.push_back(ownTimes.processor / otherTimes.processor);
        std::printf("  %s: %.3f s and %.3f s\n", what.constData(), ownTimes.wall, otherTimes.wall);
    }
    if (limit > 0)
        figures.add(what.constData(), bench::median(wall), limit, "x");
    else
        Figures::note(what.constData(), bench::median(wall), "x");
    Figures::note("  the same in processor time", bench::median(processor), "x");
}

double statusBytes(const char *key)
{
    const QString status = fromBytes(readBytes(QStringLiteral("/proc/self/status")).value_or(QByteArray()));
    for (const QString &line : status.split(u'\n')) {
        if (line.startsWith(QString::fromUtf8(key)))
            return line.section(u':', 1).simplified().section(u' ', 0, 0).toDouble() * 1024;
    }
    return 0;
}

class Bench
{
public:
    Bench();
    void memoryOfATable();
    void loading();
    void construction(const char *locale);
    void discovery(int tables);
    void propagation();

private:
    [[nodiscard]] QString path(const char *name) const
    {
        return joinPath(m_folder.path(), QString::fromUtf8(name));
    }
    void makeImages(const QString &folder) const;
    QTemporaryDir m_folder;
    AppPaths m_paths;
    SharedRunState m_state;
    NobodyThere m_nobody;
    PosixJobRunner m_jobs;
    NOXUtils::RandomUuidSource m_uuids;
    RunContext m_context{m_state, m_paths, m_nobody, m_jobs, m_uuids};
};

Bench::Bench()
{
    m_paths.resourceFolder = path("resources");
    m_paths.applicationFolder = path("app");
    m_paths.desktopFolder = path("desktop");
    m_paths.applicationSupportFolders = {path("support")};
    if (!createFolder(m_paths.resourceFolder) || !createFolder(m_paths.desktopFolder))
        fail("the benchmark's folders could not be made");
    // distinct values of the usual length in no order
    QString values;
    QString table;
    for (int i = 0; i < rowCount; ++i) {
        const qint64 number = (i * qint64{7919}) % rowCount;
        const QString value =
            (number % 7 < 3 ? QStringLiteral("Pat-") : QStringLiteral("pAT-")) + QString::number(number * 31);
        values += value + u'\n';
        table += value + QStringLiteral("\t\tSubject_") + QString::number(i + 1) + u'\n';
    }
    write(path("values"), values);
    write(path("table"), table);
}

// In a child process, whose peak is nobody else's.
void Bench::memoryOfATable()
{
    std::fflush(stdout);
    if (::fork() == 0) {
        const double before = statusBytes("VmRSS");
        const std::optional<LutTable> table = loadLut(path("table"));
        const double file = static_cast<double>(readBytes(path("table")).value_or(QByteArray()).size());
        Figures own;
        own.add("memory of a row beyond the file, at the peak",
                (statusBytes("VmHWM") - before - file) / rowCount, 300, "bytes", 0);
        ::_exit(table ? own.exitCode() : 2);
    }
    int result = 0;
    ::wait(&result);
    if (result != 0)
        fail("a table of that size takes more memory than it may");
}

void Bench::loading()
{
    qsizetype rows = 0;
    const auto own = [&] { rows = loadLut(path("table")).value_or(LutTable()).size(); };
    const QString awk = QStringLiteral("awk -F'\\t' '{a[$1]=$NF}' ") + inQuotes(path("table"));
    compare("loading a table of 1,000,000 rows beside awk", 3, own, [&] { shell(awk); });
    if (rows != rowCount)
        fail("the table was not loaded");
}

void Bench::construction(const char *locale)
{
    QLocale::setDefault(QLocale(QString::fromUtf8(locale)));
    const QStringList values = readText(path("values")).value_or(QString()).split(u'\n', Qt::SkipEmptyParts);
    m_state.set(&RunState::LUTtagSet, QSet<QString>(values.cbegin(), values.cend()));
    const QString written = joinPath(m_paths.desktopFolder, QStringLiteral("AnonymizationLUT_XX.txt"));
    const auto own = [&] {
        removeFile(written);
        writeConstructedLut(m_context, {});
    };
    const QString sort =
        QStringLiteral("sort -f %1 -o %2").arg(inQuotes(path("values")), inQuotes(path("sorted")));
    compare(QByteArray("sorting and writing 1,000,000 values (") + locale + ") beside sort -f", 5, own,
            [&] { shell(sort); });
    if (loadLut(written).value_or(LutTable()).size() != rowCount + 1)
        fail("the table was not written");
    m_state.set(&RunState::LUTtagSet, QSet<QString>());
}

// With the window's own pop-up, as long as the main thread is held.
void Bench::discovery(int tables)
{
    const QTemporaryDir desktop;
    for (int i = 0; i < entryCount; ++i)
        write(
            joinPath(desktop.path(), (i < tables ? QStringLiteral("AnonymizationLUT_Study %1.txt")
                                                 : QStringLiteral("Some document of the user, number %1.txt"))
                                         .arg(i)),
            QString());
    AppPaths paths = m_paths;
    paths.desktopFolder = desktop.path();
    MessageBoxPresenter presenter;
    MainController controller(AppPorts{paths, m_jobs, m_uuids, presenter, Delays()});
    controller.window().show();
    double longest = 0;
    for (int i = 0; i < rounds; ++i) {
        const Times times = timed([&] {
            controller.getLUTpathsAndPopulateButton();
            QApplication::processEvents();
        });
        longest = std::max(longest, times.wall);
        if (controller.controls().selectLUTpopupButton->count() != tables + 1)
            fail("the tables were not found");
    }
    figures.add(
        ("finding " + QByteArray::number(tables) + " tables among 20,000 entries, at most").constData(),
        longest * 1000, 100, "ms", 1);
}

void Bench::makeImages(const QString &folder) const
{
    const QString link = QStringLiteral("ln -s %1 %2");
    shell(link.arg(QStringLiteral(DRAVOLIN_DCMODIFY), inQuotes(m_paths.dcmodify())));
    shell(link.arg(QStringLiteral(DRAVOLIN_DCMDUMP), inQuotes(m_paths.dcmdump())));
    shell(link.arg(QStringLiteral(DRAVOLIN_DICOM_DIC), inQuotes(m_paths.dictionary())));
    write(path("image.dump"), QStringLiteral("(0002,0010) UI =LittleEndianExplicit\n"
                                             "(0008,0016) UI =CTImageStorage\n(0008,0018) UI [1.2.3.4]\n"
                                             "(0010,1000) LO [PAT123]\n"));
    shell(QStringLiteral("dump2dcm -q %1 %2").arg(inQuotes(path("image.dump")), inQuotes(path("image.dcm"))));
    for (int i = 0; i < imageCount; ++i) {
        if (!copyFile(path("image.dcm"), joinPath(folder, QStringLiteral("image%1.dcm").arg(i))))
            fail("an image could not be made");
    }
}

// Beside a loop that starts for each file the search and a shell with a script, and, for what the scripts
// cost, beside one that starts the two tools alone.
void Bench::propagation()
{
    const QString folder = path("images");
    if (!createFolder(folder))
        fail("the folder of images could not be made");
    makeImages(folder);
    const QString search =
        m_paths.dcmdump() + QStringLiteral(" -M -Un +E -s --search 0010,1000 \"$f\" >/dev/null");
    const QString modify =
        m_paths.dcmodify() + QStringLiteral(" -ie -nb -m \"(0010,1000)=PAT123\" \"$f\" >.noxTemp.out 2>&1");
    write(path("same.sh"), QStringLiteral("export f\nfor f in *; do %1; echo '#!/bin/sh\n%2' >.noxTemp.sh; "
                                          "/bin/sh -c '\"./.noxTemp.sh\"'; done\n")
                               .arg(search, modify));
    write(path("bare.sh"), QStringLiteral("for f in *; do %1; %2; done\n").arg(search, modify));

    m_state.set(&RunState::selectedLUTdict, LutTable{{QStringLiteral("PAT123"), QStringLiteral("PAT123")}});
    RunOptions options;
    options.theLUTtag = QStringLiteral("0010,1000");
    const auto own = [&] {
        m_state.set(&RunState::numLUTadaptedFiles, quint64{0});
        propagateThroughTree(m_context, folder, options);
    };
    const auto loop = [&](const char *name) {
        const QString script = joinPath(folder, QStringLiteral(".noxTemp.sh"));
        write(script, QString()); // made executable once; the loop replaces its text
        (void)makeExecutable(script);
        shell(QStringLiteral("cd %1 && env -i DCMDICTPATH=%2 /bin/sh ../%3")
                  .arg(inQuotes(folder), inQuotes(m_paths.dictionary()), QString::fromUtf8(name)));
    };
    compare("propagation over 300 files beside the same processes", 1.05, own, [&] { loop("same.sh"); });
    compare("propagation over 300 files beside the tools alone", 0, own, [&] { loop("bare.sh"); });
    if (m_state.get(&RunState::numLUTadaptedFiles) != imageCount)
        fail("not every file was changed");
}

} // namespace

int main(int argc, char *argv[])
{
    ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
    const QApplication application(argc, argv);
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
    return figures.exitCode();
}
