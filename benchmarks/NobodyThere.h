#pragma once

#include "run/jobs/RunHost.h"

namespace dravolin::bench {

// A host without a user.
class NobodyThere : public RunHost
{
public:
    Choices choices() override { return {}; }
    CaseTexts texts() override { return {}; }
    void setRoot(const RootCheck &) override {}
    bool ask(Question) override { return false; }
    void refuse(Refusal, const QString &) override {}
    void runBegins(const RunBeginning &, std::function<void()>) override {}
    void progress(const Progress &) override {}
    void runEnds(const RunJudgement &) override {}
    void tablesFound(const TitleToPath &) override {}
};

} // namespace dravolin::bench
