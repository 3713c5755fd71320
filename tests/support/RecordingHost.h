#pragma once

#include "run/jobs/RunHost.h"

#include <QList>
#include <QStringList>

namespace dravolin::test {

// A RunHost without a window: what is read is what the test has set, what is told becomes lines in `calls`,
// in order and in full. Questions take their answers from `answers`; one that nobody expected fails the test.
class RecordingHost : public RunHost
{
public:
    Choices chosen;
    CaseTexts fields;
    QList<bool> answers;
    bool recordReads = false;

    QStringList calls;
    QList<RunJudgement> judgements;

    [[nodiscard]] Choices choices() override;
    [[nodiscard]] CaseTexts texts() override;
    void setRoot(const RootCheck &root) override;
    [[nodiscard]] bool ask(Question question) override;
    void refuse(Refusal refusal, const QString &detail) override;
    void runBegins(const RunBeginning &beginning, std::function<void()> start) override; // starts at once
    void progress(const Progress &progress) override;
    void runEnds(const RunJudgement &judgement) override;
    void tablesFound(const TitleToPath &tables) override;
};

// The lines that the host writes.
[[nodiscard]] QString rootCall(const QString &root, bool valid = true);
[[nodiscard]] QString progressCall(Progress::Event event, quint64 done = 0, quint64 all = 0);
[[nodiscard]] QString endCall(const QString &summary, const QString &logText = {});
[[nodiscard]] QString nameOf(Refusal refusal);

} // namespace dravolin::test
