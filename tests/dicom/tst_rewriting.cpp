#include "dicom/ObjectFile.h"
#include "dicom/Objects.h"
#include "support/TestEntry.h"

#include <algorithm>
#include <memory>

using namespace dravolin;
using test::ScratchFolder;

namespace {

const QByteArray head = "(0008,0016) UI [1.2.840.10008.5.1.4.1.1.2]\n(0008,0018) UI [1.2.3.4.1]\n";

// A sequence of one item.
QByteArray sequence(const QByteArray &tag, const QByteArray &inside)
{
    return tag + " SQ\n(fffe,e000) -\n" + inside + "(fffe,e00d) -\n(fffe,e0dd) -\n";
}

} // namespace

// What a treatment makes of a data set: the same bytes as DCMTK writes for the data set that is expected, in
// every notation, with and without the lengths of sequences and groups.
class TestRewriting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_scratch = std::make_unique<ScratchFolder>(); }
    void carriesOutRules_data();
    void carriesOutRules();
    void emptiesASequenceWithoutItsCopies();
    void treatsPrivateElements_data();
    void treatsPrivateElements();
    void replacesUids_data();
    void replacesUids();
    void looksValuesUp_data();
    void looksValuesUp();

private:
    void compare(const QByteArray &source, const QByteArray &expected, const Treatment &treatment,
                 bool withGroups = true) const;
    void compareOne(const QStringList &options, const QByteArray &source, const QByteArray &expected,
                    const Treatment &treatment) const;
    std::unique_ptr<ScratchFolder> m_scratch;
};

void TestRewriting::compare(const QByteArray &source, const QByteArray &expected, const Treatment &treatment,
                            bool withGroups) const
{
    for (const auto &[way, options] : test::waysOfWriting(withGroups))
        compareOne(options, source, expected, treatment);
}

void TestRewriting::compareOne(const QStringList &options, const QByteArray &source,
                               const QByteArray &expected, const Treatment &treatment) const
{
    const QString from = test::objectFile(*m_scratch, QStringLiteral("source"), head + source, options);
    const QString wanted = test::objectFile(*m_scratch, QStringLiteral("wanted"), head + expected, options);
    const QString result = m_scratch->path(QStringLiteral("result"));
    const QByteArray before = readBytes(from).value();
    QCOMPARE(treatFile(from, result, treatment).facts.problem, QString());
    const QByteArray found = test::dataSetOf(result).toHex(' ');
    const QByteArray bytes = test::dataSetOf(wanted).toHex(' ');
    QVERIFY2(found == bytes,
             qPrintable(options.join(u' ') + u' ' + QString::fromLatin1(found + " is not " + bytes)));
    QCOMPARE(readBytes(from).value(), before);
    removeFile(result);
}

void TestRewriting::carriesOutRules_data()
{
    QTest::addColumn<QString>("configuration");
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("expected");
    const QByteArray name = "(0010,0010) PN [Doe^Jane]\n";
    const QByteArray sex = "(0010,0040) CS [M]\n";
    const QByteArray thickness = "(0018,0050) DS [1.5]\n";
    const QByteArray rows = "(0028,0010) US 16\n";
    const QByteArray three =
        sequence("(0008,1140)", sequence("(0008,1199)", sequence("(0008,1120)", name) + sex));

    QTest::newRow("no rule") << QString() << name + rows + three << name + rows + three;
    QTest::newRow("erased") << QStringLiteral("0010,0010") << name + sex + rows << sex + rows;
    QTest::newRow("not there") << QStringLiteral("0010,0010") << sex + rows << sex + rows;
    QTest::newRow("erased three deep")
        << QStringLiteral("0010,0010") << three + rows
        << sequence("(0008,1140)", sequence("(0008,1199)", sequence("(0008,1120)", "") + sex)) + rows;
    QTest::newRow("a sequence erased")
        << QStringLiteral("0008,1199") << three + rows << sequence("(0008,1140)", "") + rows;
    QTest::newRow("the last element erased") << QStringLiteral("0028,0010") << name + rows << name;
    QTest::newRow("replaced") << QStringLiteral("0010,0010\t\tCase 7") << name + rows
                              << QByteArray("(0010,0010) PN [Case 7]\n") + rows;
    QTest::newRow("replaced by an odd length")
        << QStringLiteral("0010,0010\t\tabc") << name + rows << QByteArray("(0010,0010) PN [abc]\n") + rows;
    QTest::newRow("inserted between")
        << QStringLiteral("0010,0020\t\t7") << name + sex << name + "(0010,0020) LO [7]\n" + sex;
    QTest::newRow("inserted as a group's first")
        << QStringLiteral("0010,0010\t\tx") << sex + rows << "(0010,0010) PN [x]\n" + sex + rows;
    QTest::newRow("inserted as a group's last")
        << QStringLiteral("0010,4000\t\tx") << sex + rows << sex + "(0010,4000) LT [x]\n" + rows;
    QTest::newRow("inserted at the end")
        << QStringLiteral("0028,0011\t\t512") << rows << rows + "(0028,0011) US 512\n";
    QTest::newRow("nested copies replaced, not inserted")
        << QStringLiteral("0010,0010\t\tnew") << three + sequence("(0008,2112)", sex) + sex
        << sequence("(0008,1140)",
                    sequence("(0008,1199)", sequence("(0008,1120)", "(0010,0010) PN [new]\n") + sex)) +
               sequence("(0008,2112)", sex) + "(0010,0010) PN [new]\n" + sex;
    QTest::newRow("copies erased, the top level set")
        << QStringLiteral("+010,0010\tcopies\n0010,0010\t\tnew")
        << sequence("(0008,1140)", name + sex) + name + sex
        << sequence("(0008,1140)", sex) + "(0010,0010) PN [new]\n" + sex;
    QTest::newRow("emptied") << QStringLiteral("0010,0010\t\t\"\"") << name + sex << "(0010,0010) PN\n" + sex;
    QTest::newRow("a number") << QStringLiteral("0028,0010\t\t65535") << rows
                              << QByteArray("(0028,0010) US 65535\n");
    QTest::newRow("several numbers") << QStringLiteral("0018,1310\t\t1\\2\\3\\4") << name + thickness
                                     << name + thickness + "(0018,1310) US 1\\2\\3\\4\n";
    QTest::newRow("a double") << QStringLiteral("0018,9073\t\t1.5") << name + thickness
                              << name + thickness + "(0018,9073) FD 1.5\n";
    QTest::newRow("keeps what a shell would take")
        << QStringLiteral("0010,0010\t\t\"$HOME\" `id` \\ '*'") << name
        << QByteArray("(0010,0010) PN [\"$HOME\" `id` \\ '*']\n");
}

