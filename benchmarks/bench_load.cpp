// Large drops and odd ones: the time and the most memory of the application, with a tool that does nothing.
//
//   bench_load [WHAT...]   folder, files, names, errors, tree: all of them when none is named; and large,
//   which
//                          is 100,000 folders
#include "BenchApp.h"
#include "Figures.h"

#include "base/Files.h"

#include <QElapsedTimer>
#include <QFile>

namespace {

using namespace dravolin;
using namespace dravolin::bench;

constexpr double mostMegabytes = 150; // of a run without long output
constexpr qsizetype longestName = 255;
constexpr qsizetype longPath = 4000; // bytes, scripts in the folder included

double peakMegabytes()
{
    const QByteArray status = readBytes(QStringLiteral("/proc/self/status")).value_or(QByteArray());
    const qsizetype at = status.indexOf("VmHWM:");
    return at < 0 ? 0 : status.sliced(at + 6).trimmed().split(' ').first().toDouble() / 1024;
}

void forgetPeak()
{
    QFile file(QStringLiteral("/proc/self/clear_refs"));
    if (file.open(QIODevice::WriteOnly))
        file.write("5");
}

class Load
{
public:
    explicit Load(Figures &figures) : m_figures(figures) {}

    // Drops `paths` and tells what the run cost.
    void drop(BenchApp &app, const char *what, const QStringList &paths, double megabytes = mostMegabytes)
    {
        forgetPeak();
        const double seconds = app.run(paths);
        std::printf("%s\n", what);
        Figures::note("  the run", seconds, "s", 2);
        Figures::note("  of it processor time of the application", app.ownProcessorSeconds(), "s", 2);
        m_figures.add("  most memory", peakMegabytes(), megabytes, "MB", 0);
    }

    void tree(int folders)
    {
        BenchApp app(Tool::Stub);
        const QByteArray what = QByteArray::number(folders) + " folders";
        drop(app, what.constData(), {app.makeTree(QStringLiteral("tree"), folders, 1)});
    }

    void folder(int files)
    {
        BenchApp app(Tool::Stub);
        const QByteArray what = "a folder of " + QByteArray::number(files) + " files";
        drop(app, what.constData(), {app.makeFolder(QStringLiteral("folder"), files)});
    }

    void files(int count)
    {
        BenchApp app(Tool::Stub);
        const QString folder = app.makeFolder(QStringLiteral("folder"), count);
        QStringList paths;
        for (const QString &name : listNames(folder))
            paths.append(joinPath(folder, name));
        const QByteArray what = QByteArray::number(count) + " files";
        drop(app, what.constData(), paths);
    }

    void longNames()
    {
        BenchApp app(Tool::Stub);
        const QString folder = app.makeFolder(QStringLiteral("folder"), 0);
        QStringList paths;
        for (int i = 0; i < 2000; ++i) {
            paths.append(joinPath(folder, QString::number(i).leftJustified(longestName, u'n')));
            if (!writeText(paths.last(), {}))
                qFatal("a file could not be made");
        }
        drop(app, "a folder of 2000 files with names of 255 bytes", {folder});
        drop(app, "2000 files with names of 255 bytes", paths);
    }

    void longPaths()
    {
        BenchApp app(Tool::Stub);
        const QString top = app.makeFolder(QStringLiteral("folder"), 10);
        QString folder = top;
        while (folder.size() + longestName + 1 + 20 < longPath)
            folder = joinPath(folder, QString(longestName, u'f'));
        folder = joinPath(folder, QString(longPath - folder.size() - 20, u'f'));
        if (!createFolder(folder) || !writeText(joinPath(folder, QStringLiteral("image")), {}))
            qFatal("a folder could not be made");
        drop(app, "a tree of folders down to a path of 4000 bytes", {top});
    }

    void errors(int megabytes)
    {
        BenchApp app(Tool::Stub);
        const QString tool = app.path(QStringLiteral("resources/dcmodify"));
        removeFile(tool); // the link
        const QString script = QStringLiteral("#!/bin/sh\n"
                                              "yes 'E: modifying tag in file IM000001: Invalid target tag!' |"
                                              " head -c ") +
                               QString::number(megabytes * 1'000'000) + QStringLiteral(" >&2\n");
        if (!writeText(tool, script) || !makeExecutable(tool))
            qFatal("the tool could not be made");
        const QByteArray what = QByteArray::number(megabytes) + " MB of errors in the log";
        drop(app, what.constData(), {app.makeFolder(QStringLiteral("folder"), 1)}, 600);
    }

private:
    Figures &m_figures;
};

} // namespace

int main(int argc, char *argv[])
{
    const auto application = makeApplication(argc, argv);
    Figures figures;
    Load load(figures);
    if (isWanted("folder"))
        load.folder(60'000);
    if (isWanted("files")) {
        load.files(513);
        load.files(20'000);
    }
    if (isWanted("names")) {
        load.longNames();
        load.longPaths();
    }
    if (isWanted("errors")) {
        load.errors(10);
        load.errors(100);
    }
    if (isWanted("tree"))
        load.tree(10'000);
    if (QCoreApplication::arguments().contains(QStringLiteral("large")))
        load.tree(100'000);
    return figures.exitCode();
}
