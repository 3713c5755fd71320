#include "processing/FolderAnonymization.h"
#include "support/TestEntry.h"
#include "support/TestRun.h"

#include <QTest>

using namespace dravolin;

namespace {

constexpr qsizetype suffixLength = 21; // of " >>.noxTemp.out 2>>&1"
const QString only = QStringLiteral(" >.noxTemp.out 2>&1");
const QString more = QStringLiteral(" >>.noxTemp.out 2>>&1\n");
const QString last = QStringLiteral(" >>.noxTemp.out 2>>&1");

// `count` arguments of five characters each: ` "f0"`, ` "f1"` and so on.
QStringList arguments(int count)
{
    QStringList paths;
    for (int i = 0; i < count; ++i)
        paths.append(QStringLiteral("/data/f%1").arg(i));
    return fileArguments(paths);
}

QString prefixOf(qsizetype length)
{
    return QString(length, u'p');
}

// A prefix with which `arguments` and the suffix together are `total` characters long.
QString prefixForTotal(qsizetype total, const QStringList &arguments)
{
    return prefixOf(total - suffixLength - arguments.join(QString()).size());
}

} // namespace

class TestScript : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void headerIsTwoLinesAndNoBlankOne();
    void quotesWithoutEscaping_data();
    void quotesWithoutEscaping();
    void namesFilesByTheirLastComponent_data();
    void namesFilesByTheirLastComponent();
    void keepsTheRedirectionThatNoShellAccepts();
    void oneCharacterDecidesBetweenOneLineAndSplitting_data();
    void oneCharacterDecidesBetweenOneLineAndSplitting();
    void splitsAtTheProgramsOwnLimit();
    void sharesFilesAmongLines_data();
    void sharesFilesAmongLines();
    void lengthsAreCodeUnits_data();
    void lengthsAreCodeUnits();
    void longPrefixMakesLongLines();
};

void TestScript::headerIsTwoLinesAndNoBlankOne()
{
    QCOMPARE(scriptText(QStringLiteral("\"/x/dcmodify\" * >.noxTemp.out 2>&1")),
             QStringLiteral(
                 "#!/bin/sh\n#This is a temporary file created by Dravolin. If you are reading this, the "
                 "file is garbage that can safely be deleted.\n"
                 "\"/x/dcmodify\" * >.noxTemp.out 2>&1"));
}

void TestScript::quotesWithoutEscaping_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("expected");
    QTest::newRow("plain") << QStringLiteral("/x/dcmodify") << QStringLiteral("\"/x/dcmodify\"");
    QTest::newRow("shell characters")
        << QStringLiteral("/a\"b$c`d\\e\nf") << QStringLiteral("\"/a\"b$c`d\\e\nf\"");
    QTest::newRow("empty") << QString() << QStringLiteral("\"\"");
}

void TestScript::quotesWithoutEscaping()
{
    QFETCH(const QString, path);
    QFETCH(const QString, expected);
    QCOMPARE(quoted(path), expected);
}

void TestScript::namesFilesByTheirLastComponent_data()
{
    QTest::addColumn<QStringList>("paths");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("none") << QStringList() << QStringList();
    QTest::newRow("order is kept, folders are dropped")
        << QStringList(
               {QStringLiteral("/data/b.dcm"), QStringLiteral("/other/a.dcm"), QStringLiteral("/data/b.dcm")})
        << QStringList(
               {QStringLiteral(" \"b.dcm\""), QStringLiteral(" \"a.dcm\""), QStringLiteral(" \"b.dcm\"")});
    QTest::newRow("shell characters and blanks")
        << QStringList({QStringLiteral("/data/a \"b\" $c `d` \\e"), QStringLiteral("/data/-nb")})
        << QStringList({QStringLiteral(" \"a \"b\" $c `d` \\e\""), QStringLiteral(" \"-nb\"")});
}

void TestScript::namesFilesByTheirLastComponent()
{
    QFETCH(const QStringList, paths);
    QFETCH(const QStringList, expected);
    QCOMPARE(fileArguments(paths), expected);
}

void TestScript::keepsTheRedirectionThatNoShellAccepts()
{
    QCOMPARE(anonymizationRedirections().only, only);
    QCOMPARE(anonymizationRedirections().more, more);
    QCOMPARE(anonymizationRedirections().last, last);
    QCOMPARE(anonymizationRedirections().counted, suffixLength);
}

void TestScript::oneCharacterDecidesBetweenOneLineAndSplitting_data()
{
    QTest::addColumn<qsizetype>("total");
    QTest::addColumn<bool>("split");
    QTest::newRow("98") << qsizetype{98} << false;
    QTest::newRow("99") << qsizetype{99} << false;
    QTest::newRow("100") << qsizetype{100} << true;
    QTest::newRow("101") << qsizetype{101} << true;
}

