#include "real/RealLutTest.h"
#include "support/TestEntry.h"

#include "run/RunDriver.h"

#include <QTest>

using namespace dravolin;

// Tables into files.
class TestRealLutPropagation : public test::RealLutTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() { setUp(); }
    void propagatesAnEditedTable();
    void propagatesToNamedFiles();
    void keepsValuesWithBlanksFromMatching();
    void valuesThatAreNotUtf8AreLeftAlone();
    void readsNumbers();
    void propagationMakesNoBackups();
    void backupsOfTheSameRunAreNotTouched();
    void reachesFilesWithOddNames_data();
    void reachesFilesWithOddNames();
    void keepsNewValuesThatTheShellInterprets();
    void keepsAskingWithoutATagAfterwards();
    void missingToolsChangeNothing();
};

void TestRealLutPropagation::propagatesAnEditedTable()
{
    const QString kept = image(QStringLiteral("in/kept"), QStringLiteral("PHANTOM"));
    const QString first = image(QStringLiteral("in/sub/first.dcm"), QStringLiteral("PAT123"));
    const QString second = image(QStringLiteral("in/sub/.x/second"), QStringLiteral("KH-77"));
    construct({path("in")}, {});
    const QString fresh = image(QStringLiteral("in/fresh"), QStringLiteral("UNLISTED"));
    const QString without = image(QStringLiteral("in/without"), QString());
    const QString notes = m_run->writeFile(QStringLiteral("in/.notes"), QStringLiteral("hello"));
    QString edited = table();
    QCOMPARE(edited,
             lutText(tag, {QStringLiteral("KH-77"), QStringLiteral("PAT123"), QStringLiteral("PHANTOM")}));
    edited.replace(QStringLiteral("PHANTOM\t\t\tSubject_003"), QStringLiteral("PHANTOM\t\t\t<skip>"));
    edited.replace(QStringLiteral("KH-77\t\t\t"), QStringLiteral("KH-77   ")); // spaces do as well

    QCOMPARE(run({path("in")}, {}, edited),
             QStringLiteral("Done!\nLUT tag propagated to 3 files.\nSkipped 1 DICOM file."));

    QCOMPARE(value(kept), QStringLiteral("PHANTOM"));
    QCOMPARE(value(first), QStringLiteral("Subject_002"));
    QCOMPARE(value(second), QStringLiteral("Subject_001"));
    QCOMPARE(value(fresh), QStringLiteral("<missing>"));
    QCOMPARE(value(without), QStringLiteral("none"));
    QCOMPARE(readText(notes), QStringLiteral("hello"));
    for (const QString &anonymized : {kept, first, second, fresh, without})
        QCOMPARE(m_run->lines(anonymized, "0020,000d"),
                 QStringList{QStringLiteral("(0020,000d) UI [1.2.826.0.1.3680043.10.1234]")});
}

void TestRealLutPropagation::propagatesToNamedFiles()
{
    const QString a = image(QStringLiteral("in/a"), QStringLiteral("A"));
    const QString b = image(QStringLiteral("in/b"), QStringLiteral("B"));
    const QString c = image(QStringLiteral("in/c"), QStringLiteral("A"));
    QCOMPARE(run({}, {b, a}, rows(QStringLiteral("A\tS1\nB\tS2\n"))),
             QStringLiteral("Done!\nLUT tag propagated to 2 files.\nSkipped 0 DICOM files."));
    QCOMPARE(value(a), QStringLiteral("S1"));
    QCOMPARE(value(b), QStringLiteral("S2"));
    QCOMPARE(value(c), QStringLiteral("A"));
}

void TestRealLutPropagation::keepsValuesWithBlanksFromMatching()
{
    const QString whole = image(QStringLiteral("in/whole"), QStringLiteral("John Doe"));
    const QString cut = image(QStringLiteral("in/cut"), QStringLiteral("Jane Doe"));
    run({path("in")}, {}, rows(QStringLiteral("John Doe\tS1\nJan\tS2\n")));
    QCOMPARE(value(whole), QStringLiteral("<missing>"));
    QCOMPARE(value(cut), QStringLiteral("S2"));
}

void TestRealLutPropagation::valuesThatAreNotUtf8AreLeftAlone()
{
    const QString name = image(QStringLiteral("in/a"), fromBytes("M\xFCller"));
    const QString other = image(QStringLiteral("in/b"), QStringLiteral("M\u00FCller"));
    QCOMPARE(run({path("in")}, {}, rows(QStringLiteral("M\u00FCller\tS1\n"))),
             QStringLiteral("Done!\nLUT tag propagated to 1 file.\nSkipped 0 DICOM files."));
    QCOMPARE(value(name), fromBytes("M\xFCller"));
    QCOMPARE(value(other), QStringLiteral("S1"));
}