void TestRewriting::carriesOutRules()
{
    QFETCH(QString, configuration);
    QFETCH(QByteArray, source);
    QFETCH(QByteArray, expected);
    Treatment treatment;
    treatment.rules = test::rulesOf(configuration);
    treatment.rules.remove(0); // of the empty line
    compare(source, expected, treatment);
}

void TestRewriting::emptiesASequenceWithoutItsCopies()
{
    Treatment treatment;
    treatment.rules = test::rulesOf(QStringLiteral("+008,1140\tcopies\n0008,1140\t\t\"\""));
    treatment.rules.remove(0);
    const QByteArray sex = "(0010,0040) CS [M]\n";
    const QByteArray inner = sequence("(0008,1140)", sex);
    compareOne({QStringLiteral("+te"), QStringLiteral("+e")}, inner + sequence("(0008,1199)", inner + sex),
               "(0008,1140) SQ\n(fffe,e0dd) -\n" + sequence("(0008,1199)", sex), treatment);
}

void TestRewriting::treatsPrivateElements_data()
{
    QTest::addColumn<QStringList>("kept");
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("expected");
    const QByteArray one = "(0009,0010) LO [ONE]\n";
    const QByteArray two = "(0009,0011) LO [TWO]\n";
    const QByteArray ones = "(0009,1001) LO [a]\n(0009,1002) LO [b]\n";
    const QByteArray twos = "(0009,1101) LO [c]\n";
    const QByteArray sex = "(0010,0040) CS [M]\n";

    QTest::newRow("all go") << QStringList() << one + two + ones + twos + sex << sex;
    QTest::newRow("nested ones go") << QStringList() << sequence("(0008,1140)", one + ones + sex)
                                    << sequence("(0008,1140)", sex);
    QTest::newRow("one is kept, with its creator") << QStringList{QStringLiteral("0009,\"TWO\",01")}
                                                   << one + two + ones + twos + sex << two + twos + sex;
    QTest::newRow("a creator in another block") << QStringList{QStringLiteral("0009,\"ONE\",02")}
                                                << "(0009,0011) LO [ONE]\n(0009,1102) LO [x]\n" + sex
                                                << "(0009,0011) LO [ONE]\n(0009,1102) LO [x]\n" + sex;
    QTest::newRow("an item's creator does not count outside")
        << QStringList{QStringLiteral("0009,\"ONE\",01")}
        << sequence("(0008,1140)", one + "(0009,1001) LO [a]\n") +
               sequence("(0008,1200)", "(0009,1001) LO [z]\n")
        << sequence("(0008,1140)", one + "(0009,1001) LO [a]\n") + sequence("(0008,1200)", "");
}

void TestRewriting::treatsPrivateElements()
{
    QFETCH(QStringList, kept);
    QFETCH(QByteArray, source);
    QFETCH(QByteArray, expected);
    Treatment treatment;
    treatment.keptPrivate = QSet<QString>(kept.begin(), kept.end());
    compare(source, expected, treatment, kept.isEmpty()); // lengths of private groups go
}

