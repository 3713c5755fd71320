#pragma once

#include "base/Files.h"

// What the tools of a script have written into its output file. Any thread.
namespace dravolin {

enum class OutputUse {
    Judged,   // only its lines that begin with "E:" are looked at
    Collected // all of it
};

// The text of the file; nothing when there is none, when a byte of it is not UTF-8, or when it does not fit
// into memory (which is logged). Of a file above `largest` bytes that is judged the lines that are not looked
// at are left out; one that is collected is not read, which is logged.
[[nodiscard]] std::optional<QString> readOutput(const QString &path, OutputUse use,
                                                qsizetype largest = largestFile);

} // namespace dravolin
