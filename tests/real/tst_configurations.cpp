#include "config/ConfigurationFile.h"
#include "processing/FolderAnonymization.h"
#include "real/PlantedObjects.h"
#include "real/RealRun.h"
#include "run/Configuration.h"
#include "support/TestEntry.h"

#include <QDir>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <algorithm>
#include <map>

using namespace dravolin;
using test::LogCatcher;
using test::PlantedObject;
using test::PlantedValue;
using test::RealRun;

namespace {

const QString resources = QStringLiteral(RESOURCES);
const QString defaultName = QStringLiteral("DefaultAnonymizationConfiguration.txt");

// What a configuration does to an attribute, whatever its tag's spelling.
struct Effects
{
    QSet<QString> erased;   // at every level
    QSet<QString> replaced; // at the top
};

Effects effectsOf(const TagRules &rules)
{
    Effects effects;
    for (const QString &tag : rules.allTagsToAnonymize) {
        if (tag.isEmpty()) // a blank line
            continue;
        const QString attribute = QString(tag).replace(u'+', u'0');
        (rules.newValueDict.value(tag).isEmpty() ? effects.erased : effects.replaced).insert(attribute);
    }
    return effects;
}

bool isGone(const PlantedValue &value, const Effects &effects)
{
    const bool erased = std::any_of(value.tags.begin(), value.tags.end(),
                                    [&](const QString &tag) { return effects.erased.contains(tag); });
    return erased || (value.tags.size() == 1 && effects.replaced.contains(value.tags.first()));
}

// An age, a number: its bytes may stand anywhere by chance.
bool isTooShortToTell(const PlantedValue &value)
{
    return value.bytes.size() < 6;
}

// Whether the value's bytes stand rightly in the file, as a date does that begins a date and time.
bool isPartOfAKeptOne(const PlantedValue &value, const QList<PlantedValue> &all, const Effects &effects)
{
    return std::any_of(all.begin(), all.end(), [&](const PlantedValue &other) {
        return other.bytes.contains(value.bytes) && !isGone(other, effects);
    });
}

TagRules rulesOf(const QString &name)
{
    TagRules rules = loadConfiguration(joinPath(resources, name));
    addFixedTags(rules,
                 {QStringLiteral("diagnosis"), QStringLiteral("007"), QStringLiteral("credits"),
                  QStringLiteral("keywords")},
                 QStringLiteral("2.25.42"));
    return rules;
}

// The comments of a configuration without anything between the letters, as keywords are written.
QString squeezedComments(const QString &name)
{
    const QStringList lines = readText(joinPath(resources, name)).value_or(QString()).split(u'\n');
    const QString comments = lines.filter(QRegularExpression(QStringLiteral("^#"))).join(u' ');
    return QString(comments).remove(QRegularExpression(QStringLiteral("[^A-Za-z,(]")));
}

QString attributeOf(const QString &fault)
{
    static const QRegularExpression element(QStringLiteral("Element=<([A-Za-z]+)>"));
    return element.match(fault).captured(1);
}

// The default has to do with all objects, an example with one of each kind and all of two kinds.
QStringList filesToChange(const QString &configuration, const QString &kind)
{
    const bool all = configuration == defaultName || kind == u"CT" || kind == u"SRTEXT";
    return {all ? QStringLiteral("*.dcm") : QStringLiteral("plain.dcm")};
}

} // namespace

// The configurations that come with the program, and what they make of objects of many kinds.
class TestConfigurations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void writesOnlyLinesThatSayWhatTheyMean_data() { configurations(); }
    void writesOnlyLinesThatSayWhatTheyMean();
    void testsListEveryAttributeOfTheDefault();
    void keepsTheKindsOfTagsOutThatTheToolRefuses_data() { configurations(); }
    void keepsTheKindsOfTagsOutThatTheToolRefuses();
    void takesEveryListedValueAndNoOther_data() { configurations(); }
    void takesEveryListedValueAndNoOther();
    void makesOnlyThoseObjectsIncompleteThatACommentNames_data() { configurations(); }
    void makesOnlyThoseObjectsIncompleteThatACommentNames();
    void makesNoImageIncomplete_data();
    void makesNoImageIncomplete();

private:
    static void configurations();
    // The objects after a run with the configuration, which takes place once.
    RealRun &runWith(const QString &configuration);
    void anonymizeCopies(RealRun &run, const QString &configuration) const;
    // The faults of the file `relative` that it had not before the run.
    QStringList newFaults(const RealRun &run, const QString &relative);
    [[nodiscard]] QString original(const QString &relative) const { return m_originals.filePath(relative); }
    [[nodiscard]] static QString copy(const RealRun &run, const QString &relative)
    {
        return run.path(QStringLiteral("objects/") + relative);
    }

    QTemporaryDir m_folder;
    QDir m_originals{m_folder.path()};
    QList<PlantedObject> m_objects;
    std::map<QString, std::unique_ptr<RealRun>> m_runs;
    QHash<QString, QStringList> m_oldFaults;
};

void TestConfigurations::initTestCase()
{
    m_objects = test::makePlantedObjects(m_folder.path());
    QVERIFY(m_objects.size() > 20);
}

void TestConfigurations::configurations()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("default") << defaultName;
    for (const QString &example : QDir(resources + QStringLiteral("/examples")).entryList(QDir::Files))
        QTest::newRow(qPrintable(example)) << QStringLiteral("examples/") + example;
}

