#pragma once

#include "check/PathList.h"

#include <QString>
#include <QStringList>

namespace dravolin::check {

// What lies below a folder; names are the texts of base/PathText.h.
struct FileTree
{
    struct Link
    {
        QString path;
        QString target;
    };

    QString root;
    PathList files;       // regular files, relative to the root, sorted
    QList<Link> links;    // never followed
    QStringList others;   // pipes, devices, sockets: never opened
    QStringList unlisted; // folders that could not be listed; "" is the root itself
};

// Lists everything below `root`, which may be a link itself. When it is a regular file, that file alone, and
// the tree's root is its folder. Any thread; never fails, see `unlisted`.
[[nodiscard]] FileTree listTree(const QString &root);

} // namespace dravolin::check
