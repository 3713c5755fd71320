#include "app/TestApp.h"
#include "base/Files.h"
#include "support/TestEntry.h"
#include "ui_MainWindow.h"

#include <QMenu>
#include <QTest>

using namespace dravolin;
using namespace dravolin::test;

// What stands behind the window's "?".
class TestHelpMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup() { m_app.reset(); }

    void offersItsEntries();
    void opensTheInstalledGuide();
    void saysWhereAMissingGuideShouldBe();
    void tellsTheVersions_data();
    void tellsTheVersions();
    void listsTheShortcuts();
    void asksBeforeTheWebSite();

private:
    // Opens the menu and chooses the entry.
    void choose(const QString &entry);
    [[nodiscard]] AlertSheet sheet() const { return m_app->presenter.sheets.value(0); }

    QTemporaryDir m_home;
    std::unique_ptr<TestApp> m_app;
};

void TestHelpMenu::initTestCase()
{
    useHome(m_home.path());
    const QString opener = joinPath(m_home.path(), QStringLiteral("bin/xdg-open"));
    QVERIFY(createFolder(parentPath(opener)));
    QVERIFY(writeText(opener, QStringLiteral("#!/bin/sh\necho \"$1\" >\"${0%/*}/opened\"\n")));
    QVERIFY(makeExecutable(opener));
    qputenv("PATH", toBytes(parentPath(opener)) + ":/usr/bin:/bin");
}

void TestHelpMenu::init()
{
    m_app = std::make_unique<TestApp>();
    m_app->start();
}

void TestHelpMenu::choose(const QString &entry)
{
    QTest::mouseClick(m_app->controls->helpButton, Qt::LeftButton);
    auto *const menu = m_app->controls->helpButton->findChild<QMenu *>();
    QVERIFY(menu);
    for (QAction *action : menu->actions())
        if (action->text() == entry)
            action->trigger();
    menu->close();
}

void TestHelpMenu::offersItsEntries()
{
    QTest::mouseClick(m_app->controls->helpButton, Qt::LeftButton);
    auto *const menu = m_app->controls->helpButton->findChild<QMenu *>();
    QVERIFY(menu);
    QStringList entries;
    for (const QAction *action : menu->actions())
        entries.append(action->text() + u'|' + action->shortcut().toString());
    QCOMPARE(entries, QStringList({QStringLiteral("User guide|F1"), QStringLiteral("Keyboard shortcuts|"),
                                   QStringLiteral("Web site|"), QStringLiteral("|"),
                                   QStringLiteral("About Dravolin|")}));
    menu->close();
}

void TestHelpMenu::opensTheInstalledGuide()
{
    const QString guide = m_app->run.writeFile(QStringLiteral("app/doc/dravolin/user-guide.md"));
    QWidget &window = m_app->controller->window();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_F1);
    QTRY_COMPARE(readText(joinPath(m_home.path(), QStringLiteral("bin/opened"))).value_or(QString()),
                 guide + u'\n');
    QVERIFY(m_app->presenter.sheets.isEmpty());
}

void TestHelpMenu::saysWhereAMissingGuideShouldBe()
{
    choose(QStringLiteral("User guide"));
    QCOMPARE(sheet().message, QStringLiteral("The user guide is not installed."));
    QCOMPARE(sheet().informativeText, m_app->run.path(QStringLiteral("app/doc/dravolin/user-guide.md")));
}

void TestHelpMenu::tellsTheVersions_data()
{
    QTest::addColumn<QByteArray>("printed");
    QTest::addColumn<QString>("version");
    QTest::newRow("known") << QByteArray("$dcmtk: dcmodify v3.6.7 2022-04-22 $\n\nHost type: Debian\n")
                           << QStringLiteral("3.6.7");
    QTest::newRow("silent") << QByteArray() << QStringLiteral("not found");
}

void TestHelpMenu::tellsTheVersions()
{
    QFETCH(QByteArray, printed);
    QFETCH(QString, version);
    m_app->run.jobs.answer = [printed](const Job &) {
        return JobResult{.outcome = JobOutcome::Ran, .output = printed};
    };
    choose(QStringLiteral("About Dravolin"));
    QVERIFY(sheet().message.startsWith(QStringLiteral("Dravolin 0.")));
    QCOMPARE(sheet().informativeText,
             QStringLiteral("Qt %1\nDCMTK %2\n\nTools, pictures and default configuration:\n%3")
                 .arg(QString::fromLatin1(qVersion()), version, m_app->run.paths.resourceFolder));
    const Job job = m_app->run.jobs.jobs.last().job;
    QCOMPARE(job.executable, m_app->run.paths.dcmodify());
    QCOMPARE(job.arguments, QStringList{QStringLiteral("--version")});
}

void TestHelpMenu::listsTheShortcuts()
{
    choose(QStringLiteral("Keyboard shortcuts"));
    QCOMPARE(sheet().informativeText,
             QStringLiteral("F1: user guide\n"
                            "Ctrl+O: choose a folder instead of dropping one\n"
                            "Ctrl+L: show the log of the last run\n"
                            "Ctrl+Q: quit\n"
                            "Alt and an underlined letter: go to that field, or switch that box\n"
                            "In the log, Ctrl+F: find, Ctrl+W: close"));
}

void TestHelpMenu::asksBeforeTheWebSite()
{
    m_app->presenter.answers = {AlertButton::Alternate};
    choose(QStringLiteral("Web site"));
    QCOMPARE(m_app->presenter.alerts.size(), 1);
    QCOMPARE(m_app->presenter.alerts.first().title,
             QStringLiteral("Open the web site https://dravolin.example/ in your web browser?"));
}

DRAVOLIN_TEST(TestHelpMenu)
#include "tst_helpmenu.moc"
