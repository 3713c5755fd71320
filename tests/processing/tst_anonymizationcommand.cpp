#include "processing/FolderAnonymization.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin;

namespace {

const QString tool = QStringLiteral("/opt/my tools/dcmodify");

AnonymizationCommand command(const QStringList &tags, const NewValueDict &values = {},
                             const AnonymizationChoices &choices = {})
{
    return anonymizationCommand(tool, {tags, values}, choices);
}

} // namespace

class TestAnonymizationCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choicesDecideTheOptions_data();
    void choicesDecideTheOptions();
    void tagBecomesOneArgument_data();
    void tagBecomesOneArgument();
    void theValueIsLookedUpUnderTheTrimmedTag();
    void tagIsMalformed_data();
    void tagIsMalformed();
    void emptyTagsAreSkipped_data();
    void emptyTagsAreSkipped();
    void orderIsThatOfTheList();
};

void TestAnonymizationCommand::choicesDecideTheOptions_data()
{
    QTest::addColumn<bool>("backups");
    QTest::addColumn<int>("generate");
    QTest::addColumn<int>("onlyGenerate");
    QTest::addColumn<QString>("options"); // behind the tool
    const auto row = [](const char *name, bool backups, Qt::CheckState generate, Qt::CheckState only,
                        const char *options) {
        QTest::newRow(name) << backups << static_cast<int>(generate) << static_cast<int>(only)
                            << QString::fromLatin1(options);
    };
    const auto off = Qt::Unchecked;
    const auto mixed = Qt::PartiallyChecked;
    const auto on = Qt::Checked;
#define TAGS " -i \"(0010,0010)=ANON\" -ea \"(0010,0030)\""
    row("all off", false, off, off, " -ie -imt -nb" TAGS);
    row("backups", true, off, off, " -ie -imt" TAGS);
    row("generate", false, on, off, " -ie -imt -nb -gin" TAGS);
    row("generate, backups", true, on, off, " -ie -imt -gin" TAGS);
    row("generate mixed is not on", false, mixed, off, " -ie -imt -nb" TAGS);
    row("only generate, generate", false, on, on, " -ie -imt -nb -gin");
    row("only generate, generate, backups", true, on, on, " -ie -imt -gin");
    row("only generate without generate: no change", false, off, on, " -ie -imt -nb");
    row("only generate without generate, backups", true, off, on, " -ie -imt");
    row("only generate mixed is not off", false, on, mixed, " -ie -imt -nb -gin");
    row("both mixed", false, mixed, mixed, " -ie -imt -nb");
#undef TAGS
}

void TestAnonymizationCommand::choicesDecideTheOptions()
{
    QFETCH(const bool, backups);
    QFETCH(const int, generate);
    QFETCH(const int, onlyGenerate);
    QFETCH(const QString, options);
    const AnonymizationChoices choices = {
        backups, {static_cast<Qt::CheckState>(generate), static_cast<Qt::CheckState>(onlyGenerate)}};
    const AnonymizationCommand made =
        command({QStringLiteral("0010,0010"), QStringLiteral("malformed tag"), QStringLiteral("0010,0030")},
                {{QStringLiteral("0010,0010"), QStringLiteral("ANON")}}, choices);
    QCOMPARE(made.prefix, QStringLiteral("\"/opt/my tools/dcmodify\"") + options);
    QCOMPARE(made.malformedTags, choices.edits.onlyGenerateSOP == Qt::Unchecked
                                     ? QStringList{QStringLiteral("malformed tag")}
                                     : QStringList());
}

void TestAnonymizationCommand::tagBecomesOneArgument_data()
{
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("value"); // null: none in the dictionary
    QTest::addColumn<QString>("argument");
    const auto row = [](const char *name, const char16_t *tag, const char16_t *value,
                        const char16_t *argument) {
        QTest::newRow(name) << QString::fromUtf16(tag) << QString::fromUtf16(value)
                            << QString::fromUtf16(argument);
    };
    row("with a value", u"0010,0010", u"ANON", u" -i \"(0010,0010)=ANON\"");
    row("without a value", u"0010,0010", nullptr, u" -ea \"(0010,0010)\"");
    row("with an empty value", u"0010,0010", u"", u" -ea \"(0010,0010)\"");
    row("value of a blank", u"0010,0010", u" ", u" -i \"(0010,0010)= \"");
    row("value that the shell interprets", u"0010,0010", u"a\"b$c`d`\\e\nf",
        u" -i \"(0010,0010)=a\"b$c`d`\\e\nf\"");
    row("value with equals sign and parentheses", u"0010,0010", u"(a)=b", u" -i \"(0010,0010)=(a)=b\"");
    row("value with place markers", u"0010,0010", u"%1 %2 %@", u" -i \"(0010,0010)=%1 %2 %@\"");
    row("value that is not ASCII", u"0010,0010", u"M\u00FCller", u" -i \"(0010,0010)=M\u00FCller\"");
    row("blanks around the tag", u" \t0010,0010\u00A0", nullptr, u" -ea \"(0010,0010)\"");
    row("nine characters of any kind", u"abcdefghi", u"x", u" -i \"(abcdefghi)=x\"");
    row("place markers in the tag", u"%1,%2%3xx", u"v", u" -i \"(%1,%2%3xx)=v\"");
    row("nine units, eight characters",
        u"\U0001F600"
        u"abcdefg",
        nullptr,
        u" -ea \"(\U0001F600"
        u"abcdefg)\"");
    row("a line break among nine", u"0010,001\n", nullptr, u" -ea \"(0010,001\n)\"");
    row("upper-case and lower-case differ", u"0020,000D", nullptr, u" -ea \"(0020,000D)\"");
}

