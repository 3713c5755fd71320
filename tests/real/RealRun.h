#pragma once

#include "base/Files.h"
#include "support/TestRun.h"

namespace dravolin::test {

// A run whose jobs are real and whose resource folder holds the real tools, with folders of files made from
// dumps.
class RealRun : public TestRun
{
public:
    RealRun();

    // Makes the file `relative` from the dump of that name, and the folders above it; gives its path.
    QString makeImage(const QString &relative, const QString &dump = QStringLiteral("nested")) const;
    // The tool's lines for a tag in a file, at every nesting level, as "(gggg,eeee).(gggg,eeee) VR [value]";
    // without a tag the whole content of the file.
    [[nodiscard]] QStringList lines(const QString &path, const char *tag = nullptr) const;
    // The tags with the new values in the state.
    [[nodiscard]] TagRules rules(const QStringList &tags) const
    {
        return {tags, state.get(&RunState::newValueDict)};
    }
    [[nodiscard]] QString resultingOutput() const { return state.get(&RunState::output); }

    PosixJobRunner tools;
    RunContext context{state, paths, host, tools, uuids}; // instead of the one with recorded jobs
};

} // namespace dravolin::test
