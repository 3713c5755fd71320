#include "batch/KnownFiles.h"
#include "support/ScratchFolder.h"
#include "support/TestEntry.h"

using namespace dravolin;
using test::ScratchFolder;

namespace {

QString pathOf(int number)
{
    return QStringLiteral("%1").arg(number, 5, 10, QChar(u'0'));
}

FileRecord record(const QString &path)
{
    return {path, 1, 2, QStringLiteral("result of ") + path, "ab", "cd", {}};
}

} // namespace

// What a journal knows, file by file.
class TestKnownFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_journal.reset(); }
    void findsFilesInTheirOrder();
    void givesThoseThatWereNotAskedFor();
    void toleratesWritingInFront();
    void ordersPathsByTheirBytes();

private:
    static constexpr int count = 1201;
    std::unique_ptr<ScratchFolder> m_scratch;
    std::unique_ptr<Journal> m_journal;
};

void TestKnownFiles::init()
{
    m_scratch = std::make_unique<ScratchFolder>();
    QString problem;
    m_journal = Journal::open(m_scratch->path(QStringLiteral("journal")), &problem);
    QVERIFY2(m_journal, qPrintable(problem));
    QList<QPair<QString, FileRecord>> records = {{QStringLiteral("other"), record(QStringLiteral("x"))}};
    for (int i = 0; i < count; ++i)
        records.append({QStringLiteral("17"), record(pathOf(i))});
    QVERIFY(m_journal->add(records, {}));
}

void TestKnownFiles::findsFilesInTheirOrder()
{
    KnownFiles known(*m_journal, QStringLiteral("17"));
    QCOMPARE(known.find(QStringLiteral("-")), FileRecord());
    for (const int number : {0, 0, 3, 499, 500, 1200})
        QCOMPARE(known.find(pathOf(number)), record(pathOf(number)));
    QCOMPARE(known.find(QStringLiteral("x")), FileRecord());
    QVERIFY(!known.current());
    QVERIFY(!KnownFiles(*m_journal, QStringLiteral("18")).current());
}

void TestKnownFiles::givesThoseThatWereNotAskedFor()
{
    QStringList found;
    for (KnownFiles known(*m_journal, QStringLiteral("17")); known.current(); known.pass())
        found.append(known.current()->path);
    QCOMPARE(found.size(), count);
    QCOMPARE(found.last(), pathOf(count - 1));
}

void TestKnownFiles::toleratesWritingInFront()
{
    KnownFiles known(*m_journal, QStringLiteral("17"));
    for (int i = 0; i < count; ++i) {
        QCOMPARE(known.find(pathOf(i)), record(pathOf(i)));
        QVERIFY(i % 100 != 0 || m_journal->remove(QStringLiteral("17"), pathOf(i)));
    }
}

void TestKnownFiles::ordersPathsByTheirBytes()
{
    // as texts they have the other order
    const QString wide = QStringLiteral("\uff01");
    const QString rare = QStringLiteral("\U0001F600");
    QVERIFY(rare < wide);
    QVERIFY(comesBefore(wide, rare));
    QVERIFY(m_journal->add({{QStringLiteral("1"), record(rare)}, {QStringLiteral("1"), record(wide)}}, {}));
    KnownFiles known(*m_journal, QStringLiteral("1"));
    QCOMPARE(known.find(wide), record(wide));
    QCOMPARE(known.find(rare), record(rare));
}

DRAVOLIN_TEST(TestKnownFiles)
#include "tst_knownfiles.moc"
