#include "app/Accessibility.h"
#include "app/TestApp.h"
#include "base/Files.h"
#include "support/TestEntry.h"
#include "ui_MainWindow.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QClipboard>
#include <QMenu>
#include <QSettings>
#include <QTest>

using namespace dravolin;
using namespace dravolin::test;

namespace {

using Kind = StatusIcon::Kind;

RunJudgement judgement(const QString &summary, const FileCounts &files)
{
    RunJudgement result;
    result.summary = summary;
    result.files = files;
    return result;
}

bool tellsBusy(QWidget *widget)
{
    return QAccessible::queryAccessibleInterface(widget)->state().busy;
}

} // namespace

// What the window shows before, during and after a run, and what it says about the fields and itself.
class TestWindowStates : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup() { m_app.reset(); }

    void aResultHasItsIconAndItsFacts();
    void aResultCanBeCopied();
    void aNewRunTakesTheResultAway();
    void aRunOverRealFilesCountsThem();
    void theDropAreaIsBusyUntilTheLastRunHasEnded();
    void propagationSaysWhatItsBarMeasures();
    void theLogCanBeShownAgain();
    void theRootsValidityHasAnIcon();
    void theCaseIdIsMarkedWhenItIsToBlame_data();
    void theCaseIdIsMarkedWhenItIsToBlame();
    void theRootsFieldShowsAWholeRoot();
    void theEndIsToldToAUserWhoLooksElsewhere();
    void theEndIsNotToldTwice();
    void anAlertSaysTheSummary();
    void popUpsAreDescribed();
    void aScreenReaderChoosesFromAPopUp();
    void aDisabledPopUpIsNotChosenFrom();
    void windowsAreFrames();

private:
    QTemporaryDir m_home;
    std::unique_ptr<TestApp> m_app;
    const Ui::MainWindow &controls() { return *m_app->controls; }
    RunHost &host() { return m_app->controller->host(); }
};

void TestWindowStates::initTestCase()
{
    useHome(m_home.path());
    installAccessibility();
}

void TestWindowStates::init()
{
    QSettings(QStringLiteral("Dravolin"), QStringLiteral("Dravolin")).clear();
    m_app = std::make_unique<TestApp>();
    m_app->start();
    m_app->controls->uidRootTextField->setText(validRoot);
}

void TestWindowStates::aResultHasItsIconAndItsFacts()
{
    QCOMPARE(controls().resultIcon->kind(), Kind::None);
    QVERIFY(controls().factsLabel->isHidden());
    host().runEnds(judgement(QStringLiteral("\nDone!"), {5, 2, 0, 1}));
    QCOMPARE(m_app->status(), QStringLiteral("\nDone!"));
    QCOMPARE(controls().resultIcon->kind(), Kind::Done);
    QVERIFY(controls().factsLabel->isVisible());
    QCOMPARE(controls().factsLabel->text(), QStringLiteral("5 files changed, 2 unchanged, in 1 folder"));
    QVERIFY(controls().outputTextField->font().bold());

    host().runEnds(judgement(QStringLiteral("\nDone!"), {0, 2, 0, 1}));
    QCOMPARE(controls().resultIcon->kind(), Kind::Attention);
    QCOMPARE(controls().factsLabel->text(), QStringLiteral("No file changed, 2 unchanged, in 1 folder"));
}

