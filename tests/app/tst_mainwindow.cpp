#include "app/TestApp.h"
#include "base/Files.h"
#include "support/TestEntry.h"
#include "ui_MainWindow.h"

#include <QLabel>
#include <QSettings>
#include <QSignalBlocker>
#include <QSignalSpy>
#include <QTest>

using namespace dravolin;
using namespace dravolin::test;

namespace {

QSettings settings()
{
    return QSettings(QStringLiteral("Dravolin"), QStringLiteral("Dravolin"));
}

// Check boxes as a text: O(verwrite) C(onstruct) G(enerate) N (only).
QString checked(const Ui::MainWindow &c)
{
    return (c.overWriteSourceCheckbox->isChecked() ? QStringLiteral("O") : QString()) +
           (c.prepopulateLUTcheckbox->isChecked() ? QStringLiteral("C") : QString()) +
           (c.generateSOPCheckbox->isChecked() ? QStringLiteral("G") : QString()) +
           (c.onlyGenerateSOPCheckbox->isChecked() ? QStringLiteral("N") : QString());
}

// Switches a box on without its rule.
void preset(QCheckBox &box)
{
    const QSignalBlocker quietly(box);
    box.setChecked(true);
}

// The main window as it starts, and what its controls do outside a run.
class TestMainWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup() { m_app.reset(); }

    void startsCenteredAndNamed();
    void everyControlHasItsNameForPeople();
    void mnemonicsDiffer();
    void tabGoesFromTopToBottom();
    void fitsTheRunningHeight_data();
    void fitsTheRunningHeight();
    void configurationsAreScannedAfterTheWindowIsUp();
    void noConfigurationGivesTheDefaultAndASheet();
    void continueKeepsTheDefault();
    void savedDefaultIsRevealedAndQuits();
    void savedDefaultFallsBackToTheDesktop();
    void storedRootIsRestoredAndChecked();
    void withoutStoredRootTheLabelKeepsItsText();
    void closingStoresTheRoot();
    void closingWithAnEmptyRootKeepsTheStoredOne();
    void typing_data();
    void typing();
    void typingInTheMiddleKeepsTheCursor();
    void otherFieldsAreNotFiltered();
    void generatedRootIsNotStored();
    void checkBoxRules_data();
    void checkBoxRules();
    void constructionTakesTheFirstMarker();
    void constructionWithoutMarkerIsSwitchedOff();
    void constructionWithoutMarkerMayQuit();
    void keepsThePictureWhenAnotherBoxClearsConstruction();
    void tablePopupChangeClearsOnlyGenerate();
    void theWebSiteIsNotOpenedOnEscape();
    void webSitePrompt_data();
    void webSitePrompt();
    void configurationFolderIsOpened();

private:
    void restart();
    [[nodiscard]] QString opened() const; // what the fake xdg-open got

    QTemporaryDir m_home;
    std::unique_ptr<TestApp> m_app;
};

void TestMainWindow::initTestCase()
{
    useHome(m_home.path());
    const QString opener = joinPath(m_home.path(), QStringLiteral("bin/xdg-open"));
    QVERIFY(createFolder(parentPath(opener)));
    QVERIFY(writeText(opener, QStringLiteral("#!/bin/sh\necho \"$1\" >\"${0%/*}/opened\"\n"
                                             "test ! -e \"${0%/*}/fails\"\n")));
    QVERIFY(makeExecutable(opener));
    qputenv("PATH", toBytes(parentPath(opener)) + ":/usr/bin:/bin");
    qunsetenv("DBUS_SESSION_BUS_ADDRESS"); // no file browser answers
}

void TestMainWindow::init()
{
    settings().clear();
    for (const char *name : {"bin/opened", "bin/fails"})
        removeFile(joinPath(m_home.path(), QString::fromLatin1(name)));
    m_app = std::make_unique<TestApp>();
    m_app->start();
}

void TestMainWindow::restart()
{
    m_app->controller.reset();
    m_app->start();
}

QString TestMainWindow::opened() const
{
    return readText(joinPath(m_home.path(), QStringLiteral("bin/opened"))).value_or(QString()).trimmed();
}

