#include "ObjectBytes.h"
#include "base/PathText.h"
#include "check/Check.h"
#include "support/ScratchFolder.h"
#include "support/TestEntry.h"

#include <QTest>

#include <memory>

using namespace dravolin;
using namespace dravolin::check;
using namespace dravolin::test;

// Checks of copies by the program that made them: it knows which are whose, and what it has set itself.
class TestCopies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void knowsWhatWasSet_data();
    void knowsWhatWasSet();
    void findsNothingInOwnTexts_data();
    void findsNothingInOwnTexts();
    void pairsRenamedFiles();
    void takesOneFileForOriginals();
    void comparesNumbersWithAConfiguration_data();
    void comparesNumbersWithAConfiguration();
    void endsWhenItIsStopped();

private:
    [[nodiscard]] CheckReport checkNow(const std::function<bool()> &stop = {});

    std::unique_ptr<ScratchFolder> m_scratch;
    CheckOptions m_options;
    QStringList m_found; // "(0010,0010) Meier"
};

void TestCopies::init()
{
    m_scratch = std::make_unique<ScratchFolder>();
    m_options = {};
    m_options.originals = m_scratch->folder(QStringLiteral("before"));
    m_options.result = m_scratch->folder(QStringLiteral("after"));
    m_scratch->folder(QStringLiteral("before/Meierhof"));
}

CheckReport TestCopies::checkNow(const std::function<bool()> &stop)
{
    m_found.clear();
    CheckEvents events;
    events.stop = stop;
    events.findings = [this](const QString &, const QList<Finding> &findings, const Patterns &patterns) {
        for (const Finding &finding : findings)
            m_found.append(textOf(finding.place) + u' ' +
                           fromBytes(patterns.at(finding.match.pattern).value));
    };
    return check::check(m_options, events);
}

void TestCopies::knowsWhatWasSet_data()
{
    QTest::addColumn<QStringList>("setValues");
    QTest::addColumn<bool>("uids");
    QTest::addColumn<bool>("renamed");
    QTest::addColumn<QStringList>("found");
    const QString id = QStringLiteral("(0010,0020) CASE-4711");
    const QString uid = QStringLiteral("(0020,000d) 1.2.826.0.1.99");
    const QString name = QStringLiteral("file name Meierhof");
    QTest::newRow("nothing") << QStringList() << true << false << QStringList{id, uid, name};
    QTest::newRow("the case id") << QStringList{QStringLiteral("CASE-4711")} << true << false
                                 << QStringList{uid, name};
    QTest::newRow("UIDs are kept") << QStringList() << false << false << QStringList{id, name};
    QTest::newRow("the file's name") << QStringList() << true << true << QStringList{id, uid};
}

void TestCopies::knowsWhatWasSet()
{
    QFETCH(const bool, renamed);
    const QByteArray dataSet =
        element(0x00100020, "LO", "CASE-4711") + element(0x0020000D, "UI", "1.2.826.0.1.99");
    m_scratch->file(QStringLiteral("before/Meierhof/1"), object(dataSet));
    m_scratch->file(QStringLiteral("after/Meierhof.dcm"), object(dataSet));
    QFETCH(const QStringList, setValues);
    QFETCH(const bool, uids);
    m_options.setValues = setValues;
    m_options.uids = uids;
    if (renamed)
        m_options.renamed = [](const RenamedVisit &visit) {
            visit(QStringLiteral("Meierhof/1"), QStringLiteral("Meierhof.dcm"));
        };
    (void)checkNow();
    m_found.removeAll(QStringLiteral("(0002,0003) 1.2.3.999.1")); // of every test object
    QTEST(m_found, "found");
}

