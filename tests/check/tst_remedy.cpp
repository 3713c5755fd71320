#include "check/Remedy.h"
#include "check/Findings.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin::check;

// What takes a value away from where it was found.
class TestRemedy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesALineOrAWay_data();
    void namesALineOrAWay();
};

void TestRemedy::namesALineOrAWay_data()
{
    QTest::addColumn<Place::Kind>("kind");
    QTest::addColumn<Tag>("tag");
    QTest::addColumn<Tag>("outermost");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("advice");
    const auto row = [](const char *name, Place::Kind kind, Tag tag, Tag outermost, const char16_t *line,
                        const char16_t *advice) {
        QTest::newRow(name) << kind << tag << outermost << QString::fromUtf16(line)
                            << QString::fromUtf16(advice);
    };
    constexpr auto attribute = Place::Kind::Attribute;
    row("attribute", attribute, 0x00081030, 0, u"0008,1030\tStudy Description", u"");
    row("attribute in a sequence", attribute, 0x00081030, 0x00400275, u"0008,1030\tStudy Description", u"");
    row("private attribute", attribute, 0x00091001, 0, u"0009,1001\tprivate attribute", u"");
    row("field of the window", attribute, 0x00100010, 0, u"",
        u"set from the main window; look at its fields");
    row("its copy in a sequence", attribute, 0x00100010, 0x00400275,
        u"0040,0275\tRequest Attributes Sequence", u"");
    row("instance UID", attribute, 0x00080018, 0, u"", u"choose \"Generate new instance UIDs\"");
    row("meta information", attribute, 0x00020003, 0, u"",
        u"meta information: no configuration changes it; \"Generate new instance UIDs\" does so for the "
        u"instance UID");
    row("directory", attribute, 0x00041511, 0x00041220, u"", u"a DICOMDIR: do not pass the file on");
    row("file name", Place::Kind::FileName, 0, 0, u"", u"rename it");
    row("folder name", Place::Kind::FolderName, 0, 0, u"", u"rename it");
    row("link", Place::Kind::LinkTarget, 0, 0, u"", u"remove the link");
    row("no object", Place::Kind::NoObject, 0, 0, u"", u"do not pass the file on");
    row("preamble", Place::Kind::Preamble, 0, 0, u"",
        u"no configuration reaches these bytes; do not pass the file on as it is");
}

void TestRemedy::namesALineOrAWay()
{
    QFETCH(const Place::Kind, kind);
    QFETCH(const Tag, tag);
    QFETCH(const Tag, outermost);
    const Remedy remedy = remedyFor({kind, tag, outermost, {}});
    QTEST(remedy.line, "line");
    QTEST(remedy.advice, "advice");
}

DRAVOLIN_TEST(TestRemedy)
#include "tst_remedy.moc"
