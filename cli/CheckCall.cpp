#include "cli/CheckCall.h"

#include "base/Files.h"
#include "base/Texts.h"

#include <QCommandLineParser>
#include <QDir>

#include <algorithm>
#include <thread>

namespace dravolin::cli {

namespace {

constexpr char16_t backups[] = u"backups";
constexpr char16_t identifiers[] = u"identifiers";
constexpr char16_t reportFolder[] = u"report";
constexpr char16_t configuration[] = u"configuration";
constexpr char16_t pixels[] = u"pixels";
constexpr char16_t showValues[] = u"show-values";
constexpr char16_t atLeast[] = u"at-least";
constexpr char16_t quiet[] = u"quiet";

QString name(const char16_t *option)
{
    return QStringView(option).toString();
}

void addOptions(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        Texts::tr("Searches every identifying value of the originals everywhere in the result.\n\n"
                  "Exit status: 0 nothing found, 1 something found, 2 wrong call, 3 could not be checked."));
    const auto valued = [&parser](const char16_t *option, const QString &text, const QString &value) {
        parser.addOption({name(option), text, value});
    };
    parser.addOption({{QStringLiteral("h"), QStringLiteral("help")}, Texts::tr("Prints this text.")});
    valued(backups, Texts::tr("The originals are the NAME.bak files beside the results."),
           QStringLiteral("folder"));
    valued(identifiers, Texts::tr("Each line of the file is searched for, too."), QStringLiteral("file"));
    valued(reportFolder, Texts::tr("Writes report.html and report.json there."), QStringLiteral("folder"));
    valued(configuration, Texts::tr("Its attributes have to be absent or as it sets them."),
           QStringLiteral("file"));
    valued(atLeast, Texts::tr("Findings below certain, likely or possible leave the exit status alone."),
           QStringLiteral("grade"));
    parser.addOption({name(pixels), Texts::tr("Searches pixel data as well.")});
    parser.addOption({name(showValues), Texts::tr("Prints the values that were found.")});
    parser.addOption({name(quiet), Texts::tr("Prints nothing but errors.")});
    parser.addPositionalArgument(QStringLiteral("originals"), Texts::tr("The folder before."));
    parser.addPositionalArgument(QStringLiteral("result"), Texts::tr("The folder to be checked."));
}

// The parser's own first line names the program's file and no command.
QString helpOf(const QCommandLineParser &parser)
{
    return Texts::tr("Usage: dravolin-cli check [options] ORIGINALS RESULT\n"
                     "       dravolin-cli check [options] --backups FOLDER\n") +
           parser.helpText().section(u'\n', 1);
}

void readFolders(const QCommandLineParser &parser, CheckCall &call)
{
    const QStringList folders = parser.positionalArguments();
    call.options.backups = parser.isSet(name(backups));
    if (folders.size() != (call.options.backups ? 0 : 2)) {
        call.error = Texts::tr("it takes the folders ORIGINALS and RESULT, or --backups FOLDER");
        return;
    }
    call.options.originals = call.options.backups ? parser.value(name(backups)) : folders[0];
    call.options.result = call.options.backups ? call.options.originals : folders[1];
    for (const QString &folder : {call.options.originals, call.options.result}) {
        if (call.error.isEmpty() && !pathExists(folder))
            call.error = Texts::tr("there is no folder '%1'").arg(folder);
    }
}

void readIdentifiers(const QCommandLineParser &parser, CheckCall &call)
{
    if (!parser.isSet(name(identifiers)))
        return;
    const std::optional<QString> text = readText(parser.value(name(identifiers)));
    if (text)
        call.options.identifiers = check::identifiersIn(*text);
    else
        call.error = Texts::tr("the list of identifiers cannot be read, or is not UTF-8");
}

void readConfiguration(const QCommandLineParser &parser, CheckCall &call)
{
    if (!parser.isSet(name(configuration)))
        return;
    const std::optional<QString> text = readText(parser.value(name(configuration)));
    if (text)
        call.options.rules = parseConfiguration(*text);
    else
        call.error = Texts::tr("the configuration cannot be read, or is not UTF-8");
}

void readGrade(const QCommandLineParser &parser, CheckCall &call)
{
    const std::optional<check::Grade> grade = check::gradeNamed(parser.value(name(atLeast)));
    if (grade)
        call.atLeast = *grade;
    else if (parser.isSet(name(atLeast)))
        call.error = Texts::tr("--at-least takes certain, likely or possible");
}

} // namespace

CheckCall parseCheckCall(const QStringList &arguments)
{
    QCommandLineParser parser;
    addOptions(parser);
    CheckCall call;
    const bool parsed = parser.parse(QStringList(QStringLiteral("dravolin-cli check")) + arguments);
    if (parsed && parser.isSet(QStringLiteral("help"))) {
        call.help = helpOf(parser);
        return call;
    }
    if (!parsed) {
        call.error = parser.errorText();
        return call;
    }
    call.options.pixels = parser.isSet(name(pixels));
    call.options.workers = std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
    call.showValues = parser.isSet(name(showValues));
    call.quiet = parser.isSet(name(quiet));
    call.reportFolder = parser.value(name(reportFolder));
    for (const auto read : {readGrade, readConfiguration, readIdentifiers, readFolders}) {
        if (call.error.isEmpty())
            read(parser, call);
    }
    return call;
}

} // namespace dravolin::cli