void TestConfigurations::writesOnlyLinesThatSayWhatTheyMean()
{
    QFETCH(const QString, name);
    static const QRegularExpression line(
        QStringLiteral("^(#.*|[0-9a-f+][0-9a-f]{3},[0-9a-f]{4}\t[^\t]+(\t[^\t]{1,64})?|)$"));
    QSet<QString> tags;
    for (const QString &text : readText(joinPath(resources, name)).value_or(QString()).split(u'\n')) {
        QVERIFY2(line.match(text).hasMatch(), qPrintable(text));
        if (text.isEmpty() || text.startsWith(u'#'))
            continue;
        QVERIFY2(!tags.contains(text.first(tagLength)), qPrintable(text));
        tags.insert(text.first(tagLength));
    }
    const TagRules rules = rulesOf(name);
    QVERIFY(tags.size() > 300);
    QVERIFY(tags.subtract({rules.allTagsToAnonymize.begin(), rules.allTagsToAnonymize.end()}).isEmpty());
    QCOMPARE(edits(rules, {}).malformedTags, QStringList());
}

void TestConfigurations::testsListEveryAttributeOfTheDefault()
{
    const Effects effects = effectsOf(rulesOf(defaultName));
    QStringList attributes = (effects.erased + effects.replaced).values();
    QStringList listed = test::listedAttributes();
    attributes.sort();
    listed.sort();
    QCOMPARE(listed, attributes);
}

void TestConfigurations::keepsTheKindsOfTagsOutThatTheToolRefuses()
{
    QFETCH(const QString, name);
    const QStringList tags = rulesOf(name).allTagsToAnonymize;
    QCOMPARE(tags.filter(QRegularExpression(QStringLiteral("x|X|^000[02],"))), QStringList());
    QVERIFY(!tags.contains(QStringLiteral("0012,0062"))); // nothing here makes an object de-identified
    QVERIFY(!tags.contains(QStringLiteral("0020,000D")));
}

RealRun &TestConfigurations::runWith(const QString &configuration)
{
    std::unique_ptr<RealRun> &run = m_runs[configuration];
    if (!run) {
        run = std::make_unique<RealRun>();
        anonymizeCopies(*run, configuration);
    }
    return *run;
}

void TestConfigurations::anonymizeCopies(RealRun &run, const QString &configuration) const
{
    const LogCatcher log;
    const TagRules rules = rulesOf(configuration);
    run.state.set(&RunState::newValueDict, rules.newValueDict);
    dropTableMarkers(run.state); // no table is selected
    for (const QString &kind : m_originals.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QVERIFY(createFolder(copy(run, kind)));
        for (const QString &file : QDir(original(kind)).entryList(filesToChange(configuration, kind)))
            QVERIFY(copyFile(original(kind + u'/' + file), copy(run, kind + u'/' + file)));
        QCOMPARE(anonymizeFolder(run.context,
                                 {rules.allTagsToAnonymize, run.state.get(&RunState::newValueDict)},
                                 copy(run, kind), {}),
                 0U);
    }
    QCOMPARE(run.resultingOutput(), QString());
    QCOMPARE(log.messages(), QStringList());
}

QStringList TestConfigurations::newFaults(const RealRun &run, const QString &relative)
{
    if (!m_oldFaults.contains(relative))
        m_oldFaults.insert(relative, test::faultsOf(original(relative)));
    QStringList faults = test::faultsOf(copy(run, relative));
    for (const QString &old : m_oldFaults.value(relative))
        faults.removeAll(old);
    return faults;
}

void TestConfigurations::takesEveryListedValueAndNoOther()
{
    QFETCH(const QString, name);
    const RealRun &run = runWith(name);
    const Effects effects =
        effectsOf({rulesOf(name).allTagsToAnonymize, run.state.get(&RunState::newValueDict)});
    qsizetype gone = 0;
    for (const PlantedObject &object : m_objects) {
        if (!pathExists(copy(run, object.path)))
            continue;
        const QByteArray after = readBytes(copy(run, object.path)).value_or(QByteArray());
        for (const PlantedValue &value : object.values) {
            const bool mustBeGone = isGone(value, effects);
            gone += mustBeGone;
            if (after.contains(value.bytes) != mustBeGone || isTooShortToTell(value))
                continue;
            if (!mustBeGone || !isPartOfAKeptOne(value, object.values, effects))
                QFAIL(qPrintable(object.path + u' ' + value.tags.join(u'.')));
        }
    }
    QVERIFY(gone > 1000);
}

void TestConfigurations::makesOnlyThoseObjectsIncompleteThatACommentNames()
{
    QFETCH(const QString, name);
    const RealRun &run = runWith(name);
    const QString comments = squeezedComments(name);
    for (const QString &kind : m_originals.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        for (const QString &fault : newFaults(run, kind + QStringLiteral("/plain.dcm")))
            QVERIFY2(comments.contains(attributeOf(fault)) && !attributeOf(fault).isEmpty(),
                     qPrintable(fault));
    }
}

void TestConfigurations::makesNoImageIncomplete_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"CT", "MR", "ENHMR", "US", "USMULTI", "SC"})
        QTest::newRow(kind) << QString::fromLatin1(kind);
}

void TestConfigurations::makesNoImageIncomplete()
{
    QFETCH(const QString, kind);
    const RealRun &run = runWith(defaultName);
    for (const char16_t *file : {u"/plain.dcm", u"/planted.dcm"})
        QCOMPARE(newFaults(run, kind + QString::fromUtf16(file)), QStringList());
}

DRAVOLIN_TEST(TestConfigurations)
#include "tst_configurations.moc"
