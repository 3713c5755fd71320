#include "config/ConfigurationFile.h"
#include "dicom/ObjectFile.h"
#include "dicom/Objects.h"
#include "processing/Edits.h"
#include "support/TestEntry.h"

#include <QSet>

using namespace dravolin;
using test::ScratchFolder;

namespace {

const QString configuration = QStringLiteral("0008,0080\tInstitution\n"
                                             "0008,0090\tReferring\tnobody\n"
                                             "0008,1120\tReferenced patients\n"
                                             "0010,0020\tID\t7\n"
                                             "0010,0030\tBirth date\t19700101\n"
                                             "0010,0040\tSex\n"
                                             "0028,0010\tRows\t32\n"
                                             "0032,4000\tComments\ta \"quoted\" $value\n");

const QByteArray object = R"((0008,0005) CS [ISO_IR 100]
(0008,0016) UI [1.2.840.10008.5.1.4.1.1.2]
(0008,0018) UI [1.2.3.4.1]
(0008,0080) LO [Hospital]
(0008,0090) PN [Doctor^A]
(0008,1120) SQ
(fffe,e000) -
(0010,0020) LO [4711]
(fffe,e00d) -
(fffe,e0dd) -
(0009,0010) LO [MAKER]
(0009,1001) LO [serial]
(0010,0010) PN [Doe^Jane]
(0010,0020) LO [4711]
(0010,0040) CS [F]
(0018,0050) DS [1.5]
(0028,0010) US 16
(0040,0275) SQ
(fffe,e000) -
(0010,0040) CS [F]
(0010,2160) SH [x]
(0040,0007) LO [Thorax]
(fffe,e00d) -
(fffe,e0dd) -
(7fe0,0010) OW 0001\0002\0003\0004
)";

} // namespace

// The same configuration does the same to an object as DCMTK's tool does when the window runs it.
class TestSameChanges : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void changesAsTheToolDoes_data();
    void changesAsTheToolDoes();
};

void TestSameChanges::changesAsTheToolDoes_data()
{
    QTest::addColumn<QStringList>("options");
    for (const auto &[way, options] : test::waysOfWriting())
        QTest::newRow(way.constData()) << options;
}

void TestSameChanges::changesAsTheToolDoes()
{
    QFETCH(QStringList, options);
    const ScratchFolder folder;
    const QString source = test::objectFile(folder, QStringLiteral("source"), object, options);
    const QString changed = folder.file(QStringLiteral("changed"), readBytes(source).value());
    const QStringList arguments = argumentList(edits(parseConfiguration(configuration.chopped(1)), {}).list);
    // the tool writes all lengths in one way, whatever the source had
    const bool undefinedLengths = options.contains(QStringLiteral("-e"));
    test::printedBy(QStringLiteral("dcmodify"),
                    QStringList{QStringLiteral("-ie"), QStringLiteral("-imt"), QStringLiteral("-nb"),
                                undefinedLengths ? QStringLiteral("-le") : QStringLiteral("+le")} +
                        arguments + QStringList{changed});

    Treatment treatment;
    treatment.rules = test::rulesOf(configuration.chopped(1));
    treatment.removePrivate = false;
    const QString result = folder.path(QStringLiteral("result"));
    QCOMPARE(treatFile(source, result, treatment).facts.problem, QString());
    QCOMPARE(test::dataSetOf(result).toHex(' '), test::dataSetOf(changed).toHex(' '));
}

DRAVOLIN_TEST(TestSameChanges)

#include "tst_samechanges.moc"
