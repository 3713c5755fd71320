#pragma once

#include "batch/Plan.h"

#include <QString>
#include <QStringList>

namespace dravolin::cli {

// What the arguments of `dravolin-cli plan` or `dravolin-cli run` ask for.
struct BatchCall
{
    BatchOptions options;
    bool quiet = false;

    QString help;  // to be printed instead
    QString error; // for people; the call is wrong
};

// What those of `dravolin-cli merge` ask for.
struct MergeCall
{
    QString list;
    QString folder; // of the whole run
    bool quiet = false;

    QString help;
    QString error;
};

[[nodiscard]] MergeCall parseMergeCall(const QStringList &arguments);

// `command` is the command's name. Reads the file of kept private attributes, but neither the list nor a
// source.
[[nodiscard]] BatchCall parseBatchCall(const QString &command, const QStringList &arguments);

// The lines of a file of private attributes: gggg,"creator",ee. Empty lines and those that begin with # say
// nothing. A line that is none of these comes back in `wrong`.
[[nodiscard]] QSet<QString> parseKeptPrivate(const QString &text, QStringList *wrong);

} // namespace dravolin::cli
