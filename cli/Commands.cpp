#include "cli/Commands.h"

#include "base/PathText.h"
#include "base/Texts.h"

#include <algorithm>
#include <cstdio>

namespace dravolin::cli {

namespace {

constexpr Command commands[] = {
    {"check", QT_TR_NOOP("searches the values of originals in what was made of them"), runCheck},
    {"plan", QT_TR_NOOP("says what would be done with a list of cases"), runPlan},
    {"run", QT_TR_NOOP("anonymizes copies of the cases of a list"), runBatchCommand},
    {"merge", QT_TR_NOOP("joins the reports of the parts of a run"), runMerge},
};

QString usage()
{
    QString text = Texts::tr("Usage: dravolin-cli COMMAND ...\n\n");
    for (const Command &command : commands)
        text +=
            QStringLiteral("  %1  %2\n").arg(QLatin1String(command.name), -8).arg(Texts::tr(command.summary));
    return text + Texts::tr("\ndravolin-cli COMMAND --help tells more.\n");
}

void write(FILE *stream, const QString &text)
{
    const QByteArray bytes = toBytes(text);
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stream);
    std::fflush(stream);
}

} // namespace

void print(const QString &text)
{
    write(stdout, text);
}

void printError(const QString &text)
{
    write(stderr, text);
}

int runCommand(const QStringList &arguments)
{
    const QString name = arguments.value(0);
    if (name == QStringLiteral("--help") || name == QStringLiteral("-h")) {
        print(usage());
        return nothingFound;
    }
    const auto *const command =
        std::find_if(std::begin(commands), std::end(commands),
                     [&name](const Command &one) { return name == QLatin1String(one.name); });
    if (command != std::end(commands))
        return command->run(arguments.sliced(1));
    printError(name.isEmpty() ? usage() : Texts::tr("dravolin-cli: no command '%1'\n\n").arg(name) + usage());
    return wrongCall;
}

} // namespace dravolin::cli
