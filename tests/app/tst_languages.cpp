#include "app/LogWindowController.h"
#include "app/TestApp.h"
#include "base/Files.h"
#include "base/Texts.h"
#include "run/StartUp.h"
#include "run/jobs/ScriptJob.h"
#include "support/TestEntry.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QStyleOptionComboBox>
#include <QTest>
#include <QTranslator>

using namespace dravolin;
using test::TestApp;

namespace {

const QString translations = QStringLiteral(DRAVOLIN_TRANSLATIONS);

// What of the text of `widget` its place has no room for; empty when all of it shows.
QString cutText(const QWidget &widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(&widget)) {
        const QSize needed(label->wordWrap() ? 0 : label->sizeHint().width(),
                           label->heightForWidth(label->width()));
        return needed.width() <= label->width() && needed.height() <= label->height() ? QString()
                                                                                      : label->text();
    }
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        return button->text().isEmpty() || button->sizeHint().width() <= button->width() ? QString()
                                                                                         : button->text();
    if (const auto *edit = qobject_cast<const QLineEdit *>(&widget))
        return edit->fontMetrics().horizontalAdvance(edit->placeholderText()) < edit->width() - 8
                   ? QString()
                   : edit->placeholderText();
    if (const auto *popup = qobject_cast<const QComboBox *>(&widget)) {
        QStyleOptionComboBox option;
        option.initFrom(popup);
        const QRect room =
            popup->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, popup);
        return popup->fontMetrics().horizontalAdvance(popup->currentText()) <= room.width()
                   ? QString()
                   : popup->currentText();
    }
    return {};
}

QStringList cutTexts(const QWidget &window)
{
    QStringList cut;
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        if (const QString text = widget->isVisible() ? cutText(*widget) : QString(); !text.isEmpty())
            cut.append(text);
    }
    return cut;
}

} // namespace

// The window in each language that there is a table for.
class TestLanguages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void takesTheFirstLanguageThatIsThere_data();
    void takesTheFirstLanguageThatIsThere();
    void everyKindOfRunTellsItsEnd_data() { languages(); }
    void everyKindOfRunTellsItsEnd();
    void cutsNoTextInTheSmallestWindow_data() { languages(); }
    void cutsNoTextInTheSmallestWindow();
    void hasThePluralFormsOfTheLanguage_data();
    void hasThePluralFormsOfTheLanguage();

private:
    static void languages();
    // Drops a folder, waits for the end of the run and gives the summary.
    QString run();
    QTemporaryDir m_home;
    std::unique_ptr<TestApp> m_app;
};

void TestLanguages::initTestCase()
{
    test::useHome(m_home.path());
}

void TestLanguages::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin does not support)")));
    m_app = std::make_unique<TestApp>();
}

void TestLanguages::cleanup()
{
    m_app.reset();
    qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator *>());
}

void TestLanguages::languages()
{
    QTest::addColumn<QString>("language");
    const QStringList tables = QDir(translations).entryList({QStringLiteral("dravolin_*.qm")}, QDir::Files);
    QVERIFY(!tables.isEmpty());
    for (const QString &table : tables) {
        const QString language = table.section(u'_', 1).section(u'.', 0, 0);
        QTest::newRow(qPrintable(language)) << language;
    }
}

void TestLanguages::takesTheFirstLanguageThatIsThere_data()
{
    QTest::addColumn<QStringList>("languages");
    QTest::addColumn<QString>("quit");
    const auto row = [](const char *languages, const char *quit) {
        QTest::newRow(languages) << QString::fromLatin1(languages).split(u' ') << QString::fromUtf8(quit);
    };
    row("", "Quit");
    row("C", "Quit");
    row("de", "Beenden");
    row("de-AT de", "Beenden");
    row("en-GB de", "Quit");
    row("sv", "Quit");
    row("sv fr", "Quitter");
    row("fr-CA de", "Quitter");
    row("no-such-language pl", "Zakończ");
    row("pt-PT", "Sair");
    row("zh-CN", "退出");
    row("zh-SG", "退出");
    row("zh-TW", "Quit");
}

void TestLanguages::takesTheFirstLanguageThatIsThere()
{
    QFETCH(QStringList, languages);
    AppPaths paths = m_app->run.paths;
    paths.resourceFolder = QFileInfo(translations).path();
    startUp(paths, languages);
    QTEST(Texts::tr("Quit"), "quit");
}

QString TestLanguages::run()
{
    m_app->controller->handleDroppedPaths({m_app->run.makeFolder(QStringLiteral("in"))});
    if (!m_app->waitForRuns())
        return {};
    return m_app->status();
}

