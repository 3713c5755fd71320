#include "app/MainWindow.h"
#include "app/ScreenEdge.h"
#include "app/TestApp.h"
#include "support/TestEntry.h"
#include "ui_MainWindow.h"

#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QScrollArea>
#include <QTest>
#include <QVBoxLayout>

using namespace dravolin;
using namespace dravolin::test;

// The main window and the edges of its screen.
class TestWindowPlace : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { useHome(m_home.path()); }
    void init();
    void cleanup() { m_app.reset(); }

    void theWindowFitsOnALowScreen();
    void theDropAreaEndsAboveTheScreensEdge();
    void nothingIsPaintedBelowTheDropAreasEnd();
    void whatTheScreenHasNoRoomForCanBeScrolled();
    void whatFitsIsNotScrolled();

private:
    QTemporaryDir m_home;
    std::unique_ptr<TestApp> m_app;
    const Ui::MainWindow &controls() { return *m_app->controls; }
};

void TestWindowPlace::init()
{
    m_app = std::make_unique<TestApp>();
    m_app->start();
}

void TestWindowPlace::theWindowFitsOnALowScreen()
{
    constexpr int titleBar = 30;
    QWidget &window = m_app->controller->window();
    controls().progressBar->show();
    QVERIFY2(window.layout()->totalMinimumSize().height() <= 540 - titleBar,
             qPrintable(QString::number(window.layout()->totalMinimumSize().height())));
    QWidget tall;
    tall.resize(300, 2000);
    centerOnScreen(tall);
    const QRect available = tall.screen()->availableGeometry();
    QCOMPARE(tall.height(), available.height() - titleBar);
    QCOMPARE(tall.y(), available.top());
}

void TestWindowPlace::theDropAreaEndsAboveTheScreensEdge()
{
    QWidget &window = m_app->controller->window();
    const QVDragDropView &view = *controls().dragDropView;
    const int screenBottom = window.screen()->availableGeometry().bottom();
    const auto distance = [&] { return screenBottom - view.mapToGlobal(view.shownArea().bottomLeft()).y(); };
    window.resize(window.width(), runningHeight);
    window.move(50, 0);
    QTRY_COMPARE(view.shownArea(), view.rect());
    window.move(50, screenBottom + 51 - runningHeight);
    QTRY_COMPARE(distance(), 12);
    QCOMPARE(window.height(), runningHeight);
    window.move(50, screenBottom - 50); // too much to be kept in sight
    QTRY_COMPARE(view.shownArea().height(), view.minimumSizeHint().height());
}

void TestWindowPlace::nothingIsPaintedBelowTheDropAreasEnd()
{
    QWidget &window = m_app->controller->window();
    QVDragDropView &view = *controls().dragDropView;
    window.resize(window.width(), runningHeight);
    window.move(50, window.screen()->availableGeometry().bottom() + 101 - runningHeight);
    QTRY_VERIFY(!view.image().isNull());
    for (const bool highlighted : {false, true}) {
        view.setHighlighted(highlighted);
        const QRect shown = view.shownArea();
        QVERIFY(shown.height() < view.height());
        const QImage picture = view.grab().toImage();
        QImage plain = picture.copy(0, shown.height(), shown.width(), view.height() - shown.height());
        const QImage below = plain;
        plain.fill(below.pixelColor(0, 0));
        QCOMPARE(below, plain);
        QVERIFY(picture.copy(0, shown.height() - 8, shown.width(), 8) !=
                plain.copy(0, 0, shown.width(), 8)); // the frame is there
    }
}

void TestWindowPlace::whatTheScreenHasNoRoomForCanBeScrolled()
{
    MainWindow window;
    auto *const layout = new QVBoxLayout(&window);
    auto *const first = new QWidget;
    first->setFixedHeight(1000);
    auto *const last = new QLabel(QStringLiteral("Status"));
    layout->addWidget(first);
    layout->addWidget(last);
    const QList<QLineEdit *> fields = {new QLineEdit, new QLineEdit, new QLineEdit};
    for (QLineEdit *field : fields)
        layout->addWidget(field);
    QWidget::setTabOrder(fields.at(0), fields.at(2));
    window.resize(300, 1200);
    window.scrollWhereScreenIsSmall();
    centerOnScreen(window);
    QCOMPARE(window.height(), roomOnScreen(window).height());
    window.show();
    const int screenBottom = window.screen()->availableGeometry().bottom();
    const auto isInSight = [&] {
        return last->visibleRegion() == QRegion(last->rect()) &&
               last->mapToGlobal(last->rect().bottomLeft()).y() <= screenBottom;
    };
    QVERIFY(!isInSight());
    bringIntoSight(*last);
    QTRY_VERIFY(isInSight());
    window.resize(300, 1500); // as a run lets it grow
    QCoreApplication::processEvents();
    QVERIFY(isInSight());
    QCOMPARE(window.height(), 1500);
    QCOMPARE(heightBelowScreen(*last), 0);
    QCOMPARE(fields.at(0)->nextInFocusChain(), fields.at(2));
    QCOMPARE(fields.at(2)->nextInFocusChain(), fields.at(1));
    QCOMPARE(window.findChild<QScrollArea *>()->focusPolicy(), Qt::NoFocus);
}

void TestWindowPlace::whatFitsIsNotScrolled()
{
    QVERIFY(!m_app->controller->window().findChild<QScrollArea *>());
    MainWindow window; // it can be made lower
    (new QVBoxLayout(&window))->addWidget(new QLabel(QStringLiteral("Status")));
    window.resize(300, 1200);
    window.scrollWhereScreenIsSmall();
    QVERIFY(!window.findChild<QScrollArea *>());
    bringIntoSight(window);
}

DRAVOLIN_TEST(TestWindowPlace)
#include "tst_windowplace.moc"