void TestScript::oneCharacterDecidesBetweenOneLineAndSplitting()
{
    QFETCH(const qsizetype, total);
    QFETCH(const bool, split);
    const QStringList files = arguments(2);
    const QString prefix = prefixForTotal(total, files);
    const QString oneLine = prefix + files.at(0) + files.at(1) + only;
    const QString twoLines = prefix + files.at(0) + more + prefix + files.at(1) + last;
    QCOMPARE(commandLines(prefix, files, anonymizationRedirections(), 100), split ? twoLines : oneLine);
}

void TestScript::splitsAtTheProgramsOwnLimit()
{
    const qsizetype maximum = test::TestRun().context.max_arg_len;
    QCOMPARE(maximum, 262144);
    const QStringList files = arguments(4);
    const QString below = prefixForTotal(262143, files);
    QCOMPARE(commandLines(below, files, anonymizationRedirections(), maximum),
             below + files.join(QString()) + only);
    const QString at = prefixForTotal(262144, files);
    QCOMPARE(commandLines(at, files, anonymizationRedirections(), maximum),
             at + files.at(0) + files.at(1) + more + at + files.at(2) + files.at(3) + last);
}

void TestScript::sharesFilesAmongLines_data()
{
    QTest::addColumn<int>("files");
    QTest::addColumn<qsizetype>("total");
    QTest::addColumn<QList<int>>("perLine");
    const auto row = [](const char *name, int files, qsizetype total, const QList<int> &perLine) {
        QTest::newRow(name) << files << total << perLine;
    };
    row("10 files in 3 parts", 10, 150, {3, 3, 4});
    row("10 files in 2 parts", 10, 149, {5, 5});
    row("5 files in 2 parts", 5, 100, {2, 3});
    row("9 files in 3 parts", 9, 199, {3, 3, 3});
    row("3 files in 3 parts", 3, 150, {1, 1, 1});
    row("2 files in 3 parts: nothing in the first two", 2, 150, {0, 0, 2});
    row("1 file in 10 parts", 1, 500, {0, 0, 0, 0, 0, 0, 0, 0, 0, 1});
    row("no file in 2 parts", 0, 100, {0, 0});
}

void TestScript::sharesFilesAmongLines()
{
    QFETCH(const int, files);
    QFETCH(const qsizetype, total);
    QFETCH(const QList<int>, perLine);
    const QStringList list = arguments(files);
    const QString prefix = prefixForTotal(total, list);
    QString expected;
    int next = 0;
    for (const int count : perLine) {
        expected += prefix + list.mid(next, count).join(QString()) + more;
        next += count;
    }
    expected.chop(1); // the last line ends without a newline
    QCOMPARE(commandLines(prefix, list, anonymizationRedirections(), 100), expected);
}

void TestScript::lengthsAreCodeUnits_data()
{
    QTest::addColumn<QString>("character");
    QTest::addColumn<qsizetype>("units");
    QTest::newRow("one byte") << QStringLiteral("a") << qsizetype{1};
    QTest::newRow("two bytes of UTF-8, one unit") << QStringLiteral("\u00FC") << qsizetype{1};
    QTest::newRow("three bytes of UTF-8, one unit") << QStringLiteral("\u20AC") << qsizetype{1};
    QTest::newRow("one character, two units") << QStringLiteral("\U0001F600") << qsizetype{2};
}

void TestScript::lengthsAreCodeUnits()
{
    QFETCH(const QString, character);
    QFETCH(const qsizetype, units);
    const QStringList files = fileArguments({QStringLiteral("/data/") + character.repeated(10)});
    QCOMPARE(files.first().size(), 3 + 10 * units);
    const QString below = prefixOf(99 - suffixLength - 3 - 10 * units);
    QCOMPARE(commandLines(below, files, anonymizationRedirections(), 100), below + files.first() + only);
    const QString at = below + u'p';
    QCOMPARE(commandLines(at, files, anonymizationRedirections(), 100),
             at + more + at + files.first() + last);
}

void TestScript::longPrefixMakesLongLines()
{
    const QString prefix = prefixOf(200);
    const QStringList files = arguments(4); // 20 characters; 241 together, 4 parts of 100 / 2
    QString expected;
    for (const QString &file : files)
        expected += prefix + file + more;
    expected.chop(1);
    QCOMPARE(commandLines(prefix, files, anonymizationRedirections(), 100), expected);
}

DRAVOLIN_TEST(TestScript)
#include "tst_script.moc"
