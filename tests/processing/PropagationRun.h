#pragma once

#include "processing/LutPropagation.h"
#include "support/TestRun.h"

#include <QHash>

namespace dravolin::test {

// A propagation of 0010,1000 over fakes in a temporary tree, with the files in data/A: the search prints what
// stands in `printed`, a script leaves `scriptOutput`. The table knows PAT123 (Subject_001) and PHANTOM
// (<skip>).
class PropagationRun : public TestRun
{
public:
    PropagationRun();

    // Makes a file in data/A in which the search finds `value`; gives its path.
    QString file(const QString &name, const QByteArray &value);
    [[nodiscard]] quint64 propagate(const QStringList &entries)
    {
        return propagateThroughFiles(context, entries, dataFolder, options);
    }
    // What the fakes answer by default.
    [[nodiscard]] JobResult answer(const Job &job) const;
    // A search as "? name", a script as its commands, "@ folder" behind both.
    [[nodiscard]] QStringList jobTexts() const;
    [[nodiscard]] quint64 adapted() const { return state.get(&RunState::numLUTadaptedFiles); }
    [[nodiscard]] quint64 skipped() const { return state.get(&RunState::numLUTskippedFiles); }

    // The line that the search prints for a value.
    [[nodiscard]] static QByteArray printedFor(const QByteArray &value);

    const QString tag = QStringLiteral("0010,1000");
    QString dataFolder;
    RunOptions options;
    QHash<QString, QByteArray> printed; // by file name
    QString scriptOutput;
};

// The lines in front of every script's commands.
inline const QString scriptHeader =
    QStringLiteral("#!/bin/sh\n#This is a temporary file created by Dravolin. If you are reading "
                   "this, the file is garbage that can safely be deleted.\n");

} // namespace dravolin::test
