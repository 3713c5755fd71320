// dravolin-cli run on small and large files: beside gdcmanon, and beside the window's scripts with their
// tools, which carry out the same edits. All leave the sources as they are: gdcmanon writes copies, and the
// scripts get a copy that they change, made by cp within their time; the figure without it is told as well.
// Each uses the cores that it can; our hashes and our journal are part of the time, and with "check" what its
// check takes beside it, when it finds nothing and when it finds a lot in every file. The speeds are told
// best with scratch files in memory, where nobody waits for a disk; the check beside a run as it is with
// scratch files on a disk.
//
//   bench_run small | tree | medium | large | table | check ...
#include "Figures.h"
#include "NobodyThere.h"
#include "RunFiles.h"

#include "base/Files.h"
#include "config/ConfigurationFile.h"
#include "processing/FolderAnonymization.h"
#include "processing/LutPropagation.h"
#include "run/jobs/ScriptJob.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <cstdlib>

using namespace dravolin;
using namespace dravolin::bench;

namespace {

const QString rulesText = QStringLiteral("0008,0080\tInstitution\tHidden\n0008,0090\tReferring physician\n"
                                         "0008,1030\tStudy description\n0010,0030\tBirth date\n"
                                         "0010,0040\tSex\tO\n");

// as the tools have it: nothing but the edits
const QStringList onlyEdits = {QStringLiteral("--keep-uids"), QStringLiteral("--keep-private")};

constexpr RunSet sets[] = {
    {"small", "2,000 files of 10 KB in one folder", 1, 2000, 10'000, 5, 0.8, 0.4, 5},
    {"tree", "2,000 files of 10 KB in 400 folders", 400, 5, 10'000, 5, 0.8, 0.04, 1},
    {"medium", "300 files of 512 KB", 1, 300, 512 * 1024, 5, 0.6, 0.6, 5},
    {"large", "20 files of 50 MB", 1, 20, 50'000'000, 5, 0.35, 0.4, 5},
};

template <typename Work>
double seconds(Work &&work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e9;
}

class Bench
{
public:
    Bench();
    void measure(Figures &figures, const RunSet &set);
    void measureTable(Figures &figures);
    void measureCheck(Figures &figures, const RunSet &set);

private:
    [[nodiscard]] QString path(const QString &name) const { return m_scratch.filePath(name); }
    void makeFiles(const RunSet &set);
    void remove(const QStringList &names) const;
    void start(const QString &program, const QStringList &arguments);
    // without its check, whose time m_checkTime gets
    [[nodiscard]] double timeOfRun(const QString &list, const QStringList &options);
    [[nodiscard]] double timeOfTool();
    struct ScriptTimes
    {
        double copy = 0;
        double changes = 0;
    };
    [[nodiscard]] ScriptTimes timeOfScripts(const RunSet &set);
    [[nodiscard]] double timeOfPropagation(int files);

    QTemporaryDir m_scratch;
    AppPaths m_paths;
    PosixJobRunner m_jobs;
    QByteArray m_header; // a file without pixels
    double m_checkTime = 0;
};

Bench::Bench()
{
    m_paths.resourceFolder = QStringLiteral(RESOURCES);
    start(QStringLiteral(DUMP2DCM), {QStringLiteral(DATA "/mr.dump"), path(QStringLiteral("header"))});
    m_header = readBytes(path(QStringLiteral("header"))).value_or(QByteArray());
    const QString head = QStringLiteral("source,destination,case_id,diagnosis,configuration,table\n");
    require(
        writeText(path(QStringLiteral("rules.txt")), rulesText) &&
            writeText(path(QStringLiteral("table.txt")),
                      QStringLiteral("0018,1030\tProtocol\t<LUT_Bench>\n")) &&
            writeText(path(QStringLiteral("AnonymizationLUT_Bench.txt")),
                      QStringLiteral("<missing>\tnone\nt1_se_tra\tProtocol_1\n")) &&
            writeText(path(QStringLiteral("list.csv")),
                      head + QStringLiteral("in,out,42,Carcinoma,rules.txt,\n")) &&
            writeText(
                path(QStringLiteral("default.csv")),
                head +
                    QStringLiteral("in,out,42,Carcinoma,%1,\n").arg(QStringLiteral(DEFAULT_CONFIGURATION))) &&
            writeText(path(QStringLiteral("tables.csv")),
                      head + QStringLiteral("in,out,42,Carcinoma,table.txt,AnonymizationLUT_Bench.txt\n")),
        "the lists could not be written");
}

void Bench::start(const QString &program, const QStringList &arguments)
{
    const JobResult result = m_jobs.run({program, arguments, m_scratch.path(), std::nullopt, true});
    if (result.outcome != JobOutcome::Ran || result.exitStatus != 0)
        std::fprintf(stderr, "%s\n", result.output.constData());
    require(result.outcome == JobOutcome::Ran && result.exitStatus == 0, "a program failed");
}

void Bench::remove(const QStringList &names) const
{
    for (const QString &name : names)
        QDir(path(name)).removeRecursively();
}

void Bench::makeFiles(const RunSet &set)
{
    remove({QStringLiteral("in")});
    makeRunFiles(set, m_header, path(QStringLiteral("in")));
}

double Bench::timeOfRun(const QString &list, const QStringList &options)
{
    remove({QStringLiteral("out"), QStringLiteral("run")});
    JobResult result;
    const double all = seconds([&] {
        result = m_jobs.run({QStringLiteral(CLI),
                             QStringList{QStringLiteral("run"), path(list), QStringLiteral("--folder"),
                                         path(QStringLiteral("run"))} +
                                 options,
                             m_scratch.path(), std::nullopt, true});
    });
    const QByteArray label = "The check took ";
    const qsizetype at = result.output.indexOf(label);
    // a few edits leave values to be found: status 1
    require(result.outcome == JobOutcome::Ran && result.exitStatus < 2 && at >= 0, "the run failed");
    const QByteArray number = result.output.mid(at + label.size());
    m_checkTime = number.first(number.indexOf(' ')).toDouble();
    return all - m_checkTime;
}

double Bench::timeOfTool()
{
    QStringList arguments = {QStringLiteral("--dumb"),   QStringLiteral("-r"), QStringLiteral("-i"),
                             path(QStringLiteral("in")), QStringLiteral("-o"), path(QStringLiteral("out"))};
    for (const char *tag : {"8,50", "8,90", "8,1030", "10,30", "32,4000"})
        arguments += {QStringLiteral("--remove"), QString::fromLatin1(tag)};
    for (const char *value : {"8,80=Hidden", "10,10=Carcinoma", "10,20=42", "10,40=O"})
        arguments += {QStringLiteral("--replace"), QString::fromLatin1(value)};
    remove({QStringLiteral("out")});
    require(createFolder(path(QStringLiteral("out"))), "a folder could not be made");
    return seconds([&] { start(QStringLiteral(GDCMANON), arguments); });
}

Bench::ScriptTimes Bench::timeOfScripts(const RunSet &set)
{
    remove({QStringLiteral("work")});
    ScriptTimes times;
    times.copy = seconds([this] {
        start(QStringLiteral("/bin/cp"),
              {QStringLiteral("-r"), path(QStringLiteral("in")), path(QStringLiteral("work"))});
    });
    TagRules rules = parseConfiguration(rulesText);
    addFixedTags(rules, {QStringLiteral("Carcinoma"), QStringLiteral("42"), {}, {}}, QStringLiteral("1.2.3"));
    const QString command = anonymizationCommand(m_paths.dcmodify(), rules, {}).prefix +
                            QStringLiteral(" *") + anonymizationRedirections().only;
    times.changes = seconds([&] {
        for (int i = 0; i < set.folders; ++i) {
            const ScriptJobResult result =
                runScriptJob(m_jobs, m_paths, folderOf(set, path(QStringLiteral("work")), i), command);
            require(result.ran && result.output.isEmpty(), "the tool failed");
        }
    });
    return times;
}

void Bench::measure(Figures &figures, const RunSet &set)
{
    makeFiles(set);
    std::vector<double> besideTool;
    std::vector<double> besideScripts;
    std::vector<double> besideChanges;
    std::vector<double> own;
    for (int round = 0; round < set.rounds; ++round) {
        double tool = round % 2 == 0 ? timeOfTool() : 0;
        own.push_back(timeOfRun(QStringLiteral("list.csv"), onlyEdits));
        tool = round % 2 == 0 ? tool : timeOfTool();
        besideTool.push_back(own.back() / tool);
        if (round >= set.scriptRounds)
            continue;
        const ScriptTimes scripts = timeOfScripts(set);
        besideScripts.push_back(own.back() / (scripts.copy + scripts.changes));
        besideChanges.push_back(own.back() / scripts.changes);
    }
    std::printf("\n%s\n", set.name);
    Figures::note("  dravolin-cli run, median", median(own), "s");
    figures.add("  beside gdcmanon", median(besideTool), set.besideTool, "x");
    figures.add("  beside the window's scripts on a copy", median(besideScripts), set.besideScripts, "x");
    Figures::note("  beside the scripts without the copy", median(besideChanges), "x");
}

void Bench::measureCheck(Figures &figures, const RunSet &set)
{
    makeFiles(set);
    std::vector<double> findsNothing;
    std::vector<double> findsMuch;
    for (int round = 0; round < set.rounds; ++round) {
        double own = timeOfRun(QStringLiteral("default.csv"), {});
        findsNothing.push_back(m_checkTime / own);
        own = timeOfRun(QStringLiteral("list.csv"), onlyEdits);
        findsMuch.push_back(m_checkTime / own);
    }
    std::printf("\n%s\n", set.name);
    figures.add("  the check beside the run, nothing found", median(findsNothing), 0.5, "x");
    figures.add("  the same with findings in every file", median(findsMuch), 0.5, "x");
}

double Bench::timeOfPropagation(int files)
{
    remove({QStringLiteral("work")});
    QStringList names = QDir(path(QStringLiteral("in"))).entryList(QDir::Files);
    names = names.first(files);
    require(createFolder(path(QStringLiteral("work"))), "a folder could not be made");
    for (const QString &name : names)
        require(copyFile(path(QStringLiteral("in/") + name), path(QStringLiteral("work/") + name)),
                "a file could not be copied");
    SharedRunState state;
    NobodyThere nobody;
    NOXUtils::RandomUuidSource uuids;
    state.set(&RunState::selectedLUTdict,
              LutTable{{QStringLiteral("t1_se_tra"), QStringLiteral("Protocol_1")}});
    RunOptions options;
    options.theLUTtag = QStringLiteral("0018,1030");
    const double time = seconds([&] {
        (void)propagateThroughFiles({state, m_paths, nobody, m_jobs, uuids}, names,
                                    path(QStringLiteral("work")), options);
    });
    require(state.get(&RunState::numLUTadaptedFiles) == static_cast<quint64>(files),
            "not every file was changed");
    return time;
}

void Bench::measureTable(Figures &figures)
{
    constexpr int propagated = 100;
    const RunSet &set = sets[0];
    makeFiles(set);
    std::vector<double> ratios;
    for (int round = 0; round < 3; ++round) {
        const double perFile = timeOfPropagation(propagated) / propagated;
        ratios.push_back(timeOfRun(QStringLiteral("tables.csv"), onlyEdits) / set.files / perFile);
    }
    std::printf("\na table over 2,000 files\n");
    figures.add("  time a file beside the window's", median(ratios), 0.01, "x", 5);
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments().sliced(1);
    Figures figures;
    Bench bench;
    for (const RunSet &set : sets) {
        if (words.contains(QLatin1String(set.word)))
            bench.measure(figures, set);
        if (words.contains(QStringLiteral("check")))
            bench.measureCheck(figures, set);
    }
    if (words.contains(QStringLiteral("table")))
        bench.measureTable(figures);
    return figures.exitCode();
}
