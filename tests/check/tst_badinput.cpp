#include "check/Check.h"
#include "check/Report.h"
#include "check/Summary.h"
#include "ObjectBytes.h"
#include "support/ScratchFolder.h"
#include "support/TestEntry.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <sys/socket.h>
#include <sys/sysmacros.h>
#include <sys/un.h>

using namespace dravolin;
using namespace dravolin::check;
using namespace dravolin::test;

// What a folder may hold beside files that can be read: told, never followed, opened or waited for.
class TestBadInput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsWhatItDidNotOpen_data();
    void tellsWhatItDidNotOpen();
    void searchesWhereALinkLeads();
    void survivesAFolderThatVanishes_data();
    void survivesAFolderThatVanishes();
    void takesNoFileWhoseSizeChanges();
    void reportsOddNames_data();
    void reportsOddNames();
};

namespace {

const QByteArray identified = object(element(0x00100020, "LO", "PID-5530718"));
const QByteArray clean = object(element(0x00100020, "LO", "CASE1")).replace("1.2.3.999.1", "1.2.3.888.1");

void makeSocket(const QString &path)
{
    sockaddr_un address = {.sun_family = AF_UNIX, .sun_path = {}};
    const QByteArray bytes = toBytes(path);
    QVERIFY(static_cast<size_t>(bytes.size()) < sizeof(address.sun_path));
    std::copy(bytes.cbegin(), bytes.cend(), address.sun_path);
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    QCOMPARE(::bind(socket, reinterpret_cast<const sockaddr *>(&address), sizeof(address)), 0);
    ::close(socket);
}

// Both sides, with one object on each.
struct Sides
{
    Sides()
    {
        options.originals = scratch.folder(QStringLiteral("before"));
        options.result = scratch.folder(QStringLiteral("after"));
        scratch.file(QStringLiteral("before/a"), identified);
        scratch.file(QStringLiteral("after/a"), clean);
    }

    ScratchFolder scratch;
    CheckOptions options;
};

QStringList unchecked(const CheckReport &report)
{
    QStringList lines;
    for (const UncheckedFile &file : report.unchecked)
        lines.append(file.path + QStringLiteral(": ") + file.reason);
    return lines;
}

} // namespace

void TestBadInput::tellsWhatItDidNotOpen_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char16_t *kind, const char16_t *reason) {
        const QString name = QStringView(kind).toString();
        QTest::newRow(qPrintable(name)) << name << QStringView(reason).toString();
    };
    row(u"pipe", u"it is no regular file, and was not opened");
    row(u"socket", u"it is no regular file, and was not opened");
    row(u"device", u"it is no regular file, and was not opened");
    row(u"link to a file outside", u"it is a link, and was not followed");
    row(u"link to a folder outside", u"it is a link, and was not followed");
    row(u"link in a circle", u"it is a link, and was not followed");
    row(u"link to nothing", u"it is a link, and was not followed");
    row(u"link to a device", u"it is a link, and was not followed");
    row(u"more than 1 GiB", u"it cannot be read, or is larger than 1 GiB");
}

void TestBadInput::tellsWhatItDidNotOpen()
{
    QFETCH(const QString, kind);
    const Sides sides;
    const ScratchFolder &scratch = sides.scratch;
    const QString path = scratch.path(QStringLiteral("after/b"));
    const QHash<QString, QString> targets = {
        {QStringLiteral("link to a file outside"), scratch.file(QStringLiteral("outside"), identified)},
        {QStringLiteral("link to a folder outside"), scratch.path(QStringLiteral("before"))},
        {QStringLiteral("link in a circle"), QStringLiteral(".")},
        {QStringLiteral("link to nothing"), QStringLiteral("nothing")},
        {QStringLiteral("link to a device"), QStringLiteral("/dev/zero")}};
    if (targets.contains(kind))
        scratch.link(QStringLiteral("after/b"), targets.value(kind));
    else if (kind == QStringLiteral("pipe"))
        scratch.pipe(QStringLiteral("after/b"));
    else if (kind == QStringLiteral("socket"))
        makeSocket(path);
    else if (kind == QStringLiteral("device")) // the one that anybody may make
        QCOMPARE(::mknod(toBytes(path).constData(), S_IFCHR | 0600, makedev(0, 0)), 0);
    else // without blocks on the disk
        QCOMPARE(::truncate(toBytes(scratch.file(QStringLiteral("after/b"))).constData(), (1LL << 30) + 1),
                 0);

    const CheckReport report = check::check(sides.options, {});
    QTEST(unchecked(report).join(u'\n').section(QStringLiteral(": "), 1), "reason");
    QCOMPARE(report.groups.size(), 0);
    QCOMPARE(verdictOf(report, Grade::Possible), Verdict::Incomplete);
}

