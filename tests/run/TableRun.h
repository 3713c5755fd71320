#pragma once

#include "RunTrace.h"

#include "base/PathText.h"

#include <QHash>

namespace dravolin::test {

// A run over fakes whose search finds a value in each file.
class TableRun : public TracedRun
{
public:
    TableRun()
    {
        configure(str("0010,1000\tOther Patient IDs\t<LUT_Site>"));
        jobs.answer = [this, others = jobs.answer](const Job &job) {
            if (job.executable != paths.dcmdump())
                return others(job);
            host.calls.append(QStringLiteral("search ") + job.arguments.last());
            return JobResult{JobOutcome::Ran, found.value(job.arguments.last())};
        };
    }
    // Selects the table "Site" with the rows `rows` behind "<missing>".
    Drop dropWithTable(const QStringList &folders, const QStringList &files, const QString &rows)
    {
        Drop dropped = drop(folders, files);
        dropped.options.selectedLUT = str("Site");
        dropped.options.selectedLUTpath =
            writeFile(str("home/Desktop/AnonymizationLUT_Site.txt"), str("<missing>\tX\n") + rows);
        return dropped;
    }
    QString file(const QString &relative, const QByteArray &value)
    {
        found.insert(lastPathComponent(relative), "(0010,1000) LO [" + value + "]   # 6, 1 x\n");
        return writeFile(relative);
    }
    [[nodiscard]] QString summary() const { return host.judgements.last().summary; }

    QHash<QString, QByteArray> found; // by file name: what the search prints
};

} // namespace dravolin::test
