#include "base/Files.h"
#include "config/LutFile.h"
#include "processing/LutConstruction.h"
#include "support/AsOrdinaryUser.h"
#include "support/ScratchFolder.h"
#include "support/TestEntry.h"
#include "support/TestRun.h"

#include <QTest>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace dravolin;
using test::AsOrdinaryUser;
using test::LogCatcher;
using test::TestRun;

namespace {

const QString tag = QStringLiteral("0010,1000");

RunOptions withTable(const QString &name)
{
    RunOptions options;
    options.selectedLUT = name;
    return options;
}

} // namespace

// The table file that a construction writes.
class TestLutTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void sortsAsPeopleDo_data();
    void sortsAsPeopleDo();
    void tiesComeInTheSameOrderAlways();
    void writesTheSortedValues();
    void withoutValuesWritesTheExplanationAlone();
    void namesTheFile_data();
    void namesTheFile();
    void takenNamesGetANumber_data();
    void takenNamesGetANumber();
    void brokenLinkDoesNotTakeAName();
    void makesTheDesktopFolder();
    void failureIsOnlyLogged_data();
    void failureIsOnlyLogged();
    void readOnlyDesktopIsOnlyLogged();
    void fullDiskIsOnlyLogged();

private:
    [[nodiscard]] QStringList desktop() const;
    std::unique_ptr<TestRun> m_run;
};

void TestLutTable::init()
{
    m_run = std::make_unique<TestRun>();
    m_run->state.set(&RunState::LUTconstructionTag, tag);
}

QStringList TestLutTable::desktop() const
{
    QStringList names = listNames(m_run->paths.desktopFolder);
    names.sort();
    return names;
}

void TestLutTable::sortsAsPeopleDo_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("sorted");
    const auto add = [](const char *name, const QLocale &locale, const char *sorted) {
        QTest::newRow(name) << locale << QString::fromUtf8(sorted);
    };
    add("no language", QLocale::c(), "");
    add("no language, digits", QLocale::c(), "1 10 2 A1");
    add("no language, both cases", QLocale::c(), "a B c D e");
    add("English", QLocale(QLocale::English), "1 10 2 A1 a2 B c D e");
    add("German", QLocale(QLocale::German), "a \303\244b B z");
    add("Swedish", QLocale(QLocale::Swedish), "a B z \303\244b");
}

void TestLutTable::sortsAsPeopleDo()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, sorted);
    const QStringList expected = sorted.split(u' ', Qt::SkipEmptyParts);
    QCOMPARE(sortedLutValues(QSet<QString>(expected.cbegin(), expected.cend()), locale), expected);
}

void TestLutTable::tiesComeInTheSameOrderAlways()
{
    const QStringList expected = {QStringLiteral("ABC"), QStringLiteral("ABc"), QStringLiteral("Abc"),
                                  QStringLiteral("abc")};
    for (const QLocale &locale : {QLocale::c(), QLocale(QLocale::English)})
        QCOMPARE(sortedLutValues(QSet<QString>(expected.crbegin(), expected.crend()), locale), expected);
}

void TestLutTable::writesTheSortedValues()
{
    m_run->state.set(&RunState::LUTtagSet, QSet<QString>{QStringLiteral("PAT-1234"), QStringLiteral("a b"),
                                                         QStringLiteral("B"), QStringLiteral("M\u00FCller")});
    writeConstructedLut(m_run->context, {});
    QCOMPARE(desktop(), QStringList{QStringLiteral("AnonymizationLUT_XX.txt")});
    QCOMPARE(readText(m_run->path(QStringLiteral("home/Desktop/AnonymizationLUT_XX.txt"))),
             lutText(tag, {}) +
                 QStringLiteral("a b\t\t\tSubject_001\nB\t\t\tSubject_002\nM\u00FCller\t\t\tSubject_003\n"
                                "PAT-1234\t\tSubject_004\n"));
}

