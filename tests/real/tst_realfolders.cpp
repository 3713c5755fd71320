#include "processing/FolderAnonymization.h"
#include "processing/FolderTree.h"
#include "real/RealRun.h"
#include "support/TestEntry.h"

#include <QTest>

#include <unistd.h>

using namespace dravolin;
using test::RealRun;

namespace {

const QStringList tags = {QStringLiteral("0010,0010")};
const QStringList anonymized = {QStringLiteral("(0010,0010) PN [ANON]")};
const QString latin1 = QStringLiteral("latin1");

} // namespace

// Which files a job reaches, and what stays behind.
class TestRealFolders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void keepsBackupsOnlyWhenAsked_data();
    void keepsBackupsOnlyWhenAsked();
    void keepsAnonymizingTheBackupsOfAnEarlierRun();
    void leavesOnlyTheOutputFileBehind();
    void reportsWhatIsNoImageAndGoesOn();
    void hiddenFilesAreNotReached();
    void emptyFolderIsAnErrorOfTheTool();
    void namedFilesAloneAreChanged();
    void namedFileThatIsMissingIsTheToolsError();
    void keepsSplitListsWithoutEffect();
    void reachesFilesWithOddNames_data();
    void reachesFilesWithOddNames();
    void keepsANameThatLooksLikeAnOptionFromBeingReached();
    void walksATreeAndLeavesLinkedFoldersAlone();
    void keepsFoldersThatTheShellInterpretsUntouched_data();
    void keepsFoldersThatTheShellInterpretsUntouched();
    void missingToolChangesNothing();
    void findsTheDictionaryInAFolderWithBlanks();

private:
    [[nodiscard]] QString path(const char16_t *relative) const
    {
        return m_run->path(QString::fromUtf16(relative));
    }
    [[nodiscard]] QStringList name(const QString &file) const { return m_run->lines(file, "0010,0010"); }
    quint64 anonymize(const RunOptions &options = {})
    {
        return anonymizeFolder(m_run->context, m_run->rules(tags), path(u"study"), options);
    }
    // The tool's error lines without the reasons, which are the system's.
    [[nodiscard]] QStringList errors() const
    {
        QStringList result;
        for (const QString &line : m_run->resultingOutput().split(u'\n')) {
            if (line.startsWith(QStringLiteral("E:")))
                result.append(line.section(QStringLiteral(": "), 0, 1));
        }
        return result;
    }
    std::unique_ptr<RealRun> m_run;
    QString m_image;
    QByteArray m_original;
};

void TestRealFolders::init()
{
    m_run = std::make_unique<RealRun>();
    m_run->state.set(&RunState::newValueDict, NewValueDict{{tags.first(), QStringLiteral("ANON")}});
    m_image = m_run->makeImage(QStringLiteral("study/image.dcm"), latin1);
    m_original = readBytes(m_image).value_or(QByteArray());
    QVERIFY(!m_original.isEmpty());
    QVERIFY(name(m_image) != anonymized);
}

void TestRealFolders::keepsBackupsOnlyWhenAsked_data()
{
    QTest::addColumn<bool>("backups");
    QTest::addColumn<QStringList>("names");
    const QString output = QStringLiteral(".noxTemp.out");
    const QString image = QStringLiteral("image.dcm");
    QTest::newRow("none") << false << QStringList({output, image});
    QTest::newRow("backups") << true << QStringList({output, image, QStringLiteral("image.dcm.bak")});
}

void TestRealFolders::keepsBackupsOnlyWhenAsked()
{
    QFETCH(const bool, backups);
    QFETCH(const QStringList, names);
    RunOptions options;
    options.createBAKfiles = backups;
    QCOMPARE(anonymize(options), 0U);
    QStringList found = listNames(path(u"study"));
    found.sort();
    QCOMPARE(found, names);
    QCOMPARE(name(m_image), anonymized);
    if (backups)
        QCOMPARE(readBytes(m_image + QStringLiteral(".bak")), std::optional(m_original));
}

void TestRealFolders::keepsAnonymizingTheBackupsOfAnEarlierRun()
{
    RunOptions options;
    options.createBAKfiles = true;
    QCOMPARE(anonymize(options), 0U);
    QCOMPARE(anonymize(), 0U);
    QCOMPARE(name(m_image + QStringLiteral(".bak")), anonymized);
}

