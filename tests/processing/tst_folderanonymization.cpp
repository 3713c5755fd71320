#include "base/Files.h"
#include "processing/FolderAnonymization.h"
#include "support/ScriptHeader.h"
#include "support/TestEntry.h"
#include "support/TestRun.h"

#include <QTest>

using namespace dravolin;
using test::header;
using test::LogCatcher;
using test::TestRun;

namespace {

const QStringList tags = {QStringLiteral("0010,0010"), QStringLiteral("0010,0030")};
const QString tagArguments = QStringLiteral(" -i \"(0010,0010)=ANON\" -ea \"(0010,0030)\"");
constexpr qsizetype suffixLength = 21; // of " >>.noxTemp.out 2>>&1"

} // namespace

class TestFolderAnonymization : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void folderJobTakesEveryEntryByAGlob();
    void folderJobIsNeverSplit();
    void emptyFolderGetsAJobToo();
    void filesAreNamedOneByOne();
    void filesOfOtherFoldersAreNamedInTheFirst();
    void oneCharacterDecidesWhetherAListIsSplit_data();
    void oneCharacterDecidesWhetherAListIsSplit();
    void fewFilesBehindALongPrefixLandOnTheLastLine();
    void noFilesOrNoFolderIsNoJob_data();
    void noFilesOrNoFolderIsNoJob();
    void readsTheChoicesAtTheStartOfEachCall();
    void onlyGenerateLeavesTagsAndTheirLogOut();
    void logsAndCountsMalformedTagsInEveryCall();
    void appendsTheToolsTextUnchanged();
    void toolsErrorsAreNotItsOwn();
    void jobThatCannotStartIsOneError();

private:
    [[nodiscard]] QString prefix() const
    {
        return u'"' + m_run->paths.dcmodify() + QStringLiteral("\" -ie -imt -nb");
    }
    // The tags with the new values in the state.
    [[nodiscard]] TagRules rules(const QStringList &listed) const
    {
        return {listed, m_run->state.get(&RunState::newValueDict)};
    }
    [[nodiscard]] QString script() const { return m_run->jobs.jobs.last().script; }
    std::unique_ptr<TestRun> m_run;
    QString m_folder;
    const RunOptions m_noBackups;
};

void TestFolderAnonymization::init()
{
    m_run = std::make_unique<TestRun>();
    m_folder = m_run->makeFolder(QStringLiteral("data/s1"));
    m_run->state.set(&RunState::newValueDict, NewValueDict{{tags.first(), QStringLiteral("ANON")}});
}

void TestFolderAnonymization::folderJobTakesEveryEntryByAGlob()
{
    QCOMPARE(anonymizeFolder(m_run->context, rules(tags), m_folder, m_noBackups), 0U);
    QCOMPARE(m_run->jobs.folders(), QStringList{m_folder});
    QCOMPARE(script(), header + prefix() + tagArguments + QStringLiteral(" * >.noxTemp.out 2>&1"));
    QCOMPARE(m_run->state.get(&RunState::errCount), 0U);

    RunOptions options;
    options.createBAKfiles = true;
    QCOMPARE(anonymizeFolder(m_run->context, rules(tags), m_folder, options), 0U);
    QCOMPARE(script(), header + u'"' + m_run->paths.dcmodify() + QStringLiteral("\" -ie -imt") +
                           tagArguments + QStringLiteral(" * >.noxTemp.out 2>&1"));
}

void TestFolderAnonymization::folderJobIsNeverSplit()
{
    const QString value(300000, u'x');
    m_run->state.set(&RunState::newValueDict, NewValueDict{{tags.first(), value}});
    QCOMPARE(anonymizeFolder(m_run->context, rules({tags.first()}), m_folder, m_noBackups), 0U);
    QCOMPARE(script(), header + prefix() + QStringLiteral(" -i \"(0010,0010)=") + value +
                           QStringLiteral("\" * >.noxTemp.out 2>&1"));
}

void TestFolderAnonymization::emptyFolderGetsAJobToo()
{
    QCOMPARE(listNames(m_folder), QStringList());
    QCOMPARE(anonymizeFolder(m_run->context, {}, m_folder, m_noBackups), 0U);
    QCOMPARE(script(), header + prefix() + QStringLiteral(" * >.noxTemp.out 2>&1"));
}

void TestFolderAnonymization::filesAreNamedOneByOne()
{
    const QStringList files = {joinPath(m_folder, QStringLiteral("b.dcm")),
                               joinPath(m_folder, QStringLiteral("a 1")),
                               joinPath(m_folder, QStringLiteral("c\"$`\\.dcm"))};
    QCOMPARE(anonymizeFiles(m_run->context, rules(tags), files, m_folder, m_noBackups), 0U);
    QCOMPARE(m_run->jobs.folders(), QStringList{m_folder});
    QCOMPARE(script(), header + prefix() + tagArguments +
                           QStringLiteral(" \"b.dcm\" \"a 1\" \"c\"$`\\.dcm\" >.noxTemp.out 2>&1"));
}

