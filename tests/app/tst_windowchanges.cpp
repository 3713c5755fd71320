#include "app/TestApp.h"
#include "base/Files.h"
#include "support/TestEntry.h"
#include "ui_MainWindow.h"

#include <QAccessible>
#include <QFileDialog>
#include <QSettings>
#include <QTest>

using namespace dravolin;
using namespace dravolin::test;

namespace {

const QString marker = QStringLiteral("0010,1000\tOther IDs\t<LUT_Site>\n");

QStringList titles(const QComboBox &popup)
{
    QStringList items;
    for (int i = 0; i < popup.count(); ++i)
        items.append(popup.itemText(i));
    return items;
}

// What a screen reader does to switch a box and to set a text.
void toggle(QCheckBox &box)
{
    QAccessibleActionInterface *const actions =
        QAccessible::queryAccessibleInterface(&box)->actionInterface();
    actions->doAction(QAccessibleActionInterface::toggleAction());
}

void setText(QLineEdit &edit, const QString &text)
{
    QAccessible::queryAccessibleInterface(&edit)->setText(QAccessible::Value, text);
}

} // namespace

// What the window does with changes, whoever makes them: mouse, keys, a screen reader, the program itself.
class TestWindowChanges : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { useHome(m_home.path()); }
    void init();
    void cleanup() { m_app.reset(); }

    void rulesFollowAScreenReadersToggle();
    void constructionFollowsAScreenReadersToggle();
    void textsSetByAScreenReaderAreFilteredAndChecked();
    void keepsAStoredRootUnfiltered();
    void caretStaysBehindWhatWasTyped_data();
    void caretStaysBehindWhatWasTyped();
    void wordsFollowTheBoxWhenThePictureStays();
    void switchingConstructionOnLooksForConfigurations();
    void theChosenConfigurationComesFirst();
    void withoutAChoiceTheFirstIsSelected();
    void refusedConstructionForgetsTheTagAndThePicture();
    void theFocusComesBackAfterARun();
    void theFocusStaysWhereTheUserPutIt();
    void statusIsInSightOnALowScreen();
    void popUpsTellThePathsOfWhatTheyOffer();
    void anEmptyTablePopUpTellsHowATableIsNamed();
    void theWindowClosesByItsKeys();
    void keysAskForAFolder();

private:
    void configure(const QString &title, const QString &text)
    {
        m_app->run.writeFile(QStringLiteral("home/Desktop/AnonymizationConfiguration_%1.txt").arg(title),
                             text);
    }
    void click(QCheckBox *box) { QTest::mouseClick(box, Qt::LeftButton, {}, {8, 8}); }

    QTemporaryDir m_home;
    std::unique_ptr<TestApp> m_app;
};

void TestWindowChanges::init()
{
    QSettings(QStringLiteral("Dravolin"), QStringLiteral("Dravolin")).clear();
    m_app = std::make_unique<TestApp>();
    m_app->start();
    m_app->controls->uidRootTextField->setText(validRoot);
}

void TestWindowChanges::rulesFollowAScreenReadersToggle()
{
    const Ui::MainWindow &c = *m_app->controls;
    toggle(*c.onlyGenerateSOPCheckbox);
    QVERIFY(c.onlyGenerateSOPCheckbox->isChecked());
    QVERIFY(c.generateSOPCheckbox->isChecked());
    toggle(*c.generateSOPCheckbox);
    QVERIFY(!c.onlyGenerateSOPCheckbox->isChecked());
    QVERIFY(!c.generateSOPCheckbox->isChecked());
}

void TestWindowChanges::constructionFollowsAScreenReadersToggle()
{
    const Ui::MainWindow &c = *m_app->controls;
    configure(QStringLiteral("Test"), marker);
    toggle(*c.overWriteSourceCheckbox);
    toggle(*c.prepopulateLUTcheckbox);
    QVERIFY(c.prepopulateLUTcheckbox->isChecked());
    QVERIFY(!c.overWriteSourceCheckbox->isChecked());
    QCOMPARE(c.dragDropView->imageName(), QStringLiteral("LutImage.png"));
    QCOMPARE(m_app->controller->state().get(&RunState::LUTconstructionTag), QStringLiteral("0010,1000"));
}

void TestWindowChanges::textsSetByAScreenReaderAreFilteredAndChecked()
{
    const Ui::MainWindow &c = *m_app->controls;
    setText(*c.caseIDTextField, QStringLiteral(" 42b"));
    QCOMPARE(c.caseIDTextField->text(), QStringLiteral("42"));
    setText(*c.uidRootTextField, QStringLiteral("1.2.3"));
    QCOMPARE(c.rootValidLabel->text(), QStringLiteral("Root is invalid, will be replaced"));
    setText(*c.uidRootTextField, QStringLiteral(" %1abc").arg(validRoot));
    QCOMPARE(c.uidRootTextField->text(), validRoot);
    QCOMPARE(c.rootValidLabel->text(), QStringLiteral("UID may be valid"));
}