void TestMainWindow::startsCenteredAndNamed()
{
    const QWidget &window = m_app->controller->window();
    QVERIFY(window.isVisible());
    QCOMPARE(window.windowTitle(), QStringLiteral("Dravolin"));
    QTRY_VERIFY(!window.windowIcon().isNull()); // its picture comes when it has been painted
    const QPoint distance = window.geometry().center() - window.screen()->availableGeometry().center();
    QVERIFY2(distance.manhattanLength() <= 8, "off the middle by more than a frame's width");
    QCOMPARE(checked(*m_app->controls), QString());
    QVERIFY(m_app->controls->progressBar->isHidden());
    QVERIFY(!m_app->controls->spIndicator->isSpinning());
    QCOMPARE(m_app->controls->dragDropView->imageName(), QStringLiteral("DragImage.png"));
}

void TestMainWindow::everyControlHasItsNameForPeople()
{
    const Ui::MainWindow &c = *m_app->controls;
    QMap<const QWidget *, QString> captions;
    for (const QLabel *label : m_app->controller->window().findChildren<QLabel *>())
        captions.insert(label->buddy(), label->text().remove(u'&'));
    QCOMPARE(captions.value(c.selectConfigPopupButton), QStringLiteral("Configuration"));
    QCOMPARE(captions.value(c.selectLUTpopupButton), QStringLiteral("Look-up table"));
    QCOMPARE(captions.value(c.uidRootTextField), QStringLiteral("UID root"));
    QCOMPARE(captions.value(c.rootValidLabel), QStringLiteral("UID root validity"));
    QCOMPARE(captions.value(c.caseIDTextField), QStringLiteral("Case ID"));
    QCOMPARE(captions.value(c.diagnosisTextField), QStringLiteral("Diagnosis"));
    QCOMPARE(captions.value(c.keywordsTextField), QStringLiteral("Keywords"));
    QCOMPARE(captions.value(c.creditsTextField), QStringLiteral("Credits"));
    QCOMPARE(captions.value(c.outputTextField), QStringLiteral("Status"));
    QCOMPARE(c.overWriteSourceCheckbox->text().remove(u'&'), QStringLiteral("Overwrite source files"));
    QCOMPARE(c.prepopulateLUTcheckbox->text().remove(u'&'), QStringLiteral("Construct look-up table"));
    QCOMPARE(c.generateSOPCheckbox->text().remove(u'&'), QStringLiteral("Generate new instance UIDs"));
    QCOMPARE(c.onlyGenerateSOPCheckbox->text().remove(u'&'),
             QStringLiteral("Only generate new instance UIDs"));
    QCOMPARE(c.progressBar->accessibleName(), QStringLiteral("Progress"));
    QCOMPARE(c.spIndicator->accessibleName(), QStringLiteral("Busy"));
    QCOMPARE(c.dragDropView->accessibleName(), QStringLiteral("Drop area"));
    QCOMPARE(c.createUIDrootButton->text().remove(u'&'), QStringLiteral("Generate root"));
    QCOMPARE(c.showConfigButton->text().remove(u'&'), QStringLiteral("Show configuration folder"));
    QCOMPARE(c.webSiteButton->text().remove(u'&'), QStringLiteral("Web site"));
    // results are read through their text: a name of their own would hide it
    QCOMPARE(c.outputTextField->accessibleName(), QString());
    QCOMPARE(c.rootValidLabel->accessibleName(), QString());
}

void TestMainWindow::mnemonicsDiffer()
{
    QMap<QString, QStringList> byKey;
    const auto add = [&](const QString &text) {
        const QKeySequence key = QKeySequence::mnemonic(text);
        if (!key.isEmpty())
            byKey[key.toString()].append(text);
    };
    for (const QLabel *label : m_app->controller->window().findChildren<QLabel *>())
        add(label->text());
    for (const QAbstractButton *button : m_app->controller->window().findChildren<QAbstractButton *>())
        add(button->text());
    QCOMPARE(byKey.size(), 15);
    for (const QStringList &texts : std::as_const(byKey))
        QCOMPARE(texts.size(), 1);
}

