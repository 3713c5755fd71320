#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace dravolin {

// The choices of one drop: made once, then passed by reference through the whole run.
struct RunOptions
{
    bool createBAKfiles = false;      // false: the tool is told to keep no backups
    QString selectedLUT;              // title of the selected look-up table, "" for none
    QString selectedLUTpath;          // its file, "" for none
    std::optional<QString> theLUTtag; // the attribute bound to the table, once it is matched and loaded
};

// What was dropped, sorted, with its options.
struct Drop
{
    QStringList folders;         // in drop order
    QStringList individualFiles; // in drop order
    RunOptions options;
};

} // namespace dravolin