void TestRealFolders::leavesOnlyTheOutputFileBehind()
{
    const QString beside = m_run->writeFile(QStringLiteral("study.noxTemp.out"));
    QCOMPARE(anonymize(), 0U);
    QVERIFY(!pathExists(beside));
    QStringList names = listNames(path(u"study"));
    names.sort();
    QCOMPARE(names, QStringList({QStringLiteral(".noxTemp.out"), QStringLiteral("image.dcm")}));
    QCOMPARE(readText(path(u"study/.noxTemp.out")), std::optional(QString()));
    (void)countFolderTree(m_run->context, path(u"study"));
    QCOMPARE(listNames(path(u"study")), QStringList{QStringLiteral("image.dcm")});
}

void TestRealFolders::reportsWhatIsNoImageAndGoesOn()
{
    m_run->writeFile(QStringLiteral("study/a notes.txt"), QStringLiteral("hello"));
    m_run->makeFolder(QStringLiteral("study/Sub"));
    QCOMPARE(anonymize(), 0U);
    QCOMPARE(name(m_image), anonymized);
    QCOMPARE(errors(), QStringList({QStringLiteral("E: unable to load file Sub"),
                                    QStringLiteral("E: unable to load file a notes.txt"),
                                    QStringLiteral("E: There were 2 errors")}));
    QCOMPARE(m_run->state.get(&RunState::errCount), 0U);
    QCOMPARE(readText(path(u"study/a notes.txt")), std::optional(QStringLiteral("hello")));
}

void TestRealFolders::hiddenFilesAreNotReached()
{
    const QString hidden = m_run->makeImage(QStringLiteral("study/.hidden.dcm"), latin1);
    QCOMPARE(anonymize(), 0U);
    QCOMPARE(readBytes(hidden), std::optional(m_original));
    QCOMPARE(name(m_image), anonymized);
}

void TestRealFolders::emptyFolderIsAnErrorOfTheTool()
{
    removeFile(m_image);
    QCOMPARE(anonymize(), 0U);
    QCOMPARE(errors(), QStringList({QStringLiteral("E: unable to load file *"),
                                    QStringLiteral("E: There was 1 error")}));
}

void TestRealFolders::namedFilesAloneAreChanged()
{
    const QString second = m_run->makeImage(QStringLiteral("study/with blank.dcm"), latin1);
    const QString other = m_run->makeImage(QStringLiteral("study/other.dcm"), latin1);
    QCOMPARE(anonymizeFiles(m_run->context, m_run->rules(tags), {second, m_image}, path(u"study"), {}), 0U);
    QCOMPARE(name(m_image), anonymized);
    QCOMPARE(name(second), anonymized);
    QCOMPARE(readBytes(other), std::optional(m_original));
    QCOMPARE(m_run->resultingOutput(), QString());
}

void TestRealFolders::namedFileThatIsMissingIsTheToolsError()
{
    const QStringList files = {path(u"elsewhere/missing.dcm"), m_image};
    QCOMPARE(anonymizeFiles(m_run->context, m_run->rules(tags), files, path(u"study"), {}), 0U);
    QCOMPARE(errors(), QStringList({QStringLiteral("E: unable to load file missing.dcm"),
                                    QStringLiteral("E: There was 1 error")}));
    QCOMPARE(name(m_image), anonymized);
}

// No shell accepts the redirection of a split script, so that not even its first command runs.
void TestRealFolders::keepsSplitListsWithoutEffect()
{
    m_run->context.max_arg_len = 100;
    QCOMPARE(anonymizeFiles(m_run->context, m_run->rules(tags), {m_image, m_image}, path(u"study"), {}), 0U);
    QCOMPARE(readBytes(m_image), std::optional(m_original));
    QCOMPARE(listNames(path(u"study")), QStringList{QStringLiteral("image.dcm")});
    QCOMPARE(m_run->resultingOutput(), QString());

    m_run->writeFile(QStringLiteral("study/.noxTemp.out"), QStringLiteral("of an earlier job\n"));
    QCOMPARE(anonymizeFiles(m_run->context, m_run->rules(tags), {m_image, m_image}, path(u"study"), {}), 0U);
    QCOMPARE(m_run->resultingOutput(), QStringLiteral("of an earlier job\n"));
}

void TestRealFolders::reachesFilesWithOddNames_data()
{
    QTest::addColumn<QByteArray>("fileName");
    for (const char *name :
         {"quote\"s", "$HOME", "`id`", "line\nbreak", "back\\slash", "Latin-1 \xFC", " ", "*", "a;b|c"})
        QTest::newRow(QByteArray(name).toPercentEncoding(" \"$`\\*;|").constData()) << QByteArray(name);
}

void TestRealFolders::reachesFilesWithOddNames()
{
    QFETCH(const QByteArray, fileName);
    const QString file = m_run->makeImage(QStringLiteral("study/") + fromBytes(fileName), latin1);
    QCOMPARE(anonymize(), 0U);
    QCOMPARE(m_run->resultingOutput(), QString());
    QCOMPARE(name(file), anonymized);
    QCOMPARE(name(m_image), anonymized);
}

