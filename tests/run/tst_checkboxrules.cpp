#include "run/CheckBoxRules.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin;
using namespace dravolin::test;

namespace {

// All five changes in one line: "-" where a control stays as it is.
QString text(const CheckBoxChanges &changes)
{
    const auto state = [](std::optional<bool> on) {
        return on ? (*on ? QStringLiteral("on") : QStringLiteral("off")) : QStringLiteral("-");
    };
    return QStringLiteral("overwrite %1, construct %2, generate %3, only generate %4, table %5")
        .arg(state(changes.overwriteSource), state(changes.prepopulate), state(changes.generateSOP),
             state(changes.onlyGenerateSOP),
             changes.selectNoTable ? QStringLiteral("none") : QStringLiteral("-"));
}

} // namespace

class TestCheckBoxRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachActionChangesJustTheControlsOfItsRule_data();
    void eachActionChangesJustTheControlsOfItsRule();
};

void TestCheckBoxRules::eachActionChangesJustTheControlsOfItsRule_data()
{
    QTest::addColumn<QString>("actual");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const CheckBoxChanges &changes, const QString &expected) {
        QTest::newRow(name) << text(changes) << expected;
    };
    row("construction turned on", prepopulateRule(),
        QStringLiteral("overwrite off, construct -, generate off, only generate off, table -"));
    row("table pop-up changed", selectLUTRule(),
        QStringLiteral("overwrite -, construct -, generate -, only generate off, table -"));
    row("generate turned on", generateSOPRule(true),
        QStringLiteral("overwrite -, construct off, generate -, only generate -, table -"));
    row("generate turned off clears only-generate", generateSOPRule(false),
        QStringLiteral("overwrite -, construct -, generate -, only generate off, table -"));
    row("only-generate turned on with tables", onlyGenerateSOPRule(true, true),
        QStringLiteral("overwrite -, construct off, generate on, only generate -, table none"));
    row("only-generate turned on without tables", onlyGenerateSOPRule(true, false),
        QStringLiteral("overwrite -, construct off, generate on, only generate -, table -"));
    row("only-generate turned off with tables", onlyGenerateSOPRule(false, true),
        QStringLiteral("overwrite -, construct -, generate -, only generate -, table -"));
    row("only-generate turned off without tables", onlyGenerateSOPRule(false, false),
        QStringLiteral("overwrite -, construct -, generate -, only generate -, table -"));
}

void TestCheckBoxRules::eachActionChangesJustTheControlsOfItsRule()
{
    QFETCH(QString, actual);
    QTEST(actual, "expected");
}

DRAVOLIN_TEST(TestCheckBoxRules)
#include "tst_checkboxrules.moc"
