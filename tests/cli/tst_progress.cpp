#include "cli/BatchTexts.h"
#include "cli/Progress.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin;
using namespace dravolin::cli;

class TestProgress : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsFilesRateAndTimeLeft_data();
    void tellsFilesRateAndTimeLeft();
    void tellsCasesOfARun();
    void showsABarAndTakesItAway();
    void saysNothingAtFirstInLines();
    void saysNothingWhenItIsNotWanted();
};

void TestProgress::tellsFilesRateAndTimeLeft_data()
{
    QTest::addColumn<qsizetype>("files");
    QTest::addColumn<quint64>("bytes");
    QTest::addColumn<qint64>("milliseconds");
    QTest::addColumn<QString>("expected");
    QTest::newRow("a quarter") << qsizetype{10} << quint64{20'000'000} << qint64{5'000}
                               << QStringLiteral("10 of 40 files, 4.0 MB/s, 15 s left");
    QTest::newRow("all") << qsizetype{40} << quint64{80'000'000} << qint64{20'000}
                         << QStringLiteral("40 of 40 files, 4.0 MB/s, 0 s left");
    QTest::newRow("at once") << qsizetype{0} << quint64{0} << qint64{0}
                             << QStringLiteral("0 of 40 files, 0.0 MB/s, 0 s left");
}

void TestProgress::tellsFilesRateAndTimeLeft()
{
    QFETCH(const qsizetype, files);
    QFETCH(const quint64, bytes);
    QFETCH(const qint64, milliseconds);
    QTEST(progressText({.searching = false, .files = files, .allFiles = 40, .bytes = bytes}, milliseconds),
          "expected");
}

void TestProgress::tellsCasesOfARun()
{
    BatchProgress progress = {.files = 10, .allFiles = 40, .bytes = 20'000'000, .cases = 1, .allCases = 3};
    QCOMPARE(progressText(progress, 5'000),
             QStringLiteral("10 of 40 files, 1 of 3 cases, 4.0 MB/s, 15 s left"));
    progress.checked = 7;
    progress.toCheck = 20;
    QCOMPARE(progressText(progress, 5'000), QStringLiteral("checking case 2 of 3: 7 of 20 files"));
}

void TestProgress::showsABarAndTakesItAway()
{
    QStringList written;
    Progress progress(Progress::Form::Bar, [&written](const QString &text) { written.append(text); });
    progress.show({.searching = true, .files = 20, .allFiles = 40, .bytes = 0});
    progress.finish();
    QCOMPARE(written.size(), 2);
    QVERIFY(written[0].startsWith(QStringLiteral("\r[###############...............] 20 of 40 files")));
    QCOMPARE(written[1], QStringLiteral("\r\x1B[K"));
}

void TestProgress::saysNothingAtFirstInLines()
{
    QStringList written;
    Progress progress(Progress::Form::Lines, [&written](const QString &text) { written.append(text); });
    progress.show({.searching = true, .files = 20, .allFiles = 40, .bytes = 0});
    progress.finish();
    QCOMPARE(written, QStringList());
}

void TestProgress::saysNothingWhenItIsNotWanted()
{
    QStringList written;
    Progress progress(Progress::Form::None, [&written](const QString &text) { written.append(text); });
    progress.show({.searching = true, .files = 20, .allFiles = 40, .bytes = 0});
    progress.finish();
    QCOMPARE(written, QStringList());
}

DRAVOLIN_TEST(TestProgress)
#include "tst_progress.moc"
