#pragma once

#include <QString>
#include <QStringList>

// The commands of dravolin-cli. Each is a function of its arguments, without its own name, and gives the exit
// status.
namespace dravolin::cli {

// The exit statuses of every command.
enum ExitStatus {
    nothingFound = 0,
    somethingFound = 1,
    wrongCall = 2,
    notChecked = 3,
    interrupted = 130,
};

struct Command
{
    const char *name;
    const char *summary; // one line for people
    int (*run)(const QStringList &arguments);
};

[[nodiscard]] int runCheck(const QStringList &arguments);
[[nodiscard]] int runPlan(const QStringList &arguments);
[[nodiscard]] int runBatchCommand(const QStringList &arguments);
[[nodiscard]] int runMerge(const QStringList &arguments);

// Runs the command that the first of the arguments names; without one prints what there is.
[[nodiscard]] int runCommand(const QStringList &arguments);

// Writes text to standard output or standard error; bytes that are no UTF-8 stay as they are.
void print(const QString &text);
void printError(const QString &text);

} // namespace dravolin::cli
