#include "check/Check.h"
#include "run/jobs/JobRunner.h"
#include "support/ScratchFolder.h"
#include "support/TestEntry.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace dravolin;
using namespace dravolin::check;
using namespace dravolin::test;

// Generated pairs of an original and a result that still has one of its values: each place, each VR and each
// spelling is a row, named by the generator. Rows without a value must give no finding worth a look.
class TestPlaces : public QObject
{
    Q_OBJECT

public:
    TestPlaces();

private Q_SLOTS:
    void initTestCase();
    void findsThePlantedValue_data();
    void findsThePlantedValue();

private:
    const ScratchFolder m_scratch;
    QJsonArray m_files;
    QHash<QString, QStringList> m_places; // of each file of the result, with the grades that count
    QHash<QString, QStringList> m_possible;
};

namespace {

// As the check calls what the generator calls a place.
QString expectedPlace(const QJsonObject &planted)
{
    const QString place = planted[QStringLiteral("place")].toString();
    if (place == QStringLiteral("trailing bytes"))
        return QStringLiteral("bytes behind the end");
    const QString tag = planted[QStringLiteral("tag")].toString();
    return tag.isEmpty() ? place : tag;
}

} // namespace

// The rows are made before any test function runs.
TestPlaces::TestPlaces()
{
    const QString folder = m_scratch.path(QStringLiteral("places"));
    // not QProcess: its child shares this process's memory for a moment, which blinds the thread sanitizer
    (void)PosixJobRunner().run({.executable = QStringLiteral(PYTHON),
                                .arguments = {QStringLiteral(MAKE_OBJECTS), QStringLiteral("places"), folder},
                                .folder = m_scratch.path()});
    const std::optional<QByteArray> planted = readBytes(joinPath(folder, QStringLiteral("planted.json")));
    m_files =
        QJsonDocument::fromJson(planted.value_or(QByteArray())).object()[QStringLiteral("files")].toArray();
    CheckOptions options;
    options.originals = joinPath(folder, QStringLiteral("ORIGINALS"));
    options.result = joinPath(folder, QStringLiteral("RESULT"));
    options.workers = 2;
    CheckEvents events;
    events.findings = [this](const QString &file, const QList<Finding> &findings, const Patterns &) {
        for (const Finding &finding : findings)
            (finding.match.grade == Grade::Possible ? m_possible : m_places)[file].append(
                textOf(finding.place));
    };
    (void)check::check(options, events);
}

void TestPlaces::initTestCase()
{
    QVERIFY2(m_files.size() > 600, "the generator made no pairs");
    QVERIFY(m_places.size() > 200);
}

void TestPlaces::findsThePlantedValue_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("place");
    const QString side = QStringLiteral("RESULT/");
    for (const QJsonValue &value : std::as_const(m_files)) {
        const QJsonObject file = value.toObject();
        const QString path = file[QStringLiteral("path")].toString();
        if (!path.startsWith(side))
            continue;
        const QJsonArray planted = file[QStringLiteral("planted")].toArray();
        QTest::newRow(qPrintable(file[QStringLiteral("row")].toString()))
            << path.sliced(side.size())
            << (planted.isEmpty() ? QString() : expectedPlace(planted[0].toObject()));
    }
}

void TestPlaces::findsThePlantedValue()
{
    QFETCH(const QString, file);
    QFETCH(const QString, place);
    QStringList unexpected = m_places.value(file);
    unexpected.removeAll(place);
    QCOMPARE(unexpected, QStringList());
    if (!place.isEmpty())
        QVERIFY((m_places.value(file) + m_possible.value(file)).contains(place));
}

DRAVOLIN_TEST(TestPlaces)
#include "tst_places.moc"