void TestWindowChanges::keepsAStoredRootUnfiltered()
{
    QSettings(QStringLiteral("Dravolin"), QStringLiteral("Dravolin"))
        .setValue(QStringLiteral("uidRoot"), QStringLiteral(" 1.2.x "));
    m_app->controller.reset();
    m_app->start();
    QCOMPARE(m_app->controls->uidRootTextField->text(), QStringLiteral("1.2.x")); // trimmed by the check
    QCOMPARE(m_app->controls->rootValidLabel->text(), QStringLiteral("Root is invalid, will be replaced"));
}

void TestWindowChanges::caretStaysBehindWhatWasTyped_data()
{
    QTest::addColumn<int>("caret");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("caretAfter");
    QTest::newRow("a letter in front vanishes") << 0 << QStringLiteral("a") << QStringLiteral("123") << 0;
    QTest::newRow("a blank in front vanishes") << 0 << QStringLiteral(" ") << QStringLiteral("123") << 0;
    QTest::newRow("a letter at the end vanishes") << 3 << QStringLiteral("a") << QStringLiteral("123") << 3;
    QTest::newRow("a digit in front") << 0 << QStringLiteral("9") << QStringLiteral("9123") << 1;
    QTest::newRow("letter and digit in front") << 0 << QStringLiteral("a9") << QStringLiteral("9123") << 1;
    QTest::newRow("a digit in the middle") << 1 << QStringLiteral("9") << QStringLiteral("1923") << 2;
}

void TestWindowChanges::caretStaysBehindWhatWasTyped()
{
    QFETCH(int, caret);
    QFETCH(QString, typed);
    QLineEdit *const edit = m_app->controls->caseIDTextField;
    edit->setText(QStringLiteral("123"));
    edit->setCursorPosition(caret);
    edit->insert(typed);
    QTEST(edit->text(), "text");
    QTEST(edit->cursorPosition(), "caretAfter");
}

void TestWindowChanges::wordsFollowTheBoxWhenThePictureStays()
{
    const Ui::MainWindow &c = *m_app->controls;
    configure(QStringLiteral("Test"), marker);
    click(c.prepopulateLUTcheckbox);
    QCOMPARE(c.dragDropView->accessibleDescription(), QStringLiteral("construct look-up table"));
    click(c.generateSOPCheckbox);
    QCOMPARE(c.dragDropView->imageName(), QStringLiteral("LutImage.png"));
    QCOMPARE(c.dragDropView->accessibleDescription(), QStringLiteral("anonymize"));
}

void TestWindowChanges::switchingConstructionOnLooksForConfigurations()
{
    const QComboBox &popup = *m_app->controls->selectConfigPopupButton;
    configure(QStringLiteral("Zebra"), marker);
    QCOMPARE(titles(popup), QStringList{QStringLiteral("Test")});
    click(m_app->controls->prepopulateLUTcheckbox);
    QCOMPARE(titles(popup), QStringList({QStringLiteral("Test"), QStringLiteral("Zebra")}));
}

void TestWindowChanges::theChosenConfigurationComesFirst()
{
    configure(QStringLiteral("Zebra"), marker);
    m_app->controller->getConfigurationFilePathsAndPopulateButton();
    QComboBox &popup = *m_app->controls->selectConfigPopupButton;
    QTest::keyClick(&popup, Qt::Key_Down);
    QCOMPARE(popup.currentText(), QStringLiteral("Zebra"));
    click(m_app->controls->prepopulateLUTcheckbox);
    QCOMPARE(titles(popup), QStringList({QStringLiteral("Zebra"), QStringLiteral("Test")}));
    QCOMPARE(popup.currentIndex(), 0);
    QVERIFY(m_app->presenter.sheets.isEmpty()); // its marker was found
    QCOMPARE(m_app->controller->state().get(&RunState::LUTconstructionTag), QStringLiteral("0010,1000"));

    removeFile(m_app->run.path(QStringLiteral("home/Desktop/AnonymizationConfiguration_Zebra.txt")));
    m_app->controller->getConfigurationFilePathsAndPopulateButton();
    QCOMPARE(titles(popup), QStringList{QStringLiteral("Test")});
}

void TestWindowChanges::withoutAChoiceTheFirstIsSelected()
{
    configure(QStringLiteral("Zebra"), marker);
    m_app->controller->getConfigurationFilePathsAndPopulateButton();
    QComboBox &popup = *m_app->controls->selectConfigPopupButton;
    popup.setCurrentIndex(1); // not the user
    m_app->controller->getConfigurationFilePathsAndPopulateButton();
    QCOMPARE(titles(popup), QStringList({QStringLiteral("Test"), QStringLiteral("Zebra")}));
    QCOMPARE(popup.currentIndex(), 0);
}

