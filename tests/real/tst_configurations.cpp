#include "processing/FolderAnonymization.h"
#include "real/PlantedObjects.h"
#include "real/RealRun.h"
#include "real/ShippedConfigurations.h"
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

bool isGone(const PlantedValue &value, const test::Effects &effects)
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
bool isPartOfAKeptOne(const PlantedValue &value, const QList<PlantedValue> &all, const test::Effects &effects)
{
    return std::any_of(all.begin(), all.end(), [&](const PlantedValue &other) {
        return other.bytes.contains(value.bytes) && !isGone(other, effects);
    });
}

// The comments of a configuration without anything between the letters, as keywords are written.
QString squeezedComments(const QString &name)
{
    const QStringList lines = readText(test::shippedConfiguration(name)).value_or(QString()).split(u'\n');
    const QString comments = lines.filter(QRegularExpression(QStringLiteral("^#"))).join(u' ');
    return QString(comments).remove(QRegularExpression(QStringLiteral("[^A-Za-z,(]")));
}

QString attributeOf(const QString &fault)
{
    static const QRegularExpression element(QStringLiteral("Element=<([A-Za-z]+)>"));
    return element.match(fault).captured(1);
}

} // namespace

// The configurations that come with the program, and what they make of objects of many kinds.
class TestConfigurations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void takesEveryListedValueAndNoOther_data() { test::addShippedConfigurations(); }
    void takesEveryListedValueAndNoOther();
    void makesOnlyThoseObjectsIncompleteThatACommentNames_data() { test::addShippedConfigurations(); }
    void makesOnlyThoseObjectsIncompleteThatACommentNames();
    void makesNoImageIncomplete_data();
    void makesNoImageIncomplete();
    void takesAnOverlayWhole();
    void takesNumbersAndAges();

private:
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
    const TagRules rules = test::rulesOf(configuration);
    run.state.set(&RunState::newValueDict, rules.newValueDict);
    dropTableMarkers(run.state); // no table is selected
    for (const QString &kind : m_originals.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QVERIFY(createFolder(copy(run, kind)));
        for (const QString &file : QDir(original(kind)).entryList({QStringLiteral("*.dcm")}))
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
    const test::Effects effects =
        test::effectsOf({test::rulesOf(name).allTagsToAnonymize, run.state.get(&RunState::newValueDict)});
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
    const RealRun &run = runWith(test::defaultConfiguration);
    for (const char16_t *file : {u"/plain.dcm", u"/planted.dcm"})
        QCOMPARE(newFaults(run, kind + QString::fromUtf16(file)), QStringList());
}

void TestConfigurations::takesAnOverlayWhole()
{
    RealRun run;
    const QString image = run.path(QStringLiteral("overlay/image"));
    QVERIFY(createFolder(parentPath(image)));
    QVERIFY(copyFile(original(QStringLiteral("CT/plain.dcm")), image));
    test::addOverlay(image);
    const QStringList faults = test::faultsOf(image);
    const TagRules rules = test::rulesOf(test::defaultConfiguration);
    QVERIFY(!run.lines(image).filter(QStringLiteral("(6000,")).isEmpty());
    QCOMPARE(anonymizeFolder(run.context, rules, parentPath(image), {}), 0U);
    QCOMPARE(run.lines(image).filter(QStringLiteral("(6000,")), QStringList());
    QCOMPARE(test::faultsOf(image), faults);
}

// Those whose bytes are too few to be looked for.
void TestConfigurations::takesNumbersAndAges()
{
    const RealRun &run = runWith(test::defaultConfiguration);
    for (const char *tag : {"0010,1010", "0010,21c0", "6000,0010"}) {
        const QString relative = QStringLiteral("CT/planted.dcm");
        QVERIFY(!run.lines(original(relative), tag).isEmpty());
        QCOMPARE(run.lines(copy(run, relative), tag), QStringList());
    }
}

DRAVOLIN_TEST(TestConfigurations)
#include "tst_configurations.moc"
