#include "base/PathText.h"
#include "check/Check.h"
#include "ObjectBytes.h"
#include "check/Summary.h"
#include "support/ScratchFolder.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin;
using namespace dravolin::check;
using namespace dravolin::test;

// Whole checks of small folders.
class TestChecking : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void findsAValueInEveryPlace_data();
    void findsAValueInEveryPlace();
    void masksValuesAndNames();
    void neverCountsAFileAsCleanThatItDidNotCheck_data();
    void neverCountsAFileAsCleanThatItDidNotCheck();
    void pairsFiles();
    void seesChangedPixelData_data();
    void seesChangedPixelData();
    void comparesWithAConfiguration();
    void takesBackupsAsOriginals();
    void listsFilesWhosePixelsMayShowText();
    void countsEmptiedAttributes();
    void tellsTheSameInEveryRun();

private:
    void writeBoth(const QByteArray &original, const QByteArray &result) const;
    [[nodiscard]] CheckReport checkFolders() const { return checkWith(m_options); }
    [[nodiscard]] CheckReport checkWith(const CheckOptions &options) const;

    ScratchFolder m_scratch;
    CheckOptions m_options;
    mutable QStringList m_found; // "certain b.dcm (0010,0010) PatientName"
};

namespace {

const QByteArray patient = element(0x00100010, "PN",
                                   "Br\xFC"
                                   "ckner^J\xF6rg") +
                           element(0x00100020, "LO", "PID-5530718");
const QByteArray latin1 = element(0x00080005, "CS", "ISO_IR 100");
const QByteArray original = object(latin1 + patient);
const QByteArray clean = object(latin1 + element(0x00100010, "PN", "") + element(0x00100020, "LO", "CASE1"));

} // namespace

void TestChecking::initTestCase()
{
    m_options.originals = m_scratch.folder(QStringLiteral("before"));
    m_options.result = m_scratch.folder(QStringLiteral("after"));
    m_options.workers = 2;
}

void TestChecking::writeBoth(const QByteArray &before, const QByteArray &after) const
{
    m_scratch.file(QStringLiteral("before/a.dcm"), before);
    m_scratch.file(QStringLiteral("after/a.dcm"), after);
}

CheckReport TestChecking::checkWith(const CheckOptions &options) const
{
    m_found.clear();
    CheckEvents events;
    events.findings = [this](const QString &file, const QList<Finding> &findings, const Patterns &patterns) {
        for (const Finding &finding : findings)
            m_found.append(QStringList{nameOf(finding.match.grade), file, textOf(finding.place),
                                       fromBytes(patterns.at(finding.match.pattern).value)}
                               .join(u' '));
    };
    return check::check(options, events);
}

