#include "processing/Edits.h"
#include "processing/FolderAnonymization.h"
#include "processing/LutConstruction.h"
#include "run/jobs/Script.h"
#include "support/Pseudorandom.h"
#include "support/TestEntry.h"

#include <QProcess>
#include <QTest>

using namespace dravolin;
using test::Pseudorandom;

namespace {

constexpr int textsOfASeed = 200;

// Nothing that a shell looks for between double quotes.
const QStringList plainPieces = {
    QStringLiteral("a"),      QStringLiteral("B"),         QStringLiteral(" "),  QStringLiteral("\t"),
    QStringLiteral("\n"),     QStringLiteral("'"),         QStringLiteral("*"),  QStringLiteral("?"),
    QStringLiteral("["),      QStringLiteral("|"),         QStringLiteral(">"),  QStringLiteral("&"),
    QStringLiteral(";"),      QStringLiteral("("),         QStringLiteral("#"),  QStringLiteral("~"),
    QStringLiteral("!"),      QStringLiteral("^"),         QStringLiteral("%s"), QStringLiteral("-e"),
    QStringLiteral("\u00E9"), QStringLiteral("\U0001F600")};

// The words that the system's shell makes of `text`.
QStringList shellWords(const QString &text)
{
    QProcess shell;
    shell.start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), QStringLiteral("printf '%s\\0'") + text});
    shell.waitForFinished(-1);
    QStringList words = QString::fromUtf8(shell.readAllStandardOutput()).split(QChar(u'\0'));
    words.removeLast();
    return words;
}

QStringList plainNames(quint32 seed)
{
    Pseudorandom random(seed, plainPieces);
    QStringList names;
    for (int i = 0; i < textsOfASeed; ++i)
        names.append(random.text(10));
    return names;
}

} // namespace

// What holds for every command line and every order of values.
class TestCommandProperties : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aShellSeesTheArgumentsThatAProcessGets_data() { test::addSeeds(); }
    void aShellSeesTheArgumentsThatAProcessGets();
    void aShellSeesEachNameAsOneWord_data() { test::addSeeds(); }
    void aShellSeesEachNameAsOneWord();
    void aSplitListHasEachNameOnceInOrder_data() { test::addSeeds(); }
    void aSplitListHasEachNameOnceInOrder();
    void sortingIsTheSameForEverySet_data() { test::addSeeds(); }
    void sortingIsTheSameForEverySet();
};

void TestCommandProperties::aShellSeesTheArgumentsThatAProcessGets()
{
    QFETCH(const quint32, seed);
    QList<Edit> edits = {{Edit::Kind::NewSopInstanceUid, {}, {}}};
    for (const QString &value : plainNames(seed)) {
        edits.append({Edit::Kind::Insert, QStringLiteral("0010,0010"), value});
        edits.append({Edit::Kind::Modify, QStringLiteral("0010,1000"), value});
        edits.append({Edit::Kind::EraseEverywhere, QStringLiteral("0010,0030"), {}});
    }
    QCOMPARE(shellWords(shellText(edits)), argumentList(edits));
}

void TestCommandProperties::aShellSeesEachNameAsOneWord()
{
    QFETCH(const quint32, seed);
    const QStringList names = plainNames(seed);
    QStringList paths;
    for (const QString &name : names)
        paths.append(QStringLiteral("/some folder/") + name);
    QCOMPARE(shellWords(fileArguments(paths).join(QString())), names);
}

void TestCommandProperties::aSplitListHasEachNameOnceInOrder()
{
    QFETCH(const quint32, seed);
    Pseudorandom random(seed, {QStringLiteral("x"), QStringLiteral("yy"), QStringLiteral(" ")});
    const Redirections ends = {.only = QStringLiteral("\n"),
                               .more = QStringLiteral("\n"),
                               .last = QStringLiteral("\n"),
                               .counted = 9};
    for (int i = 0; i < textsOfASeed; ++i) {
        QStringList arguments;
        for (qsizetype left = random.number(60); left > 0; --left)
            arguments.append(u' ' + quoted(random.text(9)));
        QStringList lines =
            commandLines(QStringLiteral("tool"), arguments, ends, 40 + random.number(400)).split(u'\n');
        QCOMPARE(lines.takeLast(), QString());
        QString seen;
        for (const QString &line : lines) {
            QVERIFY(line.startsWith(QStringLiteral("tool")));
            seen += line.sliced(4);
        }
        QCOMPARE(seen, arguments.join(QString()));
    }
}

void TestCommandProperties::sortingIsTheSameForEverySet()
{
    QFETCH(const quint32, seed);
    const QStringList names = plainNames(seed);
    const QSet<QString> values(names.cbegin(), names.cend());
    const QSet<QString> backwards(names.crbegin(), names.crend());
    for (const QLocale &locale : {QLocale::c(), QLocale(QLocale::German), QLocale(QLocale::Swedish)}) {
        const QStringList sorted = sortedLutValues(values, locale);
        QCOMPARE(sortedLutValues(backwards, locale), sorted);
        QCOMPARE(sorted.size(), values.size());
        QCOMPARE(QSet<QString>(sorted.cbegin(), sorted.cend()), values);
    }
    const QStringList folded = sortedLutValues(values, QLocale::c());
    for (qsizetype i = 1; i < folded.size(); ++i)
        QVERIFY(folded.at(i - 1).toCaseFolded() <= folded.at(i).toCaseFolded());
}

DRAVOLIN_TEST(TestCommandProperties)
#include "tst_commandproperties.moc"
