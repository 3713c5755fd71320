#include "app/TestApp.h"
#include "app/WindowSteps.h"
#include "support/TestEntry.h"
#include "ui_MainWindow.h"

#include <QElapsedTimer>
#include <QTest>

using namespace dravolin;
using namespace dravolin::test;

namespace {

QString described(const WindowStep &step)
{
    using Kind = WindowStep::Kind;
    const auto able = [&step](const char *name) {
        return (step.on ? QStringLiteral("enable ") : QStringLiteral("disable ")) + QString::fromUtf8(name);
    };
    switch (step.kind) {
    case Kind::Status: return QStringLiteral("setStatus: ") + step.text;
    case Kind::StatusToolTip: return QStringLiteral("setStatusToolTip: ") + step.text;
    case Kind::Spinner: return step.on ? QStringLiteral("start spinning") : QStringLiteral("stop spinning");
    case Kind::Separator: return QStringLiteral("show separator");
    case Kind::Progress: return QStringLiteral("setProgress: %1").arg(step.percent);
    case Kind::ProgressVisible:
        return step.on ? QStringLiteral("show progress") : QStringLiteral("hide progress");
    case Kind::OverwriteSource: return able("overwriteSource");
    case Kind::SelectLUT: return able("selectLUT");
    case Kind::Prepopulate: return able("prepopulate");
    case Kind::SelectConfig: return able("selectConfig");
    case Kind::GenerateSOP: return able("generateSOP");
    case Kind::OnlyGenerateSOP: return able("onlyGenerateSOP");
    case Kind::ScheduleLog: return QStringLiteral("log window: ") + step.text;
    case Kind::Pause: return QStringLiteral("pause");
    case Kind::Grow: return QStringLiteral("grow");
    }
    Q_UNREACHABLE();
}

QStringList described(const WindowSteps &steps)
{
    QStringList lines;
    for (const WindowStep &step : steps)
        lines.append(described(step));
    return lines;
}

// What the window does when a run begins, goes on and ends, in order; and that it does it.
class TestWindowSteps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { useHome(m_home.path()); }
    void beginsInOrder_data();
    void beginsInOrder();
    void tellsTheProgress_data();
    void tellsTheProgress();
    void endsInOrder_data();
    void endsInOrder();
    void waitsAsLongAsItShould();
    void theLogWindowComesAfterItsDelay();
    void theSummaryComesAfterItsPause();
    void startsNoRunInAWindowThatWasClosedWhileItGrew();
    void theTablePopUpComesBackOnlyWithTables();

private:
    QTemporaryDir m_home;
};

void TestWindowSteps::beginsInOrder_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("status");
    const QString tag = QStringLiteral("0010,0020");
    QTest::newRow("anonymization") << static_cast<int>(RunKind::Anonymize) << tag
                                   << QStringLiteral("\nWorking...");
    QTest::newRow("only generate") << static_cast<int>(RunKind::OnlyGenerate) << tag
                                   << QStringLiteral("\nWorking...");
    const int construct = static_cast<int>(RunKind::Construct);
    QTest::newRow("construction") << construct << tag
                                  << QStringLiteral("\nConstructing LUT for tag : (0010,0020)...");
    QTest::newRow("construction without a tag")
        << construct << QString() << QStringLiteral("\nConstructing LUT for tag : ()...");
    QTest::newRow("construction, a tag that looks like a place marker")
        << construct << QStringLiteral("%1%2") << QStringLiteral("\nConstructing LUT for tag : (%1%2)...");
}

void TestWindowSteps::beginsInOrder()
{
    QFETCH(int, kind);
    QFETCH(QString, tag);
    QFETCH(QString, status);
    QCOMPARE(described(beginSteps({.kind = static_cast<RunKind>(kind), .constructionTag = tag})),
             QStringList({QStringLiteral("setStatus: ") + status, QStringLiteral("start spinning"),
                          QStringLiteral("disable overwriteSource"), QStringLiteral("disable selectLUT"),
                          QStringLiteral("disable prepopulate"), QStringLiteral("disable selectConfig"),
                          QStringLiteral("disable generateSOP"), QStringLiteral("disable onlyGenerateSOP"),
                          QStringLiteral("setStatusToolTip: Processing may take a *very* long time...\n\n"
                                         "The task is running on a background thread\n"
                                         "so you can continue to use your computer\n(stop watching this)."),
                          QStringLiteral("show separator"), QStringLiteral("grow")}));
    QCOMPARE(runningHeight, 696);
}

void TestWindowSteps::tellsTheProgress_data()
{
    using Event = Progress::Event;
    QTest::addColumn<int>("event");
    QTest::addColumn<quint64>("done");
    QTest::addColumn<quint64>("all");
    QTest::addColumn<QStringList>("steps");
    const auto row = [](const char *name, Event event, quint64 done, quint64 all, const QStringList &steps) {
        QTest::newRow(name) << static_cast<int>(event) << done << all << steps;
    };
    row("no folders", Event::FoldersAnonymized, 0, 0,
        {QStringLiteral("setStatus: \nWorking... 0/0 folders")});
    row("many folders", Event::FoldersAnonymized, 1234567, 98765432,
        {QStringLiteral("setStatus: \nWorking... 1234567/98765432 folders")});
    row("propagating", Event::FoldersPropagated, 1, 4,
        {QStringLiteral("setStatus: \nPropagating LUT tag... 1/4 folders")});
    row("an eighth is rounded up", Event::FilesPropagated, 1, 8, {QStringLiteral("setProgress: 13")});
    row("a third", Event::FilesPropagated, 1, 3, {QStringLiteral("setProgress: 33")});
    row("all files", Event::FilesPropagated, 8, 8, {QStringLiteral("setProgress: 100")});
    row("propagation begins", Event::PropagationBegins, 0, 0,
        {QStringLiteral("stop spinning"), QStringLiteral("setProgress: 0"), QStringLiteral("show progress")});
    row("propagation ends", Event::PropagationEnds, 0, 0, {QStringLiteral("hide progress")});
}

