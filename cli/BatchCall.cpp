#include "cli/BatchCall.h"

#include "base/Files.h"
#include "base/Lines.h"
#include "base/PathText.h"
#include "base/Texts.h"
#include "batch/Evidence.h"
#include "config/AppPaths.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QRegularExpression>
#include <QThread>

namespace dravolin::cli {

namespace {

const QString folderOption = QStringLiteral("folder");
const QString keyOption = QStringLiteral("key");
const QString workersOption = QStringLiteral("workers");
const QString keepPrivateOption = QStringLiteral("keep-private");
const QString privateListOption = QStringLiteral("private-list");
const QString keepUidsOption = QStringLiteral("keep-uids");
const QString shiftDatesOption = QStringLiteral("shift-dates");
const QString atLeastOption = QStringLiteral("at-least");
const QString shardOption = QStringLiteral("shard");
const QString quietOption = QStringLiteral("quiet");

// Those of merge, too.
void addCommonOptions(QCommandLineParser &parser)
{
    parser.addOption({{QStringLiteral("h"), QStringLiteral("help")}, Texts::tr("Prints this text.")});
    parser.addOption({folderOption, Texts::tr("The run's own folder, instead of the list's name with .run."),
                      QStringLiteral("folder")});
    parser.addOption({quietOption, Texts::tr("Prints nothing but errors.")});
    parser.addPositionalArgument(QStringLiteral("list"), Texts::tr("The list of cases, a CSV file."));
}

void addOptions(QCommandLineParser &parser)
{
    const auto option = [&parser](const QString &name, const QString &text,
                                  const QString &value = QString()) {
        parser.addOption({name, text, value});
    };
    addCommonOptions(parser);
    option(keyOption,
           Texts::tr("The key from which new UIDs come, instead of secret/project.key in that folder."),
           QStringLiteral("file"));
    option(workersOption, Texts::tr("How many files are treated at once, instead of one a core."),
           QStringLiteral("number"));
    option(keepPrivateOption, Texts::tr("Leaves private attributes as they are."));
    option(privateListOption,
           Texts::tr("Keeps the private attributes in the file's lines: gggg,\"creator\",ee."),
           QStringLiteral("file"));
    option(keepUidsOption,
           Texts::tr("Leaves UIDs as they are, but the Study Instance UID of a case with a root."));
    option(shiftDatesOption,
           Texts::tr("Moves dates back, those of a patient by the same number of days, one to ten years."));
    option(atLeastOption,
           Texts::tr("Findings below certain, likely or possible leave the exit status alone."),
           QStringLiteral("grade"));
    option(shardOption,
           Texts::tr("Does one of N parts of the list, for several calls or machines; merge joins them."),
           QStringLiteral("I/N"));
}

QString absolute(const QString &path)
{
    return QDir::cleanPath(QDir::current().absoluteFilePath(path));
}

QString folderFor(const QCommandLineParser &parser, const QString &list)
{
    const QString name = withoutExtension(lastPathComponent(list)) + QStringLiteral(".run");
    return parser.isSet(folderOption) ? absolute(parser.value(folderOption))
                                      : joinPath(parentPath(list), name);
}

void readPaths(const QCommandLineParser &parser, BatchCall &call)
{
    if (parser.positionalArguments().size() != 1) {
        call.error = Texts::tr("it takes one list of cases");
        return;
    }
    BatchOptions &options = call.options;
    options.list = absolute(parser.positionalArguments().constFirst());
    options.wholeFolder = folderFor(parser, options.list);
    options.key = parser.isSet(keyOption)
                      ? absolute(parser.value(keyOption))
                      : joinPath(secretFolder(options.wholeFolder), QStringLiteral("project.key"));
    options.defaultConfiguration = AppPaths::forExecutable(AppPaths::ownExecutable()).defaultConfiguration();
}

void readWorkers(const QCommandLineParser &parser, BatchCall &call)
{
    bool isNumber = true;
    call.options.workers = parser.isSet(workersOption) ? parser.value(workersOption).toInt(&isNumber)
                                                       : QThread::idealThreadCount();
    if (!isNumber || call.options.workers < 1)
        call.error = Texts::tr("'%1' is no number of workers").arg(parser.value(workersOption));
}

void readShard(const QCommandLineParser &parser, BatchCall &call)
{
    static const QRegularExpression form(QStringLiteral("^([0-9]{1,6})/([0-9]{1,6})$"));
    const QRegularExpressionMatch match = form.match(parser.value(shardOption));
    if (!parser.isSet(shardOption))
        return;
    call.options.shard = {match.captured(1).toInt(), match.captured(2).toInt()};
    if (call.options.shard.number < 1 || call.options.shard.number > call.options.shard.count)
        call.error = Texts::tr("--shard takes I/N, such as 1/4 to 4/4");
}

void readGrade(const QCommandLineParser &parser, BatchCall &call)
{
    const std::optional<check::Grade> grade = check::gradeNamed(parser.value(atLeastOption));
    if (grade)
        call.options.atLeast = *grade;
    else if (parser.isSet(atLeastOption))
        call.error = Texts::tr("--at-least takes certain, likely or possible");
}

void readKeptPrivate(const QCommandLineParser &parser, BatchCall &call)
{
    if (!parser.isSet(privateListOption))
        return;
    const std::optional<QString> text = readText(parser.value(privateListOption));
    QStringList wrong;
    if (!text)
        call.error = Texts::tr("the list of private attributes cannot be read, or is not UTF-8");
    else
        call.options.keptPrivate = parseKeptPrivate(*text, &wrong);
    if (!wrong.isEmpty())
        call.error = Texts::tr("no private attribute: %1").arg(wrong.constFirst());
}

} // namespace

QSet<QString> parseKeptPrivate(const QString &text, QStringList *wrong)
{
    static const QRegularExpression form(
        QStringLiteral("^([0-9a-f]{3}[13579bdf]),\"([^\"]+)\",([0-9a-f]{2})$"),
        QRegularExpression::CaseInsensitiveOption);
    QSet<QString> kept;
    for (const QStringView view : lines(text)) {
        const QString line = view.trimmed().toString();
        if (line.isEmpty() || line.startsWith(u'#'))
            continue;
        const QRegularExpressionMatch match = form.match(line);
        if (!match.hasMatch())
            wrong->append(line);
        else
            kept.insert(privateName(match.captured(1).toUShort(nullptr, 16), match.captured(2),
                                    static_cast<quint8>(match.captured(3).toUShort(nullptr, 16))));
    }
    return kept;
}

BatchCall parseBatchCall(const QString &command, const QStringList &arguments)
{
    QCommandLineParser parser;
    addOptions(parser);
    BatchCall call;
    // the parser takes the first argument for the program's name
    if (!parser.parse(QStringList{QStringLiteral("dravolin-cli ") + command} + arguments)) {
        call.error = parser.errorText();
        return call;
    }
    if (parser.isSet(QStringLiteral("help"))) {
        call.help = parser.helpText();
        return call;
    }
    call.options.removePrivate = !parser.isSet(keepPrivateOption);
    call.options.moveDates = parser.isSet(shiftDatesOption);
    call.options.mapUids = !parser.isSet(keepUidsOption);
    call.quiet = parser.isSet(quietOption);
    readWorkers(parser, call);
    readGrade(parser, call);
    readShard(parser, call);
    readKeptPrivate(parser, call);
    if (call.error.isEmpty())
        readPaths(parser, call);
    return call;
}

MergeCall parseMergeCall(const QStringList &arguments)
{
    QCommandLineParser parser;
    addCommonOptions(parser);
    MergeCall call;
    const bool isParsed = parser.parse(QStringList(QStringLiteral("dravolin-cli merge")) + arguments);
    if (isParsed && parser.isSet(QStringLiteral("help"))) {
        call.help = parser.helpText();
    } else if (!isParsed || parser.positionalArguments().size() != 1) {
        call.error = isParsed ? Texts::tr("it takes one list of cases") : parser.errorText();
    } else {
        call.list = absolute(parser.positionalArguments().constFirst());
        call.folder = folderFor(parser, call.list);
        call.quiet = parser.isSet(quietOption);
    }
    return call;
}

} // namespace dravolin::cli