void TestMainWindow::tabGoesFromTopToBottom()
{
    m_app->run.writeFile(QStringLiteral("home/Desktop/AnonymizationLUT_A.txt"));
    restart();
    QWidget &window = m_app->controller->window();
    window.activateWindow();
    m_app->controls->selectConfigPopupButton->setFocus();
    QStringList order;
    for (int i = 0; i < 16; ++i) {
        order.append(window.focusWidget()->objectName());
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(order, QStringLiteral("selectConfigPopupButton showConfigButton selectLUTpopupButton "
                                   "overWriteSourceCheckbox prepopulateLUTcheckbox generateSOPCheckbox "
                                   "onlyGenerateSOPCheckbox caseIDTextField diagnosisTextField "
                                   "keywordsTextField creditsTextField uidRootTextField createUIDrootButton "
                                   "dragDropView webSiteButton helpButton")
                        .split(u' '));
}

void TestMainWindow::fitsTheRunningHeight_data()
{
    QTest::addColumn<int>("points");
    QTest::newRow("usual font") << 9;
    QTest::newRow("large font") << 12;
}

void TestMainWindow::fitsTheRunningHeight()
{
    QFETCH(int, points);
    QFont font = QApplication::font();
    font.setPointSize(points);
    QWidget &window = m_app->controller->window();
    window.setFont(font);
    m_app->controls->progressBar->show();
    m_app->controls->horLine->show();
    m_app->controls->outputTextField->setText(QStringLiteral("one\ntwo\nthree"));
    QVERIFY(window.layout()->totalMinimumSize().height() <= 696);
}

void TestMainWindow::configurationsAreScannedAfterTheWindowIsUp()
{
    m_app->controller.reset();
    m_app->delays.beforeConfigurationScan = 100;
    m_app->controller = std::make_unique<MainController>(
        AppPorts{m_app->run.paths, m_app->run.jobs, m_app->run.uuids, m_app->presenter, m_app->delays});
    m_app->controller->initAndShow();
    QComboBox *const popup = m_app->controller->controls().selectConfigPopupButton;
    QCoreApplication::processEvents();
    QCOMPARE(popup->count(), 0);
    QCOMPARE(m_app->controller->controls().selectLUTpopupButton->count(), 1); // tables come at once
    QTRY_COMPARE(popup->count(), 1);
    QCOMPARE(popup->currentText(), QStringLiteral("Test"));
}

void TestMainWindow::noConfigurationGivesTheDefaultAndASheet()
{
    removeFile(m_app->configurationPath());
    restart();
    QCOMPARE(m_app->controls->selectConfigPopupButton->count(), 1);
    QCOMPARE(m_app->controls->selectConfigPopupButton->currentText(), QStringLiteral("Bundled Default"));
    QCOMPARE(m_app->presenter.sheets.size(), 1);
    const AlertSheet &sheet = m_app->presenter.sheets.first();
    QCOMPARE(sheet.message, QStringLiteral("Reverting to default anonymization config from "
                                           "'DefaultAnonymizationConfiguration.txt'from the Application "
                                           "Bundle."));
    QCOMPARE(
        sheet.informativeText,
        QStringLiteral("\nThe application looks for 'AnonymizationConfiguration.txt' in 4 locations, in "
                       "this order:\n\n1- In the Application Bundle itself\n2- On the Desktop\n3- In the "
                       "folder where the Application Bundle is\n4- In ~/Library/Applications "
                       "Support/Dravolin/\n\nIf not found in any of those places, it reverts to the "
                       "default configuration, which may not be what you want.\n\n\n"));
    QCOMPARE(sheet.buttons, QStringList({QStringLiteral("Save copy to Configuration folder & Quit"),
                                         QStringLiteral("Continue")}));
    QCOMPARE(sheet.escape, 1001);
    m_app->controller->getConfigurationFilePathsAndPopulateButton();
    QCOMPARE(m_app->presenter.sheets.size(), 2); // at every discovery that finds nothing
    QCOMPARE(m_app->controls->selectConfigPopupButton->count(), 1);
}

void TestMainWindow::continueKeepsTheDefault()
{
    removeFile(m_app->configurationPath());
    restart();
    m_app->presenter.sheets.first().completion(1001);
    QVERIFY(m_app->controller->window().isVisible());
    QCOMPARE(m_app->controls->selectConfigPopupButton->currentText(), QStringLiteral("Bundled Default"));
}

void TestMainWindow::savedDefaultIsRevealedAndQuits()
{
    removeFile(m_app->configurationPath());
    m_app->run.writeFile(QStringLiteral("app/resources/DefaultAnonymizationConfiguration.txt"),
                         QStringLiteral("# default\n"));
    restart();
    QSignalSpy closed(m_app->controller.get(), &MainController::closed);
    m_app->presenter.sheets.first().completion(1000);
    QTRY_COMPARE(closed.size(), 1);
    const QString folder = m_app->run.path(QStringLiteral("home/share/Dravolin"));
    QCOMPARE(readText(joinPath(folder, QStringLiteral("AnonymizationConfiguration_Default.txt"))),
             QStringLiteral("# default\n"));
    QTRY_COMPARE(opened(), folder);
    m_app->presenter.sheets.clear();
    restart();
    QCOMPARE(m_app->controls->selectConfigPopupButton->currentText(), QStringLiteral("Default"));
    QVERIFY(m_app->presenter.sheets.isEmpty());
}

void TestMainWindow::savedDefaultFallsBackToTheDesktop()
{
    removeFile(m_app->configurationPath());
    m_app->run.writeFile(QStringLiteral("app/resources/DefaultAnonymizationConfiguration.txt"));
    m_app->run.paths.applicationSupportFolders = {m_app->run.writeFile(QStringLiteral("home/file"))};
    const LogCatcher log;
    restart();
    QSignalSpy closed(m_app->controller.get(), &MainController::closed);
    m_app->presenter.answers = {AlertButton::Default};
    m_app->presenter.sheets.first().completion(1000);
    QCOMPARE(m_app->presenter.alerts.size(), 1);
    const ModalAlert &alert = m_app->presenter.alerts.first();
    QCOMPARE(alert.title, QStringLiteral("Could not access or create config folder"));
    QCOMPARE(alert.text,
             QStringLiteral("Failed to access or create the configuration folder at:\n%1\n\nSaving "
                            "a copy of the default Configuration to the Desktop instead.\n\n")
                 .arg(m_app->run.path(QStringLiteral("home/file/Dravolin"))));
    QCOMPARE(alert.defaultButton, QStringLiteral("Save to Desktop & Quit"));
    QCOMPARE(alert.alternateButton, QString());
    QTRY_COMPARE(closed.size(), 1);
    QVERIFY(pathExists(
        joinPath(m_app->run.paths.desktopFolder, QStringLiteral("AnonymizationConfiguration_Default.txt"))));
    QVERIFY(LogCatcher::messages().contains(
        QStringLiteral("Could not save default config to configuration folder, saving to desktop instead")));
}

void TestMainWindow::storedRootIsRestoredAndChecked()
{
    settings().setValue(QStringLiteral("uidRoot"), QStringLiteral(" %1 ").arg(validRoot));
    restart();
    QCOMPARE(m_app->controls->uidRootTextField->text(), validRoot);
    QCOMPARE(m_app->controls->rootValidLabel->text(), QStringLiteral("UID may be valid"));
}

void TestMainWindow::withoutStoredRootTheLabelKeepsItsText()
{
    QCOMPARE(m_app->controls->uidRootTextField->text(), QString());
    QCOMPARE(m_app->controls->rootValidLabel->text(), QStringLiteral("UID root not checked yet"));
}

void TestMainWindow::closingStoresTheRoot()
{
    m_app->controls->uidRootTextField->setText(QStringLiteral("1.2.3"));
    QSignalSpy closed(m_app->controller.get(), &MainController::closed);
    m_app->controller->window().close();
    QCOMPARE(closed.size(), 1);
    const QString file = joinPath(m_home.path(), QStringLiteral("xdg_config_home/Dravolin/Dravolin.conf"));
    QCOMPARE(readText(file), QStringLiteral("[General]\nuidRoot=1.2.3\n"));
}

void TestMainWindow::closingWithAnEmptyRootKeepsTheStoredOne()
{
    settings().setValue(QStringLiteral("uidRoot"), validRoot);
    restart();
    m_app->controls->uidRootTextField->clear();
    m_app->controller->window().close();
    QCOMPARE(settings().value(QStringLiteral("uidRoot")).toString(), validRoot);
}

void TestMainWindow::typing_data()
{
    QTest::addColumn<bool>("inRoot");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("label");
    const QString invalid = QStringLiteral("Root is invalid, will be replaced");
    const QString valid = QStringLiteral("UID may be valid");
    for (const bool inRoot : {true, false}) {
        const char *const where = inRoot ? "root: " : "case: ";
        QTest::addRow("%s%s", where, "a letter at the end vanishes")
            << inRoot << QStringLiteral("123") << QStringLiteral("a") << QStringLiteral("123")
            << (inRoot ? invalid : valid);
        QTest::addRow("%s%s", where, "a pasted letter in the middle stays")
            << inRoot << QStringLiteral("") << QStringLiteral("1a2") << QStringLiteral("1a2") << invalid;
        QTest::addRow("%s%s", where, "a dot is let through")
            << inRoot << QStringLiteral("1") << QStringLiteral(".") << QStringLiteral("1.") << invalid;
    }
    QTest::newRow("root: becomes valid") << true << QStringLiteral("") << validRoot << validRoot << valid;
    QTest::newRow("case: digits") << false << QStringLiteral("") << QStringLiteral("0042")
                                  << QStringLiteral("0042") << valid;
}

void TestMainWindow::typing()
{
    QFETCH(bool, inRoot);
    QFETCH(QString, before);
    QFETCH(QString, typed);
    QFETCH(QString, after);
    QFETCH(QString, label);
    const Ui::MainWindow &c = *m_app->controls;
    c.uidRootTextField->setText(validRoot);
    QLineEdit *const edit = inRoot ? c.uidRootTextField : c.caseIDTextField;
    edit->setText(before);
    edit->insert(typed); // like a paste: one change
    QCOMPARE(edit->text(), after);
    QCOMPARE(c.rootValidLabel->text(), label);
}

void TestMainWindow::typingInTheMiddleKeepsTheCursor()
{
    QLineEdit *const edit = m_app->controls->uidRootTextField;
    edit->setText(validRoot);
    edit->setCursorPosition(6);
    QTest::keyClicks(edit, QStringLiteral("99"));
    QCOMPARE(edit->text(), QStringLiteral("1.2.129934567890") + QStringLiteral("1234567890"));
    QCOMPARE(edit->cursorPosition(), 8);
}

void TestMainWindow::otherFieldsAreNotFiltered()
{
    const QString label = m_app->controls->rootValidLabel->text();
    for (QLineEdit *edit : {m_app->controls->diagnosisTextField, m_app->controls->keywordsTextField,
                            m_app->controls->creditsTextField}) {
        QTest::keyClicks(edit, QStringLiteral(" abc "));
        QCOMPARE(edit->text(), QStringLiteral(" abc "));
    }
    QCOMPARE(m_app->controls->rootValidLabel->text(), label);
}

void TestMainWindow::generatedRootIsNotStored()
{
    m_app->run.uuids.uuids = {QStringLiteral("FFFFFFFF-FFFF-FFFF-FFFF-FFFFFFFFFFFF")};
    QTest::mouseClick(m_app->controls->createUIDrootButton, Qt::LeftButton);
    QCOMPARE(m_app->controls->uidRootTextField->text(),
             QStringLiteral("2.25.340282366920938463463374607431768211455"));
    QCOMPARE(m_app->controls->rootValidLabel->text(), QStringLiteral("UID may be valid"));
    QVERIFY(!settings().contains(QStringLiteral("uidRoot")));
}

void TestMainWindow::checkBoxRules_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QChar>("clicked");
    QTest::addColumn<QString>("after");
    QTest::newRow("generate on clears construction")
        << QStringLiteral("C") << QChar(u'G') << QStringLiteral("G");
    QTest::newRow("generate off clears only") << QStringLiteral("GN") << QChar(u'G') << QStringLiteral("");
    QTest::newRow("only on sets generate and clears construction")
        << QStringLiteral("OC") << QChar(u'N') << QStringLiteral("OGN");
    QTest::newRow("only off leaves generate") << QStringLiteral("GN") << QChar(u'N') << QStringLiteral("G");
    QTest::newRow("overwrite on has no rule") << QStringLiteral("C") << QChar(u'O') << QStringLiteral("OC");
    QTest::newRow("overwrite off has no rule")
        << QStringLiteral("OGN") << QChar(u'O') << QStringLiteral("GN");
    QTest::newRow("construction off has no rule")
        << QStringLiteral("OC") << QChar(u'C') << QStringLiteral("O");
}

