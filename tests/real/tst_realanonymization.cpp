#include "config/ConfigurationFile.h"
#include "processing/FolderAnonymization.h"
#include "real/RealRun.h"
#include "support/TestEntry.h"

#include <QSet>
#include <QTest>

using namespace dravolin;
using test::LogCatcher;
using test::RealRun;

namespace {

const QString image = QStringLiteral("study/image.dcm");

QStringList oneLine(const char16_t *line)
{
    return {QString::fromUtf16(line)};
}

} // namespace

// What the tool makes of the attributes in one folder.
class TestRealAnonymization : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void insertsValuesAndErasesAtEveryLevel();
    void insertsAttributesThatWereMissing();
    void keepsNestedCopiesOfAttributesThatGetAValue();
    void erasesPrivateAttributes();
    void writesUtf8();
    void leavesLatin1AsItIs();
    void emptyValueErases();
    void generatesNewInstanceUids();
    void leavesInstanceUidsAlone();
    void onlyGeneratesInstanceUids();
    void changesNothingWhenNothingIsAsked();
    void keepsAnAttributeEmptyThatIsSetToTwoQuotes();
    void keepsNoCopyOfAnAttributeWhoseTagBeginsWithAPlus();
    void studyUidSurvivesBesideItsUpperCaseSpelling();
    void studyUidWouldBeLostInTheOtherOrder();
    void keepsValuesThatTheShellInterprets_data();
    void keepsValuesThatTheShellInterprets();
    void nineCharactersThatAreNoTagAreTheToolsError();
    void malformedTagsChangeNothing();
    void defaultConfigurationRunsWithoutErrors();

private:
    void anonymize(const QStringList &tags, const NewValueDict &values = {})
    {
        m_run->state.set(&RunState::newValueDict, values);
        QCOMPARE(
            anonymizeFolder(m_run->context, m_run->rules(tags), m_run->path(QStringLiteral("study")), {}),
            0U);
    }
    [[nodiscard]] QStringList lines(const char *tag = nullptr) const { return m_run->lines(m_image, tag); }
    std::unique_ptr<RealRun> m_run;
    QString m_image;
};

void TestRealAnonymization::init()
{
    m_run = std::make_unique<RealRun>();
    m_image = m_run->makeImage(image);
    QVERIFY(lines().size() > 20);
}

void TestRealAnonymization::insertsValuesAndErasesAtEveryLevel()
{
    QCOMPARE(lines("0010,0020").size(), 3);
    QCOMPARE(lines("0010,0030").size(), 2);
    anonymize({QStringLiteral("0010,0020"), QStringLiteral("0010,0030"), QStringLiteral("0010,0040")},
              {{QStringLiteral("0010,0040"), QStringLiteral("O")}});
    QCOMPARE(lines("0010,0020"), QStringList());
    QCOMPARE(lines("0010,0030"), QStringList());
    QCOMPARE(lines("0010,0040"), oneLine(u"(0010,0040) CS [O]"));
    QCOMPARE(lines("0040,a730").value(0), // the sequences around them are still there
             QStringLiteral("(0008,1120).(0040,a730) SQ (Sequence with explicit length #=1)"));
    QCOMPARE(m_run->resultingOutput(), QString());
}

void TestRealAnonymization::insertsAttributesThatWereMissing()
{
    QCOMPARE(lines("0032,4000"), QStringList());
    anonymize({QStringLiteral("0032,4000"), QStringLiteral("0010,4000")},
              {{QStringLiteral("0032,4000"), QStringLiteral("two words")}});
    QCOMPARE(lines("0032,4000"), oneLine(u"(0032,4000) LT [two words]"));
    QCOMPARE(m_run->resultingOutput(), QString()); // erasing what is not there is no error
}

void TestRealAnonymization::keepsNestedCopiesOfAttributesThatGetAValue()
{
    anonymize({QStringLiteral("0010,0010")}, {{QStringLiteral("0010,0010"), QStringLiteral("ANON")}});
    QCOMPARE(lines("0010,0010"),
             QStringList({QStringLiteral("(0008,1120).(0010,0010) PN [Br\u00FCckner^J\u00F6rg]"),
                          QStringLiteral("(0010,0010) PN [ANON]")}));
}

void TestRealAnonymization::erasesPrivateAttributes()
{
    anonymize({QStringLiteral("0009,1001")});
    QCOMPARE(lines("0009,1001"), QStringList());
    QCOMPARE(lines("0009,1002"), oneLine(u"(0009,1002) LO [kept]"));
    QCOMPARE(lines("0009,0010"), oneLine(u"(0009,0010) LO [SAMPLE PRIVATE 1]"));
}