void TestLutTable::withoutValuesWritesTheExplanationAlone()
{
    m_run->state.set(&RunState::LUTconstructionTag, QStringLiteral("(0010,0020)"));
    writeConstructedLut(m_run->context, {});
    const QString path = m_run->path(QStringLiteral("home/Desktop/AnonymizationLUT_XX.txt"));
    QCOMPARE(readText(path), lutText(QStringLiteral("(0010,0020)"), {}));
}

void TestLutTable::namesTheFile_data()
{
    QTest::addColumn<QString>("selected");
    QTest::addColumn<QString>("firstFound");
    QTest::addColumn<QString>("file");
    QTest::newRow("the selected table's name") << QStringLiteral("Site") << QStringLiteral("PatientID")
                                               << QStringLiteral("AnonymizationLUT_Site.txt");
    QTest::newRow("the first marker's name")
        << QString() << QStringLiteral("PatientID") << QStringLiteral("AnonymizationLUT_PatientID.txt");
    QTest::newRow("neither") << QString() << QString() << QStringLiteral("AnonymizationLUT_XX.txt");
    QTest::newRow("placeholders") << QStringLiteral("%1%2") << QString()
                                  << QStringLiteral("AnonymizationLUT_%1%2.txt");
    QTest::newRow("any characters") << QStringLiteral("a \"$x' \u00E4") << QString()
                                    << QStringLiteral("AnonymizationLUT_a \"$x' \u00E4.txt");
    QTest::newRow("not UTF-8") << fromBytes("\xFC") << QString()
                               << QStringLiteral("AnonymizationLUT_") + fromBytes("\xFC") +
                                      QStringLiteral(".txt");
}

void TestLutTable::namesTheFile()
{
    QFETCH(QString, selected);
    QFETCH(QString, firstFound);
    QFETCH(QString, file);
    m_run->state.set(&RunState::firstFoundLUTtagInNewValueDict, firstFound);
    const LogCatcher log;
    writeConstructedLut(m_run->context, withTable(selected));
    QCOMPARE(desktop(), QStringList{file});
    QCOMPARE(LogCatcher::messages(), QStringList());
}

void TestLutTable::takenNamesGetANumber_data()
{
    QTest::addColumn<QStringList>("taken");
    QTest::addColumn<QString>("file");
    const auto add = [](const char *name, const QStringList &taken, const QString &file) {
        QTest::newRow(name) << taken << file;
    };
    add("one", {QStringLiteral("AnonymizationLUT_ID.txt")}, QStringLiteral("AnonymizationLUT_ID1.txt"));
    add("two", {QStringLiteral("AnonymizationLUT_ID.txt"), QStringLiteral("AnonymizationLUT_ID1.txt")},
        QStringLiteral("AnonymizationLUT_ID2.txt"));
    add("a gap is filled",
        {QStringLiteral("AnonymizationLUT_ID.txt"), QStringLiteral("AnonymizationLUT_ID2.txt")},
        QStringLiteral("AnonymizationLUT_ID1.txt"));
    add("the plain name is free", {QStringLiteral("AnonymizationLUT_ID1.txt")},
        QStringLiteral("AnonymizationLUT_ID.txt"));
    add("another case is another name", {QStringLiteral("AnonymizationLUT_id.txt")},
        QStringLiteral("AnonymizationLUT_ID.txt"));
}

void TestLutTable::takenNamesGetANumber()
{
    QFETCH(QStringList, taken);
    QFETCH(QString, file);
    for (const QString &name : taken)
        m_run->writeFile(QStringLiteral("home/Desktop/") + name, QStringLiteral("kept"));
    writeConstructedLut(m_run->context, withTable(QStringLiteral("ID")));
    QStringList expected = taken + QStringList(file);
    expected.sort();
    QCOMPARE(desktop(), expected);
    for (const QString &name : taken)
        QCOMPARE(readText(m_run->path(QStringLiteral("home/Desktop/") + name)), QStringLiteral("kept"));
    QCOMPARE(readText(m_run->path(QStringLiteral("home/Desktop/") + file)), lutText(tag, {}));
}

