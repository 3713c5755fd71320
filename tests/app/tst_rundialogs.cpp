#include "app/RunDialogs.h"
#include "app/TestApp.h"
#include "base/Files.h"
#include "support/TestEntry.h"
#include "ui_MainWindow.h"

#include <QTest>

using namespace dravolin;
using namespace dravolin::test;

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

QString described(const ModalAlert &alert)
{
    return QStringList{alert.title, alert.text, alert.defaultButton, alert.alternateButton}.join(u'|');
}

QString described(const AlertSheet &sheet)
{
    return QStringList{sheet.message, sheet.informativeText, sheet.buttons.join(u'|')}.join(u'|');
}

// What a run asks and refuses, in words, and what the answers do.
class TestRunDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { useHome(m_home.path()); }
    void asks_data();
    void asks();
    void refusesInAnAlert_data();
    void refusesInAnAlert();
    void refusesInASheet_data();
    void refusesInASheet();
    void aSheetsAnswer_data();
    void aSheetsAnswer();
    void savesTheDefaultConfiguration_data();
    void savesTheDefaultConfiguration();
    void outOfFileHandlesClosesTheWindow_data();
    void outOfFileHandlesClosesTheWindow();

private:
    QTemporaryDir m_home;
};

void TestRunDialogs::asks_data()
{
    QTest::addColumn<int>("question");
    QTest::addColumn<QString>("words");
    QTest::newRow("a large drop")
        << static_cast<int>(Question::LargeDrop)
        << text("Large number of individual files dropped|You dropped a large number of individual files: "
                "processing is faster if you drop the enclosing folder.\n\nIf this enclosing folder contains "
                "subfolders that should not be anonymized, consider temporarily placing the individual files "
                "in a new folder and drop that.\n\nContinue with dropped files?\n|No, I'll retry|"
                "Yes, get on with it!");
    QTest::newRow("overwriting")
        << static_cast<int>(Question::OverwriteSource)
        << text("About to anonymize your data|Your source data will be overwritten. Continue?|No, Cancel|"
                "Ok, Overwrite source data");
}

void TestRunDialogs::asks()
{
    QFETCH(int, question);
    const ModalAlert alert = questionAlert(static_cast<Question>(question));
    QTEST(described(alert), "words");
    QCOMPARE(alert.escape, AlertButton::Default);
}

void TestRunDialogs::refusesInAnAlert_data()
{
    QTest::addColumn<int>("refusal");
    QTest::addColumn<QString>("words");
    QTest::newRow("an impossible UID")
        << static_cast<int>(Refusal::InvalidStudyInstanceUid)
        << text("Study Instance UID would be invalid|The combination of the CaseID and the UID root would "
                "result in the creation of an invalid Study Instance UID.\nThis is now allowed.\n\nOnly "
                "digits "
                "and '.' are allowed, and the total maximum length is 64 characters.\n|OK|");
    QTest::newRow("out of file handles")
        << static_cast<int>(Refusal::OutOfFileHandles)
        << text("Ran out of file handles!|Please try and process your data in slightly smaller batches.\n\n"
                "Nevertheless, this should not have happened. If it reoccurs, please let me know.|OK|Quit");
}

void TestRunDialogs::refusesInAnAlert()
{
    QFETCH(int, refusal);
    const std::optional<ModalAlert> alert = refusalAlert(static_cast<Refusal>(refusal));
    QVERIFY(alert);
    QTEST(described(*alert), "words");
    QCOMPARE(alert->escape, AlertButton::Default);
}

void TestRunDialogs::refusesInASheet_data()
{
    QTest::addColumn<int>("refusal");
    QTest::addColumn<QString>("words");
    QTest::addColumn<int>("escape");
    QTest::newRow("no tags")
        << static_cast<int>(Refusal::NoTags)
        << text("Your configuration file provided no tags to anonymize!|\nPath: %2 %1\n\n\n|"
                "Save copy of default config to Desktop & Quit|Quit")
        << AlertSheet::secondButton;
    QTest::newRow("no tag for the table")
        << static_cast<int>(Refusal::NoTagForTable)
        << text("Your configuration file provided no tags matching the selected LUT!|"
                "\nSelected LUT: %2 %1\n\n\n|Retry Drop|Quit")
        << AlertSheet::firstButton;
    QTest::newRow("an unreadable table")
        << static_cast<int>(Refusal::TableUnreadable)
        << text("LUT file found, but not successfully parsed.|\nSelected LUT: %2 %1\n\n\n|Retry Drop|Quit")
        << AlertSheet::firstButton;
    QTest::newRow("a table without <missing>")
        << static_cast<int>(Refusal::TableWithoutMissing)
        << text("LUT file found, but not successfully parsed.|\nSelected LUT: %2 %1\n\n"
                "You should implement the <missing> value for the <old_value> field."
                "\n\n(See the example file in the Application Bundle)\n\n\n|Retry Drop|Quit")
        << AlertSheet::firstButton;
}

