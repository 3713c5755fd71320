#pragma once

#include "config/ConfigurationDiscovery.h"
#include "config/ConfigurationFile.h"
#include "identifiers/UidRoot.h"
#include "run/jobs/RunJudgement.h"

#include <QString>
#include <Qt>

#include <exception>
#include <functional>
#include <optional>

// The port between a run and the user: events, questions and choices. How they look is the front end's
// affair.
namespace dravolin {

// What the user has switched and selected, at the moment of asking.
struct Choices
{
    Qt::CheckState overwriteSource = Qt::Unchecked;
    Qt::CheckState prepopulate = Qt::Unchecked; // construct a look-up table
    Qt::CheckState generateSOP = Qt::Unchecked;
    Qt::CheckState onlyGenerateSOP = Qt::Unchecked;
    QString configuration;        // a title; "" when there is none to select
    std::optional<QString> table; // a title, which may be empty; nothing: no table

    bool operator==(const Choices &) const = default;
};

enum class RunKind { Anonymize, Construct, OnlyGenerate };

// The kind of run that the choices ask for; construction comes first.
[[nodiscard]] inline RunKind kindOf(const Choices &choices)
{
    if (choices.prepopulate == Qt::Checked)
        return RunKind::Construct;
    return choices.onlyGenerateSOP == Qt::Checked ? RunKind::OnlyGenerate : RunKind::Anonymize;
}

enum class Question {
    LargeDrop,      // whether so many individual files are meant
    OverwriteSource // whether the source data may be overwritten
};

// Why a run does not start or go on. What the detail is stands behind each.
enum class Refusal {
    InvalidStudyInstanceUid, // no detail
    NoTags,                  // the configuration's path
    NoTagForTable,           // the table's title
    TableUnreadable,         // the table's title
    TableWithoutMissing,     // the table's title
    OutOfFileHandles         // no detail; the user is expected to start again with less
};

struct RunBeginning
{
    RunKind kind = RunKind::Anonymize;
    QString constructionTag; // of the attribute that a table is constructed from
};

struct Progress
{
    enum class Event {
        FoldersAnonymized, // folders of the run
        PropagationBegins, // without numbers
        FoldersPropagated, // folders of the run
        FilesPropagated,   // files of the folder at hand; the last one has only begun
        PropagationEnds    // without numbers
    };
    Event event = Event::FoldersAnonymized;
    quint64 done = 0;
    quint64 all = 0;

    bool operator==(const Progress &) const = default;
};

// Thrown by a RunHost off the main thread: the run has to end without another step.
class RunCancelled : public std::exception
{
public:
    [[nodiscard]] const char *what() const noexcept override { return "the run was cancelled"; }
};

// Every operation may be called from any thread and has happened when it returns, unless it says otherwise;
// off the main thread each may throw RunCancelled.
class RunHost
{
public:
    virtual ~RunHost() = default;

    // Both are read at the step that needs them, so that they may change during a run.
    [[nodiscard]] virtual Choices choices() = 0;
    [[nodiscard]] virtual CaseTexts texts() = 0;
    // The root as it is now to be shown, and whether it can be used.
    virtual void setRoot(const RootCheck &root) = 0;

    // Returns when the user has answered; true to go on.
    [[nodiscard]] virtual bool ask(Question question) = 0;
    // May return before the user has taken note.
    virtual void refuse(Refusal refusal, const QString &detail = {}) = 0;

    // Main thread. Makes ready for a run and returns; `start` is called on the main thread when everything is
    // ready, never when the user has left before.
    virtual void runBegins(const RunBeginning &beginning, std::function<void()> start) = 0;
    virtual void progress(const Progress &progress) = 0;
    // It may wait for a moment, but not on the main thread.
    virtual void runEnds(const RunJudgement &judgement) = 0;

    // The look-up tables that can be selected from now on; none is selected.
    virtual void tablesFound(const TitleToPath &tables) = 0;
};

} // namespace dravolin
