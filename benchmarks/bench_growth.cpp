// The work of each parser over what it reads.
//
//   bench_growth                    the time for each, with ten times the usual size
//   bench_growth NAME SIZE [only]   one of them once; "only" makes what it reads and stops there
//
// scripts/growth.py counts what the second form executes.
#include "Figures.h"

#include "base/PathText.h"
#include "config/ConfigurationFile.h"
#include "config/LutFile.h"
#include "processing/LutPropagation.h"
#include "run/Configuration.h"
#include "run/OutputAnalysis.h"

#include <cstdlib>
#include <functional>
#include <memory>
#include <vector>

using namespace dravolin;

namespace {

constexpr int rounds = 5;

// Gives a work over `size` lines, whose making is not measured.
using MakeWork = std::function<std::function<bool()>(int size)>;

QString repeated(int count, const std::function<QString(int)> &line)
{
    QString text;
    for (int i = 0; i < count; ++i)
        text += line(i);
    return text;
}

QString tag(int i)
{
    return QStringLiteral("%1,%2").arg(i / 0x10000, 4, 16, QChar(u'0')).arg(i % 0x10000, 4, 16, QChar(u'0'));
}

MakeWork configuration(const QString &separator)
{
    return [separator](int size) {
        const QString text = repeated(size, [&](int i) {
            return tag(i) + separator + QStringLiteral("Name") + separator + QStringLiteral("ANON\n");
        });
        return [text, size] { return parseConfiguration(text).newValueDict.size() == size; };
    };
}

MakeWork table(const QString &separator)
{
    return [separator](int size) {
        const QByteArray text = repeated(size, [&](int i) {
                                    return QStringLiteral("Patient %1").arg(i * 31) + separator +
                                           QStringLiteral("Subject_%1\n").arg(i);
                                }).toUtf8();
        return [text, size] { return parseLut(text).value_or(LutTable()).size() == size; };
    };
}

MakeWork output(const QString &line)
{
    return [line](int size) {
        RunReport report;
        report.output = repeated(size, [&](int i) { return line.arg(i) + u'\n'; });
        for (int i = 0; i < size; ++i)
            report.AllFoldersNames.append(QStringLiteral("series_%1").arg(i));
        return [report] { return !judgeOutput(report).summary.isEmpty(); };
    };
}

std::function<bool()> dump(int size)
{
    const QByteArray printed =
        repeated(size, [](int i) {
            return QStringLiteral("(0010,1000) LO [PAT%1]            #   6, 1 RetiredOtherPatientIDs\n")
                .arg(i);
        }).toUtf8();
    return [printed] { return searchedValue(decodeUtf8(printed).value_or(QString())).has_value(); };
}

std::function<bool()> markers(int size)
{
    const auto state = std::make_shared<SharedRunState>();
    TagRules rules;
    for (int i = 0; i < size; ++i) {
        rules.allTagsToAnonymize.append(tag(i));
        rules.newValueDict.insert(tag(i), QStringLiteral("<LUT_%1>").arg(i));
    }
    state->setRules(rules);
    return [state] {
        dropTableMarkers(*state);
        return !state->get(&RunState::firstFoundLUTtagInNewValueDict).isEmpty();
    };
}

struct Parser
{
    const char *name;
    int size; // lines; the usual size
    MakeWork make;
};

const std::vector<Parser> &parsers()
{
    static const QString spaces = QStringLiteral("   ");
    static const QString tabs = QStringLiteral("\t");
    static const std::vector<Parser> all = {
        {"configuration-tabs", 5'000, configuration(tabs)},
        {"configuration-spaces", 5'000, configuration(spaces)},
        {"table-tabs", 20'000, table(tabs)},
        {"table-spaces", 20'000, table(spaces)},
        {"output-errors", 20'000,
         output(QStringLiteral("E: modifying tag in file IM%1.dcm: Invalid target tag!"))},
        {"output-folders", 20'000, output(QStringLiteral("E: unable to load file Series_%1: No such file"))},
        {"search", 20'000, dump},
        {"table-markers", 3'000, markers},
    };
    return all;
}

void printTimes()
{
    for (const Parser &parser : parsers()) {
        std::vector<double> times;
        for (int round = 0; round < rounds; ++round) {
            const std::function<bool()> work = parser.make(parser.size * 10);
            const double start = bench::threadProcessorSeconds();
            if (!work())
                std::abort();
            times.push_back((bench::threadProcessorSeconds() - start) * 1000);
        }
        const QByteArray what =
            QByteArray(parser.name) + ", " + QByteArray::number(parser.size * 10) + " lines";
        bench::Figures::note(what.constData(), bench::median(times), "ms", 1);
    }
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc < 3) {
        printTimes();
        return 0;
    }
    for (const Parser &parser : parsers()) {
        if (QByteArrayView(parser.name) == argv[1]) {
            const std::function<bool()> work = parser.make(std::atoi(argv[2]));
            return argc > 3 || work() ? 0 : 1;
        }
    }
    return 2;
}
