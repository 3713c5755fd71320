#include "run/jobs/Script.h"
#include "run/jobs/ScriptJob.h"
#include "support/ScratchFolder.h"
#include "support/TestEntry.h"
#include "support/TestRun.h"

#include <QTest>

using namespace dravolin;
using test::RecordingJobRunner;
using test::ScratchFolder;

namespace {

// A tool that writes down beside itself what it got.
const QByteArray tool = R"(#!/bin/sh
here=${0%/*}
printf '%s|' "$@" >"$here/arguments"
/usr/bin/env >"$here/environment"
pwd -P >"$here/folder"
cat .noxTemp.sh >"$here/script"
stat -c %a .noxTemp.sh >"$here/permissions"
readlink /proc/self/fd/0 >"$here/input"
echo printed
echo complained >&2
exit 3
)";

// The variables of `environment` that a shell does not set by itself.
QStringList givenVariables(const QString &environment)
{
    QStringList lines = environment.split(u'\n', Qt::SkipEmptyParts);
    lines.removeIf([](const QString &line) {
        const QString name = line.section(u'=', 0, 0);
        return name == QStringLiteral("PWD") || name == QStringLiteral("OLDPWD") ||
               name == QStringLiteral("SHLVL") || name == QStringLiteral("_");
    });
    return lines;
}

const QString redirection = QStringLiteral(" >.noxTemp.out 2>&1");

} // namespace

class TestScriptJob : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void startsTheShellOnTheQuotedScript();
    void writesTheScriptOverWhatIsThere();
    void environmentIsTheDictionarysPath();
    void toolGetsWhatTheScriptSays();
    void collectsBothOutputsAndNotTheExitStatus();
    void scriptIsGoneAndTheOutputFileStays();
    void keepsDeletingTheFileBesideTheFolder();
    void deletesTheScriptThenReadsThenDeletesTheFileBeside();
    void outputThatIsNoTextAddsNothing_data();
    void outputThatIsNoTextAddsNothing();
    void keepsReadingStaleOutput();
    void runsInFoldersWithOddNames_data();
    void runsInFoldersWithOddNames();
    void keepsFolderNamesThatTheShellInterpretsFromRunning_data();
    void keepsFolderNamesThatTheShellInterpretsFromRunning();

private:
    [[nodiscard]] QString written(const QString &name) const
    {
        return readText(m_paths.resource(name)).value_or(QStringLiteral("(not written)"));
    }
    ScriptJobResult run(const QString &folder, const QString &commands)
    {
        PosixJobRunner jobs;
        return runScriptJob(jobs, m_paths, folder, commands);
    }
    std::unique_ptr<ScratchFolder> m_scratch;
    AppPaths m_paths;
    QString m_folder;
};

void TestScriptJob::init()
{
    m_scratch = std::make_unique<ScratchFolder>();
    m_paths.resourceFolder = m_scratch->folder(QStringLiteral("re sources"));
    m_scratch->program(QStringLiteral("re sources/dcmodify"), tool);
    m_folder = m_scratch->folder(QStringLiteral("s1"));
}

void TestScriptJob::startsTheShellOnTheQuotedScript()
{
    RecordingJobRunner jobs;
    QVERIFY(runScriptJob(jobs, m_paths, m_folder, QStringLiteral("commands \u00FC")).ran);
    QCOMPARE(jobs.jobs.size(), 1);
    const Job &job = jobs.jobs.first().job;
    QCOMPARE(job.executable, QStringLiteral("/bin/sh"));
    QCOMPARE(job.arguments,
             QStringList({QStringLiteral("-c"), u'"' + m_folder + QStringLiteral("/.noxTemp.sh\"")}));
    QCOMPARE(job.folder, m_folder);
    QCOMPARE(job.environment,
             std::optional(QStringList{QStringLiteral("DCMDICTPATH=") + m_paths.resourceFolder +
                                       QStringLiteral("/dicom.dic")}));
    QCOMPARE(job.pipeOutput, false);
    QCOMPARE(jobs.jobs.first().script, scriptText(QStringLiteral("commands \u00FC")));
}

void TestScriptJob::writesTheScriptOverWhatIsThere()
{
    const QString old = m_scratch->file(QStringLiteral("s1/.noxTemp.sh"), QByteArray(100000, 'x'));
    QCOMPARE(::link(toBytes(old).constData(), toBytes(m_scratch->path(QStringLiteral("other"))).constData()),
             0);
    RecordingJobRunner jobs;
    QVERIFY(runScriptJob(jobs, m_paths, m_folder, QStringLiteral("commands")).ran);
    QCOMPARE(jobs.jobs.first().script, scriptText(QStringLiteral("commands")));
    // written in place: the other name of the same file sees the new text
    QCOMPARE(readText(m_scratch->path(QStringLiteral("other"))),
             std::optional(scriptText(QStringLiteral("commands"))));
}

void TestScriptJob::environmentIsTheDictionarysPath()
{
    m_paths.resourceFolder = QStringLiteral("/opt/x/");
    QCOMPARE(toolEnvironment(m_paths), QStringList{QStringLiteral("DCMDICTPATH=/opt/x/dicom.dic")});
}

void TestScriptJob::toolGetsWhatTheScriptSays()
{
    for (const char16_t *name : {u"s1/b", u"s1/a 1", u"s1/.hidden"})
        m_scratch->file(QString::fromUtf16(name));
    const QString commands =
        quoted(m_paths.dcmodify()) + QStringLiteral(" -i \"(0010,0010)=A  B\" *") + redirection;
    QVERIFY(run(m_folder, commands).ran);
    QCOMPARE(written(QStringLiteral("arguments")), QStringLiteral("-i|(0010,0010)=A  B|a 1|b|"));
    QCOMPARE(givenVariables(written(QStringLiteral("environment"))), toolEnvironment(m_paths));
    QCOMPARE(written(QStringLiteral("folder")), m_folder + u'\n');
    QCOMPARE(written(QStringLiteral("script")), scriptText(commands));
    QCOMPARE(written(QStringLiteral("permissions")), QStringLiteral("777\n"));
    QCOMPARE(written(QStringLiteral("input")), QStringLiteral("/dev/null\n"));
}

void TestScriptJob::collectsBothOutputsAndNotTheExitStatus()
{
    const ScriptJobResult result = run(m_folder, quoted(m_paths.dcmodify()) + redirection);
    QVERIFY(result.ran);
    QCOMPARE(result.output, QStringLiteral("printed\ncomplained\n"));
}

void TestScriptJob::scriptIsGoneAndTheOutputFileStays()
{
    m_scratch->file(QStringLiteral("s1/image"));
    QVERIFY(run(m_folder, quoted(m_paths.dcmodify()) + redirection).ran);
    QStringList names = listNames(m_folder);
    names.sort();
    QCOMPARE(names, QStringList({QStringLiteral(".noxTemp.out"), QStringLiteral("image")}));
}

void TestScriptJob::keepsDeletingTheFileBesideTheFolder()
{
    const QString beside = m_scratch->file(QStringLiteral("s1.noxTemp.out"), "beside");
    const QString other = m_scratch->file(QStringLiteral("s2.noxTemp.out"), "other");
    QVERIFY(run(m_folder, quoted(m_paths.dcmodify()) + redirection).ran);
    QVERIFY(!pathExists(beside));
    QVERIFY(pathExists(other));
    QVERIFY(pathExists(joinPath(m_folder, outputFileName)));
}

// Links make the order visible: what is deleted before it is read cannot be read through its link.
void TestScriptJob::deletesTheScriptThenReadsThenDeletesTheFileBeside()
{
    RecordingJobRunner jobs;
    const QString output = joinPath(m_folder, outputFileName);
    jobs.answer = [&](const Job &) {
        m_scratch->file(QStringLiteral("s1.noxTemp.out"), "read before it was deleted");
        m_scratch->link(QStringLiteral("s1/.noxTemp.out"), QStringLiteral("../s1.noxTemp.out"));
        return JobResult{JobOutcome::Ran, {}};
    };
    QCOMPARE(runScriptJob(jobs, m_paths, m_folder, QString()).output,
             QStringLiteral("read before it was deleted"));
    QVERIFY(!pathExists(m_scratch->path(QStringLiteral("s1.noxTemp.out"))));

    removeFile(output);
    jobs.answer = [&](const Job &) {
        m_scratch->link(QStringLiteral("s1/.noxTemp.out"), QStringLiteral(".noxTemp.sh"));
        return JobResult{JobOutcome::Ran, {}};
    };
    QCOMPARE(runScriptJob(jobs, m_paths, m_folder, QStringLiteral("x")).output, QString());
}

void TestScriptJob::outputThatIsNoTextAddsNothing_data()
{
    QTest::addColumn<QString>("commands");
    QTest::addColumn<QString>("output");
    QTest::newRow("text") << QStringLiteral("printf 'M\\303\\274ller\\n \\n' >.noxTemp.out")
                          << QStringLiteral("M\u00FCller\n \n");
    QTest::newRow("empty") << QStringLiteral(": >.noxTemp.out") << QString();
    QTest::newRow("no output file") << QStringLiteral(":") << QString();
    QTest::newRow("one byte that is not UTF-8")
        << QStringLiteral("printf 'E: x\\n\\374\\n' >.noxTemp.out") << QString();
    QTest::newRow("cut at the end") << QStringLiteral("printf 'E: x\\n\\342\\202' >.noxTemp.out")
                                    << QString();
    QTest::newRow("output is a folder") << QStringLiteral("mkdir .noxTemp.out") << QString();
}

void TestScriptJob::outputThatIsNoTextAddsNothing()
{
    QFETCH(const QString, commands);
    QFETCH(const QString, output);
    const ScriptJobResult result = run(m_folder, commands);
    QVERIFY(result.ran);
    QCOMPARE(result.output, output);
}

void TestScriptJob::keepsReadingStaleOutput()
{
    m_scratch->file(QStringLiteral("s1/.noxTemp.out"), "of an earlier job\n");
    QCOMPARE(run(m_folder, QStringLiteral(":")).output, QStringLiteral("of an earlier job\n"));
    QCOMPARE(run(m_folder, QStringLiteral("echo new >>.noxTemp.out")).output,
             QStringLiteral("of an earlier job\nnew\n"));
    QCOMPARE(run(m_folder, QStringLiteral("echo new") + redirection).output, QStringLiteral("new\n"));
}

void TestScriptJob::runsInFoldersWithOddNames_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name :
         {"with blank", " ", "apostrophe's", "line\nbreak", "Latin-1 \xFC", "cut \xE2\x82", "*",
          "\xEF\xBB\xBFmark", "\xF0\x9F\x98\x80", "semi;colon & | > <", "back\\slash", "-nb", ".hidden"})
        QTest::newRow(QByteArray(name).toPercentEncoding(" '*;&|<>\\").constData()) << QByteArray(name);
}

void TestScriptJob::runsInFoldersWithOddNames()
{
    QFETCH(const QByteArray, name);
    const QString folder = m_scratch->folder(fromBytes(name));
    const QString beside = m_scratch->file(fromBytes(name) + QStringLiteral(".noxTemp.out"));
    const ScriptJobResult result = run(folder, quoted(m_paths.dcmodify()) + redirection);
    QVERIFY(result.ran);
    QCOMPARE(result.output, QStringLiteral("printed\ncomplained\n"));
    QCOMPARE(readBytes(m_paths.resource(QStringLiteral("folder"))), std::optional(toBytes(folder) + '\n'));
    QVERIFY(!pathExists(beside));
    QCOMPARE(listNames(folder), QStringList{outputFileName});
}

void TestScriptJob::keepsFolderNamesThatTheShellInterpretsFromRunning_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("one double quote") << QStringLiteral("a\"b");
    QTest::newRow("two double quotes") << QStringLiteral("a\"b\"c");
    QTest::newRow("dollar and a name") << QStringLiteral("a$HOME");
    QTest::newRow("backquotes") << QStringLiteral("a`echo b`");
    QTest::newRow("command in parentheses") << QStringLiteral("a$(echo b)");
    QTest::newRow("two backslashes") << QStringLiteral("a\\\\b");
}

void TestScriptJob::keepsFolderNamesThatTheShellInterpretsFromRunning()
{
    QFETCH(const QString, name);
    const QString folder = m_scratch->folder(name);
    const ScriptJobResult result = run(folder, quoted(m_paths.dcmodify()) + redirection);
    QVERIFY(result.ran); // the shell was started; that it found no script is not looked at
    QCOMPARE(result.output, QString());
    QVERIFY(!pathExists(m_paths.resource(QStringLiteral("arguments"))));
    QCOMPARE(listNames(folder), QStringList());
}

DRAVOLIN_TEST(TestScriptJob)
#include "tst_scriptjob.moc"