void TestChecking::findsAValueInEveryPlace_data()
{
    QTest::addColumn<QByteArray>("result");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char *name, const QByteArray &result, const char16_t *found) {
        QTest::newRow(name) << result << QStringView(found).toString().split(u'|', Qt::SkipEmptyParts);
    };
    const QByteArray id = element(0x00100020, "LO", "PID-5530718");
    const QByteArray creator = element(0x00090010, "LO", "MAKER");
    row("nothing", clean, u"");
    row("top level", object(id), u"certain a.dcm (0010,0020) PID-5530718");
    row("three levels down",
        object(sequence(0x00081140, item(element(0x00080060, "CS", "CT")) +
                                        item(sequence(0x00081140, item(sequence(0x00081140, item(id))))))),
        u"certain a.dcm (0008,1140)[1].(0008,1140)[0].(0008,1140)[0].(0010,0020) PID-5530718");
    row("private text", object(creator + element(0x00091001, "LO", "see PID-5530718")),
        u"certain a.dcm (0009,1001) PID-5530718");
    row("private bytes", object(creator + element(0x00091001, "UN", QByteArray("\1\2PID-5530718\3", 14))),
        u"certain a.dcm (0009,1001) PID-5530718");
    row("private implicit",
        object(implicitElement(0x00090010, "MAKER") + implicitElement(0x00091001, "PID-5530718"),
               "1.2.840.10008.1.2"),
        u"certain a.dcm (0009,1001) PID-5530718");
    row("sequence of unknown VR",
        object(creator + element(0x00091001, "UN", item(implicitElement(0x00100020, "PID-5530718")))),
        u"certain a.dcm (0009,1001)[0].(0010,0020) PID-5530718");
    row("UTF-16", object(creator + element(0x00091001, "OB", QByteArray("B\0r\0\xFC\0c\0k\0n\0e\0r\0", 16))),
        u"likely a.dcm (0009,1001) Brückner");
    row("UTF-16 of the other byte order, after an odd number of bytes",
        object(creator + element(0x00091001, "OB", QByteArray("x\0B\0r\0\xFC\0c\0k\0n\0e\0r", 17))),
        u"likely a.dcm (0009,1001) Brückner");
    row("another character set",
        object(element(0x00080005, "CS", "ISO_IR 192") + element(0x00081030, "LO",
                                                                 "Fall Br\xC3\xBC"
                                                                 "ckner")),
        u"likely a.dcm (0008,1030) Brückner");
    row("UTF-8 where Latin-1 is declared",
        object(latin1 + element(0x00081030, "LO",
                                "Fall Br\xC3\xBC"
                                "ckner")),
        u"likely a.dcm (0008,1030) Brückner");
    row("a set of an item's own",
        object(latin1 +
               sequence(0x00081140, item(element(0x00080005, "CS", "ISO_IR 192") + element(0x00081030, "LO",
                                                                                           "BR\xC3\x9C"
                                                                                           "CKNER")))),
        u"likely a.dcm (0008,1140)[0].(0008,1030) Brückner");
    row("preamble", object(latin1, "1.2.840.10008.1.2.1", QByteArray("PID-5530718").leftJustified(128, '\0')),
        u"certain a.dcm preamble PID-5530718");
    row("bytes behind the end", object(latin1 + element(0x7FE00010, "OW", "1234")) + "  PID-5530718",
        u"certain a.dcm bytes behind the end PID-5530718");
    row("no object", "Letter for PID-5530718.",
        u"certain a.dcm bytes of a file that is no DICOM object PID-5530718");
    row("damaged object", object(elementOfLength(0x00100020, "LO", 100, "PID-5530718 ")),
        u"certain a.dcm bytes of a damaged file 1.2.3.999.1|certain a.dcm bytes of a damaged file "
        u"PID-5530718");
    row("twice in one value", object(element(0x00081030, "LO", "PID-5530718 PID-5530718")),
        u"certain a.dcm (0008,1030) PID-5530718");
    row("pixel data", object(latin1 + element(0x7FE00010, "OW", "PID-5530718")), u"");
}

void TestChecking::findsAValueInEveryPlace()
{
    QFETCH(const QByteArray, result);
    writeBoth(original, result);
    m_options.pixels = false;
    const CheckReport report = checkFolders();
    QStringList found = m_found; // the meta information of all these objects is the same
    found.removeIf([](const QString &line) { return line.contains(QStringLiteral("(0002,0003)")); });
    QTEST(found, "expected");
    QCOMPARE(report.values->searched(), quint64{3}); // with the UID of the meta information
}

void TestChecking::masksValuesAndNames()
{
    QCOMPARE(masked(QStringLiteral("Brückner")), QStringLiteral("B\u2025\u2025\u2025r, 8 characters"));
    QCOMPARE(masked(QStringLiteral("Meier")), QStringLiteral("\u2025\u2025\u2025, 5 characters"));
    Values values;
    values.add(ValueClass::Person, 0x00100010, QStringLiteral("Brückner^Jörg"));
    QCOMPARE(maskedPath(QStringLiteral("disc/Brueckner_Joerg/IM1"), values.patterns()),
             QStringLiteral("disc/<B\u2025\u2025\u2025g, 15 characters>/IM1"));
}

