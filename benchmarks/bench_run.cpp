// dravolin-cli run on small and large files: beside gdcmanon, and beside the window's scripts with their
// tools, which carry out the same edits. Each uses the cores that it can; our hashes and our journal are part
// of the time, and with "check" what its check takes beside it. The speeds are told best with scratch files
// in memory, where nobody waits for a disk; the check beside a run as it is with scratch files on a disk.
//
//   bench_run small | tree | medium | large | table | check ...
#include "Figures.h"
#include "NobodyThere.h"

#include "base/Files.h"
#include "config/ConfigurationFile.h"
#include "processing/FolderAnonymization.h"
#include "processing/LutPropagation.h"
#include "run/jobs/ScriptJob.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>

#include <cstdlib>

using namespace dravolin;
using bench::Figures;

namespace {

const QString rulesText = QStringLiteral("0008,0080\tInstitution\tHidden\n0008,0090\tReferring physician\n"
                                         "0008,1030\tStudy description\n0010,0030\tBirth date\n"
                                         "0010,0040\tSex\tO\n");

struct Set
{
    const char *word;
    const char *name;
    int folders;
    int files; // in each
    qsizetype size;
    int rounds;
    double besideTool; // limits
    double besideScripts;
    int scriptRounds;
};

constexpr Set sets[] = {
    {"small", "2,000 files of 10 KB in one folder", 1, 2000, 10'000, 5, 0.8, 0.4, 5},
    {"tree", "2,000 files of 10 KB in 400 folders", 400, 5, 10'000, 5, 0.8, 0.04, 1},
    {"medium", "300 files of 512 KB", 1, 300, 512 * 1024, 5, 0.6, 0.6, 5},
    {"large", "20 files of 50 MB", 1, 20, 50'000'000, 5, 0.35, 0.4, 5},
};

void require(bool done, const char *what)
{
    if (done)
        return;
    std::fprintf(stderr, "%s\n", what);
    std::exit(2);
}

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
    void measure(Figures &figures, const Set &set);
    void measureTable(Figures &figures);
    void measureCheck(Figures &figures, const Set &set);

private:
    [[nodiscard]] QString path(const QString &name) const { return m_scratch.filePath(name); }
    void makeFiles(const Set &set);
    void remove(const QStringList &names) const;
    void start(const QString &program, const QStringList &arguments);
    // without its check, whose time m_checkTime gets
    [[nodiscard]] double timeOfRun(const QString &list);
    [[nodiscard]] double timeOfTool();
    [[nodiscard]] double timeOfScripts(const Set &set);
    [[nodiscard]] double timeOfPropagation(int files);
    [[nodiscard]] QString folder(const QString &top, const Set &set, int number) const;

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

QString Bench::folder(const QString &top, const Set &set, int number) const
{
    return set.folders == 1 ? path(top)
                            : path(top) + QStringLiteral("/%1/%2").arg(number / 20).arg(number % 20);
}

// Each is an object of its own; its number stands in its header as well.
void Bench::makeFiles(const Set &set)
{
    const QByteArray number = "1234567";
    const qsizetype first = m_header.indexOf(number);
    const qsizetype second = m_header.lastIndexOf(number);
    const qsizetype pixels = set.size - m_header.size();
    require(first > 0 && pixels > 0, "the image could not be made");
    QByteArray length(4, '\0');
    qToLittleEndian(static_cast<quint32>(pixels), length.data());
    QByteArray image = m_header + QByteArray("\xe0\x7f\x10\x00OW\0\0", 8) + length + QByteArray(pixels, 'x');
    remove({QStringLiteral("in")});
    for (int i = 0; i < set.folders * set.files; ++i) {
        const QString target = folder(QStringLiteral("in"), set, i / set.files);
        require(createFolder(target), "a folder could not be made");
        for (const qsizetype at : {first, second})
            image.replace(at, number.size(), QByteArray::number(1'000'000 + i));
        QFile file(target + QStringLiteral("/IM%1").arg(i));
        require(file.open(QIODevice::WriteOnly) && file.write(image) == image.size(),
                "a file could not be written");
    }
}

double Bench::timeOfRun(const QString &list)
{
    remove({QStringLiteral("out"), QStringLiteral("run")});
    JobResult result;
    const double all = seconds([&] {
        result = m_jobs.run(
            {QStringLiteral(CLI),
             {QStringLiteral("run"), path(list), QStringLiteral("--folder"), path(QStringLiteral("run")),
              QStringLiteral("--keep-uids"), QStringLiteral("--keep-private")},
             m_scratch.path(),
             std::nullopt,
             true});
    });
    const QByteArray label = "The check took ";
    const qsizetype at = result.output.indexOf(label);
    // these few edits leave values to be found: status 1
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

// The scripts change their files where they lie.
double Bench::timeOfScripts(const Set &set)
{
    remove({QStringLiteral("work")});
    start(QStringLiteral("/bin/cp"),
          {QStringLiteral("-r"), path(QStringLiteral("in")), path(QStringLiteral("work"))});
    TagRules rules = parseConfiguration(rulesText);
    addFixedTags(rules, {QStringLiteral("Carcinoma"), QStringLiteral("42"), {}, {}}, QStringLiteral("1.2.3"));
    const QString command = anonymizationCommand(m_paths.dcmodify(), rules, {}).prefix +
                            QStringLiteral(" *") + anonymizationRedirections().only;
    return seconds([&] {
        for (int i = 0; i < set.folders; ++i) {
            const ScriptJobResult result =
                runScriptJob(m_jobs, m_paths, folder(QStringLiteral("work"), set, i), command);
            require(result.ran && result.output.isEmpty(), "the tool failed");
        }
    });
}

void Bench::measure(Figures &figures, const Set &set)
{
    makeFiles(set);
    std::vector<double> besideTool;
    std::vector<double> besideScripts;
    std::vector<double> own;
    for (int round = 0; round < set.rounds; ++round) {
        double tool = round % 2 == 0 ? timeOfTool() : 0;
        own.push_back(timeOfRun(QStringLiteral("list.csv")));
        tool = round % 2 == 0 ? tool : timeOfTool();
        besideTool.push_back(own.back() / tool);
        if (round < set.scriptRounds)
            besideScripts.push_back(own.back() / timeOfScripts(set));
    }
    std::printf("\n%s\n", set.name);
    Figures::note("  dravolin-cli run, median", bench::median(own), "s");
    figures.add("  beside gdcmanon", bench::median(besideTool), set.besideTool, "x");
    figures.add("  beside the window's scripts", bench::median(besideScripts), set.besideScripts, "x");
}

void Bench::measureCheck(Figures &figures, const Set &set)
{
    makeFiles(set);
    std::vector<double> ratios;
    for (int round = 0; round < set.rounds; ++round) {
        const double own = timeOfRun(QStringLiteral("list.csv"));
        ratios.push_back(m_checkTime / own);
    }
    std::printf("\n%s\n", set.name);
    figures.add("  the check beside the run", bench::median(ratios), 0.5, "x");
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
    bench::NobodyThere nobody;
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
    const Set &set = sets[0];
    makeFiles(set);
    std::vector<double> ratios;
    for (int round = 0; round < 3; ++round) {
        const double perFile = timeOfPropagation(propagated) / propagated;
        ratios.push_back(timeOfRun(QStringLiteral("tables.csv")) / set.files / perFile);
    }
    std::printf("\na table over 2,000 files\n");
    figures.add("  time a file beside the window's", bench::median(ratios), 0.01, "x", 5);
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments().sliced(1);
    Figures figures;
    Bench bench;
    for (const Set &set : sets) {
        if (words.contains(QLatin1String(set.word)))
            bench.measure(figures, set);
        if (words.contains(QStringLiteral("check")))
            bench.measureCheck(figures, set);
    }
    if (words.contains(QStringLiteral("table")))
        bench.measureTable(figures);
    return figures.exitCode();
}