void TestLutTable::brokenLinkDoesNotTakeAName()
{
    const QString target = m_run->path(QStringLiteral("home/target.txt"));
    const QString link = m_run->path(QStringLiteral("home/Desktop/AnonymizationLUT_ID.txt"));
    QCOMPARE(::symlink(toBytes(target).constData(), toBytes(link).constData()), 0);
    writeConstructedLut(m_run->context, withTable(QStringLiteral("ID")));
    QCOMPARE(readText(target), lutText(tag, {}));
}

void TestLutTable::makesTheDesktopFolder()
{
    m_run->paths.desktopFolder = m_run->path(QStringLiteral("home/other/Desktop"));
    const LogCatcher log;
    writeConstructedLut(m_run->context, withTable(QStringLiteral("ID")));
    QCOMPARE(desktop(), QStringList{QStringLiteral("AnonymizationLUT_ID.txt")});
    QCOMPARE(LogCatcher::messages(), QStringList());
}

void TestLutTable::failureIsOnlyLogged_data()
{
    QTest::addColumn<QString>("desktopFolder");
    QTest::addColumn<QString>("name");
    QTest::newRow("desktop is a file") << QStringLiteral("home/file") << QStringLiteral("ID");
    QTest::newRow("name with a folder that does not exist")
        << QStringLiteral("home/Desktop") << QStringLiteral("a/b");
    QTest::newRow("name too long") << QStringLiteral("home/Desktop") << QString(300, u'x');
}

void TestLutTable::failureIsOnlyLogged()
{
    QFETCH(QString, desktopFolder);
    QFETCH(QString, name);
    m_run->writeFile(QStringLiteral("home/file"));
    m_run->paths.desktopFolder = m_run->path(desktopFolder);
    const LogCatcher log;
    writeConstructedLut(m_run->context, withTable(name));
    QCOMPARE(LogCatcher::messages(),
             QStringList{QStringLiteral("Could not write LUT to file: ") + m_run->paths.desktopFolder +
                         QStringLiteral("/AnonymizationLUT_") + name + QStringLiteral(".txt")});
    QCOMPARE(m_run->state.get(&RunState::errCount), 0U);
    QCOMPARE(m_run->host.calls, QStringList());
    QCOMPARE(desktop(), QStringList());
}

void TestLutTable::readOnlyDesktopIsOnlyLogged()
{
    const AsOrdinaryUser user;
    const test::ScratchFolder scratch;
    m_run->paths.desktopFolder = scratch.folder(QStringLiteral("Desktop"));
    QCOMPARE(::chmod(toBytes(m_run->paths.desktopFolder).constData(), 0500), 0);
    const LogCatcher log;
    writeConstructedLut(m_run->context, withTable(QStringLiteral("ID")));
    QCOMPARE(LogCatcher::messages(),
             QStringList{QStringLiteral("Could not write LUT to file: ") + m_run->paths.desktopFolder +
                         QStringLiteral("/AnonymizationLUT_ID.txt")});
    QCOMPARE(::chmod(toBytes(m_run->paths.desktopFolder).constData(), 0700), 0);
}

void TestLutTable::fullDiskIsOnlyLogged()
{
    // a limit on the size of files stands for a disk without room
    const rlimit small = {64, RLIM_INFINITY};
    rlimit before = {};
    QCOMPARE(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &small), 0);
    const LogCatcher log;
    writeConstructedLut(m_run->context, withTable(QStringLiteral("ID")));
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &before), 0);
    std::signal(SIGXFSZ, handler);
    QCOMPARE(LogCatcher::messages(),
             QStringList{QStringLiteral("Could not write LUT to file: ") + m_run->paths.desktopFolder +
                         QStringLiteral("/AnonymizationLUT_ID.txt")});
    QCOMPARE(listNames(m_run->paths.desktopFolder), QStringList()); // half a table would be offered
}

DRAVOLIN_TEST(TestLutTable)
#include "tst_luttable.moc"