void TestChecking::neverCountsAFileAsCleanThatItDidNotCheck_data()
{
    QTest::addColumn<QByteArray>("result");
    QTest::addColumn<QString>("reason");
    QTest::newRow("ten thousand sequences deep")
        << object(nested(10'000)) << QStringLiteral("its sequences are nested more than 100 deep");
    QTest::newRow("cut") << clean.chopped(3) << QStringLiteral("an attribute is longer than what holds it");
    QTest::newRow("no object any more")
        << QByteArray("text") << QStringLiteral("its original is a DICOM object, and it is none");
    const QByteArray twice = element(0x00100020, "LO", "A1") + element(0x00100020, "LO", "B2");
    QTest::newRow("an attribute twice") << object(twice) << QStringLiteral("it is not read as a whole");
}

void TestChecking::neverCountsAFileAsCleanThatItDidNotCheck()
{
    QFETCH(const QByteArray, result);
    const QByteArray uid = element(0x00020003, "UI", "1.2.3.999.1");
    writeBoth(original, QByteArray(result).replace(uid, element(0x00020003, "UI", "1.2.3.888.1")));
    const CheckReport report = checkFolders();
    QCOMPARE(m_found, QStringList());
    QCOMPARE(report.unchecked.size(), 1);
    QTEST(report.unchecked[0].reason, "reason");
    QCOMPARE(verdictOf(report, Grade::Possible), Verdict::Incomplete);
}

void TestChecking::pairsFiles()
{
    const ScratchFolder scratch;
    CheckOptions options;
    options.originals = scratch.folder(QStringLiteral("before"));
    options.result = scratch.folder(QStringLiteral("after"));
    const QByteArray instance = element(0x00080018, "UI", "1.2.3.4");
    const QByteArray pixels = element(0x7FE00010, "OW", "pixels");
    scratch.file(QStringLiteral("before/same"), "text");
    scratch.file(QStringLiteral("after/same"), "text");
    scratch.file(QStringLiteral("before/renamed"), object(instance));
    scratch.file(QStringLiteral("after/new name"), object(instance + patient));
    const QByteArray twin = object(element(0x00080018, "UI", "1.2.3.5"));
    scratch.file(QStringLiteral("before/moved"), twin);
    scratch.file(QStringLiteral("after/a twin"), twin);
    scratch.file(QStringLiteral("before/pixels"), object(latin1 + pixels));
    scratch.file(QStringLiteral("after/other"), object(patient + pixels));
    scratch.file(QStringLiteral("before/lost"), "lost");
    scratch.file(QStringLiteral("after/added"), "added");
    scratch.link(QStringLiteral("after/link"), scratch.path(QStringLiteral("before/lost")));
    scratch.pipe(QStringLiteral("after/pipe"));
    const CheckReport report = checkWith(options);
    const auto names = [](const QList<qsizetype> &indices, const PathList &files) {
        QStringList some;
        for (const qsizetype index : indices)
            some.append(files[index]);
        return some;
    };
    QCOMPARE(report.pairing.pairs, 4);
    QCOMPARE(names(report.pairing.missing, report.originalFiles), QStringList{QStringLiteral("lost")});
    QCOMPARE(names(report.pairing.added, report.resultFiles), QStringList{QStringLiteral("added")});
    QCOMPARE(names(report.pairing.unchanged, report.resultFiles),
             (QStringList{QStringLiteral("a twin"), QStringLiteral("same")}));
    QCOMPARE(report.pairing.pixelsChanged, QList<qsizetype>());
    QStringList unchecked;
    for (const UncheckedFile &file : report.unchecked)
        unchecked.append(file.path + u' ' + file.reason);
    QCOMPARE(unchecked, (QStringList{QStringLiteral("pipe it is no regular file, and was not opened"),
                                     QStringLiteral("link it is a link, and was not followed")}));
}

void TestChecking::seesChangedPixelData_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<qsizetype>("expected");
    const auto encapsulated = [](const QByteArray &table, const QByteArray &frames) {
        return object(
            latin1 + elementOfLength(0x7FE00010, "OB", undefinedLength, item(table) + frames + sequenceEnd),
            "1.2.840.10008.1.2.5");
    };
    const QByteArray native = element(0x7FE00010, "OW", "0123");
    QTest::newRow("the same") << object(latin1 + native) << object(latin1 + patient + native) << qsizetype{0};
    QTest::newRow("other") << object(latin1 + native) << object(latin1 + element(0x7FE00010, "OW", "0124"))
                           << qsizetype{1};
    QTest::newRow("taken away") << object(latin1 + native) << object(patient) << qsizetype{1};
    QTest::newRow("another table of offsets")
        << encapsulated({}, item("ab") + item("cd")) << encapsulated(little32(0), item("ab") + item("cd"))
        << qsizetype{0};
    QTest::newRow("another frame") << encapsulated({}, item("ab") + item("cd"))
                                   << encapsulated({}, item("ab") + item("ce")) << qsizetype{1};
}

void TestChecking::seesChangedPixelData()
{
    QFETCH(const QByteArray, before);
    QFETCH(const QByteArray, after);
    writeBoth(before, after);
    const CheckReport report = checkFolders();
    QCOMPARE(report.unchecked.size(), 0);
    QTEST(report.pairing.pixelsChanged.size(), "expected");
}

void TestChecking::comparesWithAConfiguration()
{
    const QByteArray name = element(0x00100010, "PN", "CASE1");
    const QByteArray station = element(0x00081010, "SH", "STATION");
    writeBoth(original,
              object(element(0x00080060, "CS", "OT") + element(0x00080080, "LO", "Somewhere") +
                     sequence(0x00081120, item(element(0x00080080, "LO", "DUMMY"))) + station + name));
    CheckOptions options = m_options;
    options.rules =
        parseConfiguration(QStringLiteral("0008,0060\tModality\tCT\n0008,0080\tInstitution\tDUMMY\n"
                                          "0008,1010\tStation\n0008,1120\tPatients\n0010,0010\tName\n"
                                          "0010,0020\tID\n0008,0090\tReferrer\t<LUT_X>\n"));
    QStringList told;
    for (const TagCount &count : checkWith(options).deviations)
        told.append(count.tag + (count.wanted ? QStringLiteral(" other") : QStringLiteral(" there")));
    QCOMPARE(told, (QStringList{QStringLiteral("(0008,0060) other"), QStringLiteral("(0008,0080) other"),
                                QStringLiteral("(0008,1010) there"), QStringLiteral("(0008,1120) there")}));
}

void TestChecking::takesBackupsAsOriginals()
{
    const ScratchFolder scratch;
    scratch.file(QStringLiteral("a.dcm"), clean);
    scratch.file(QStringLiteral("a.dcm.bak"), original);
    CheckOptions options;
    options.originals = options.result = scratch.path();
    options.backups = true;
    const CheckReport report = checkWith(options);
    QCOMPARE(report.originalFiles.toList(), QStringList{QStringLiteral("a.dcm.bak")});
    QCOMPARE(report.resultFiles.toList(), QStringList{QStringLiteral("a.dcm")});
    QCOMPARE(report.pairing.pairs, 1);
    QCOMPARE(report.values->searched(), quint64{3});
}

void TestChecking::listsFilesWhosePixelsMayShowText()
{
    const auto reasonFor = [this](const QByteArray &dataSet) {
        writeBoth(original, object(dataSet));
        const CheckReport report = checkFolders();
        return report.mayShowText.isEmpty() ? QString() : report.mayShowText[0].second;
    };
    QCOMPARE(reasonFor(element(0x00080016, "UI", "1.2.840.10008.5.1.4.1.1.2")), QString());
    QCOMPARE(reasonFor(element(0x00080016, "UI", "1.2.840.10008.5.1.4.1.1.7.2")),
             QStringLiteral("secondary capture"));
    QCOMPARE(reasonFor(element(0x00080016, "UI", "1.2.840.10008.5.1.4.1.1.104.1")),
             QStringLiteral("encapsulated document"));
    QCOMPARE(reasonFor(element(0x00280301, "CS", "YES")), QStringLiteral("Burned In Annotation is YES"));
}

void TestChecking::countsEmptiedAttributes()
{
    writeBoth(original, object(element(0x00100010, "PN", "Anonymized") + element(0x00100020, "LO", "") +
                               element(0x00100030, "DA", "20200101")));
    QCOMPARE(checkFolders().emptied, quint64{2});
}

void TestChecking::tellsTheSameInEveryRun()
{
    const ScratchFolder scratch;
    CheckOptions options;
    options.originals = scratch.folder(QStringLiteral("before"));
    options.result = scratch.folder(QStringLiteral("after"));
    for (int i = 0; i < 40; ++i) {
        const QByteArray dataSet = element(0x00100020, "LO", "PID-77" + QByteArray::number(1000 + i * 7));
        scratch.file(QStringLiteral("before/%1").arg(i), object(dataSet));
        scratch.file(QStringLiteral("after/%1").arg(i), object(dataSet + patient));
    }
    (void)checkWith(options);
    const QStringList once = m_found;
    options.workers = 4;
    const CheckReport report = checkWith(options);
    QCOMPARE(m_found, once);
    QCOMPARE(report.files[0], quint64{40});
}

DRAVOLIN_TEST(TestChecking)
#include "tst_checking.moc"