void TestRealAnonymization::writesUtf8()
{
    anonymize(
        {QStringLiteral("0010,0010")},
        {{QStringLiteral("0010,0010"), QStringLiteral("\u0391\u03BD\u03CE\u03BD^\u5C71\u7530^M\u00FC")}});
    QCOMPARE(lines("0010,0010").last(),
             QStringLiteral("(0010,0010) PN [\u0391\u03BD\u03CE\u03BD^\u5C71\u7530^M\u00FC]"));
    QCOMPARE(lines("0008,0090"), oneLine(u"(0008,0090) PN [Wei\u00DFhaupt^\u00C4nne^^Dr.]"));
}

void TestRealAnonymization::leavesLatin1AsItIs()
{
    m_image = m_run->makeImage(QStringLiteral("study/latin1.dcm"), QStringLiteral("latin1"));
    const QString name = lines("0010,0010").value(0);
    QCOMPARE(toBytes(name), QByteArray("(0010,0010) PN [M\xFCller^J\xFCrgen]"));
    anonymize({QStringLiteral("0010,0010"), QStringLiteral("0010,1040")},
              {{QStringLiteral("0010,0010"), QStringLiteral("ANON")}});
    QCOMPARE(lines("0010,0010"), oneLine(u"(0010,0010) PN [ANON]"));
    QCOMPARE(lines("0010,1040"), QStringList());
    QCOMPARE(toBytes(lines("0008,0081").value(0)), QByteArray("(0008,0081) ST [Am M\xFChlgraben 3]"));
    QCOMPARE(m_run->lines(m_run->path(image), "0010,0010").last(), QStringLiteral("(0010,0010) PN [ANON]"));
}

void TestRealAnonymization::emptyValueErases()
{
    anonymize(
        {QStringLiteral("0008,0050"), QStringLiteral("0010,0020")},
        {{QStringLiteral("0008,0050"), QString()}, {QStringLiteral("0010,0020"), QStringLiteral("007")}});
    QCOMPARE(lines("0008,0050"), QStringList());
    QCOMPARE(lines("0010,0020").last(), QStringLiteral("(0010,0020) LO [007]"));
}

void TestRealAnonymization::generatesNewInstanceUids()
{
    const QString second = m_run->makeImage(QStringLiteral("study/second.dcm"));
    m_run->host.chosen.generateSOP = Qt::Checked;
    anonymize({QStringLiteral("0010,0010")}, {{QStringLiteral("0010,0010"), QStringLiteral("ANON")}});
    QSet<QString> uids;
    for (const QString &path : {m_image, second}) {
        const QString line = m_run->lines(path, "0008,0018").value(0);
        uids.insert(line);
        QCOMPARE(m_run->lines(path, "0002,0003"),
                 QStringList{QString(line).replace(1, 9, QStringLiteral("0002,0003"))});
        QCOMPARE(m_run->lines(path, "0010,0010").last(), QStringLiteral("(0010,0010) PN [ANON]"));
    }
    uids.insert(QStringLiteral("(0008,0018) UI [1.2.3.4.5.1]"));
    QCOMPARE(uids.size(), 3);
}

void TestRealAnonymization::leavesInstanceUidsAlone()
{
    anonymize({QStringLiteral("0010,0020")});
    QCOMPARE(lines("0008,0018"), oneLine(u"(0008,0018) UI [1.2.3.4.5.1]"));
}

void TestRealAnonymization::onlyGeneratesInstanceUids()
{
    m_run->host.chosen.generateSOP = m_run->host.chosen.onlyGenerateSOP = Qt::Checked;
    QStringList before = lines();
    anonymize({QStringLiteral("0010,0010"), QStringLiteral("0010,0020")});
    QStringList after = lines();
    const auto isInstanceUid = [](const QString &line) {
        // with the length of the meta header, which the UID's length changes, and the name of the writer
        return line.startsWith(QStringLiteral("(0008,0018)")) || line.startsWith(QStringLiteral("(0002,0"));
    };
    QVERIFY(lines("0008,0018") != oneLine(u"(0008,0018) UI [1.2.3.4.5.1]"));
    before.removeIf(isInstanceUid);
    after.removeIf(isInstanceUid);
    QCOMPARE(after, before);
}

void TestRealAnonymization::changesNothingWhenNothingIsAsked()
{
    const QStringList before = lines();
    m_run->host.chosen.onlyGenerateSOP = Qt::Checked;
    anonymize({QStringLiteral("0010,0010"), QStringLiteral("0010,0020")});
    QCOMPARE(lines(), before);
    QCOMPARE(m_run->resultingOutput(), QString());
}

void TestRealAnonymization::keepsAnAttributeEmptyThatIsSetToTwoQuotes()
{
    const TagRules rules = parseConfiguration(QStringLiteral("0008,0090\tReferring Physician's Name\t\"\""));
    anonymize(rules.allTagsToAnonymize, rules.newValueDict);
    QCOMPARE(lines("0008,0090"), oneLine(u"(0008,0090) PN (no value available)"));
}