void TestMainWindow::checkBoxRules()
{
    QFETCH(QString, before);
    QFETCH(QChar, clicked);
    QFETCH(QString, after);
    const Ui::MainWindow &c = *m_app->controls;
    const QMap<QChar, QCheckBox *> boxes = {{u'O', c.overWriteSourceCheckbox},
                                            {u'C', c.prepopulateLUTcheckbox},
                                            {u'G', c.generateSOPCheckbox},
                                            {u'N', c.onlyGenerateSOPCheckbox}};
    for (const QChar letter : before)
        preset(*boxes.value(letter));
    QTest::mouseClick(boxes.value(clicked), Qt::LeftButton, {}, {8, 8});
    QCOMPARE(checked(c), after);
}

void TestMainWindow::constructionTakesTheFirstMarker()
{
    QVERIFY(writeText(m_app->configurationPath(), QStringLiteral("0010,1000\tOther IDs\t<LUT_Site>\n"
                                                                 "0010,0030\tBirth\t<LUT_Other>\n")));
    m_app->run.uuids.uuids = {QStringLiteral("00000000-0000-0000-0000-000000000001")};
    const Ui::MainWindow &c = *m_app->controls;
    for (QCheckBox *box : {c.overWriteSourceCheckbox, c.generateSOPCheckbox, c.onlyGenerateSOPCheckbox})
        preset(*box);
    QTest::mouseClick(c.prepopulateLUTcheckbox, Qt::LeftButton, {}, {8, 8});
    QCOMPARE(checked(c), QStringLiteral("C"));
    QCOMPARE(m_app->controller->state().get(&RunState::LUTconstructionTag), QStringLiteral("0010,0030"));
    QCOMPARE(c.dragDropView->imageName(), QStringLiteral("LutImage.png"));
    QTest::mouseClick(c.prepopulateLUTcheckbox, Qt::LeftButton, {}, {8, 8});
    QCOMPARE(c.dragDropView->imageName(), QStringLiteral("DragImage.png"));
    QVERIFY(m_app->presenter.sheets.isEmpty());
}