void TestRunDialogs::refusesInASheet()
{
    QFETCH(int, refusal);
    QVERIFY(!refusalAlert(static_cast<Refusal>(refusal)));
    // a name that looks like place markers is shown as it is
    const AlertSheet sheet = refusalSheet(static_cast<Refusal>(refusal), text("%2 %1"));
    QTEST(described(sheet), "words");
    QTEST(sheet.escape, "escape");
}

void TestRunDialogs::aSheetsAnswer_data()
{
    QTest::addColumn<QString>("configuration");
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("open");
    QTest::newRow("retry leaves the window")
        << text("0010,1000\tx\t<LUT_Other>") << AlertSheet::firstButton << true;
    QTest::newRow("quit closes it") << text("0010,1000\tx\t<LUT_Other>") << AlertSheet::secondButton << false;
}

void TestRunDialogs::aSheetsAnswer()
{
    QFETCH(QString, configuration);
    QFETCH(int, button);
    TestApp app;
    app.run.writeFile(text("home/Desktop/AnonymizationConfiguration_Test.txt"), configuration);
    app.run.writeFile(text("home/Desktop/AnonymizationLUT_Site.txt"), text("<missing>\tX\n"));
    app.start();
    app.controls->uidRootTextField->setText(validRoot);
    app.controls->selectLUTpopupButton->setCurrentIndex(1);
    app.drop({app.run.makeFolder(text("data"))});
    QVERIFY(app.waitForRuns());
    QCOMPARE(app.presenter.sheets.size(), 1);
    app.presenter.sheets.first().completion(button);
    QTEST(app.controller->window().isVisible(), "open");
    QVERIFY(app.run.jobs.jobs.isEmpty());
}

void TestRunDialogs::savesTheDefaultConfiguration_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<QString>("before"); // on the desktop; empty: nothing
    QTest::addColumn<QString>("after");
    const QString fallback = text("0010,0010\tName\n");
    const QString own = text("my own");
    QTest::newRow("save and quit") << AlertSheet::firstButton << QString() << fallback;
    QTest::newRow("save over an existing file fails silently") << AlertSheet::firstButton << own << own;
    QTest::newRow("quit") << AlertSheet::secondButton << QString() << QString();
}

void TestRunDialogs::savesTheDefaultConfiguration()
{
    QFETCH(int, button);
    QFETCH(QString, before);
    TestApp app;
    app.run.writeFile(text("app/resources/DefaultAnonymizationConfiguration.txt"), text("0010,0010\tName\n"));
    const QString copy = text("home/Desktop/AnonymizationConfiguration.txt");
    if (!before.isEmpty())
        app.run.writeFile(copy, before);
    app.start();
    app.controller->host().refuse(Refusal::NoTags, QString());
    app.presenter.sheets.first().completion(button);
    QTEST(readText(app.run.path(copy)).value_or(QString()), "after");
    QVERIFY(!app.controller->window().isVisible());
}

void TestRunDialogs::outOfFileHandlesClosesTheWindow_data()
{
    QTest::addColumn<int>("answer");
    QTest::newRow("the default button") << static_cast<int>(AlertButton::Default);
    QTest::newRow("the other button") << static_cast<int>(AlertButton::Alternate);
}

void TestRunDialogs::outOfFileHandlesClosesTheWindow()
{
    QFETCH(int, answer);
    TestApp app;
    app.start();
    app.presenter.answers = {static_cast<AlertButton>(answer), AlertButton::Default};
    app.controller->host().refuse(Refusal::InvalidStudyInstanceUid);
    QVERIFY(app.controller->window().isVisible());
    app.controller->host().refuse(Refusal::OutOfFileHandles);
    QVERIFY(!app.controller->window().isVisible());
}

} // namespace

DRAVOLIN_TEST(TestRunDialogs)
#include "tst_rundialogs.moc"