void TestWindowStates::aResultCanBeCopied()
{
    host().runEnds(judgement(QStringLiteral("\nDone!"), {5, 2, 0, 1}));
    QLabel *const summary = controls().outputTextField;
    summary->setFocus();
    QTest::keyClick(summary, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(summary, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text().trimmed(), QStringLiteral("Done!"));
}

void TestWindowStates::aNewRunTakesTheResultAway()
{
    host().runEnds(judgement(QStringLiteral("\nDone!"), {5, 2, 0, 1}));
    host().runBegins({}, [] {});
    QCOMPARE(controls().resultIcon->kind(), Kind::None);
    QVERIFY(controls().factsLabel->isHidden());
}

void TestWindowStates::aRunOverRealFilesCountsThem()
{
    m_app->run.writeFile(QStringLiteral("data/a.dcm"));
    m_app->run.writeFile(QStringLiteral("data/b.dcm"));
    m_app->run.writeFile(QStringLiteral("data/.hidden"));
    m_app->run.jobs.answer = [](const Job &job) {
        (void)writeText(joinPath(job.folder, QStringLiteral("a.dcm")), QStringLiteral("anew"));
        return JobResult{.outcome = JobOutcome::Ran};
    };
    m_app->presenter.answers = {};
    m_app->drop({m_app->run.path(QStringLiteral("data"))});
    QTRY_COMPARE(m_app->status(), QStringLiteral("\nDone!"));
    QVERIFY(m_app->waitForRuns());
    QCOMPARE(controls().factsLabel->text(),
             QStringLiteral("1 file changed, 1 unchanged, 1 left out, in 1 folder"));
}

void TestWindowStates::theDropAreaIsBusyUntilTheLastRunHasEnded()
{
    QVDragDropView *const view = controls().dragDropView;
    const QImage idle = view->grab().toImage();
    QVERIFY(!tellsBusy(view));
    host().runBegins({}, [] {});
    QVERIFY(tellsBusy(view));
    QVERIFY(tellsBusy(&m_app->controller->window()));
    QCOMPARE(view->accessibleDescription(),
             QStringLiteral("anonymize. Working. Another drop would run beside this one."));
    QVERIFY(view->grab().toImage() != idle);
    host().runBegins({}, [] {});
    host().runEnds({});
    QVERIFY(tellsBusy(view));
    host().runEnds({});
    QVERIFY(!tellsBusy(view));
    QCOMPARE(view->accessibleDescription(), QStringLiteral("anonymize"));
}

void TestWindowStates::propagationSaysWhatItsBarMeasures()
{
    host().progress({.event = Progress::Event::FilesPropagated, .done = 1, .all = 4});
    QCOMPARE(controls().progressBar->text(), QStringLiteral("this folder: 25%"));
}

void TestWindowStates::theLogCanBeShownAgain()
{
    QVERIFY(controls().showLogButton->isHidden());
    m_app->controller->showLogWindowWithLogText(QStringLiteral("E: bad"));
    QVERIFY(controls().showLogButton->isVisible());
    QWidget *const log = m_app->controller->logWinController()->window();
    log->close();
    QVERIFY(!log->isVisible());
    QTest::mouseClick(controls().showLogButton, Qt::LeftButton);
    QVERIFY(log->isVisible());
    QCOMPARE(m_app->controller->logWinController()->logTextView()->toPlainText(), QStringLiteral("E: bad"));
    log->close();
    QWidget &window = m_app->controller->window();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_L, Qt::ControlModifier);
    QTRY_VERIFY(log->isVisible());
}

void TestWindowStates::theRootsValidityHasAnIcon()
{
    QCOMPARE(controls().rootValidIcon->kind(), Kind::Done);
    controls().uidRootTextField->setText(QStringLiteral("1.2.3"));
    QCOMPARE(controls().rootValidIcon->kind(), Kind::Attention);
    QVERIFY(controls().caseIDIcon->isHidden());
}

void TestWindowStates::theCaseIdIsMarkedWhenItIsToBlame_data()
{
    QTest::addColumn<QString>("caseId");
    QTest::addColumn<QString>("hint");
    QTest::addColumn<bool>("marked");
    const QString usual = QStringLiteral("Patient ID; empty erases it");
    QTest::newRow("none") << QString() << usual << false;
    QTest::newRow("digits") << QStringLiteral("0042") << usual << false;
    QTest::newRow("a letter inside") << QStringLiteral("1a2") << QStringLiteral("Only digits can be used")
                                     << true;
    QTest::newRow("too long") << QString(40, u'1') << QStringLiteral("Too long together with the root")
                              << true;
}

void TestWindowStates::theCaseIdIsMarkedWhenItIsToBlame()
{
    QFETCH(QString, caseId);
    QFETCH(bool, marked);
    controls().caseIDTextField->setText(caseId);
    QTEST(controls().caseIDHint->text(), "hint");
    QCOMPARE(controls().caseIDIcon->isVisible(), marked);
    QCOMPARE(controls().caseIDTextField->property("marked").toBool(), marked);
    controls().caseIDTextField->clear();
    QCOMPARE(controls().caseIDHint->text(), QStringLiteral("Patient ID; empty erases it"));
    QVERIFY(controls().caseIDIcon->isHidden());
}

void TestWindowStates::theRootsFieldShowsAWholeRoot()
{
    QWidget &window = m_app->controller->window();
    window.resize(window.minimumSizeHint());
    window.layout()->activate();
    QLineEdit *const field = controls().uidRootTextField;
    const QFontMetrics metrics = field->fontMetrics();
    QCOMPARE(metrics.horizontalAdvance(u'1'), metrics.horizontalAdvance(u'.'));
    const QString longest = QStringLiteral("2.25.340282366920938463463374607431768211455");
    QCOMPARE(longest.size(), 44);
    field->setText(longest);
    field->setCursorPosition(0);
    const QRect caret = field->inputMethodQuery(Qt::ImCursorRectangle).toRectF().toRect();
    const int rightEnd = caret.left() + metrics.horizontalAdvance(longest);
    QVERIFY2(rightEnd <= field->width(), qPrintable(QString::number(field->width() - rightEnd)));
}