void TestMainWindow::constructionWithoutMarkerIsSwitchedOff()
{
    m_app->run.uuids.uuids = {QStringLiteral("00000000-0000-0000-0000-000000000001")};
    const Ui::MainWindow &c = *m_app->controls;
    preset(*c.generateSOPCheckbox);
    QTest::mouseClick(c.prepopulateLUTcheckbox, Qt::LeftButton, {}, {8, 8});
    QCOMPARE(m_app->presenter.sheets.size(), 1);
    const AlertSheet &sheet = m_app->presenter.sheets.first();
    QCOMPARE(sheet.message,
             QStringLiteral("Your configuration file provided no <LUT_XX> field to indicate which DICOM tag "
                            "should be used for constructing the LUT."));
    QCOMPARE(sheet.informativeText, QString());
    QCOMPARE(sheet.buttons, QStringList({QStringLiteral("Ok"), QStringLiteral("Quit")}));
    QCOMPARE(m_app->controller->state().get(&RunState::LUTconstructionTag), QString());
    QCOMPARE(checked(c), QStringLiteral("CG")); // until it is answered
    sheet.completion(1000);
    QCOMPARE(checked(c), QStringLiteral("G"));
    QCOMPARE(c.dragDropView->imageName(), QStringLiteral("DragImage.png"));
    QVERIFY(m_app->controller->window().isVisible());
}