void TestRealLutPropagation::readsNumbers()
{
    const QString file = m_run->makeImage(QStringLiteral("in/a"));
    bind(QStringLiteral("0028,0010"));
    const QStringList before = m_run->lines(file, "0028,0010");
    QCOMPARE(before, QStringList{QStringLiteral("(0028,0010) US 16")});
    run({path("in")}, {}, rows(QStringLiteral("16\t32\n")));
    QCOMPARE(m_run->lines(file, "0028,0010"), QStringList{QStringLiteral("(0028,0010) US 32")});
}

void TestRealLutPropagation::propagationMakesNoBackups()
{
    image(QStringLiteral("in/a"), QStringLiteral("A"));
    run({path("in")}, {}, rows(QStringLiteral("A\tS1\n")));
    QStringList names = listNames(path("in"));
    names.sort();
    QCOMPARE(names, QStringList({QStringLiteral(".noxTemp.out"), QStringLiteral("a")}));
}

void TestRealLutPropagation::backupsOfTheSameRunAreNotTouched()
{
    const QString file = image(QStringLiteral("in/a"), QStringLiteral("A"));
    const std::optional<QByteArray> before = readBytes(file);
    Drop drop{{path("in")}, {}, {}};
    drop.options.createBAKfiles = true;
    drop.options.selectedLUT = QStringLiteral("Site");
    drop.options.selectedLUTpath = m_run->writeFile(QStringLiteral("table"), rows(QStringLiteral("A\tS1\n")));
    performRun(m_run->context, drop);
    QCOMPARE(value(file), QStringLiteral("S1"));
    QCOMPARE(readBytes(file + QStringLiteral(".bak")), before);
    QCOMPARE(m_run->state.get(&RunState::numLUTadaptedFiles), 1U);
}

void TestRealLutPropagation::reachesFilesWithOddNames_data()
{
    QTest::addColumn<QByteArray>("fileName");
    QTest::addColumn<bool>("reached");
    const auto add = [](const char *row, const QByteArray &name, bool reached) {
        QTest::newRow(row) << name << reached;
    };
    add("blanks", " a  b ", true);
    add("apostrophe", "a'b", true);
    add("star", "*", true);
    add("line break", "a\nb", true);
    add("bytes that are not UTF-8", "M\xFCller", true);
    add("umlaut", "M\xC3\xBCller", true);
    add("keeps what the shell takes for a variable from being reached", "a$HOME", false);
    add("keeps what the shell takes for a command from being reached", "`echo b`", false);
    add("keeps what the tool takes for an option from being reached", "-x", false);
}

void TestRealLutPropagation::reachesFilesWithOddNames()
{
    QFETCH(QByteArray, fileName);
    QFETCH(bool, reached);
    const QString odd = image(QStringLiteral("in/") + fromBytes(fileName), QStringLiteral("A"));
    const QString plain = image(QStringLiteral("in/plain"), QStringLiteral("A"));
    run({path("in")}, {}, rows(QStringLiteral("A\tS1\n")));
    QCOMPARE(value(plain), QStringLiteral("S1"));
    QCOMPARE(value(odd), reached ? QStringLiteral("S1") : QStringLiteral("A"));
}

void TestRealLutPropagation::keepsNewValuesThatTheShellInterprets()
{
    const QString a = image(QStringLiteral("in/a"), QStringLiteral("A"));
    const QString b = image(QStringLiteral("in/b"), QStringLiteral("B"));
    run({path("in")}, {}, rows(QStringLiteral("A\ta`echo b`c\nB\tO'Hara\n")));
    QCOMPARE(value(a), QStringLiteral("abc"));
    QCOMPARE(value(b), QStringLiteral("O'Hara"));
}

void TestRealLutPropagation::keepsAskingWithoutATagAfterwards()
{
    const QString file = image(QStringLiteral("in/a"), QStringLiteral("A"));
    run({path("in")}, {}, rows(QStringLiteral("A\t<skip>\n")));
    m_run->host.chosen.onlyGenerateSOP = Qt::Checked;
    const std::optional<QByteArray> before = readBytes(file);
    QCOMPARE(run({path("in")}, {}, QString()),
             QStringLiteral("Done!\nLUT tag propagated to 0 files.\nSkipped 1 DICOM file."));
    QCOMPARE(readBytes(file), before);
}

void TestRealLutPropagation::missingToolsChangeNothing()
{
    const QString file = image(QStringLiteral("in/a"), QStringLiteral("A"));
    const std::optional<QByteArray> before = readBytes(file);
    removeFile(m_run->paths.dcmdump());
    removeFile(m_run->paths.dcmodify());
    QCOMPARE(construct({path("in")}, {}), QStringLiteral("\nDone constructing LUT. File placed on Desktop."));
    QCOMPARE(table(), lutText(tag, {}));
    QCOMPARE(run({path("in")}, {}, rows(QStringLiteral("A\tS1\n"))),
             QStringLiteral("Done!\nLUT tag propagated to 0 files.\nSkipped 0 DICOM files."));
    QCOMPARE(readBytes(file), before);
}

DRAVOLIN_TEST(TestRealLutPropagation)
#include "tst_reallutpropagation.moc"