void TestWindowStates::theEndIsToldToAUserWhoLooksElsewhere()
{
    QWidget &window = m_app->controller->window();
    window.hide();
    QTRY_VERIFY(!QApplication::activeWindow());
    host().runEnds(judgement(QStringLiteral("\nDone!"), {5, 0, 0, 1}));
    QCOMPARE(m_app->presenter.notes, QStringList{QStringLiteral("Done!|5 files changed, in 1 folder")});
}

void TestWindowStates::theEndIsNotToldTwice()
{
    QWidget &window = m_app->controller->window();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    host().runEnds(judgement(QStringLiteral("\nDone!"), {5, 0, 0, 1}));
    QCOMPARE(m_app->presenter.notes, QStringList());
}

void TestWindowStates::anAlertSaysTheSummary()
{
    host().runEnds(judgement(QStringLiteral("\nDone!"), {5, 0, 0, 1}));
    QAccessibleInterface *const alert = QAccessible::queryAccessibleInterface(controls().resultIcon);
    QCOMPARE(alert->role(), QAccessible::AlertMessage);
    QCOMPARE(alert->text(QAccessible::Name), QStringLiteral("Done!\n5 files changed, in 1 folder"));
}

void TestWindowStates::popUpsAreDescribed()
{
    QCOMPARE(controls().selectConfigPopupButton->accessibleDescription(),
             QStringLiteral("What is changed in the files: ") + m_app->configurationPath());
    host().tablesFound({{QStringLiteral("Site"), QStringLiteral("/t/site")}});
    QCOMPARE(controls().selectLUTpopupButton->accessibleDescription(),
             QStringLiteral("New values for one attribute"));
    controls().selectLUTpopupButton->setCurrentIndex(1);
    QCOMPARE(controls().selectLUTpopupButton->accessibleDescription(),
             QStringLiteral("New values for one attribute: /t/site"));
}

// The action of the entry `title` in the list of `popup`.
void chooseByAction(QComboBox &popup, const QString &title)
{
    (void)QAccessible::queryAccessibleInterface(&popup);
    QAccessibleInterface *const list = QAccessible::queryAccessibleInterface(popup.view());
    for (int i = 0; i < list->childCount(); ++i) {
        QAccessibleInterface *const entry = list->child(i);
        if (entry->text(QAccessible::Name) == title)
            entry->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    }
}

void TestWindowStates::aScreenReaderChoosesFromAPopUp()
{
    controls().generateSOPCheckbox->setChecked(true);
    controls().onlyGenerateSOPCheckbox->setChecked(true);
    host().tablesFound(
        {{QStringLiteral("A"), QStringLiteral("/a")}, {QStringLiteral("B"), QStringLiteral("/b")}});
    QComboBox &popup = *controls().selectLUTpopupButton;
    popup.setEnabled(true);
    chooseByAction(popup, QStringLiteral("B"));
    QTRY_COMPARE(popup.currentText(), QStringLiteral("B"));
    QVERIFY(!controls().onlyGenerateSOPCheckbox->isChecked()); // the rule of a choice followed
    chooseByAction(popup, QStringLiteral("A"));
    QTRY_COMPARE(popup.currentText(), QStringLiteral("A"));
}

void TestWindowStates::aDisabledPopUpIsNotChosenFrom()
{
    host().tablesFound({{QStringLiteral("A"), QStringLiteral("/a")}});
    QComboBox &popup = *controls().selectLUTpopupButton;
    popup.setEnabled(false);
    chooseByAction(popup, QStringLiteral("A"));
    QCoreApplication::processEvents();
    QCOMPARE(popup.currentIndex(), 0);
}

void TestWindowStates::windowsAreFrames()
{
    const auto roleOf = [](QWidget *widget) { return QAccessible::queryAccessibleInterface(widget)->role(); };
    QCOMPARE(roleOf(&m_app->controller->window()), QAccessible::Window);
    m_app->controller->showLogWindowWithLogText(QStringLiteral("E: bad"));
    QCOMPARE(roleOf(m_app->controller->logWinController()->window()), QAccessible::Window);
    QCOMPARE(roleOf(controls().dragDropView), QAccessible::Button);
    QCOMPARE(roleOf(controls().rootValidIcon), QAccessible::Graphic);
}

DRAVOLIN_TEST(TestWindowStates)
#include "tst_windowstates.moc"