void TestAnonymizationCommand::tagBecomesOneArgument()
{
    QFETCH(const QString, tag);
    QFETCH(const QString, value);
    QFETCH(const QString, argument);
    NewValueDict values = {{QStringLiteral("0020,000d"), QStringLiteral("1.2.3")}};
    if (!value.isNull())
        values.insert(tag, value);
    const AnonymizationCommand made = command({tag}, values);
    QCOMPARE(made.prefix, QStringLiteral("\"/opt/my tools/dcmodify\" -ie -imt -nb") + argument);
    QCOMPARE(made.malformedTags, QStringList());
}

void TestAnonymizationCommand::theValueIsLookedUpUnderTheTrimmedTag()
{
    const QString entry = QStringLiteral(" 0010,0010\t");
    const NewValueDict values = {{entry, QStringLiteral("of the entry")},
                                 {QStringLiteral("0010,0010"), QStringLiteral("of the tag")}};
    QCOMPARE(command({entry}, values).prefix,
             QStringLiteral("\"/opt/my tools/dcmodify\" -ie -imt -nb -i \"(0010,0010)=of the tag\""));
}

void TestAnonymizationCommand::tagIsMalformed_data()
{
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("reported");
    const auto row = [](const char *name, const char16_t *tag, const char16_t *reported) {
        QTest::newRow(name) << QString::fromUtf16(tag) << QString::fromUtf16(reported);
    };
    row("eight characters", u"0010,001", u"0010,001");
    row("ten characters", u"0010,0010x", u"0010,0010x");
    row("parentheses", u"(0010,0010)", u"(0010,0010)");
    row("a remark", u"0010,0010 # x", u"0010,0010 # x");
    row("blanks do not count and are not reported", u" \t0010,001 ", u"0010,001");
    row("a line break counts", u"0010,0010\n", u"0010,0010\n");
    row("nine characters, ten units",
        u"\U0001F600"
        u"abcdefgh",
        u"\U0001F600"
        u"abcdefgh");
}

void TestAnonymizationCommand::tagIsMalformed()
{
    QFETCH(const QString, tag);
    QFETCH(const QString, reported);
    const AnonymizationCommand made =
        command({tag}, {{tag, QStringLiteral("x")}, {reported, QStringLiteral("x")}});
    QCOMPARE(made.prefix, QStringLiteral("\"/opt/my tools/dcmodify\" -ie -imt -nb"));
    QCOMPARE(made.malformedTags, QStringList{reported});
}

void TestAnonymizationCommand::emptyTagsAreSkipped_data()
{
    QTest::addColumn<QString>("tag");
    QTest::newRow("empty") << QString();
    QTest::newRow("blanks") << QStringLiteral(" \t ");
    QTest::newRow("no-break space") << QStringLiteral("\u00A0");
}

void TestAnonymizationCommand::emptyTagsAreSkipped()
{
    QFETCH(const QString, tag);
    const AnonymizationCommand made = command({tag}, {{QString(), QStringLiteral("x")}});
    QCOMPARE(made.prefix, QStringLiteral("\"/opt/my tools/dcmodify\" -ie -imt -nb"));
    QCOMPARE(made.malformedTags, QStringList());
}

void TestAnonymizationCommand::orderIsThatOfTheList()
{
    const AnonymizationCommand made =
        command({QStringLiteral("0020,000d"), QStringLiteral("z"), QString(), QStringLiteral("0010,0010"),
                 QStringLiteral("a"), QStringLiteral("0020,000D"), QStringLiteral("0020,000d")},
                {{QStringLiteral("0020,000d"), QStringLiteral("1.2")}});
    QCOMPARE(
        made.prefix,
        QStringLiteral("\"/opt/my tools/dcmodify\" -ie -imt -nb -i \"(0020,000d)=1.2\" -ea \"(0010,0010)\""
                       " -ea \"(0020,000D)\" -i \"(0020,000d)=1.2\""));
    QCOMPARE(made.malformedTags, QStringList({QStringLiteral("z"), QStringLiteral("a")}));
}

DRAVOLIN_TEST(TestAnonymizationCommand)
#include "tst_anonymizationcommand.moc"
