#include "config/ConfigurationFile.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin;

namespace {

const CaseTexts noTexts;
const QString uid = QStringLiteral("1.2.3.42");

QStringList fixedTags()
{
    return {QStringLiteral("0008,0050"), QStringLiteral("0010,0010"), QStringLiteral("0010,0020"),
            QStringLiteral("0020,000d"), QStringLiteral("0032,4000")};
}

} // namespace

// The attributes whose values come from the window, and table markers among the values.
class TestFixedTags : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsTagsApartThatDifferInCase();
    void windowGivesTheFixedTagsTheirValues();
    void windowTextsAreOnlyTrimmed();
    void windowWinsOverTheFile();
    void fixedTagsAreThereWithoutAFile();
    void findsTheFirstTableMarker_data();
    void findsTheFirstTableMarker();
};

// The order decides what the tool does with both: erased first, then inserted, the attribute is there.
void TestFixedTags::keepsTagsApartThatDifferInCase()
{
    TagRules rules = parseConfiguration(QStringLiteral("0020,000D\tStudy Instance UID\n"));
    addFixedTags(rules, noTexts, uid);
    const qsizetype upper = rules.allTagsToAnonymize.indexOf(QStringLiteral("0020,000D"));
    QVERIFY(upper >= 0);
    QCOMPARE(rules.allTagsToAnonymize.indexOf(QStringLiteral("0020,000d")), upper + 1);
    QVERIFY(!rules.newValueDict.contains(QStringLiteral("0020,000D")));
}

void TestFixedTags::windowGivesTheFixedTagsTheirValues()
{
    TagRules rules;
    addFixedTags(rules,
                 {QStringLiteral("diagnosis"), QStringLiteral("0042"), QStringLiteral("credits"),
                  QStringLiteral("keywords")},
                 uid);
    QCOMPARE(rules.allTagsToAnonymize, fixedTags());
    QCOMPARE(rules.newValueDict, NewValueDict({{QStringLiteral("0010,0010"), QStringLiteral("diagnosis")},
                                               {QStringLiteral("0010,0020"), QStringLiteral("0042")},
                                               {QStringLiteral("0020,000d"), uid},
                                               {QStringLiteral("0008,0050"), QStringLiteral("credits")},
                                               {QStringLiteral("0032,4000"), QStringLiteral("keywords")}}));
}

void TestFixedTags::windowTextsAreOnlyTrimmed()
{
    TagRules rules;
    addFixedTags(
        rules,
        {QStringLiteral(" ... "), QStringLiteral("\t007 "), QStringLiteral("a   b\n"), QStringLiteral("  ")},
        uid);
    QCOMPARE(rules.newValueDict, NewValueDict({{QStringLiteral("0010,0010"), QStringLiteral("...")},
                                               {QStringLiteral("0010,0020"), QStringLiteral("007")},
                                               {QStringLiteral("0020,000d"), uid},
                                               {QStringLiteral("0008,0050"), QStringLiteral("a   b\n")},
                                               {QStringLiteral("0032,4000"), QString()}}));
}

void TestFixedTags::windowWinsOverTheFile()
{
    TagRules rules = parseConfiguration(QStringLiteral("0010,0010\tName\tfile\n0010,0020\tID\t<LUT_ID>\n"
                                                       "0020,000d\tUID\t9.9\n0008,0050\tx\tfile\n"
                                                       "0032,4000\tx\tfile\n0010,0030\tx\tstays"));
    addFixedTags(rules, noTexts, uid);
    QCOMPARE(rules.newValueDict, NewValueDict({{QStringLiteral("0010,0010"), QString()},
                                               {QStringLiteral("0010,0020"), QString()},
                                               {QStringLiteral("0010,0030"), QStringLiteral("stays")},
                                               {QStringLiteral("0020,000d"), uid},
                                               {QStringLiteral("0008,0050"), QString()},
                                               {QStringLiteral("0032,4000"), QString()}}));
}

void TestFixedTags::fixedTagsAreThereWithoutAFile()
{
    TagRules rules;
    addFixedTags(rules, noTexts, uid);
    QCOMPARE(rules.allTagsToAnonymize, fixedTags());
    QCOMPARE(rules.newValueDict.keys(), fixedTags());
}

void TestFixedTags::findsTheFirstTableMarker_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("tag"); // null: none
    QTest::newRow("no values") << QString() << QString();
    QTest::newRow("none") << QStringLiteral("a\t\tx\nb\t\ty") << QString();
    QTest::newRow("first by tag, not by line")
        << QStringLiteral("c\t\t<LUT_1>\nb\t\t<LUT_2>\na\t\tx") << QStringLiteral("b");
    QTest::newRow("other case") << QStringLiteral("a\t\t<lut_1>\nb\t\t<LUT_2>") << QStringLiteral("b");
    QTest::newRow("not in front") << QStringLiteral("a\t\tx<LUT_1>") << QString();
    QTest::newRow("nothing behind it") << QStringLiteral("a\t\t<LUT_") << QStringLiteral("a");
}

void TestFixedTags::findsTheFirstTableMarker()
{
    QFETCH(const QString, text);
    QFETCH(const QString, tag);
    const std::optional<QString> expected = tag.isNull() ? std::nullopt : std::optional(tag);
    QVERIFY(firstTagWithTableMarker(parseConfiguration(text).newValueDict) == expected);
}

DRAVOLIN_TEST(TestFixedTags)
#include "tst_fixedtags.moc"