void TestRealAnonymization::keepsNoCopyOfAnAttributeWhoseTagBeginsWithAPlus()
{
    TagRules rules = parseConfiguration(QStringLiteral("0010,0020\n+010,0020"));
    rules.newValueDict.insert(QStringLiteral("0010,0020"), QStringLiteral("007"));
    anonymize(rules.allTagsToAnonymize, rules.newValueDict);
    QCOMPARE(lines("0010,0020"), oneLine(u"(0010,0020) LO [007]"));
    QCOMPARE(m_run->resultingOutput(), QString());
}

void TestRealAnonymization::studyUidSurvivesBesideItsUpperCaseSpelling()
{
    TagRules rules =
        parseConfiguration(QStringLiteral("0020,000d\tStudy Instance UID\n0020,000D\tStudy Instance UID"));
    addFixedTags(rules, {}, QStringLiteral("2.25.42"));
    anonymize(rules.allTagsToAnonymize, rules.newValueDict);
    QCOMPARE(lines("0020,000d"), oneLine(u"(0020,000d) UI [2.25.42]"));
}

// Why the tag list is sorted by code units.
void TestRealAnonymization::studyUidWouldBeLostInTheOtherOrder()
{
    anonymize({QStringLiteral("0020,000d"), QStringLiteral("0020,000D")},
              {{QStringLiteral("0020,000d"), QStringLiteral("2.25.42")}});
    QCOMPARE(lines("0020,000d"), QStringList());
}

void TestRealAnonymization::keepsValuesThatTheShellInterprets_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("written");
    QTest::newRow("backquotes") << QStringLiteral("a`echo b`c") << QStringLiteral("abc");
    QTest::newRow("variable") << QStringLiteral("a${DCMDICTPATH:+b}c") << QStringLiteral("abc");
    QTest::newRow("variable that is not set") << QStringLiteral("a$HOME") << QStringLiteral("a");
    QTest::newRow("pair of double quotes") << QStringLiteral("a\"b\"c") << QStringLiteral("abc");
    QTest::newRow("apostrophe") << QStringLiteral("O'Hara") << QStringLiteral("O'Hara");
    QTest::newRow("star") << QStringLiteral("*") << QStringLiteral("*");
    QTest::newRow("inner blanks") << QStringLiteral("a  b") << QStringLiteral("a  b");
}

void TestRealAnonymization::keepsValuesThatTheShellInterprets()
{
    QFETCH(const QString, value);
    QFETCH(const QString, written);
    anonymize({QStringLiteral("0008,0050")}, {{QStringLiteral("0008,0050"), value}});
    QCOMPARE(lines("0008,0050"), QStringList{QStringLiteral("(0008,0050) SH [") + written + u']'});
}

void TestRealAnonymization::nineCharactersThatAreNoTagAreTheToolsError()
{
    anonymize({QStringLiteral("abcdefghi"), QStringLiteral("0010,0020")});
    QVERIFY(m_run->resultingOutput().startsWith(QStringLiteral("E: ")));
    QCOMPARE(lines("0010,0020"), QStringList());
}

void TestRealAnonymization::malformedTagsChangeNothing()
{
    const LogCatcher log;
    const QStringList before = lines();
    anonymize({QStringLiteral("(0010,0010)"), QStringLiteral("PatientName")});
    QCOMPARE(lines(), before);
    QCOMPARE(log.messages(), QStringList({QStringLiteral("Ignoring malformed tag: (0010,0010)"),
                                          QStringLiteral("Ignoring malformed tag: PatientName")}));
}

void TestRealAnonymization::defaultConfigurationRunsWithoutErrors()
{
    const LogCatcher log;
    TagRules rules = loadConfiguration(m_run->paths.defaultConfiguration());
    QVERIFY(rules.allTagsToAnonymize.size() > 20);
    addFixedTags(rules,
                 {QStringLiteral("diagnosis"), QStringLiteral("007"), QStringLiteral("credits"),
                  QStringLiteral("keywords")},
                 QStringLiteral("2.25.42"));
    anonymize(rules.allTagsToAnonymize, rules.newValueDict);
    QCOMPARE(m_run->resultingOutput(), QString());
    QCOMPARE(log.messages(), QStringList());
    QCOMPARE(lines("0010,0010").last(), QStringLiteral("(0010,0010) PN [diagnosis]"));
    QCOMPARE(lines("0010,0020").last(), QStringLiteral("(0010,0020) LO [007]"));
    QCOMPARE(lines("0020,000d"), oneLine(u"(0020,000d) UI [2.25.42]"));
    QCOMPARE(lines("0008,0050"), oneLine(u"(0008,0050) SH [credits]"));
    QCOMPARE(lines("0032,4000"), oneLine(u"(0032,4000) LT [keywords]"));
    QCOMPARE(lines("0010,0030"), oneLine(u"(0010,0030) DA (no value available)"));
    QCOMPARE(lines("0008,0090"), oneLine(u"(0008,0090) PN (no value available)"));
}

DRAVOLIN_TEST(TestRealAnonymization)
#include "tst_realanonymization.moc"
