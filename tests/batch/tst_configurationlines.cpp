#include "base/Files.h"
#include "batch/ConfigurationLines.h"
#include "support/TestEntry.h"

#include <QDirIterator>
#include <QTest>

using namespace dravolin;

// Lines of a configuration that come to nothing beside other lines, or beside what every run does.
class TestConfigurationLines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesLinesOfNoEffect_data();
    void namesLinesOfNoEffect();
    void namesNoneOfTheShippedConfigurations();
};

void TestConfigurationLines::namesLinesOfNoEffect_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("named");
    const auto row = [](const char *name, const char *text, const QStringList &named) {
        QTest::newRow(name) << QByteArray(text) << named;
    };
    const auto fixed = [](const char *tag, int line) {
        return QStringLiteral("(%1) in line %2 is set by the run itself").arg(QLatin1String(tag)).arg(line);
    };
    const auto decided = [](const char *tag, int line, int by) {
        return QStringLiteral("(%1) in line %2 is decided by line %3")
            .arg(QLatin1String(tag))
            .arg(line)
            .arg(by);
    };
    row("none", "# 0010,0030\n\n0010,0030\tDate\n0010,0040\tSex\tM\n", {});
    row("what is set anyway", "0008,0050\ta\n0010,0010\tb\tx\n0010,0020\n0020,000d\tc\n0032,4000\td\t\"\"\n",
        {fixed("0008,0050", 1), fixed("0010,0010", 2), fixed("0010,0020", 3), fixed("0020,000d", 4),
         fixed("0032,4000", 5)});
    row("a value by another spelling", "+010,0010\ta\tx\n0020,000D\tb\t1.2\n",
        {fixed("0010,0010", 1), fixed("0020,000d", 2)});
    row("copies of what is set anyway", "+010,0010\ta\n0020,000D\tb\n", {});
    row("two values", "0010,0030\ta\t1\n0010,0030\tb\t2\n", {decided("0010,0030", 1, 2)});
    row("three values", "0010,0030\ta\t1\n0010,0030\tb\t2\n0010,0030\tc\t\"\"\n",
        {decided("0010,0030", 1, 3), decided("0010,0030", 2, 3)});
    row("a value, and none behind it", "0010,0030\ta\t1\n0010,0030\tb\n", {decided("0010,0030", 2, 1)});
    row("a value, and none before it", "0010,0030\ta\n0010,0030\tb\t1\n", {decided("0010,0030", 1, 2)});
    row("a value, and dots behind it", "0010,0030\ta\t1\n0010,0030\tb\t.\n", {decided("0010,0030", 1, 2)});
    row("erased twice", "0010,0030\ta\n0010,0040\tb\n0010,0030\tc\n", {decided("0010,0030", 3, 1)});
    row("copies erased, then the value", "0010,0030\ta\t1\n+010,0030\tb\n", {});
    row("copies set, then the value", "0010,0030\ta\t1\n+010,0030\tb\t2\n", {decided("0010,0030", 2, 1)});
    row("erased by two spellings", "0008,103e\ta\n0008,103E\tb\n", {decided("0008,103e", 2, 1)});
    row("capital letters set, small ones erase", "0008,103E\ta\tx\n0008,103e\tb\n",
        {decided("0008,103e", 1, 2)});
    row("capital letters erase, small ones set", "0008,103e\ta\tx\n0008,103E\tb\n", {});
    row("three spellings", "+008,103e\ta\n0008,103E\tb\ty\n0008,103e\tc\n",
        {decided("0008,103e", 1, 3), decided("0008,103e", 2, 3)});
    row("what is no attribute", "10,10\ta\n10,10\tb\n0010,00g0\n0010,00g0\n", {});
    row("lines that end with CR LF", "# a\r\n\r\n0010,0010\tx\r\n0010,0040\ty\r\n0010,0040\tz\r\n",
        {fixed("0010,0010", 3), decided("0010,0040", 5, 4)});
    row("blanks around a tag", "  0010,0030\ta\n0010,0030 \tb\n", {decided("0010,0030", 2, 1)});
}

void TestConfigurationLines::namesLinesOfNoEffect()
{
    QFETCH(QByteArray, text);
    QTEST(linesOfNoEffect(QString::fromUtf8(text)), "named");
}

void TestConfigurationLines::namesNoneOfTheShippedConfigurations()
{
    int count = 0;
    QDirIterator files(QStringLiteral(DRAVOLIN_RESOURCES),
                       {QStringLiteral("*AnonymizationConfiguration*.txt")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QCOMPARE(linesOfNoEffect(readText(files.next()).value()), QStringList());
        ++count;
    }
    QCOMPARE(count, 7);
}

DRAVOLIN_TEST(TestConfigurationLines)
#include "tst_configurationlines.moc"