void TestMainWindow::constructionWithoutMarkerMayQuit()
{
    m_app->run.uuids.uuids = {QStringLiteral("00000000-0000-0000-0000-000000000001")};
    QTest::mouseClick(m_app->controls->prepopulateLUTcheckbox, Qt::LeftButton, {}, {8, 8});
    QSignalSpy closed(m_app->controller.get(), &MainController::closed);
    m_app->presenter.sheets.first().completion(1001);
    QCOMPARE(closed.size(), 1);
}

void TestMainWindow::keepsThePictureWhenAnotherBoxClearsConstruction()
{
    QVERIFY(writeText(m_app->configurationPath(), QStringLiteral("0010,1000\tOther IDs\t<LUT_Site>\n")));
    m_app->run.uuids.uuids = {QStringLiteral("00000000-0000-0000-0000-000000000001")};
    const Ui::MainWindow &c = *m_app->controls;
    QTest::mouseClick(c.prepopulateLUTcheckbox, Qt::LeftButton, {}, {8, 8});
    QTest::mouseClick(c.generateSOPCheckbox, Qt::LeftButton, {}, {8, 8});
    QCOMPARE(checked(c), QStringLiteral("G"));
    QCOMPARE(c.dragDropView->imageName(), QStringLiteral("LutImage.png"));
}

