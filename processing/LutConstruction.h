#pragma once

#include "run/jobs/RunContext.h"
#include "run/jobs/RunOptions.h"
#include "run/jobs/Script.h"

#include <QLocale>
#include <QSet>
#include <QString>
#include <QStringList>

// From the values that one attribute takes in the data to a look-up table on the desktop. No DICOM file is
// changed. Not for the main thread, but for the pure functions.
namespace dravolin {

// The search for `tag` up to its file arguments. Pure; the tag is not quoted.
[[nodiscard]] QString constructionPrefix(const QString &tool, const QString &tag);

// What stands behind the file arguments: the filter that keeps the text between the brackets of a line.
[[nodiscard]] const Redirections &constructionRedirections();

// Adds the values of LUTconstructionTag in the whole tree under `folder` to LUTtagSet; one tool process
// covers the tree. 1 when the tag has not nine characters (which is logged) or the job could not be started,
// else 0, whatever the tool printed; 0 at once when `folder` is empty.
[[nodiscard]] quint64 collectFromTree(const RunContext &context, const QString &folder);

// The same for `files`, which are looked for by their names in the folder of the first; 0 at once without
// any.
[[nodiscard]] quint64 collectFromFiles(const RunContext &context, const QStringList &files);

// `values` in the alphabetical order of `locale`, upper and lower case not distinguished.
[[nodiscard]] QStringList sortedLutValues(const QSet<QString> &values, const QLocale &locale);

// Writes the collected values to the desktop, which is made when it is missing, as AnonymizationLUT_NAME.txt;
// NAME is the selected table's, else the first one that a configuration mentioned, else "XX", and a number
// follows it when such a file exists. A failure is logged and changes nothing else.
void writeConstructedLut(const RunContext &context, const RunOptions &options);

} // namespace dravolin
