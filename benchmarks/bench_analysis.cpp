// How long judging the tools' output takes, on large outputs of several kinds.
#include "Figures.h"
#include "run/OutputAnalysis.h"

#include <functional>

namespace {

using namespace dravolin;

constexpr qsizetype largeOutput = 50'000'000; // bytes of tool output; all of it is ASCII

// Lines of `line` (given its number) up to that size.
QString outputOf(const std::function<QString(int)> &line)
{
    QString output;
    output.reserve(largeOutput + 200);
    for (int i = 0; output.size() < largeOutput; ++i)
        output += line(i);
    return output;
}

QString error(int i)
{
    return QStringLiteral("E: modifying tag in file IM%1.dcm: Invalid target tag!\n")
        .arg(i, 6, 10, QChar(u'0'));
}

QString folderLine(int i)
{
    return QStringLiteral("E: unable to load file Series_%1: No such file or directory\n").arg(i % 1000);
}

double secondsFor(const RunReport &report)
{
    std::vector<double> times;
    for (int round = 0; round < 9; ++round) {
        const double start = bench::threadProcessorSeconds();
        const RunJudgement judgement = judgeOutput(report);
        times.push_back(bench::threadProcessorSeconds() - start);
        if (judgement.summary.isEmpty())
            std::abort();
    }
    return bench::median(times);
}

QStringList folderNames(int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i)
        names.append(QStringLiteral("series_%1").arg(i));
    return names;
}

} // namespace

int main()
{
    bench::Figures figures;
    const auto measure = [&figures](const char *name, const QString &output, int folders) {
        RunReport report;
        report.output = output;
        report.AllFoldersNames = folderNames(folders);
        figures.add(name, secondsFor(report), 0.2, "s");
    };
    const auto warning = [](int i) {
        return QStringLiteral("W: DcmItem: Length of element (0028,%1) is odd\n").arg(i % 10'000);
    };
    const auto file = [](int i) {
        return QStringLiteral("E: unable to load file IM%1: End of stream\n").arg(i);
    };
    const auto anything = [warning, file](int i) {
        switch (i % 6) {
        case 0: return error(i);
        case 1: return folderLine(i);
        case 2: return QStringLiteral("E: There were 12 errors\n");
        case 3: return warning(i);
        case 4: return file(i);
        default:
            return QStringLiteral("E: modifying tag in file a: Cannot put value into non-leaf elements!\n");
        }
    };
    measure("50 MB of warnings", outputOf(warning), 1000);
    measure("50 MB in one line", outputOf([](int) { return QStringLiteral("E: no line break here "); }),
            1000);
    measure("50 MB of error lines", outputOf(error), 1000);
    measure("50 MB of complaints about files", outputOf(file), 1000);
    measure("50 MB of complaints about folders", outputOf(folderLine), 1000);
    measure("50 MB, every kind of line in turn", outputOf(anything), 1000);
    measure("50 MB, every kind of line in turn, 100000 folder names", outputOf(anything), 100'000);

    RunReport report;
    for (int i = 0; i < 100'000; ++i)
        report.output += file(i);
    report.AllFoldersNames = folderNames(100'000);
    figures.add("100000 error lines against 100000 folder names", secondsFor(report), 0.6, "s");
    return figures.exitCode();
}
