#include "app/ResultTexts.h"

#include "base/Texts.h"

#include <QStringList>

namespace dravolin {

namespace {

QString constructionFacts(quint64 rows)
{
    if (rows == 0)
        return Texts::tr("No value found, no file changed");
    return withCounts(Texts::tr("%1 value%2 found, no file changed", nullptr, pluralNumber(rows)), {rows});
}

QString changed(const FileCounts &files)
{
    if (files.changed == 0)
        return files.unchanged == 0 ? Texts::tr("No file found") : Texts::tr("No file changed");
    return withCounts(Texts::tr("%1 file%2 changed", nullptr, pluralNumber(files.changed)), {files.changed});
}

} // namespace

StatusIcon::Kind kindOf(const RunJudgement &judgement)
{
    if (judgement.refused)
        return StatusIcon::Kind::Refused;
    if (judgement.hasErrors)
        return StatusIcon::Kind::Errors;
    const quint64 done = judgement.constructed ? judgement.constructedRows : judgement.files.changed;
    return done == 0 || judgement.wantsLogWindow ? StatusIcon::Kind::Attention : StatusIcon::Kind::Done;
}

QString factsOf(const RunJudgement &judgement)
{
    if (judgement.refused)
        return Texts::tr("No file changed");
    if (judgement.constructed)
        return constructionFacts(judgement.constructedRows);
    const FileCounts &files = judgement.files;
    QStringList facts = {changed(files)};
    if (files.unchanged > 0)
        facts.append(
            withCounts(Texts::tr("%1 unchanged", nullptr, pluralNumber(files.unchanged)), {files.unchanged}));
    if (files.leftOut > 0)
        facts.append(
            withCounts(Texts::tr("%1 left out", nullptr, pluralNumber(files.leftOut)), {files.leftOut}));
    if (files.folders > 0)
        facts.append(
            withCounts(Texts::tr("in %1 folder%2", nullptr, pluralNumber(files.folders)), {files.folders}));
    return facts.join(Texts::tr(", "));
}

} // namespace dravolin
