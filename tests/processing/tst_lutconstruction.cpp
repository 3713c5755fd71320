#include "base/Files.h"
#include "processing/LutConstruction.h"
#include "support/ScriptHeader.h"
#include "support/TestEntry.h"
#include "support/TestRun.h"

#include <QTest>

using namespace dravolin;
using test::header;
using test::LogCatcher;
using test::TestRun;

namespace {

const QString filter = QStringLiteral("| awk -F [][] '{print $2}' ");
const QString tag = QStringLiteral("0010,1000");
constexpr qsizetype countedSuffix = 41; // of "| awk -F [][] '{print $2}' >>.noxTemp.out"

} // namespace

class TestLutConstruction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void prefixNamesToolOptionsAndTag();
    void redirectionsAreTheseFour();
    void folderIsOneJobThatRecursesItself();
    void filesAreNamedOneByOne();
    void filesOfOtherFoldersAreNamedInTheFirst();
    void aTreeIsSearchedFromItsTop();
    void oneCharacterDecidesWhetherAListIsSplit_data();
    void oneCharacterDecidesWhetherAListIsSplit();
    void keepsOnlyTheLastLineTruncating();
    void tenFilesInThreeParts();
    void nothingToDoComesBeforeTheTag();
    void malformedTagsAreRefused_data();
    void malformedTagsAreRefused();
    void anyNineCharactersAreATag();

private:
    [[nodiscard]] QString prefix() const
    {
        return u'"' + m_run->paths.dcmdump() +
               QStringLiteral("\" -M -Un +E +F -q +sd +r +s --search 0010,1000 ");
    }
    [[nodiscard]] QString script() const { return m_run->jobs.jobs.last().script; }
    std::unique_ptr<TestRun> m_run;
    QString m_folder;
};

void TestLutConstruction::init()
{
    m_run = std::make_unique<TestRun>();
    m_folder = m_run->makeFolder(QStringLiteral("data/A"));
    m_run->state.set(&RunState::LUTconstructionTag, tag);
}

void TestLutConstruction::prefixNamesToolOptionsAndTag()
{
    QCOMPARE(constructionPrefix(QStringLiteral("/app/my tools/%1/dcmdump"), QStringLiteral("0010,%200")),
             QStringLiteral("\"/app/my tools/%1/dcmdump\" -M -Un +E +F -q +sd +r +s --search 0010,%200 "));
}

void TestLutConstruction::redirectionsAreTheseFour()
{
    const Redirections &redirections = constructionRedirections();
    QCOMPARE(redirections.only, QStringLiteral("* | awk -F [][] '{print $2}' >.noxTemp.out"));
    QCOMPARE(redirections.more, QStringLiteral(" | awk -F [][] '{print $2}' >>.noxTemp.out\n"));
    QCOMPARE(redirections.last, QStringLiteral(" | awk -F [][] '{print $2}' >.noxTemp.out"));
    QCOMPARE(redirections.counted, countedSuffix);
}

void TestLutConstruction::folderIsOneJobThatRecursesItself()
{
    m_run->makeFolder(QStringLiteral("data/A/sub/sub"));
    QCOMPARE(collectFromTree(m_run->context, m_folder), 0U);
    QCOMPARE(m_run->jobs.jobs.size(), 1);
    const Job &job = m_run->jobs.jobs.first().job;
    QCOMPARE(job.executable, QStringLiteral("/bin/sh"));
    QCOMPARE(job.arguments,
             (QStringList{QStringLiteral("-c"), u'"' + m_folder + QStringLiteral("/.noxTemp.sh\"")}));
    QCOMPARE(job.folder, m_folder);
    QCOMPARE(job.environment, QStringList{QStringLiteral("DCMDICTPATH=") + m_run->paths.dictionary()});
    QCOMPARE(job.pipeOutput, false);
    QCOMPARE(script(), header + prefix() + QStringLiteral("* | awk -F [][] '{print $2}' >.noxTemp.out"));
}

void TestLutConstruction::filesAreNamedOneByOne()
{
    const QStringList files = {joinPath(m_folder, QStringLiteral("b.dcm")),
                               joinPath(m_folder, QStringLiteral("a $HOME \".dcm"))};
    QCOMPARE(collectFromFiles(m_run->context, files), 0U);
    QCOMPARE(m_run->jobs.folders(), QStringList{m_folder});
    QCOMPARE(script(), header + prefix() +
                           QStringLiteral(" \"b.dcm\" \"a $HOME \".dcm\"* | awk -F [][] "
                                          "'{print $2}' >.noxTemp.out"));
}

void TestLutConstruction::filesOfOtherFoldersAreNamedInTheFirst()
{
    const QStringList files = {joinPath(m_folder, QStringLiteral("a")), QStringLiteral("/elsewhere/b")};
    QCOMPARE(collectFromFiles(m_run->context, files), 0U);
    QCOMPARE(m_run->jobs.folders(), QStringList{m_folder});
    QCOMPARE(script(),
             header + prefix() + QStringLiteral(" \"a\" \"b\"* | awk -F [][] '{print $2}' >.noxTemp.out"));
}

void TestLutConstruction::aTreeIsSearchedFromItsTop()
{
    QCOMPARE(collectFromTree(m_run->context, m_folder), 0U);
    QCOMPARE(m_run->jobs.folders(), QStringList{m_folder});
    QCOMPARE(script(), header + prefix() + QStringLiteral("* | awk -F [][] '{print $2}' >.noxTemp.out"));
}

