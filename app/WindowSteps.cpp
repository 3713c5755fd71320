#include "app/WindowSteps.h"

#include "base/Texts.h"

#include <QtMath>

namespace dravolin {

namespace {

using Kind = WindowStep::Kind;

QString folders(const QString &text, const Progress &progress)
{
    return text.arg(QString::number(progress.done), QString::number(progress.all));
}

int percentOf(const Progress &progress)
{
    return qRound(static_cast<double>(progress.done) * 100 / static_cast<double>(progress.all));
}

} // namespace

WindowSteps beginSteps(const RunBeginning &beginning)
{
    const QString status =
        beginning.kind == RunKind::Construct
            ? Texts::tr("\nConstructing LUT for tag : (%1)...").arg(beginning.constructionTag)
            : Texts::tr("\nWorking...");
    return {
        {.kind = Kind::Status, .text = status},
        {.kind = Kind::Spinner, .on = true},
        {.kind = Kind::OverwriteSource},
        {.kind = Kind::SelectLUT},
        {.kind = Kind::Prepopulate},
        {.kind = Kind::SelectConfig},
        {.kind = Kind::GenerateSOP},
        {.kind = Kind::OnlyGenerateSOP},
        {.kind = Kind::StatusToolTip,
         .text = Texts::tr("Processing may take a *very* long time...\n\nThe task is running on a "
                           "background thread\nso you can continue to use your computer\n(stop "
                           "watching this).")},
        {.kind = Kind::Separator},
        {.kind = Kind::Grow},
    };
}

WindowSteps progressSteps(const Progress &progress)
{
    switch (progress.event) {
    case Progress::Event::FoldersAnonymized:
        return {{.kind = Kind::Status, .text = folders(Texts::tr("\nWorking... %1/%2 folders"), progress)}};
    case Progress::Event::FoldersPropagated:
        return {{.kind = Kind::Status,
                 .text = folders(Texts::tr("\nPropagating LUT tag... %1/%2 folders"), progress)}};
    case Progress::Event::FilesPropagated: return {{.kind = Kind::Progress, .percent = percentOf(progress)}};
    case Progress::Event::PropagationBegins:
        return {
            {.kind = Kind::Spinner}, {.kind = Kind::Progress}, {.kind = Kind::ProgressVisible, .on = true}};
    case Progress::Event::PropagationEnds: return {{.kind = Kind::ProgressVisible}};
    }
    return {};
}

WindowSteps endSteps(const RunJudgement &judgement, bool tablesExist)
{
    WindowSteps steps;
    if (judgement.wantsLogWindow)
        steps.append({.kind = Kind::ScheduleLog, .text = judgement.logText});
    return steps + WindowSteps{
                       {.kind = Kind::Pause},
                       {.kind = Kind::Status, .text = judgement.summary},
                       {.kind = Kind::OverwriteSource, .on = true},
                       {.kind = Kind::SelectLUT, .on = tablesExist},
                       {.kind = Kind::Prepopulate, .on = true},
                       {.kind = Kind::SelectConfig, .on = true},
                       {.kind = Kind::GenerateSOP, .on = true},
                       {.kind = Kind::OnlyGenerateSOP, .on = true},
                       {.kind = Kind::Spinner},
                       {.kind = Kind::StatusToolTip},
                   };
}

} // namespace dravolin