void TestFolderAnonymization::filesOfOtherFoldersAreNamedInTheFirst()
{
    QCOMPARE(anonymizeFiles(m_run->context, {}, {QStringLiteral("/one/a"), QStringLiteral("/two/b")},
                            m_folder, m_noBackups),
             0U);
    QCOMPARE(m_run->jobs.folders(), QStringList{m_folder});
    QCOMPARE(script(), header + prefix() + QStringLiteral(" \"a\" \"b\" >.noxTemp.out 2>&1"));
}

void TestFolderAnonymization::oneCharacterDecidesWhetherAListIsSplit_data()
{
    QTest::addColumn<qsizetype>("total");
    QTest::addColumn<bool>("split");
    QTest::newRow("one less than the limit") << qsizetype{262143} << false;
    QTest::newRow("the limit") << qsizetype{262144} << true;
}

void TestFolderAnonymization::oneCharacterDecidesWhetherAListIsSplit()
{
    QFETCH(const qsizetype, total);
    QFETCH(const bool, split);
    constexpr qsizetype count = 1000;
    const qsizetype fixed = prefix().size() + tagArguments.size() + suffixLength;
    const qsizetype each = (total - fixed) / count - 3; // a blank and two quotes around each name
    const qsizetype extra = (total - fixed) % count;    // for the last name
    QStringList files;
    QStringList arguments;
    for (qsizetype i = 0; i < count; ++i) {
        const QString name = QStringLiteral("%1").arg(
            i, static_cast<int>(i + 1 < count ? each : each + extra), 10, QChar(u'0'));
        files.append(joinPath(m_folder, name));
        arguments.append(QStringLiteral(" \"") + name + u'"');
    }
    const QString start = prefix() + tagArguments;
    QCOMPARE(start.size() + arguments.join(QString()).size() + suffixLength, total);
    const QString oneLine = start + arguments.join(QString()) + QStringLiteral(" >.noxTemp.out 2>&1");
    const QString twoLines = start + arguments.mid(0, 500).join(QString()) +
                             QStringLiteral(" >>.noxTemp.out 2>>&1\n") + start +
                             arguments.mid(500).join(QString()) + QStringLiteral(" >>.noxTemp.out 2>>&1");
    QCOMPARE(anonymizeFiles(m_run->context, rules(tags), files, m_folder, m_noBackups), 0U);
    QVERIFY(script() == header + (split ? twoLines : oneLine));
}

void TestFolderAnonymization::fewFilesBehindALongPrefixLandOnTheLastLine()
{
    const QString value(393216, u'x'); // three times half the limit
    m_run->state.set(&RunState::newValueDict, NewValueDict{{tags.first(), value}});
    const QString start = prefix() + QStringLiteral(" -i \"(0010,0010)=") + value + u'"';
    QCOMPARE(anonymizeFiles(m_run->context, rules({tags.first()}),
                            {QStringLiteral("/d/a"), QStringLiteral("/d/b")}, m_folder, m_noBackups),
             0U);
    const QString empty = start + QStringLiteral(" >>.noxTemp.out 2>>&1\n");
    QVERIFY(script() == header + empty + empty + start + QStringLiteral(" \"a\" \"b\" >>.noxTemp.out 2>>&1"));
}

void TestFolderAnonymization::noFilesOrNoFolderIsNoJob_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<bool>("withFolder");
    QTest::newRow("no files") << QStringList() << true;
    QTest::newRow("no folder") << QStringList{QStringLiteral("/data/a")} << false;
    QTest::newRow("neither") << QStringList() << false;
}

void TestFolderAnonymization::noFilesOrNoFolderIsNoJob()
{
    QFETCH(const QStringList, files);
    QFETCH(const bool, withFolder);
    m_run->host.recordReads = true;
    const LogCatcher log;
    const QStringList malformed = {QStringLiteral("malformed")};
    QCOMPARE(anonymizeFiles(m_run->context, rules(malformed), files, withFolder ? m_folder : QString(),
                            m_noBackups),
             0U);
    QVERIFY(m_run->jobs.jobs.isEmpty());
    QCOMPARE(listNames(m_folder), QStringList());
    QCOMPARE(m_run->host.calls, QStringList());
    QCOMPARE(log.messages(), QStringList());
    QCOMPARE(m_run->state.get(&RunState::errCount), 0U);
}

void TestFolderAnonymization::readsTheChoicesAtTheStartOfEachCall()
{
    m_run->host.recordReads = true;
    m_run->jobs.answer = [this](const Job &) {
        m_run->host.calls.append(QStringLiteral("job"));
        return JobResult{JobOutcome::Ran, {}};
    };
    const QStringList once = {QStringLiteral("read choices"), QStringLiteral("job")};
    QCOMPARE(anonymizeFolder(m_run->context, {}, m_folder, m_noBackups), 0U);
    m_run->host.chosen.generateSOP = Qt::Checked;
    QCOMPARE(anonymizeFiles(m_run->context, {}, {QStringLiteral("/d/a")}, m_folder, m_noBackups), 0U);
    QCOMPARE(m_run->host.calls, once + once);
    QCOMPARE(script(), header + prefix() + QStringLiteral(" -gin \"a\" >.noxTemp.out 2>&1"));
}