void TestMainWindow::tablePopupChangeClearsOnlyGenerate()
{
    m_app->run.writeFile(QStringLiteral("home/Desktop/AnonymizationLUT_A.txt"));
    restart();
    const Ui::MainWindow &c = *m_app->controls;
    preset(*c.generateSOPCheckbox);
    preset(*c.onlyGenerateSOPCheckbox);
    c.selectLUTpopupButton->setFocus();
    QTest::keyClick(c.selectLUTpopupButton, Qt::Key_Down);
    QCOMPARE(c.selectLUTpopupButton->currentText(), QStringLiteral("A"));
    QCOMPARE(checked(c), QStringLiteral("G"));
    // switching it on again takes the table away
    QTest::mouseClick(c.onlyGenerateSOPCheckbox, Qt::LeftButton, {}, {8, 8});
    QCOMPARE(c.selectLUTpopupButton->currentText(), QStringLiteral("Don't use a look-up table"));
    QCOMPARE(checked(c), QStringLiteral("GN"));
}

void TestMainWindow::theWebSiteIsNotOpenedOnEscape()
{
    m_app->presenter.answers = {AlertButton::Alternate};
    QTest::mouseClick(m_app->controls->webSiteButton, Qt::LeftButton);
    QCOMPARE(m_app->presenter.alerts.first().escape, AlertButton::Alternate);
}

void TestMainWindow::webSitePrompt_data()
{
    QTest::addColumn<bool>("yes");
    QTest::addColumn<bool>("fails");
    QTest::newRow("yes, sure") << true << false;
    QTest::newRow("no, don't") << false << false;
    QTest::newRow("the opener fails") << true << true;
}

void TestMainWindow::webSitePrompt()
{
    QFETCH(bool, yes);
    QFETCH(bool, fails);
    if (fails)
        QVERIFY(writeText(joinPath(m_home.path(), QStringLiteral("bin/fails")), QString()));
    const LogCatcher log;
    m_app->presenter.answers = {yes ? AlertButton::Default : AlertButton::Alternate};
    QTest::mouseClick(m_app->controls->webSiteButton, Qt::LeftButton);
    QCOMPARE(m_app->presenter.alerts.size(), 1);
    const ModalAlert &alert = m_app->presenter.alerts.first();
    QCOMPARE(alert.title, QStringLiteral("Open the web site https://dravolin.example/ in your web browser?"));
    QCOMPARE(alert.text, QString());
    QCOMPARE(alert.defaultButton, QStringLiteral("Yes, sure"));
    QCOMPARE(alert.alternateButton, QStringLiteral("No, don't"));
    const QString failure = QStringLiteral("Failed to open url: https://dravolin.example/");
    if (yes)
        QTRY_COMPARE(opened(), QStringLiteral("https://dravolin.example/"));
    if (fails)
        QTRY_VERIFY(LogCatcher::messages().contains(failure));
    else
        QVERIFY(!LogCatcher::messages().contains(failure));
    if (!yes)
        QCOMPARE(opened(), QString());
}

void TestMainWindow::configurationFolderIsOpened()
{
    QTest::mouseClick(m_app->controls->showConfigButton, Qt::LeftButton);
    QTRY_COMPARE(opened(), m_app->run.path(QStringLiteral("home/share/Dravolin")));
}

} // namespace

DRAVOLIN_TEST(TestMainWindow)
#include "tst_mainwindow.moc"