void TestRealFolders::keepsANameThatLooksLikeAnOptionFromBeingReached()
{
    const QString file = m_run->makeImage(QStringLiteral("study/-x.dcm"), latin1);
    QCOMPARE(anonymize(), 0U);
    QCOMPARE(readBytes(file), std::optional(m_original));
    QCOMPARE(readBytes(m_image), std::optional(m_original)); // the tool refuses the whole folder
    QVERIFY(!m_run->resultingOutput().isEmpty());            // with a usage text, not with an error line
    QCOMPARE(errors(), QStringList());
}

void TestRealFolders::walksATreeAndLeavesLinkedFoldersAlone()
{
    const QString nested = m_run->makeImage(QStringLiteral("study/.hidden/Sub/image.dcm"), latin1);
    const QString linked = m_run->makeImage(QStringLiteral("elsewhere/image.dcm"), latin1);
    QCOMPARE(::symlink("../elsewhere", toBytes(path(u"study/link")).constData()), 0);
    QCOMPARE(countFolderTree(m_run->context, path(u"study")), 3U);
    m_run->state.set(&RunState::allTagsToAnonymize, tags);
    anonymizeFolderTree(m_run->context, path(u"study"), {});
    QCOMPARE(name(m_image), anonymized);
    QCOMPARE(name(nested), anonymized);
    QCOMPARE(readBytes(linked), std::optional(m_original));
    QCOMPARE(errors(), QStringList({QStringLiteral("E: unable to load file Sub"), // of the job in .hidden
                                    QStringLiteral("E: There was 1 error"),
                                    QStringLiteral("E: unable to load file link"), // of the job in study
                                    QStringLiteral("E: There was 1 error")}));
    QCOMPARE(m_run->host.calls,
             QStringList({QStringLiteral("anonymized 1/3 folders"), QStringLiteral("anonymized 2/3 folders"),
                          QStringLiteral("anonymized 3/3 folders")}));
}

void TestRealFolders::keepsFoldersThatTheShellInterpretsUntouched_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("one double quote") << QStringLiteral("a\"b");
    QTest::newRow("two double quotes") << QStringLiteral("the \"big\" study");
    QTest::newRow("dollar") << QStringLiteral("a$HOME");
    QTest::newRow("backquotes") << QStringLiteral("a`echo b`");
}

void TestRealFolders::keepsFoldersThatTheShellInterpretsUntouched()
{
    QFETCH(const QString, folder);
    const QString image = m_run->makeImage(folder + QStringLiteral("/image.dcm"), latin1);
    QCOMPARE(anonymizeFolder(m_run->context, m_run->rules(tags), m_run->path(folder), {}), 0U);
    QCOMPARE(readBytes(image), std::optional(m_original));
    QCOMPARE(m_run->resultingOutput(), QString());
    QCOMPARE(listNames(m_run->path(folder)), QStringList{QStringLiteral("image.dcm")});
}

void TestRealFolders::missingToolChangesNothing()
{
    removeFile(m_run->paths.dcmodify());
    QCOMPARE(anonymize(), 0U);
    QCOMPARE(readBytes(m_image), std::optional(m_original));
    QVERIFY(m_run->resultingOutput().endsWith(QStringLiteral("dcmodify: not found\n")));
    QCOMPARE(m_run->state.get(&RunState::errCount), 0U);
}

// The tool knows the kind of a new attribute from the dictionary alone.
void TestRealFolders::findsTheDictionaryInAFolderWithBlanks()
{
    const QString resources = m_run->makeFolder(QStringLiteral("app/my resources"));
    for (const char16_t *resource : {u"dcmodify", u"dicom.dic"}) {
        const QString name = QString::fromUtf16(resource);
        QCOMPARE(::symlink(toBytes(m_run->paths.resource(name)).constData(),
                           toBytes(joinPath(resources, name)).constData()),
                 0);
    }
    const AppPaths here = m_run->paths;
    m_run->paths.resourceFolder = resources;
    m_run->state.set(&RunState::newValueDict,
                     NewValueDict{{QStringLiteral("0010,2160"), QStringLiteral("x")}});
    QCOMPARE(anonymizeFolder(m_run->context, m_run->rules({QStringLiteral("0010,2160")}), path(u"study"), {}),
             0U);
    m_run->paths = here;
    QCOMPARE(m_run->lines(m_image, "0010,2160"), QStringList{QStringLiteral("(0010,2160) SH [x]")});
}

DRAVOLIN_TEST(TestRealFolders)
#include "tst_realfolders.moc"
