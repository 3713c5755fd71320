#include "app/TestApp.h"
#include "base/Files.h"
#include "run/jobs/ScriptJob.h"
#include "support/TestEntry.h"
#include "ui_MainWindow.h"

#include <QTest>

using namespace dravolin;
using test::TestApp;

namespace {

const QString noTable = QStringLiteral("Don't use a look-up table");

QStringList items(const QComboBox &popup)
{
    QStringList texts;
    for (int i = 0; i < popup.count(); ++i)
        texts.append(popup.itemText(i));
    return texts;
}

} // namespace

// Look-up tables as the user of the window meets them.
class TestLutWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void withoutTablesThePopUpSaysSo();
    void tablesAreOfferedBehindTheChoiceOfNone();
    void keepsThePopUpDisabledUntilARunEnds();
    void everyRebuildSelectsNoTable();
    void theTableWithoutANameIsOfferedAndIsNone();
    void aTableThatHasVanishedIsRefused();
    void aConstructedTableIsOfferedWhenTheRunEnds();
    void theProgressBarShowsWhilePropagating();
    void operationsForwardToTheCore();

private:
    void saveTable(const QString &name, const QString &rows = {}) const;
    void configure() const
    {
        QVERIFY(writeText(m_app->configurationPath(), QStringLiteral("0010,1000\tOther IDs\t<LUT_Site>")));
    }
    // Starts the application with a valid root.
    void start() const
    {
        m_app->start();
        m_app->controls->uidRootTextField->setText(test::validRoot);
    }
    [[nodiscard]] QComboBox &popup() const { return *m_app->controls->selectLUTpopupButton; }
    QTemporaryDir m_home;
    MainThreadGate m_gate; // for looking at the window in the middle of a job
    std::unique_ptr<TestApp> m_app;
};

void TestLutWindow::initTestCase()
{
    test::useHome(m_home.path());
}

void TestLutWindow::init()
{
    m_app = std::make_unique<TestApp>();
}

void TestLutWindow::cleanup()
{
    m_app.reset();
}

void TestLutWindow::saveTable(const QString &name, const QString &rows) const
{
    m_app->run.writeFile(QStringLiteral("home/Desktop/AnonymizationLUT_%1.txt").arg(name),
                         QStringLiteral("<missing>\tX\n") + rows);
}

void TestLutWindow::withoutTablesThePopUpSaysSo()
{
    m_app->start();
    QCOMPARE(items(popup()), QStringList(QStringLiteral("No look-up table files found")));
    QVERIFY(!popup().isEnabled());
}

void TestLutWindow::tablesAreOfferedBehindTheChoiceOfNone()
{
    saveTable(QStringLiteral("Site"));
    saveTable(QStringLiteral("PatientID"));
    saveTable(QStringLiteral("Example"));
    m_app->start();
    QCOMPARE(items(popup()), QStringList({noTable, QStringLiteral("PatientID"), QStringLiteral("Site")}));
    QCOMPARE(popup().currentIndex(), 0);
    QVERIFY(popup().isEnabled());
}

void TestLutWindow::keepsThePopUpDisabledUntilARunEnds()
{
    start();
    saveTable(QStringLiteral("Site"));
    m_app->controller->getLUTpathsAndPopulateButton();
    QCOMPARE(items(popup()), QStringList({noTable, QStringLiteral("Site")}));
    QVERIFY(!popup().isEnabled());
    m_app->controller->handleDroppedPaths({m_app->run.makeFolder(QStringLiteral("in"))});
    QVERIFY(m_app->waitForRuns());
    QVERIFY(popup().isEnabled());
    removeFile(m_app->run.path(QStringLiteral("home/Desktop/AnonymizationLUT_Site.txt")));
    m_app->controller->getLUTpathsAndPopulateButton();
    QVERIFY(!popup().isEnabled());
}

void TestLutWindow::everyRebuildSelectsNoTable()
{
    saveTable(QStringLiteral("Site"));
    m_app->start();
    popup().setCurrentIndex(1);
    m_app->controller->getLUTpathsAndPopulateButton();
    QCOMPARE(popup().currentIndex(), 0);
    QCOMPARE(popup().currentText(), noTable);
}

void TestLutWindow::theTableWithoutANameIsOfferedAndIsNone()
{
    saveTable(QString());
    configure();
    start();
    QCOMPARE(items(popup()), QStringList({noTable, QString()}));
    popup().setCurrentIndex(1);
    m_app->controller->handleDroppedPaths({m_app->run.makeFolder(QStringLiteral("in"))});
    QVERIFY(m_app->waitForRuns());
    QCOMPARE(m_app->status(), QStringLiteral("\nDone!"));
    QVERIFY(m_app->presenter.sheets.isEmpty());
}

void TestLutWindow::aTableThatHasVanishedIsRefused()
{
    saveTable(QStringLiteral("Site"));
    configure();
    start();
    popup().setCurrentIndex(1);
    removeFile(m_app->run.path(QStringLiteral("home/Desktop/AnonymizationLUT_Site.txt")));
    m_app->controller->handleDroppedPaths({m_app->run.makeFolder(QStringLiteral("in"))});
    QVERIFY(m_app->waitForRuns());
    QCOMPARE(m_app->presenter.sheets.size(), 1);
    const AlertSheet &sheet = m_app->presenter.sheets.first();
    QCOMPARE(sheet.message, QStringLiteral("LUT file found, but not successfully parsed."));
    QCOMPARE(sheet.informativeText, QStringLiteral("\nSelected LUT: Site\n\n\n"));
    QCOMPARE(m_app->status(),
             QStringLiteral("Done...\nEncountered 1 error.\nSee messages logged to console."));
    QVERIFY(m_app->run.jobs.jobs.isEmpty());
    sheet.completion(AlertSheet::firstButton);
    QVERIFY(m_app->controller->window().isVisible());
    sheet.completion(AlertSheet::secondButton);
    QVERIFY(!m_app->controller->window().isVisible());
}