void TestWindowSteps::tellsTheProgress()
{
    QFETCH(int, event);
    QFETCH(quint64, done);
    QFETCH(quint64, all);
    QTEST(described(progressSteps({static_cast<Progress::Event>(event), done, all})), "steps");
}

void TestWindowSteps::endsInOrder_data()
{
    QTest::addColumn<QString>("log"); // null: no log window
    QTest::addColumn<bool>("tables");
    QTest::newRow("quietly, without tables") << QString() << false;
    QTest::newRow("quietly, with tables") << QString() << true;
    QTest::newRow("with a log") << QStringLiteral("E: bad\n\n") << true;
}

void TestWindowSteps::endsInOrder()
{
    QFETCH(QString, log);
    QFETCH(bool, tables);
    RunJudgement judgement;
    judgement.summary = QStringLiteral("\nDone!");
    judgement.logText = log;
    judgement.wantsLogWindow = !log.isNull();
    const QStringList end = {QStringLiteral("pause"),
                             QStringLiteral("setStatus: \nDone!"),
                             QStringLiteral("enable overwriteSource"),
                             tables ? QStringLiteral("enable selectLUT")
                                    : QStringLiteral("disable selectLUT"),
                             QStringLiteral("enable prepopulate"),
                             QStringLiteral("enable selectConfig"),
                             QStringLiteral("enable generateSOP"),
                             QStringLiteral("enable onlyGenerateSOP"),
                             QStringLiteral("stop spinning"),
                             QStringLiteral("setStatusToolTip: ")};
    const QStringList logCall =
        log.isNull() ? QStringList() : QStringList(QStringLiteral("log window: ") + log);
    QCOMPARE(described(endSteps(judgement, tables)), logCall + end);
}

void TestWindowSteps::waitsAsLongAsItShould()
{
    const Delays delays;
    QCOMPARE(delays.beforeSummary, 500);
    QCOMPARE(delays.beforeLogWindow, 510); // just behind the summary
    QCOMPARE(delays.windowGrowth, 250);
    QCOMPARE(delays.beforeConfigurationScan, 250);
}

// A window whose run ends with an error line.
class EndingApp : public TestApp
{
public:
    void endARun()
    {
        start();
        end();
    }
    // Any thread.
    void end() const
    {
        RunJudgement judgement;
        judgement.summary = QStringLiteral("\nDone, with 1 error.");
        judgement.logText = QStringLiteral("E: bad\n\n");
        judgement.wantsLogWindow = true;
        controller->host().runEnds(judgement);
    }
};

void TestWindowSteps::theLogWindowComesAfterItsDelay()
{
    EndingApp app;
    app.delays.beforeLogWindow = 100;
    app.endARun();
    QCOMPARE(app.status(), QStringLiteral("\nDone, with 1 error."));
    QCoreApplication::processEvents();
    QVERIFY(!app.controller->logWinController()); // it comes behind the summary
    QTRY_VERIFY(app.controller->logWinController());
}

void TestWindowSteps::theSummaryComesAfterItsPause()
{
    EndingApp app;
    app.delays.beforeSummary = 400;
    app.start();
    const std::unique_ptr<QThread> run(QThread::create([&app] { app.end(); }));
    QElapsedTimer clock;
    clock.start();
    run->start();
    QTRY_VERIFY(run->isFinished());
    QVERIFY(clock.elapsed() >= 400);
    QCOMPARE(app.status(), QStringLiteral("\nDone, with 1 error."));
}

void TestWindowSteps::startsNoRunInAWindowThatWasClosedWhileItGrew()
{
    TestApp app;
    app.delays.windowGrowth = 100;
    app.start();
    app.controls->uidRootTextField->setText(validRoot);
    app.drop({app.run.makeFolder(QStringLiteral("data"))});
    QCOMPARE(app.status(), QStringLiteral("\nWorking..."));
    QVERIFY(!app.controller->runIsUnderWay()); // it grows first
    app.controller->window().close();
    // the animation goes on; when it has ended the run would have begun
    QTRY_COMPARE(app.controller->window().height(), 696);
    QCoreApplication::processEvents();
    QVERIFY(!app.controller->runIsUnderWay());
    QVERIFY(app.run.jobs.jobs.isEmpty());
}

void TestWindowSteps::theTablePopUpComesBackOnlyWithTables()
{
    TestApp app;
    app.start();
    RunHost &host = app.controller->host();
    host.runEnds({});
    QVERIFY(!app.controls->selectLUTpopupButton->isEnabled());
    host.tablesFound({{QStringLiteral("Site"), QStringLiteral("/t/site")}});
    QVERIFY(!app.controls->selectLUTpopupButton->isEnabled()); // not before the run has ended
    host.runEnds({});
    QVERIFY(app.controls->selectLUTpopupButton->isEnabled());
}

} // namespace

DRAVOLIN_TEST(TestWindowSteps)
#include "tst_windowsteps.moc"