void TestLanguages::everyKindOfRunTellsItsEnd()
{
    QFETCH(QString, language);
    QVERIFY(useLanguage(language, translations));
    const QString table = m_app->run.writeFile(QStringLiteral("home/Desktop/AnonymizationLUT_Site.txt"),
                                               QStringLiteral("<missing>\tX\nA\tB\n"));
    m_app->run.writeFile(QStringLiteral("home/Desktop/AnonymizationConfiguration_Test.txt"),
                         QStringLiteral("0010,1000\tOther IDs\t<LUT_Site>"));
    QByteArray said;
    m_app->run.jobs.answer = [&said](const Job &job) {
        return writeText(joinPath(job.folder, outputFileName), QString::fromLatin1(said))
                   ? JobResult{JobOutcome::Ran, "(0010,1000) LO [A]  # 1"}
                   : JobResult{};
    };
    m_app->start();
    m_app->controls->uidRootTextField->setText(test::validRoot);

    QStringList summaries = {run()};
    said = "E: one\nE: two\n";
    summaries.append(run());
    said.clear();
    m_app->controls->selectLUTpopupButton->setCurrentIndex(1);
    summaries.append(run());
    removeFile(table);
    m_app->controls->selectLUTpopupButton->setCurrentIndex(1);
    summaries.append(run());
    m_app->controls->prepopulateLUTcheckbox->click();
    m_app->controls->selectLUTpopupButton->setCurrentIndex(0);
    summaries.append(run());

    QCOMPARE(
        summaries,
        QStringList({Texts::tr("\nDone!"), withCounts(Texts::tr("\nDone, with %1 error%2.", nullptr, 2), {2}),
                     withCounts(Texts::tr("Done!\nLUT tag propagated to %1 file%2.\nSkipped %3 DICOM file%4.",
                                          nullptr, 0),
                                {0, 0}),
                     withCounts(Texts::tr("Done...\nEncountered %1 error%2.\nSee messages logged to console.",
                                          nullptr, 1),
                                {1}),
                     Texts::tr("\nDone constructing LUT. File placed on Desktop.")}));
    for (const QString &summary : std::as_const(summaries))
        QVERIFY2(!summary.contains(QStringLiteral("Done")) && !summary.contains(u'%'), qPrintable(summary));
}

void TestLanguages::cutsNoTextInTheSmallestWindow()
{
    QFETCH(QString, language);
    QVERIFY(useLanguage(language, translations));
    m_app->start();
    m_app->controls->uidRootTextField->setText(test::validRoot);
    QWidget &window = m_app->controller->window();
    window.resize(window.minimumSizeHint().width(), runningHeight);
    QVERIFY(!run().isEmpty()); // now the window shows all that a result has
    m_app->controls->uidRootTextField->setText(QStringLiteral("1.2.3"));
    m_app->controls->outputTextField->setText(
        withCounts(Texts::tr("Done constructing LUT. File placed on Desktop.\nEncountered %1 error%2.\n"
                             "See messages logged to console.",
                             nullptr, 1),
                   {1}));
    QCoreApplication::processEvents();
    QCOMPARE(cutTexts(window).join(u'|'), QString());
    QVERIFY2(window.width() <= 960, qPrintable(QString::number(window.width())));
    QCOMPARE(window.height(), runningHeight);
}

void TestLanguages::hasThePluralFormsOfTheLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<quint64>("errors");
    QTest::addColumn<QString>("summary");
    const auto row = [](const char *language, quint64 errors, const char *summary) {
        QTest::addRow("%s %llu", language, errors)
            << QString::fromLatin1(language) << errors << QString::fromUtf8(summary);
    };
    row("en", 0, "\nDone, with 0 errors.");
    row("en", 1, "\nDone, with 1 error.");
    row("de", 1, "\nFertig, mit 1 Fehler.");
    row("de", 2, "\nFertig, mit 2 Fehlern.");
    row("fr", 0, "\nTerminé, avec 0 erreur.");
    row("fr", 2, "\nTerminé, avec 2 erreurs.");
    row("pl", 1, "\nGotowe, 1 błąd.");
    row("pl", 3, "\nGotowe, 3 błędy.");
    row("pl", 12, "\nGotowe, 12 błędów.");
    row("pl", std::numeric_limits<quint64>::max(), "\nGotowe, 18446744073709551615 błędów.");
    row("ja", 2, "\n完了しました。エラー: 2 件");
}

void TestLanguages::hasThePluralFormsOfTheLanguage()
{
    QFETCH(QString, language);
    QFETCH(quint64, errors);
    QCOMPARE(useLanguage(language, translations), language != QStringLiteral("en"));
    const QString text = Texts::tr("\nDone, with %1 error%2.", nullptr, pluralNumber(errors));
    QTEST(withCounts(text, {errors}), "summary");
}

DRAVOLIN_TEST(TestLanguages)
#include "tst_languages.moc"