void TestBadInput::searchesWhereALinkLeads()
{
    const Sides sides;
    sides.scratch.link(QStringLiteral("after/b"), QStringLiteral("../archive/PID-5530718.dcm"));
    const CheckReport report = check::check(sides.options, {});
    QCOMPARE(report.groups.size(), 1);
    QCOMPARE(textOf(report.groups[0].place), QStringLiteral("target of a link"));
    QCOMPARE(report.groups[0].worst, Grade::Certain);
}

void TestBadInput::survivesAFolderThatVanishes_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("originals") << QStringLiteral("before");
    QTest::newRow("result") << QStringLiteral("after");
}

// When the first file was read.
void TestBadInput::survivesAFolderThatVanishes()
{
    QFETCH(const QString, folder);
    const Sides sides;
    for (int i = 0; i < 3; ++i) {
        sides.scratch.file(QStringLiteral("before/b%1").arg(i), identified);
        sides.scratch.file(QStringLiteral("after/b%1").arg(i), clean);
    }
    CheckEvents events;
    events.progress = [&](const CheckProgress &) {
        std::filesystem::remove_all(sides.scratch.path(folder).toStdString());
    };
    const CheckReport report = check::check(sides.options, events);
    QStringList expected;
    for (const char16_t *name : {u"a", u"b0", u"b1", u"b2"})
        expected.append(QString::fromUtf16(name) +
                        QStringLiteral(": it cannot be read, or is larger than 1 GiB"));
    QCOMPARE(unchecked(report), folder == QStringLiteral("after") ? expected : expected.sliced(1));
    QCOMPARE(report.groups.size(), 0);
    QCOMPARE(verdictOf(report, Grade::Possible), Verdict::Incomplete);
}

// A file of the system whose size is 0 and which is not empty: it grows between two looks.
void TestBadInput::takesNoFileWhoseSizeChanges()
{
    const LoadedFile file = loadFile(QStringLiteral("/proc/self/status"));
    QCOMPARE(file.record.state, FileRecord::State::Unreadable);
    QCOMPARE(file.record.reason, QStringLiteral("it changed while it was read"));
}

void TestBadInput::reportsOddNames_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("no UTF-8") << QByteArray("after/\xFFrger\xFE");
    QTest::newRow("quotes and backslashes") << QByteArray("after/a\"b\\c\\\"");
    QTest::newRow("control characters") << QByteArray("after/a\nb\tc\x01\x1F\x7F");
    QTest::newRow("beyond the basic plane") << QByteArray("after/\xF0\x9F\x98\x80 \xC3\xBC");
}

void TestBadInput::reportsOddNames()
{
    QFETCH(const QByteArray, name);
    const Sides sides;
    sides.scratch.file(fromBytes(name), identified);
    const ScratchFolder reports;
    ReportWriter writer(reports.path(), {sides.options, Grade::Possible, QDateTime::currentDateTime()});
    QVERIFY(writer.begin());
    CheckEvents events;
    events.findings = [&writer](const QString &file, const QList<Finding> &findings,
                                const Patterns &patterns) { writer.add(file, findings, patterns); };
    const CheckReport report = check::check(sides.options, events);
    QVERIFY(writer.end(report));
    QJsonParseError error = {};
    const auto json = QJsonDocument::fromJson(
        readBytes(reports.path(QStringLiteral("report.json"))).value_or(QByteArray()), &error);
    QCOMPARE(error.error, QJsonParseError::NoError);
    const QJsonArray findings = json[QStringLiteral("findings")].toArray();
    QCOMPARE(findings.size(), 2);
    for (const QJsonValue &finding : findings)
        QCOMPARE(toBytes(QStringLiteral("after/") + finding[QStringLiteral("file")].toString()), name);
    QVERIFY(readText(reports.path(QStringLiteral("report.html"))));
}

DRAVOLIN_TEST(TestBadInput)
#include "tst_badinput.moc"
