#include "dicom/ObjectFile.h"
#include "dicom/Objects.h"
#include "dicom/Prologue.h"
#include "support/TestEntry.h"

#include <memory>

using namespace dravolin;
using test::ScratchFolder;

namespace {

const QByteArray object = "(0008,0016) UI [1.2.840.10008.5.1.4.1.1.2]\n(0008,0018) UI [1.2.3.4.1]\n"
                          "(0010,0020) LO [4711]\n(0020,000d) UI [1.2.3]\n(0020,000e) UI [1.2.3.4]\n";

} // namespace

// Whole files: what they are, what is written, and that failures leave nothing behind.
class TestObjectFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_scratch = std::make_unique<ScratchFolder>(); }
    void readsNames_data();
    void readsNames();
    void readsOnePatientIdInAnyCharacterSet_data();
    void readsOnePatientIdInAnyCharacterSet();
    void writesThePrologueAnew();
    void keepsUnknownSyntaxesByteForByte_data();
    void keepsUnknownSyntaxesByteForByte();
    void treatsDeflatedDataSets();
    void copiesLargePixelData();
    void hashesBothFiles();
    void refusesWhatItCannotTreat_data();
    void refusesWhatItCannotTreat();
    void refusesToOverwrite();
    void refusesWhatNeedsTooMuchMemory();

private:
    [[nodiscard]] QString path(const char *name) const { return m_scratch->path(QString::fromLatin1(name)); }
    [[nodiscard]] QString made(const QByteArray &dump, const QStringList &options = {}) const
    {
        return test::objectFile(*m_scratch, QStringLiteral("source"), dump, options);
    }
    std::unique_ptr<ScratchFolder> m_scratch;
};

void TestObjectFile::readsNames_data()
{
    QTest::addColumn<QStringList>("options");
    for (const char *option : {"+te", "+ti", "+tb", "+td", "-F"})
        QTest::newRow(option) << QStringList{QString::fromLatin1(option)};
}

void TestObjectFile::readsNames()
{
    QFETCH(QStringList, options);
    const ObjectFacts facts = readFacts(made(object, options));
    QCOMPARE(facts.problem, QString());
    QVERIFY(!facts.isDirectory);
    QCOMPARE(facts.names,
             (ObjectNames{"1.2.840.10008.5.1.4.1.1.2", "1.2.3.4.1", "1.2.3.4", "1.2.3", "4711"}));
}

void TestObjectFile::readsOnePatientIdInAnyCharacterSet_data()
{
    QTest::addColumn<QByteArray>("characterSet");
    QTest::addColumn<QByteArray>("written");
    QTest::addColumn<QByteArray>("read");
    const QByteArray utf8 = "\xc3\x84-1";
    QTest::newRow("Latin-1") << QByteArray("ISO_IR 100") << QByteArray("\xc4-1") << utf8;
    QTest::newRow("UTF-8") << QByteArray("ISO_IR 192") << utf8 << utf8;
    QTest::newRow("unknown: as it is")
        << QByteArray("ISO_IR 9") << QByteArray("\xc4-1") << QByteArray("\xc4-1");
}

void TestObjectFile::readsOnePatientIdInAnyCharacterSet()
{
    QFETCH(QByteArray, characterSet);
    QFETCH(QByteArray, written);
    QFETCH(QByteArray, read);
    const QString object =
        test::objectFile(*m_scratch, QStringLiteral("object"),
                         "(0008,0005) CS [" + characterSet + "]\n(0010,0020) LO [" + written + "]\n");
    QCOMPARE(readFacts(object).names.patientId, read);
}

void TestObjectFile::writesThePrologueAnew()
{
    QByteArray bytes = readBytes(made("(0002,0016) AE [WARD7]\n" + object)).value();
    bytes.replace(0, 8, "Doe^Jane");
    const QString source = m_scratch->file(QStringLiteral("planted"), bytes);
    QVERIFY(bytes.contains("WARD7"));
    Treatment treatment;
    treatment.newUid = [](const QByteArray &old) { return "9." + old; };
    const TreatedFile treated = treatFile(source, path("result"), treatment);
    QCOMPARE(treated.facts.names,
             (ObjectNames{"1.2.840.10008.5.1.4.1.1.2", "9.1.2.3.4.1", "9.1.2.3.4", "9.1.2.3", "4711"}));
    const QByteArray result = readBytes(path("result")).value();
    QCOMPARE(result.first(132), QByteArray(128, '\0') + "DICM");
    QVERIFY(!result.contains("WARD7"));
    const QByteArray meta = test::printedBy(QStringLiteral("dcmdump"),
                                            {QStringLiteral("-q"), QStringLiteral("-Un"),
                                             QStringLiteral("+P"), QStringLiteral("2,3"), path("result")});
    QCOMPARE(meta.left(meta.indexOf(" #")).trimmed(), QByteArray("(0002,0003) UI [9.1.2.3.4.1]"));
}

