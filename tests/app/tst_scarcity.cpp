#include "app/TestApp.h"
#include "support/TestEntry.h"
#include "ui_MainWindow.h"

#include <QTest>

#include <new>
#include <pthread.h>

using namespace dravolin;
using test::LogCatcher;
using test::TestApp;

namespace {

// While it lives, no thread has room for its stack.
class NoThreads
{
public:
    NoThreads()
    {
        ::pthread_getattr_default_np(&m_before);
        pthread_attr_t wanted = m_before;
        if (::pthread_attr_setstacksize(&wanted, size_t{1} << 47) != 0 ||
            ::pthread_setattr_default_np(&wanted) != 0)
            qFatal("threads could not be kept from starting");
    }
    ~NoThreads() { ::pthread_setattr_default_np(&m_before); }
    NoThreads(const NoThreads &) = delete;
    NoThreads &operator=(const NoThreads &) = delete;

private:
    pthread_attr_t m_before = {};
};

// Memory does not suffice for the first event of its own type, and does for the second.
class Greedy : public QObject
{
public:
    int handled = 0;

    bool event(QEvent *event) override
    {
        if (event->type() != QEvent::User)
            return QObject::event(event);
        if (++handled == 1)
            throw std::bad_alloc();
        return true;
    }
};

} // namespace

// What the system has too little of for the window to go on as usual.
class TestScarcity : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { test::useHome(m_home.path()); }
    void aRunWithoutAThreadEndsAtOnce();
    void anEventWithoutMemoryIsLeftUndone_data();
    void anEventWithoutMemoryIsLeftUndone();

private:
    QTemporaryDir m_home;
};

void TestScarcity::aRunWithoutAThreadEndsAtOnce()
{
    TestApp app;
    app.delays.beforeSummary = 3'600'000; // the window's own thread does not wait for it
    app.start();
    QTRY_VERIFY(!app.controls->dragDropView->image().isNull()); // the toolkit decodes it on threads
    app.controls->uidRootTextField->setText(test::validRoot);
    const QStringList folder = {app.run.makeFolder(QStringLiteral("data/study"))};
    const LogCatcher log;
    {
        const NoThreads none;
        app.drop(folder);
        QTRY_COMPARE(app.status(),
                     QStringLiteral("Done...\nEncountered 1 error.\nSee messages logged to console."));
    }
    QVERIFY(!app.controller->runIsUnderWay());
    QVERIFY(app.run.jobs.jobs.isEmpty());
    QCOMPARE(LogCatcher::messages().last(), QStringLiteral("Could not start a thread for the run"));
    for (const QCheckBox *box : {app.controls->overWriteSourceCheckbox, app.controls->prepopulateLUTcheckbox,
                                 app.controls->generateSOPCheckbox, app.controls->onlyGenerateSOPCheckbox})
        QVERIFY(box->isEnabled());
    QVERIFY(app.controls->selectConfigPopupButton->isEnabled());
}

void TestScarcity::anEventWithoutMemoryIsLeftUndone_data()
{
    QTest::addColumn<bool>("posted");
    QTest::newRow("sent") << false;
    QTest::newRow("posted") << true;
}

void TestScarcity::anEventWithoutMemoryIsLeftUndone()
{
    QFETCH(bool, posted);
    Greedy receiver;
    const LogCatcher log;
    for (int times = 1; times <= 2; ++times) {
        if (posted) {
            QCoreApplication::postEvent(&receiver, new QEvent(QEvent::User));
            QTRY_COMPARE(receiver.handled, times);
        } else {
            QEvent event(QEvent::User);
            QVERIFY(QCoreApplication::sendEvent(&receiver, &event));
            QCOMPARE(receiver.handled, times);
        }
        QCOMPARE(LogCatcher::messages(), QStringList(QStringLiteral("Not enough memory")));
    }
}

DRAVOLIN_TEST(TestScarcity)
#include "tst_scarcity.moc"
