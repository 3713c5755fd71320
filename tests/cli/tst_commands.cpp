#include "base/Files.h"
#include "cli/Commands.h"
#include "support/ScratchFolder.h"
#include "support/TestEntry.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace dravolin;
using namespace dravolin::cli;
using namespace dravolin::test;

class TestCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void endsWithTheStatusOfTheCheck_data();
    void endsWithTheStatusOfTheCheck();
    void writesReportsWithoutAnyValue();

private:
    int check(const QStringList &arguments) const
    {
        return runCommand(QStringList(QStringLiteral("check")) + arguments);
    }
    const ScratchFolder m_scratch;
};

void TestCommands::initTestCase()
{
    m_scratch.folder(QStringLiteral("before"));
    m_scratch.folder(QStringLiteral("clean"));
    m_scratch.folder(QStringLiteral("leaking"));
    m_scratch.folder(QStringLiteral("piped"));
    m_scratch.file(QStringLiteral("list"), "PID-5530718\n");
    m_scratch.file(QStringLiteral("before/a"), "nothing");
    m_scratch.file(QStringLiteral("clean/a"), "nothing else");
    m_scratch.file(QStringLiteral("leaking/letter to PID-5530718.txt"), "a letter to pid 5530718");
    m_scratch.file(QStringLiteral("piped/a"), "nothing else");
    m_scratch.pipe(QStringLiteral("piped/pipe"));
}

void TestCommands::endsWithTheStatusOfTheCheck_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<int>("expected");
    QTest::newRow("no command") << QString() << 2;
    QTest::newRow("unknown command") << QStringLiteral("chuck") << 2;
    QTest::newRow("help") << QStringLiteral("--help") << 0;
    QTest::newRow("help of a command") << QStringLiteral("check --help") << 0;
    QTest::newRow("wrong call") << QStringLiteral("check --quiet") << 2;
    QTest::newRow("nothing found") << QStringLiteral("check BEFORE CLEAN --identifiers LIST --quiet") << 0;
    QTest::newRow("something found") << QStringLiteral("check BEFORE LEAKING --identifiers LIST --quiet")
                                     << 1;
    QTest::newRow("no value to search for") << QStringLiteral("check BEFORE CLEAN --quiet") << 3;
    QTest::newRow("something not opened")
        << QStringLiteral("check BEFORE PIPED --identifiers LIST --quiet") << 3;
    QTest::newRow("report among the results")
        << QStringLiteral("check BEFORE CLEAN --identifiers LIST --quiet --report CLEAN/report") << 2;
}

void TestCommands::endsWithTheStatusOfTheCheck()
{
    QFETCH(QString, arguments);
    for (const char *name : {"before", "clean", "leaking", "piped", "list"})
        arguments.replace(QString::fromLatin1(name).toUpper(), m_scratch.path(QString::fromLatin1(name)));
    QTEST(runCommand(arguments.split(u' ', Qt::SkipEmptyParts)), "expected");
}

void TestCommands::writesReportsWithoutAnyValue()
{
    const QString folder = m_scratch.path(QStringLiteral("reports/first"));
    QCOMPARE(check({m_scratch.path(QStringLiteral("before")), m_scratch.path(QStringLiteral("leaking")),
                    QStringLiteral("--identifiers"), m_scratch.path(QStringLiteral("list")),
                    QStringLiteral("--quiet"), QStringLiteral("--report"), folder}),
             1);
    const std::optional<QByteArray> json = readBytes(joinPath(folder, QStringLiteral("report.json")));
    const std::optional<QByteArray> page = readBytes(joinPath(folder, QStringLiteral("report.html")));
    QVERIFY(json && page);
    QVERIFY(!json->contains("5530718") && !page->contains("5530718"));
    const QJsonObject report = QJsonDocument::fromJson(*json).object();
    QCOMPARE(report[QStringLiteral("verdict")].toString(), QStringLiteral("something found"));
    QStringList places;
    for (const QJsonValue &finding : report[QStringLiteral("findings")].toArray())
        places.append(finding[QStringLiteral("grade")].toString() + u' ' +
                      finding[QStringLiteral("place")].toString());
    QCOMPARE(places, (QStringList{QStringLiteral("certain bytes of a file that is no DICOM object"),
                                  QStringLiteral("certain file name")}));
    QVERIFY(page->contains("Values of the originals stand in the result."));
}

DRAVOLIN_TEST(TestCommands)
#include "tst_commands.moc"