void TestObjectFile::keepsUnknownSyntaxesByteForByte_data()
{
    QTest::addColumn<QByteArray>("syntax");
    QTest::newRow("HTJ2K") << QByteArray("1.2.840.10008.1.2.4.201");
    QTest::newRow("JPEG XL") << QByteArray("1.2.840.10008.1.2.4.110");
    QTest::newRow("deflated frames") << QByteArray("1.2.840.10008.1.2.8.1");
    QTest::newRow("one of a maker") << QByteArray("1.3.12.2.1107.5.99");
}

void TestObjectFile::keepsUnknownSyntaxesByteForByte()
{
    QFETCH(QByteArray, syntax);
    const Prologue prologue = {"1.2.3", "1.2.3.4.1", syntax, {}, 0};
    const QByteArray before("\x08\x00\x18\x00UI\x0a\x00"
                            "1.2.3.4.1\0"
                            "\x10\x00\x10\x00PN\x04\x00"
                            "Doe ",
                            30);
    const QByteArray pixels("\xe0\x7f\x10\x00OB\0\0\xff\xff\xff\xff"
                            "\xfe\xff\x00\xe0\0\0\0\0"
                            "\xfe\xff\x00\xe0\x04\0\0\0\xff\x4f\xff\x51"
                            "\xfe\xff\xdd\xe0\0\0\0\0",
                            40);
    const QString source = m_scratch->file(QStringLiteral("x"), prologueBytes(prologue) + before + pixels);
    Treatment treatment;
    treatment.rules = test::rulesOf(QStringLiteral("0010,0010"));
    QCOMPARE(treatFile(source, path("result"), treatment).facts.problem, QString());
    QCOMPARE(test::dataSetOf(path("result")), before.first(18) + pixels);
}

void TestObjectFile::treatsDeflatedDataSets()
{
    const QString source = made(object, {QStringLiteral("+td")});
    Treatment treatment;
    treatment.rules = test::rulesOf(QStringLiteral("0010,0020\t\tCase"));
    QCOMPARE(treatFile(source, path("result"), treatment).facts.problem, QString());
    const QByteArray expected = QByteArray(object).replace("4711", "Case");
    const auto printed = [](const QString &file) {
        return test::printedBy(QStringLiteral("dcmdump"),
                               {QStringLiteral("-q"), QStringLiteral("+P"), QStringLiteral("10,20"), file});
    };
    QCOMPARE(printed(path("result")), printed(made(expected, {QStringLiteral("+td")})));
    QCOMPARE(readFacts(path("result")).names.patientId, QByteArray("Case"));
}

void TestObjectFile::copiesLargePixelData()
{
    constexpr qsizetype size = 3 * 1024 * 1024 + 2;
    QByteArray pixels(size, '\0');
    for (qsizetype i = 0; i < size; ++i)
        pixels[i] = static_cast<char>(i * 7 / 5);
    const QByteArray header("\xe0\x7f\x10\x00OW\0\0\x02\x00\x30\x00", 12);
    const QByteArray whole = readBytes(made(object)).value() + header + pixels;
    const QString source = m_scratch->file(QStringLiteral("large"), whole);
    const TreatedFile treated = treatFile(source, path("result"), {});
    QCOMPARE(treated.facts.problem, QString());
    QVERIFY(test::dataSetOf(path("result")) == test::dataSetOf(source));
    QCOMPARE(treated.hashAfter, test::hashOfFile(path("result")));
}

void TestObjectFile::hashesBothFiles()
{
    const QString source = made(object);
    const TreatedFile treated = treatFile(source, path("result"), {});
    QCOMPARE(treated.hashBefore, test::hashOfFile(source));
    QCOMPARE(treated.hashAfter, test::hashOfFile(path("result")));
    QCOMPARE(qsizetype(treated.sizeBefore), readBytes(source)->size());
    QCOMPARE(qsizetype(treated.sizeAfter), readBytes(path("result"))->size());
}

