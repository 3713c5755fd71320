#include "check/Check.h"
#include "processing/FolderAnonymization.h"
#include "processing/FolderTree.h"
#include "real/RealRun.h"
#include "real/ShippedConfigurations.h"
#include "run/Configuration.h"
#include "support/TestEntry.h"

#include <QTest>

#include <filesystem>

using namespace dravolin;
using namespace dravolin::check;
using test::RealRun;

// What a check finds after runs of the window's own jobs with new instance UIDs: with the default
// configuration, and with that and the lines that the check then proposes.
class TestValueCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isContentWithTheLinesThatItProposes_data();
    void isContentWithTheLinesThatItProposes();

private:
    void makeObjects(const QString &set);
    // Copies the originals, anonymizes the copy, and takes away what no run changes.
    void runWith(const QString &configuration);
    [[nodiscard]] CheckReport checkAfterRun(const QString &configuration);

    std::unique_ptr<RealRun> m_run;
    QStringList m_found; // of grade certain or likely
};

namespace {

QStringList proposedLines(const CheckReport &report)
{
    QStringList lines;
    for (const FindingGroup &group : report.groups) {
        if (group.worst != Grade::Possible && !group.line.isEmpty() && !lines.contains(group.line))
            lines.append(group.line);
    }
    return lines;
}

} // namespace

void TestValueCheck::makeObjects(const QString &set)
{
    const QString folder = m_run->path(QStringLiteral("before"));
    const QStringList arguments =
        set == QStringLiteral("sample")
            ? QStringList{QStringLiteral("-c"),
                          QStringLiteral("import sys, pathlib; sys.path.insert(0, sys.argv[1]); "
                                         "from outside.study import make_study; "
                                         "make_study(pathlib.Path(sys.argv[2]))"),
                          QStringLiteral(DESKTOP), folder}
            : QStringList{QStringLiteral(OBJECT_GENERATOR),
                          QStringLiteral("mixed"),
                          folder,
                          QStringLiteral("--count"),
                          set,
                          QStringLiteral("--no-directory")};
    const JobResult made = PosixJobRunner().run(
        {QStringLiteral("/usr/bin/python3"), arguments, m_run->path(QString()), {}, true});
    QVERIFY2(pathExists(folder), made.output.constData());
    removeFile(joinPath(folder, QStringLiteral("planted.json")));
}

void TestValueCheck::runWith(const QString &configuration)
{
    namespace fs = std::filesystem;
    const QString after = m_run->path(QStringLiteral("after"));
    fs::remove_all(after.toStdString());
    fs::copy(m_run->path(QStringLiteral("before")).toStdString(), after.toStdString(),
             fs::copy_options::recursive);
    TagRules rules = parseConfiguration(configuration);
    addFixedTags(rules,
                 {QStringLiteral("diagnosis"), QStringLiteral("007"), QStringLiteral("credits"),
                  QStringLiteral("keywords")},
                 QStringLiteral("2.25.42"));
    m_run->host.chosen.generateSOP = Qt::Checked;
    forEachFolder(after, [&](const QString &folder) {
        QCOMPARE(anonymizeFolder(m_run->context, rules, folder, {}), 0U);
    });
    removeFile(joinPath(after, QStringLiteral("disc/DICOMDIR")));
    removeFile(joinPath(after, QStringLiteral("disc/README.TXT")));
}

CheckReport TestValueCheck::checkAfterRun(const QString &configuration)
{
    runWith(configuration);
    m_found.clear();
    CheckEvents events;
    events.findings = [this](const QString &file, const QList<Finding> &findings, const Patterns &patterns) {
        for (const Finding &finding : findings) {
            if (finding.match.grade != Grade::Possible)
                m_found.append(QStringList{nameOf(finding.match.grade), file, textOf(finding.place),
                                           fromBytes(patterns.at(finding.match.pattern).value)}
                                   .join(u' '));
        }
    };
    CheckOptions options;
    options.originals = m_run->path(QStringLiteral("before"));
    options.result = m_run->path(QStringLiteral("after"));
    options.rules = parseConfiguration(configuration);
    options.workers = 2;
    return check::check(options, events);
}

void TestValueCheck::isContentWithTheLinesThatItProposes_data()
{
    QTest::addColumn<QString>("set");
    QTest::newRow("sample study") << QStringLiteral("sample");
    QTest::newRow("generated objects") << qEnvironmentVariable("DRAVOLIN_OBJECTS", QStringLiteral("120"));
}

// No false alarm is left when every attribute is gone that held a value.
void TestValueCheck::isContentWithTheLinesThatItProposes()
{
    QFETCH(const QString, set);
    m_run = std::make_unique<RealRun>();
    makeObjects(set);
    const QString configuration =
        readText(test::shippedConfiguration(test::defaultConfiguration)).value_or(QString());
    const CheckReport first = checkAfterRun(configuration);
    QVERIFY(first.resultObjects > 3);
    QVERIFY(first.values->searched() > 10);
    const QStringList lines = proposedLines(first);
    QVERIFY(!lines.isEmpty());
    const CheckReport second = checkAfterRun(configuration + lines.join(u'\n') + u'\n');
    QCOMPARE(m_found, QStringList());
    QCOMPARE(second.unchecked.size(), 0);
}

DRAVOLIN_TEST(TestValueCheck)
#include "tst_valuecheck.moc"
