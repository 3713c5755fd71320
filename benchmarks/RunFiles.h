#pragma once

#include <QByteArray>
#include <QString>

// The files that runs are measured with.
namespace dravolin::bench {

struct RunSet
{
    const char *word; // that chooses it
    const char *name;
    int folders;
    int files;      // in each
    qsizetype size; // of each, in bytes
    int rounds;
    double besideTool; // limits
    double besideScripts;
    int scriptRounds;
};

// Ends the program with 2 when something was not done.
void require(bool done, const char *what);

// The folder with that number, from 0, of a set that lies in `top`.
[[nodiscard]] QString folderOf(const RunSet &set, const QString &top, int number);

// Makes a set in `top`, which must not exist. Each file is an object of its own; its number stands in its
// header as well. `header` is a file without pixels.
void makeRunFiles(const RunSet &set, const QByteArray &header, const QString &top);

} // namespace dravolin::bench