void TestRewriting::replacesUids_data()
{
    QTest::addColumn<QString>("configuration");
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("top level") << QString() << QByteArray("(0020,000d) UI [1.2.3]\n")
                               << QByteArray("(0020,000d) UI [9.3.2.1]\n");
    QTest::newRow("nested") << QString() << sequence("(0008,1140)", "(0008,1155) UI [1.5]\n")
                            << sequence("(0008,1140)", "(0008,1155) UI [9.5.1]\n");
    QTest::newRow("several values") << QString()
                                    << QByteArray("(0008,0058) UI [1.4\\1.2.840.10008.1.1\\1.5]\n")
                                    << QByteArray("(0008,0058) UI [9.4.1\\1.2.840.10008.1.1\\9.5.1]\n");
    QTest::newRow("registered ones stay")
        << QString() << QByteArray("(0020,0052) UI [1.2.840.10008.1.4.1.1]\n")
        << QByteArray("(0020,0052) UI [1.2.840.10008.1.4.1.1]\n");
    QTest::newRow("classes stay") << QString() << sequence("(0008,1140)", "(0008,1150) UI [1.3.12.2.1]\n")
                                  << sequence("(0008,1140)", "(0008,1150) UI [1.3.12.2.1]\n");
    QTest::newRow("a rule is stronger") << QStringLiteral("0020,000d\t\t2.25.7")
                                        << QByteArray("(0020,000d) UI [1.2.3]\n(0020,000e) UI [1.3]\n")
                                        << QByteArray("(0020,000d) UI [2.25.7]\n(0020,000e) UI [9.3.1]\n");
    for (const char *type : {"LO", "SH", "UT", "OB"}) {
        const QByteArray written(type);
        const QByteArray old = written == "OB" ? "31\\2e\\32\\2e\\33\\34" : "[1.2.34]";
        const QByteArray mapped = written == "OB" ? "39\\2e\\34\\33\\2e\\32\\2e\\31" : "[9.43.2.1]";
        QTest::addRow("written as %s", type)
            << QString()
            << sequence("(0008,1140)", "(0008,1155) " + written + ' ' + old + '\n') + "(0020,000d) " +
                   written + ' ' + old + "\n(0020,0011) " + written + ' ' + old + '\n'
            << sequence("(0008,1140)", "(0008,1155) " + written + ' ' + mapped + '\n') + "(0020,000d) " +
                   written + ' ' + mapped + "\n(0020,0011) " + written + ' ' + old + '\n';
    }
    QTest::newRow("empty") << QString() << QByteArray("(0020,000d) UI\n") << QByteArray("(0020,000d) UI\n");
}

void TestRewriting::replacesUids()
{
    QFETCH(QString, configuration);
    QFETCH(QByteArray, source);
    QFETCH(QByteArray, expected);
    Treatment treatment;
    treatment.rules = test::rulesOf(configuration);
    treatment.newUid = [](const QByteArray &old) {
        QByteArray reversed = old;
        std::reverse(reversed.begin(), reversed.end());
        return old == "1.2.3.4.1" ? old : "9." + reversed;
    };
    compare(source, expected, treatment);
}

void TestRewriting::looksValuesUp_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("known, with a blank in it")
        << QByteArray("(0010,0020) LO [John Doe]\n") << QByteArray("(0010,0020) LO [Subject_001]\n");
    QTest::newRow("unknown") << QByteArray("(0010,0020) LO [Jane]\n")
                             << QByteArray("(0010,0020) LO [nobody]\n");
    QTest::newRow("skipped") << QByteArray("(0010,0020) LO [same]\n")
                             << QByteArray("(0010,0020) LO [same]\n");
    QTest::newRow("not there") << QByteArray("(0010,0040) CS [M]\n") << QByteArray("(0010,0040) CS [M]\n");
    QTest::newRow("nested") << sequence("(0008,1140)", "(0010,0020) LO [John Doe]\n")
                            << sequence("(0008,1140)", "(0010,0020) LO [Subject_001]\n");
}

void TestRewriting::looksValuesUp()
{
    QFETCH(QByteArray, source);
    QFETCH(QByteArray, expected);
    Treatment treatment;
    treatment.rules = test::rulesOf(QStringLiteral("0010,0020\t\t<LUT_Names>"), true);
    treatment.table = {{QStringLiteral("John Doe"), QStringLiteral("Subject_001")},
                       {QStringLiteral("same"), skippedValue},
                       {missingValue, QStringLiteral("nobody")}};
    compare(source, expected, treatment);
}

DRAVOLIN_TEST(TestRewriting)

#include "tst_rewriting.moc"
