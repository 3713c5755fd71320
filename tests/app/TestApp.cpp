#include "app/TestApp.h"

#include "base/Files.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QDropEvent>
#include <QTest>
#include <QUrl>

namespace dravolin::test {

AlertButton ScriptedPresenter::runModal(const ModalAlert &alert, QWidget *)
{
    alerts.append(alert);
    if (answers.isEmpty())
        QTest::qFail(qPrintable(QStringLiteral("unexpected question: ") + alert.title), __FILE__, __LINE__);
    return answers.isEmpty() ? alert.escape : answers.takeFirst();
}

void ScriptedPresenter::beginSheet(const AlertSheet &sheet, QWidget *)
{
    sheets.append(sheet);
}

void ScriptedPresenter::notify(const QString &summary, const QString &body)
{
    notes.append(summary + u'|' + body);
}

void useHome(const QString &folder)
{
    qputenv("HOME", folder.toUtf8());
    for (const char *variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
        qputenv(variable, joinPath(folder, QString::fromLatin1(variable).toLower()).toUtf8());
}

TestApp::TestApp()
{
    for (const QString &picture : {QStringLiteral("DragImage.png"), QStringLiteral("LutImage.png")})
        (void)copyFile(joinPath(QStringLiteral(DRAVOLIN_RESOURCES), picture), run.paths.resource(picture));
    run.writeFile(QStringLiteral("home/Desktop/AnonymizationConfiguration_Test.txt"),
                  QStringLiteral("0010,0030\tPatient's Birth Date\n0010,0040\tPatient's Sex\tO\n"));
}

TestApp::~TestApp() = default;

void TestApp::start()
{
    controller = std::make_unique<MainController>(AppPorts{run.paths, *jobs, run.uuids, presenter, delays});
    controls = &controller->controls();
    controller->initAndShow();
    QTRY_VERIFY(controls->selectConfigPopupButton->count() > 0);
}

void TestApp::drop(const QStringList &paths)
{
    QWidget *const view = controls->dragDropView;
    const std::unique_ptr<QMimeData> data = fileNames(paths);
    QDragEnterEvent enter(view->rect().center(), Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent event(view->rect().center(), Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view, &event);
    QVERIFY(event.isAccepted());
    QCoreApplication::processEvents();
}

bool TestApp::waitForRuns()
{
    return QTest::qWaitFor([this] { return !controller->runIsUnderWay(); }, 20000);
}

QString TestApp::status()
{
    return controls->outputTextField->text();
}

QString TestApp::configurationPath() const
{
    return joinPath(run.paths.desktopFolder, QStringLiteral("AnonymizationConfiguration_Test.txt"));
}

std::unique_ptr<QMimeData> fileNames(const QStringList &paths)
{
    QByteArray list;
    for (const QString &path : paths)
        list += "file://" + toBytes(path).toPercentEncoding("/") + "\r\n";
    auto data = std::make_unique<QMimeData>();
    data->setData(QStringLiteral("text/uri-list"), list);
    return data;
}

} // namespace dravolin::test
