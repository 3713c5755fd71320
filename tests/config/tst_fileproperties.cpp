#include "config/ConfigurationFile.h"
#include "config/LutFile.h"
#include "support/Pseudorandom.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin;
using test::Pseudorandom;

namespace {

constexpr int textsOfASeed = 300;

const QStringList pieces = {QStringLiteral("\n"),        QStringLiteral("\n"),      QStringLiteral("\r\n"),
                            QStringLiteral("\t"),        QStringLiteral("\t"),      QStringLiteral("   "),
                            QStringLiteral(" "),         QStringLiteral("\u00A0"),  QStringLiteral("\u2028"),
                            QStringLiteral("#"),         QStringLiteral("."),       QStringLiteral("\""),
                            QStringLiteral("0010,0010"), QStringLiteral("a"),       QStringLiteral("B"),
                            QStringLiteral("\u00E9"),    QStringLiteral("<LUT_x>"), QStringLiteral("<skip>"),
                            QStringLiteral("<missing>")};

// One line a tag, with tabs between its columns.
QString written(const TagRules &rules)
{
    QStringList lines;
    for (const QString &tag : rules.allTagsToAnonymize) {
        const auto value = rules.newValueDict.find(tag);
        const QString name = QStringLiteral("\tname");
        lines.append(value == rules.newValueDict.end() ? tag + (tag.isEmpty() ? QString() : name)
                                                       : tag + name + u'\t' + *value);
    }
    return lines.join(u'\n');
}

// Without the tags that only a line of as many tabs can hold.
TagRules writable(const QString &text)
{
    TagRules rules = parseConfiguration(text);
    rules.allTagsToAnonymize.removeIf([](const QString &tag) { return tag.contains(QStringLiteral("   ")); });
    rules.newValueDict.removeIf([](const auto &entry) {
        return entry.key().contains(QStringLiteral("   ")) || entry.value().isEmpty();
    });
    return rules;
}

QStringList keysOf(const LutTable &table)
{
    QStringList keys = table.keys();
    keys.sort();
    return keys;
}

} // namespace

// What holds for every configuration and every table.
class TestFileProperties : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rulesAreTheSameWhenWritten_data() { test::addSeeds(); }
    void rulesAreTheSameWhenWritten();
    void rulesOfTwoTextsAddUp_data() { test::addSeeds(); }
    void rulesOfTwoTextsAddUp();
    void commentsChangeNothing_data() { test::addSeeds(); }
    void commentsChangeNothing();
    void rowsOfTwoTablesAddUp_data() { test::addSeeds(); }
    void rowsOfTwoTablesAddUp();
    void everyValueOfAConstructionIsFound_data() { test::addSeeds(); }
    void everyValueOfAConstructionIsFound();
};

void TestFileProperties::rulesAreTheSameWhenWritten()
{
    QFETCH(const quint32, seed);
    Pseudorandom random(seed, pieces);
    qsizetype values = 0;
    for (int i = 0; i < textsOfASeed; ++i) {
        const TagRules rules = writable(random.text(80));
        if (rules.allTagsToAnonymize.isEmpty())
            continue;
        const TagRules again = parseConfiguration(written(rules));
        QCOMPARE(again.allTagsToAnonymize, rules.allTagsToAnonymize);
        QCOMPARE(again.newValueDict, rules.newValueDict);
        values += rules.newValueDict.size();
    }
    QVERIFY(values > textsOfASeed / 10);
}

void TestFileProperties::rulesOfTwoTextsAddUp()
{
    QFETCH(const quint32, seed);
    Pseudorandom random(seed, pieces);
    for (int i = 0; i < textsOfASeed; ++i) {
        const QString first = random.text(20);
        const QString second = random.text(20);
        const TagRules both = parseConfiguration(first + u'\n' + second);
        const TagRules later = parseConfiguration(second);
        TagRules expected = parseConfiguration(first);
        expected.allTagsToAnonymize += later.allTagsToAnonymize;
        expected.allTagsToAnonymize.sort();
        expected.allTagsToAnonymize.removeDuplicates();
        expected.newValueDict.insert(later.newValueDict);
        QCOMPARE(both.allTagsToAnonymize, expected.allTagsToAnonymize);
        QCOMPARE(both.newValueDict, expected.newValueDict);
    }
}

void TestFileProperties::commentsChangeNothing()
{
    QFETCH(const quint32, seed);
    Pseudorandom random(seed, pieces);
    for (int i = 0; i < textsOfASeed; ++i) {
        const QString text = random.text(40);
        const QString comment = QStringLiteral(" \t# 0010,0010\tname\tvalue\n");
        QString commented = comment + text;
        commented.replace(u'\n', u'\n' + comment);
        QCOMPARE(parseConfiguration(commented).allTagsToAnonymize,
                 parseConfiguration(text).allTagsToAnonymize);
        QCOMPARE(parseConfiguration(commented).newValueDict, parseConfiguration(text).newValueDict);
        QCOMPARE(parseLut(commented.toUtf8()).value_or(LutTable()),
                 parseLut(text.toUtf8()).value_or(LutTable()));
    }
}

void TestFileProperties::rowsOfTwoTablesAddUp()
{
    QFETCH(const quint32, seed);
    Pseudorandom random(seed, pieces);
    qsizetype rows = 0;
    for (int i = 0; i < textsOfASeed; ++i) {
        const QByteArray first = random.text(20).toUtf8() + '\n';
        const QByteArray second = random.text(20).toUtf8() + '\n';
        LutTable expected = parseLut(first).value_or(LutTable());
        expected.insert(parseLut(second).value_or(LutTable()));
        QCOMPARE(parseLut(first + second).value_or(LutTable()), expected);
        rows += expected.size();
    }
    QVERIFY(rows > textsOfASeed / 3);
}

void TestFileProperties::everyValueOfAConstructionIsFound()
{
    QFETCH(const quint32, seed);
    Pseudorandom random(seed,
                        {QStringLiteral("a"), QStringLiteral("B"), QStringLiteral("\u00E9"),
                         QStringLiteral("#"), QStringLiteral(" "), QStringLiteral("["), QStringLiteral("<")});
    LutTable expected = {{missingValue, QStringLiteral("Unknown")}};
    QStringList values;
    for (int i = 1; i <= textsOfASeed; ++i) {
        values.append(QString::number(i) + random.text(6) + u'.');
        if (values.last().contains(QStringLiteral("   ")))
            values.last() = QString::number(i);
        expected.insert(values.last(), QStringLiteral("Subject_%1").arg(i, 3, 10, QChar(u'0')));
    }
    const LutTable table =
        parseLut(lutText(QStringLiteral("0010,0020"), values).toUtf8()).value_or(LutTable());
    QCOMPARE(keysOf(table), keysOf(expected));
    QCOMPARE(table, expected);
}

DRAVOLIN_TEST(TestFileProperties)
#include "tst_fileproperties.moc"