void TestObjectFile::refusesWhatItCannotTreat_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("problem");
    const auto file = [](const char *name) { return QString::fromLatin1(name); };
    QTest::newRow("missing") << file("none") << file("cannot be opened: No such file or directory");
    QTest::newRow("empty") << file("empty") << file("is no DICOM file");
    QTest::newRow("text") << file("text") << file("is no DICOM file");
    QTest::newRow("zeros") << file("zeros") << file("is no DICOM file");
    QTest::newRow("a folder") << file("folder") << file("is no regular file");
    QTest::newRow("a pipe") << file("pipe") << file("is no regular file");
    QTest::newRow("a link") << file("link") << file("is a link");
    QTest::newRow("no transfer syntax") << file("nameless") << file("does not say its transfer syntax");
    QTest::newRow("truncated") << file("truncated") << file("ends in the middle of (0010,0010)");
    QTest::newRow("deflated, damaged") << file("deflated") << file("cannot be inflated");
}

void TestObjectFile::refusesWhatItCannotTreat()
{
    QFETCH(QString, source);
    QFETCH(QString, problem);
    const Prologue prologue = {"1.2.3", "1.2.3.4.1", "1.2.840.10008.1.2.1", {}, 0};
    const Prologue nameless = {"1.2.3", "1.2.3.4.1", "", {}, 0};
    const Prologue deflated = {"1.2.3", "1.2.3.4.1", "1.2.840.10008.1.2.1.99", {}, 0};
    const ScratchFolder folder;
    folder.file(QStringLiteral("empty"));
    folder.file(QStringLiteral("text"), "This is no image, it is a letter.\n");
    folder.file(QStringLiteral("zeros"), QByteArray(4096, '\0'));
    folder.folder(QStringLiteral("folder"));
    folder.pipe(QStringLiteral("pipe"));
    folder.link(QStringLiteral("link"), folder.path(QStringLiteral("text")));
    folder.file(QStringLiteral("nameless"), prologueBytes(nameless));
    folder.file(QStringLiteral("truncated"),
                prologueBytes(prologue) + QByteArray("\x10\0\x10\0PN\x10\0Doe", 11));
    folder.file(QStringLiteral("deflated"), prologueBytes(deflated) + "\xff\xff\xff\xff\xff");
    const QStringList names = listNames(folder.path());
    QCOMPARE(treatFile(folder.path(source), folder.path(QStringLiteral("result")), {}).facts.problem,
             problem);
    QCOMPARE(listNames(folder.path()), names);
}

void TestObjectFile::refusesToOverwrite()
{
    const QString source = made(object);
    const QString target = m_scratch->file(QStringLiteral("there"), "something");
    QCOMPARE(treatFile(source, target, {}).facts.problem, QStringLiteral("cannot be written: File exists"));
    QCOMPARE(readBytes(target), std::optional<QByteArray>("something"));
}

void TestObjectFile::refusesWhatNeedsTooMuchMemory()
{
    constexpr qsizetype references = 500'000;
    const Prologue prologue = {"1.2.3", "1.2.3.4.1", "1.2.840.10008.1.2.1", {}, 0};
    const QByteArray item("\xfe\xff\x00\xe0\x0c\0\0\0\x08\x00\x55\x11UI\x04\x00"
                          "1.2\0",
                          20);
    const QByteArray sequence("\x08\x00\x40\x11SQ\0\0\xff\xff\xff\xff", 12);
    const QByteArray end("\xfe\xff\xdd\xe0\0\0\0\0", 8);
    const QString source = m_scratch->file(QStringLiteral("x"), prologueBytes(prologue) + sequence +
                                                                    item.repeated(references) + end);
    Treatment treatment;
    treatment.newUid = [](const QByteArray &) { return QByteArray("2.25.1"); };
    QCOMPARE(treatFile(source, path("result"), treatment).facts.problem,
             QStringLiteral("needs more changes than a worker has memory for"));
    QVERIFY(!pathExists(path("result")));
}

DRAVOLIN_TEST(TestObjectFile)

#include "tst_objectfile.moc"