void TestWindowChanges::refusedConstructionForgetsTheTagAndThePicture()
{
    const Ui::MainWindow &c = *m_app->controls;
    configure(QStringLiteral("Test"), marker);
    click(c.prepopulateLUTcheckbox);
    QCOMPARE(m_app->controller->state().get(&RunState::LUTconstructionTag), QStringLiteral("0010,1000"));
    click(c.generateSOPCheckbox);
    QVERIFY(!c.prepopulateLUTcheckbox->isChecked());

    configure(QStringLiteral("Test"), QStringLiteral("0010,1000\tOther IDs\n"));
    click(c.prepopulateLUTcheckbox);
    QCOMPARE(m_app->presenter.sheets.size(), 1);
    QCOMPARE(m_app->controller->state().get(&RunState::LUTconstructionTag), QString());
    QCOMPARE(c.dragDropView->imageName(), QStringLiteral("LutImage.png"));
    m_app->presenter.sheets.first().completion(AlertSheet::firstButton);
    QVERIFY(!c.prepopulateLUTcheckbox->isChecked());
    QVERIFY(c.generateSOPCheckbox->isChecked()); // no rule followed
    QCOMPARE(c.dragDropView->imageName(), QStringLiteral("DragImage.png"));
}

void TestWindowChanges::theFocusComesBackAfterARun()
{
    const Ui::MainWindow &c = *m_app->controls;
    m_app->controller->window().activateWindow();
    c.generateSOPCheckbox->setFocus();
    RunHost &host = m_app->controller->host();
    host.runBegins({}, [] {});
    QVERIFY(m_app->controller->window().focusWidget() != c.generateSOPCheckbox);
    host.runEnds({});
    QCOMPARE(m_app->controller->window().focusWidget(), c.generateSOPCheckbox);
}

void TestWindowChanges::theFocusStaysWhereTheUserPutIt()
{
    const Ui::MainWindow &c = *m_app->controls;
    m_app->controller->window().activateWindow();
    c.generateSOPCheckbox->setFocus();
    RunHost &host = m_app->controller->host();
    host.runBegins({}, [] {});
    c.creditsTextField->setFocus();
    host.runEnds({});
    QCOMPARE(m_app->controller->window().focusWidget(), c.creditsTextField);
}

void TestWindowChanges::statusIsInSightOnALowScreen()
{
    constexpr int lowScreen = 500; // what a title bar and a panel leave of 540
    QWidget &window = m_app->controller->window();
    const Ui::MainWindow &c = *m_app->controls;
    c.progressBar->show();
    c.horLine->show();
    c.outputTextField->setText(QStringLiteral("one\ntwo\nthree\nfour"));
    window.resize(window.width(), 696);
    window.layout()->activate();
    for (QWidget *widget :
         {static_cast<QWidget *>(c.outputTextField), static_cast<QWidget *>(c.progressBar)}) {
        const int lowerEdge = widget->mapTo(&window, widget->rect().bottomLeft()).y();
        QVERIFY2(lowerEdge < lowScreen, qPrintable(QString::number(lowerEdge)));
    }
}

void TestWindowChanges::popUpsTellThePathsOfWhatTheyOffer()
{
    configure(QStringLiteral("Zebra"), marker);
    const QString table = m_app->run.writeFile(QStringLiteral("home/Desktop/AnonymizationLUT_Site.txt"));
    m_app->controller->getConfigurationFilePathsAndPopulateButton();
    m_app->controller->getLUTpathsAndPopulateButton();
    QComboBox &popup = *m_app->controls->selectConfigPopupButton;
    QCOMPARE(popup.toolTip(), m_app->configurationPath());
    popup.setCurrentIndex(1);
    const QString zebra =
        m_app->run.path(QStringLiteral("home/Desktop/AnonymizationConfiguration_Zebra.txt"));
    QCOMPARE(popup.toolTip(), zebra);
    QCOMPARE(popup.itemData(1, Qt::ToolTipRole).toString(), zebra);

    QComboBox &tables = *m_app->controls->selectLUTpopupButton;
    QCOMPARE(tables.toolTip(), QString());
    tables.setCurrentIndex(1);
    QCOMPARE(tables.toolTip(), table);
}

void TestWindowChanges::anEmptyTablePopUpTellsHowATableIsNamed()
{
    QCOMPARE(
        m_app->controls->selectLUTpopupButton->toolTip(),
        QStringLiteral("A table is a file named AnonymizationLUT_NAME.txt in\n%1\nor\n%2")
            .arg(m_app->run.paths.desktopFolder, m_app->run.path(QStringLiteral("home/share/Dravolin"))));
}

void TestWindowChanges::theWindowClosesByItsKeys()
{
    QWidget &window = m_app->controller->window();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_Q, Qt::ControlModifier);
    QTRY_VERIFY(!window.isVisible());
}

void TestWindowChanges::keysAskForAFolder()
{
    QWidget &window = m_app->controller->window();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_O, Qt::ControlModifier);
    QTRY_VERIFY(window.findChild<QFileDialog *>());
}

DRAVOLIN_TEST(TestWindowChanges)
#include "tst_windowchanges.moc"