void TestCopies::findsNothingInOwnTexts_data()
{
    QTest::addColumn<quint32>("tag");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QStringList>("found");
    QTest::newRow("the text") << 0x00120063U << QByteArray("without Meierhof") << QStringList();
    QTest::newRow("padded") << 0x00120063U << QByteArray("without Meierhof  ") << QStringList();
    QTest::newRow("more than the text") << 0x00120063U << QByteArray("without Meierhof 2")
                                        << QStringList{QStringLiteral("(0012,0063) Meierhof")};
    QTest::newRow("one of two values") << 0x00120063U << QByteArray("without Meierhof\\x ")
                                       << QStringList{QStringLiteral("(0012,0063) Meierhof")};
    QTest::newRow("in another attribute") << 0x00104000U << QByteArray("without Meierhof")
                                          << QStringList{QStringLiteral("(0010,4000) Meierhof")};
}

void TestCopies::findsNothingInOwnTexts()
{
    QFETCH(const quint32, tag);
    QFETCH(const QByteArray, value);
    m_scratch->file(QStringLiteral("before/1"), object(element(0x00100010, "PN", "Meierhof")));
    m_scratch->file(QStringLiteral("after/1"), object(element(tag, "LO", value)));
    m_options.uids = false;
    m_options.ownTexts = {{0x00120063, QStringLiteral("without Meierhof")}};
    (void)checkNow();
    QTEST(m_found, "found");
}

void TestCopies::pairsRenamedFiles()
{
    const QByteArray text = element(0x00204000, "LT", "text");
    const QByteArray pixels = element(0x7FE00010, "OW", "pixels");
    m_scratch->file(QStringLiteral("before/1"), object(text + pixels));
    m_scratch->file(QStringLiteral("before/2"), object(text + pixels));
    m_scratch->file(QStringLiteral("after/x"), object(text + element(0x7FE00010, "OW", "others")));
    m_scratch->file(QStringLiteral("after/y"), object(text + pixels));
    m_options.renamed = [](const RenamedVisit &visit) {
        visit(QStringLiteral("1"), QStringLiteral("y"));
        visit(QStringLiteral("2"), QStringLiteral("x"));
    };
    const Pairing pairing = checkNow().pairing;
    QCOMPARE(pairing.pairs, 2);
    QCOMPARE(pairing.pixelsChanged, QList<qsizetype>{0});
    QCOMPARE(pairing.unchanged, QList<qsizetype>{1});
}

void TestCopies::takesOneFileForOriginals()
{
    m_options.originals =
        m_scratch->file(QStringLiteral("before/1"), object(element(0x00100020, "LO", "A-12345")));
    m_scratch->file(QStringLiteral("before/2"), object(element(0x00100020, "LO", "B-12345")));
    m_scratch->file(QStringLiteral("after/x"), object(element(0x00104000, "LT", "A-12345 B-12345")));
    m_options.uids = false;
    QCOMPARE(checkNow().originalFiles.toList(), QStringList{QStringLiteral("1")});
    QCOMPARE(m_found, QStringList{QStringLiteral("(0010,4000) A-12345")});
}

void TestCopies::comparesNumbersWithAConfiguration_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<qsizetype>("deviations");
    QTest::newRow("the same") << QStringLiteral("513\\2") << qsizetype{0};
    QTest::newRow("another") << QStringLiteral("513\\3") << qsizetype{1};
}

void TestCopies::comparesNumbersWithAConfiguration()
{
    QFETCH(const QString, value);
    m_scratch->file(QStringLiteral("after/x"),
                    object(element(0x00280010, "US", QByteArray("\x01\x02\x02\x00", 4))));
    m_options.rules = parseConfiguration(QStringLiteral("0028,0010\tRows\t") + value + u'\n');
    QTEST(checkNow().deviations.size(), "deviations");
}

void TestCopies::endsWhenItIsStopped()
{
    m_scratch->file(QStringLiteral("before/1"), object(element(0x00100020, "LO", "A-12345")));
    m_scratch->file(QStringLiteral("after/1"), object(element(0x00100020, "LO", "A-12345")));
    (void)checkNow([] { return true; });
    QCOMPARE(m_found, QStringList());
}

DRAVOLIN_TEST(TestCopies)
#include "tst_copies.moc"