void TestLutConstruction::oneCharacterDecidesWhetherAListIsSplit_data()
{
    QTest::addColumn<int>("spare");
    QTest::addColumn<bool>("split");
    QTest::newRow("one character less than the limit") << 1 << false;
    QTest::newRow("exactly the limit") << 0 << true;
}

void TestLutConstruction::oneCharacterDecidesWhetherAListIsSplit()
{
    QFETCH(int, spare);
    QFETCH(bool, split);
    const qsizetype listed = 262144 - spare - prefix().size() - countedSuffix;
    const QString first(100000, u'a');
    const QString second(listed - first.size() - 6, u'\u00E4'); // two blanks, four quotes
    const QString a = QStringLiteral(" \"") + first + u'"';
    const QString b = QStringLiteral(" \"") + second + u'"';
    const QStringList files = {joinPath(m_folder, first), joinPath(m_folder, second)};
    QCOMPARE(collectFromFiles(m_run->context, files), 0U);
    const QString expected =
        split ? prefix() + a + u' ' + filter + QStringLiteral(">>.noxTemp.out\n") + prefix() + b + u' ' +
                    filter + QStringLiteral(">.noxTemp.out")
              : prefix() + a + b + QStringLiteral("* ") + filter + QStringLiteral(">.noxTemp.out");
    QVERIFY(script() == header + expected);
}

void TestLutConstruction::keepsOnlyTheLastLineTruncating()
{
    m_run->context.max_arg_len = 4;
    const QStringList files = {joinPath(m_folder, QStringLiteral("a"))};
    QCOMPARE(collectFromFiles(m_run->context, files), 0U);
    const QStringList lines = script().sliced(header.size()).split(u'\n');
    const qsizetype parts = (prefix().size() + 4 + countedSuffix) / 2;
    QCOMPARE(lines.size(), parts);
    for (const QString &line : lines.first(parts - 1)) // no file is left for these
        QCOMPARE(line, prefix() + QStringLiteral(" | awk -F [][] '{print $2}' >>.noxTemp.out"));
    QCOMPARE(lines.last(), prefix() + QStringLiteral(" \"a\" | awk -F [][] '{print $2}' >.noxTemp.out"));
}

void TestLutConstruction::tenFilesInThreeParts()
{
    QStringList files;
    for (int i = 0; i < 10; ++i)
        files.append(joinPath(m_folder, QString::number(i)));
    const qsizetype total = prefix().size() + 40 + countedSuffix;
    m_run->context.max_arg_len = 2 * (total / 3);
    QCOMPARE(collectFromFiles(m_run->context, files), 0U);
    QCOMPARE(script(),
             header + prefix() +
                 QStringLiteral(" \"0\" \"1\" \"2\" | awk -F [][] '{print $2}' >>.noxTemp.out\n") + prefix() +
                 QStringLiteral(" \"3\" \"4\" \"5\" | awk -F [][] '{print $2}' >>.noxTemp.out\n") + prefix() +
                 QStringLiteral(" \"6\" \"7\" \"8\" \"9\" | awk -F [][] '{print $2}' >.noxTemp.out"));
}

void TestLutConstruction::nothingToDoComesBeforeTheTag()
{
    m_run->state.set(&RunState::LUTconstructionTag, QString());
    const LogCatcher log;
    QCOMPARE(collectFromTree(m_run->context, QString()), 0U);
    QCOMPARE(LogCatcher::messages(), QStringList());
    QVERIFY(m_run->jobs.jobs.isEmpty());
}

void TestLutConstruction::malformedTagsAreRefused_data()
{
    QTest::addColumn<QString>("malformed");
    QTest::newRow("empty") << QString();
    QTest::newRow("parentheses") << QStringLiteral("(0010,0020)");
    QTest::newRow("eight") << QStringLiteral("0010,002");
    QTest::newRow("ten") << QStringLiteral("0010,00200");
    QTest::newRow("nine characters, ten units") << QStringLiteral("0010,002\U0001F600");
    QTest::newRow("placeholder") << QStringLiteral("%1");
}

void TestLutConstruction::malformedTagsAreRefused()
{
    QFETCH(QString, malformed);
    m_run->state.set(&RunState::LUTconstructionTag, malformed);
    const QString beside = m_run->writeFile(QStringLiteral("data/A.noxTemp.out"));
    const LogCatcher log;
    QCOMPARE(collectFromTree(m_run->context, m_folder), 1U);
    QCOMPARE(collectFromFiles(m_run->context, {joinPath(m_folder, QStringLiteral("a"))}), 1U);
    QCOMPARE(LogCatcher::messages(), QStringList(2, QStringLiteral("Malformed LUT tag: ") + malformed));
    QVERIFY(m_run->jobs.jobs.isEmpty());
    QVERIFY(pathExists(beside));
}

void TestLutConstruction::anyNineCharactersAreATag()
{
    m_run->state.set(&RunState::LUTconstructionTag, QStringLiteral("abcdefghi"));
    QCOMPARE(collectFromTree(m_run->context, m_folder), 0U);
    QCOMPARE(script(), header + u'"' + m_run->paths.dcmdump() +
                           QStringLiteral("\" -M -Un +E +F -q +sd +r +s --search abcdefghi * | awk -F [][] "
                                          "'{print $2}' >.noxTemp.out"));
}

DRAVOLIN_TEST(TestLutConstruction)
#include "tst_lutconstruction.moc"