void TestFolderAnonymization::onlyGenerateLeavesTagsAndTheirLogOut()
{
    const LogCatcher log;
    m_run->host.chosen.generateSOP = m_run->host.chosen.onlyGenerateSOP = Qt::Checked;
    QCOMPARE(anonymizeFolder(m_run->context, rules(tags + QStringList{QStringLiteral("malformed")}), m_folder,
                             m_noBackups),
             0U);
    QCOMPARE(script(), header + prefix() + QStringLiteral(" -gin * >.noxTemp.out 2>&1"));
    QCOMPARE(log.messages(), QStringList());
    QCOMPARE(m_run->state.get(&RunState::errCount), 0U);

    m_run->host.chosen.generateSOP = Qt::Unchecked;
    QCOMPARE(anonymizeFolder(m_run->context, rules(tags), m_folder, m_noBackups), 0U);
    QCOMPARE(script(), header + prefix() + QStringLiteral(" * >.noxTemp.out 2>&1"));
}

void TestFolderAnonymization::logsAndCountsMalformedTagsInEveryCall()
{
    const LogCatcher log;
    const QStringList malformed = {QString(), QStringLiteral(" 0010,0010x "), QStringLiteral("100% %1")};
    const QStringList once = {QStringLiteral("Ignoring malformed tag: 0010,0010x"),
                              QStringLiteral("Ignoring malformed tag: 100% %1")};
    QCOMPARE(anonymizeFolder(m_run->context, rules(malformed), m_folder, m_noBackups), 0U);
    QCOMPARE(log.messages(), once);
    QCOMPARE(m_run->state.get(&RunState::errCount), 2U);
    QCOMPARE(anonymizeFolder(m_run->context, rules(malformed), m_folder, m_noBackups), 0U);
    QCOMPARE(
        anonymizeFiles(m_run->context, rules(malformed), {QStringLiteral("/d/a")}, m_folder, m_noBackups),
        0U);
    QCOMPARE(log.messages(), once + once + once);
    QCOMPARE(m_run->state.get(&RunState::errCount), 6U);
    QCOMPARE(m_run->host.calls, QStringList()); // nothing in the window
}

void TestFolderAnonymization::appendsTheToolsTextUnchanged()
{
    m_run->state.set(&RunState::output, QStringLiteral("before"));
    m_run->jobs.answer = [](const Job &job) {
        if (!writeText(joinPath(job.folder, QStringLiteral(".noxTemp.out")), QStringLiteral(" E: x\r\n \n")))
            QTest::qFail("no output file", __FILE__, __LINE__);
        return JobResult{JobOutcome::Ran, "what a pipe would have given"};
    };
    QCOMPARE(anonymizeFolder(m_run->context, rules(tags), m_folder, m_noBackups), 0U);
    QCOMPARE(m_run->state.get(&RunState::output), QStringLiteral("before E: x\r\n \n"));
    QCOMPARE(anonymizeFiles(m_run->context, rules(tags), {QStringLiteral("/d/a")}, m_folder, m_noBackups),
             0U);
    QCOMPARE(m_run->state.get(&RunState::output), QStringLiteral("before E: x\r\n \n E: x\r\n \n"));
    QVERIFY(pathExists(joinPath(m_folder, QStringLiteral(".noxTemp.out"))));
}

void TestFolderAnonymization::toolsErrorsAreNotItsOwn()
{
    m_run->writeFile(QStringLiteral("data/s1/.noxTemp.out"), QStringLiteral("E: There was 1 error\n"));
    QCOMPARE(anonymizeFolder(m_run->context, rules(tags), m_folder, m_noBackups), 0U);
    QCOMPARE(m_run->state.get(&RunState::errCount), 0U);
}

void TestFolderAnonymization::jobThatCannotStartIsOneError()
{
    const LogCatcher log;
    const QString missing = m_run->path(QStringLiteral("missing"));
    QCOMPARE(anonymizeFolder(m_run->context, rules(tags), missing, m_noBackups), 1U);
    QCOMPARE(anonymizeFiles(m_run->context, rules(tags), {QStringLiteral("/d/a")}, missing, m_noBackups), 1U);
    QVERIFY(m_run->jobs.jobs.isEmpty());
    QCOMPARE(m_run->state.get(&RunState::errCount), 0U); // the caller counts
    QCOMPARE(m_run->state.get(&RunState::output), QString());
    QCOMPARE(log.messages(), QStringList());
    QCOMPARE(m_run->host.calls, QStringList());
}

DRAVOLIN_TEST(TestFolderAnonymization)
#include "tst_folderanonymization.moc"
