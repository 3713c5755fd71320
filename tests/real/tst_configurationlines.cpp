#include "base/Files.h"
#include "processing/Edits.h"
#include "real/PlantedObjects.h"
#include "real/ShippedConfigurations.h"
#include "support/TestEntry.h"

#include <QRegularExpression>
#include <QTest>

using namespace dravolin;

// The text of the configurations that come with the program.
class TestConfigurationLines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesOnlyLinesThatSayWhatTheyMean_data() { test::addShippedConfigurations(); }
    void writesOnlyLinesThatSayWhatTheyMean();
    void defaultErasesEveryListedAttributeAtEveryLevel();
    void examplesKeepWhatTheySay_data();
    void examplesKeepWhatTheySay();
    void keepsTheKindsOfTagsOutThatTheToolRefuses_data() { test::addShippedConfigurations(); }
    void keepsTheKindsOfTagsOutThatTheToolRefuses();
};

void TestConfigurationLines::writesOnlyLinesThatSayWhatTheyMean()
{
    QFETCH(const QString, name);
    static const QRegularExpression line(
        QStringLiteral("^(#.*|[0-9a-f+][0-9a-f]{3},[0-9a-f]{4}\t[^\t]+(\t[^\t]{1,64})?|)$"));
    QSet<QString> tags;
    for (const QString &text : readText(test::shippedConfiguration(name)).value_or(QString()).split(u'\n')) {
        QVERIFY2(line.match(text).hasMatch(), qPrintable(text));
        if (text.isEmpty() || text.startsWith(u'#'))
            continue;
        QVERIFY2(!tags.contains(text.first(tagLength)), qPrintable(text));
        tags.insert(text.first(tagLength));
    }
    const TagRules rules = test::rulesOf(name);
    QVERIFY(tags.size() > 300);
    QVERIFY(tags.subtract({rules.allTagsToAnonymize.begin(), rules.allTagsToAnonymize.end()}).isEmpty());
    QCOMPARE(edits(rules, {}).malformedTags, QStringList());
}

void TestConfigurationLines::defaultErasesEveryListedAttributeAtEveryLevel()
{
    QStringList erased = test::effectsOf(test::rulesOf(test::defaultConfiguration)).erased.values();
    QStringList listed = test::listedAttributes();
    erased.sort();
    listed.sort();
    QCOMPARE(erased, listed);
}

void TestConfigurationLines::examplesKeepWhatTheySay_data()
{
    QTest::addColumn<QString>("kept");
    QTest::addColumn<QString>("taken");
    const auto row = [](const char *name, const char *kept, const char *taken) {
        QTest::newRow(name) << QString::fromLatin1(kept) << QString::fromLatin1(taken);
    };
    row("KeepDates", "0008,0020", "0010,0030");
    row("KeepDevice", "0018,1000", "0008,0080");
    row("KeepPatientCharacteristics", "0010,0040", "0010,0030");
    row("OtherPatientIDsTable", "0010,1000", "0010,1001");
    row("ReportsAndRT", "3006,0026", "0040,a123");
    row("ResearchMR", "0029,1010", "0010,0010");
}

void TestConfigurationLines::examplesKeepWhatTheySay()
{
    QFETCH(const QString, kept);
    QFETCH(const QString, taken);
    const QString name = QStringLiteral("examples/AnonymizationConfiguration_%1.txt");
    const TagRules rules = test::rulesOf(name.arg(QString::fromLatin1(QTest::currentDataTag())));
    const test::Effects effects = test::effectsOf(rules);
    QVERIFY(!effects.erased.contains(kept));
    QVERIFY(effects.erased.contains(taken));
    QCOMPARE(firstTagWithTableMarker(rules.newValueDict).value_or(kept), kept);
}

void TestConfigurationLines::keepsTheKindsOfTagsOutThatTheToolRefuses()
{
    QFETCH(const QString, name);
    const QStringList tags = test::rulesOf(name).allTagsToAnonymize;
    QCOMPARE(tags.filter(QRegularExpression(QStringLiteral("x|X|^000[02],"))), QStringList());
    QVERIFY(!tags.contains(QStringLiteral("0012,0062"))); // nothing here makes an object de-identified
    QVERIFY(!tags.contains(QStringLiteral("0020,000D")));
}

DRAVOLIN_TEST(TestConfigurationLines)
#include "tst_configurationlines.moc"
