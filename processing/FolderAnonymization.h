#pragma once

#include "processing/Edits.h"
#include "run/jobs/RunContext.h"
#include "run/jobs/RunOptions.h"
#include "run/jobs/Script.h"

#include <QString>
#include <QStringList>

// From the tag list to one dcmodify job for one folder, or for a list of files in one folder.
namespace dravolin {

// What decides a command besides the tags.
struct AnonymizationChoices
{
    bool createBAKfiles = false;
    EditChoices edits;
};

struct AnonymizationCommand
{
    QString prefix;            // quoted tool path, options and tag arguments
    QStringList malformedTags; // neither empty nor of nine characters, in list order
};

// The command's part in front of its files: tool, options, and the edits of `rules`. Pure; values and tags
// are not escaped.
[[nodiscard]] AnonymizationCommand anonymizationCommand(const QString &tool, const TagRules &rules,
                                                        const AnonymizationChoices &choices);

// The redirections of anonymization.
[[nodiscard]] const Redirections &anonymizationRedirections();

// Runs the tool with the edits of `rules` over every visible entry of `folder` (a shell glob). 1 when the job
// could not be started, else 0; malformed tags are logged and added to errCount, the tool's text to output.
// Blocks; not for the main thread.
[[nodiscard]] quint64 anonymizeFolder(const RunContext &context, const TagRules &rules, const QString &folder,
                                      const RunOptions &options);

// The same for `files`, which are looked for in `folder` by their names; a long list makes several commands.
// 0 at once when there are no files or `folder` is empty.
[[nodiscard]] quint64 anonymizeFiles(const RunContext &context, const TagRules &rules,
                                     const QStringList &files, const QString &folder,
                                     const RunOptions &options);

} // namespace dravolin
