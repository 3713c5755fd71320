#pragma once

#include <QString>
#include <QStringList>

// The text of a job's shell script. Pure functions, any thread; lengths are UTF-16 units.
namespace dravolin {

// What stands behind a command's file arguments.
struct Redirections
{
    QString only;      // behind the only line of a script
    QString more;      // behind every line but the last of a split one
    QString last;      // behind the last line of a split one
    qsizetype counted; // length that a redirection counts for when the length of a line is judged
};

// `path` between two double quotes; nothing in it is escaped.
[[nodiscard]] QString quoted(const QString &path);

// The file arguments of paths: for each a blank and its last component between double quotes, nothing
// escaped.
[[nodiscard]] QStringList fileArguments(const QStringList &paths);

// The command lines of `prefix` over `arguments`: one line when prefix, arguments and the counted redirection
// together are shorter than `maximum`; else lines of equally many arguments near half of `maximum`, each with
// the whole prefix, the last one with what the division left over.
[[nodiscard]] QString commandLines(const QString &prefix, const QStringList &arguments,
                                   const Redirections &redirections, qsizetype maximum);

// The header of every script, followed by `commands`.
[[nodiscard]] QString scriptText(const QString &commands);

} // namespace dravolin
