#include "app/ResultTexts.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin;

Q_DECLARE_METATYPE(dravolin::RunJudgement)

namespace {

using Kind = StatusIcon::Kind;

RunJudgement over(const FileCounts &files)
{
    RunJudgement judgement;
    judgement.files = files;
    return judgement;
}

RunJudgement constructed(quint64 rows)
{
    RunJudgement judgement;
    judgement.constructed = true;
    judgement.constructedRows = rows;
    return judgement;
}

RunJudgement refused()
{
    RunJudgement judgement;
    judgement.refused = true;
    return judgement;
}

} // namespace

class TestResultTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhatWasDone_data();
    void saysWhatWasDone();
    void errorsComeBeforeAttention();
    void notesAskForAttention();
};

void TestResultTexts::saysWhatWasDone_data()
{
    QTest::addColumn<RunJudgement>("judgement");
    QTest::addColumn<QString>("facts");
    QTest::addColumn<int>("kind");
    const auto row = [](const char *name, const RunJudgement &judgement, const char *facts, Kind kind) {
        QTest::newRow(name) << judgement << QString::fromLatin1(facts) << static_cast<int>(kind);
    };
    row("one file", over({1, 0, 0, 1}), "1 file changed, in 1 folder", Kind::Done);
    row("many", over({5, 2, 0, 3}), "5 files changed, 2 unchanged, in 3 folders", Kind::Done);
    row("all facts", over({2, 1, 4, 1}), "2 files changed, 1 unchanged, 4 left out, in 1 folder", Kind::Done);
    row("one of each", over({1, 1, 1, 1}), "1 file changed, 1 unchanged, 1 left out, in 1 folder",
        Kind::Done);
    row("nothing changed", over({0, 7, 0, 2}), "No file changed, 7 unchanged, in 2 folders", Kind::Attention);
    row("an empty folder", over({0, 0, 0, 1}), "No file found, in 1 folder", Kind::Attention);
    row("nothing at all", over({}), "No file found", Kind::Attention);
    row("no value", constructed(0), "No value found, no file changed", Kind::Attention);
    row("one value", constructed(1), "1 value found, no file changed", Kind::Done);
    row("values", constructed(12), "12 values found, no file changed", Kind::Done);
    row("refused", refused(), "No file changed", Kind::Refused);
}

void TestResultTexts::saysWhatWasDone()
{
    QFETCH(RunJudgement, judgement);
    QTEST(factsOf(judgement), "facts");
    QTEST(static_cast<int>(kindOf(judgement)), "kind");
}

void TestResultTexts::errorsComeBeforeAttention()
{
    RunJudgement judgement = over({0, 1, 0, 1});
    judgement.hasErrors = true;
    QCOMPARE(kindOf(judgement), Kind::Errors);
}

void TestResultTexts::notesAskForAttention()
{
    RunJudgement judgement = over({1, 0, 0, 1});
    judgement.wantsLogWindow = true; // without errors: of files that still tell who the patient is
    QCOMPARE(kindOf(judgement), Kind::Attention);
}

DRAVOLIN_TEST(TestResultTexts)
#include "tst_resulttexts.moc"
