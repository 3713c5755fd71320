// What the application adds to the time of what it starts: a run beside the same scripts and the same search
// for DICOMDIR files started one after another by a small native loop, on the same data, in turn. Arguments:
// folder, tree or stub measure one kind only; large measures 100000 folders.
#include "BenchApp.h"
#include "Figures.h"

#include <algorithm>

namespace {

using namespace dravolin;
using namespace dravolin::bench;

struct Pairs
{
    std::vector<double> application; // seconds
    std::vector<double> native;
    std::vector<double> ratios;       // of neighbours
    std::vector<double> ownProcessor; // seconds
    int jobs = 0;
};

// Application and native loop in turn, each first every other time, after one round to warm up if there are
// more.
Pairs measure(BenchApp &app, const QString &folder, int rounds)
{
    Pairs pairs;
    pairs.jobs = app.captureJobs(folder);
    for (int round = rounds > 1 ? 0 : 1; round <= rounds; ++round) {
        double run = 0;
        if (round % 2 == 0)
            run = app.run(folder);
        const double loop = app.runNatively();
        if (round % 2 == 1)
            run = app.run(folder);
        if (round == 0)
            continue;
        pairs.application.push_back(run);
        pairs.native.push_back(loop);
        pairs.ownProcessor.push_back(app.ownProcessorSeconds());
        pairs.ratios.push_back(run / loop);
    }
    return pairs;
}

void report(Figures &figures, const char *name, const Pairs &pairs, double limit)
{
    const auto fastest = [](const std::vector<double> &times) {
        return *std::min_element(times.begin(), times.end());
    };
    const double own = median(pairs.application) - median(pairs.native);
    const double ownFastest = fastest(pairs.application) - fastest(pairs.native);
    std::printf("\n%s (%zu pairs)\n", name, pairs.ratios.size());
    Figures::note("  application, median", median(pairs.application), "s");
    Figures::note("  native loop, median", median(pairs.native), "s");
    Figures::note("  the application's own time a job, median", own * 1000 / pairs.jobs, "ms");
    Figures::note("  the application's own time a job, fastest", ownFastest * 1000 / pairs.jobs, "ms");
    Figures::note("  the application's own processor time a job",
                  median(pairs.ownProcessor) * 1000 / pairs.jobs, "ms");
    Figures::note("  ratio of the fastest", fastest(pairs.application) / fastest(pairs.native), "");
    figures.add("  ratio, median of pairs", median(pairs.ratios), limit, "");
}

void measureFolder(Figures &figures, int rounds)
{
    BenchApp app(Tool::Real);
    const QString folder = app.makeFolder(QStringLiteral("study"), 2000);
    report(figures, "one folder of 2000 files, dcmodify", measure(app, folder, rounds), 1.02);
}

void measureTree(Figures &figures, int rounds)
{
    BenchApp app(Tool::Real);
    const QString tree = app.makeTree(QStringLiteral("tree"), 400, 5);
    report(figures, "400 folders of 5 files, dcmodify", measure(app, tree, rounds), 1.03);
}

void measureStub(Figures &figures, int folders, int rounds)
{
    BenchApp app(Tool::Stub);
    const QString tree = app.makeTree(QStringLiteral("tree"), folders, 1);
    const QByteArray name = QByteArray::number(folders) + " folders, a tool that does nothing";
    report(figures, name.constData(), measure(app, tree, rounds), 1.15);
}

} // namespace

int main(int argc, char *argv[])
{
    const auto application = makeApplication(argc, argv);
    Figures figures;
    if (isWanted("folder"))
        measureFolder(figures, 15);
    if (isWanted("tree"))
        measureTree(figures, 5);
    if (isWanted("stub")) {
        measureStub(figures, 10, 51);
        measureStub(figures, 100, 21);
        measureStub(figures, 1000, 7);
        measureStub(figures, 10'000, 1);
    }
    if (QCoreApplication::arguments().contains(QStringLiteral("large")))
        measureStub(figures, 100'000, 1);
    return figures.exitCode();
}