void TestLutWindow::aConstructedTableIsOfferedWhenTheRunEnds()
{
    configure();
    start();
    QString during;
    m_app->run.jobs.answer = [&](const Job &job) {
        (void)m_gate.run([&] { during = m_app->status(); });
        return writeText(joinPath(job.folder, outputFileName), QStringLiteral("b\nA\n"))
                   ? JobResult{JobOutcome::Ran, {}}
                   : JobResult{};
    };
    QTest::mouseClick(m_app->controls->prepopulateLUTcheckbox, Qt::LeftButton, {}, {8, 8});
    QVERIFY(m_app->controls->prepopulateLUTcheckbox->isChecked());
    m_app->controller->handleDroppedPaths({m_app->run.makeFolder(QStringLiteral("in"))});
    QVERIFY(m_app->waitForRuns());
    QCOMPARE(during, QStringLiteral("\nConstructing LUT for tag : (0010,1000)..."));
    QCOMPARE(m_app->status(), QStringLiteral("\nDone constructing LUT. File placed on Desktop."));
    QCOMPARE(items(popup()), QStringList({noTable, QStringLiteral("Site")}));
    QVERIFY(popup().isEnabled());
    QCOMPARE(readText(m_app->run.path(QStringLiteral("home/Desktop/AnonymizationLUT_Site.txt"))),
             lutText(QStringLiteral("0010,1000"), {QStringLiteral("A"), QStringLiteral("b")}));
}

void TestLutWindow::theProgressBarShowsWhilePropagating()
{
    saveTable(QStringLiteral("Site"), QStringLiteral("A\t<skip>\n"));
    configure();
    start();
    QStringList seen;
    m_app->run.jobs.answer = [&](const Job &job) {
        (void)m_gate.run([&] {
            const QProgressBar &bar = *m_app->controls->progressBar;
            seen.append(bar.isVisible() ? QStringLiteral("%1 %2").arg(bar.value()).arg(m_app->status())
                                        : QStringLiteral("hidden"));
        });
        return JobResult{JobOutcome::Ran,
                         job.pipeOutput ? QByteArray("(0010,1000) LO [A]  # 1") : QByteArray()};
    };
    popup().setCurrentIndex(1);
    const QString one = m_app->run.writeFile(QStringLiteral("in/a"));
    const QString two = m_app->run.writeFile(QStringLiteral("in/b"));
    const QString three = m_app->run.writeFile(QStringLiteral("in/c"));
    m_app->controller->handleDroppedPaths({one, two, three});
    QVERIFY(m_app->waitForRuns());
    const QString status = QStringLiteral(" \nWorking...");
    QCOMPARE(seen, QStringList({QStringLiteral("hidden"), QStringLiteral("33") + status,
                                QStringLiteral("67") + status, QStringLiteral("100") + status}));
    QVERIFY(!m_app->controls->progressBar->isVisible());
    QCOMPARE(m_app->status(),
             QStringLiteral("Done!\nLUT tag propagated to 0 files.\nSkipped 3 DICOM files."));
}

void TestLutWindow::operationsForwardToTheCore()
{
    start();
    MainController &controller = *m_app->controller;
    SharedRunState &state = controller.state();
    saveTable(QStringLiteral("Site"), QStringLiteral("A\t<skip>\n"));
    QVERIFY(controller.loadLUTdictAtPath(
        m_app->run.path(QStringLiteral("home/Desktop/AnonymizationLUT_Site.txt"))));
    QVERIFY(!controller.loadLUTdictAtPath(QString()));
    QCOMPARE(state.get(&RunState::selectedLUTdict).size(), 2);

    m_app->run.jobs.answer = [](const Job &) {
        return JobResult{JobOutcome::Ran, "(0010,1000) LO [A]   # 2, 1 x\n"};
    };
    const QString folder = m_app->run.makeFolder(QStringLiteral("in"));
    const QString file = m_app->run.writeFile(QStringLiteral("in/a"));
    RunOptions options;
    options.theLUTtag = QStringLiteral("0010,1000");
    QCOMPARE(controller.propagateLUTtoDICOMFilesInFolderWithOptions({file}, folder, options), 0U);
    QCOMPARE(state.get(&RunState::numLUTskippedFiles), 1U);
    QCOMPARE(controller.recursivelyPropagateLUTtoDICOMFilesinFolderTreeWithOptions(folder, options), 0U);
    QCOMPARE(state.get(&RunState::numLUTskippedFiles), 2U);
    QCOMPARE(state.get(&RunState::folderCount), 1U);

    state.set(&RunState::LUTconstructionTag, QStringLiteral("0010,1000"));
    QVERIFY(writeText(joinPath(folder, outputFileName), QStringLiteral("A\n")));
    QCOMPARE(controller.prepopulateLUTforDICOMFilesOrRecursivelyForFolderWithOptions({}, folder, options),
             0U);
    QCOMPARE(
        controller.prepopulateLUTforDICOMFilesOrRecursivelyForFolderWithOptions({file}, QString(), options),
        0U);
    QCOMPARE(state.get(&RunState::LUTtagSet), QSet<QString>{QStringLiteral("A")});
    QCOMPARE(m_app->run.jobs.jobs.size(), 4);
}

DRAVOLIN_TEST(TestLutWindow)
#include "tst_lutwindow.moc"
