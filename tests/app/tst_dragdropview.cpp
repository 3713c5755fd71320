#include "app/DroppedPaths.h"
#include "app/QVDragDropView.h"
#include "app/TestApp.h"
#include "base/PathText.h"
#include "support/TestEntry.h"

#include <QAccessible>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>

using namespace dravolin;
using namespace dravolin::test;

namespace {

class Delegate : public QVDragDropViewDelegate
{
public:
    void handleDroppedPaths(const QStringList &paths) override { drops.append(paths); }
    QList<QStringList> drops;
};

class TestDragDropView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_view = std::make_unique<QVDragDropView>();
        m_view->setImageFolder(QStringLiteral(DRAVOLIN_RESOURCES));
        m_view->setDelegate(&m_delegate);
        m_delegate.drops.clear();
    }

    void drops_data();
    void drops();
    void everyPictureExtensionIsTold_data();
    void everyPictureExtensionIsTold();
    void bytesThatAreNotUtf8Survive();
    void separatorAtTheEndIsDropped();
    void delegateIsCalledAfterTheDropWasAnswered();
    void dropWithoutFileNamesIsTakenAndIgnored();
    void dragOfOtherThingsIsRefused();
    void enteringWithoutFileNamesHighlights();
    void enteringWithAnAddressElsewhereIsRefused_data();
    void enteringWithAnAddressElsewhereIsRefused();
    void leavingAndDroppingClearTheHighlight();
    void highlightIsDrawn();
    void imageFollowsTheState_data();
    void imageFollowsTheState();
    void wordsSayWhatADropWillDo();
    void askingForPathsIsLikeADrop_data();
    void askingForPathsIsLikeADrop();
    void isAButtonToAScreenReader();

private:
    [[nodiscard]] bool perform(const QStringList &paths)
    {
        return m_view->performDragOperation(*fileNames(paths));
    }

    std::unique_ptr<QVDragDropView> m_view;
    Delegate m_delegate;
};

void TestDragDropView::drops_data()
{
    QTest::addColumn<QStringList>("paths");
    QTest::addColumn<bool>("success");
    QTest::addColumn<bool>("handedOn");
    const QString folder = QStringLiteral("/data/study");
    QTest::newRow("a folder") << QStringList{folder} << true << true;
    QTest::newRow("a single png does nothing")
        << QStringList{QStringLiteral("/data/a.png")} << false << false;
    QTest::newRow("extension in upper case") << QStringList{QStringLiteral("/data/a.JPG")} << false << false;
    QTest::newRow("a jpg first, a folder second")
        << QStringList{QStringLiteral("/data/a.jpg"), folder} << false << true;
    QTest::newRow("a folder first, pictures later")
        << QStringList{folder, QStringLiteral("/data/a.jpg"), QStringLiteral("/data/b.png")} << true << true;
    QTest::newRow("an empty list") << QStringList() << true << true;
    QTest::newRow("a folder with a picture's extension")
        << QStringList{QStringLiteral("/data/study.pic")} << false << false;
    QTest::newRow("no extension") << QStringList{QStringLiteral("/data/png")} << true << true;
    QTest::newRow("names with quotes, blanks, percent and line breaks")
        << QStringList{QStringLiteral("/data/a \"b\" 'c' $d `e` %20 [x] \n f ä")} << true << true;
}

void TestDragDropView::drops()
{
    QFETCH(QStringList, paths);
    QFETCH(bool, success);
    QFETCH(bool, handedOn);
    const QString imageBefore = m_view->imageName();
    QCOMPARE(perform(paths), success);
    QCoreApplication::processEvents();
    QCOMPARE(m_delegate.drops, handedOn ? QList<QStringList>{paths} : QList<QStringList>());
    QCOMPARE(m_view->imageName(), imageBefore);
}

void TestDragDropView::everyPictureExtensionIsTold_data()
{
    QTest::addColumn<QString>("extension");
    for (const char *extension :
         {"png", "jpg", "jpeg", "tiff", "pdf", "pic", "ps",  "bmp", "pct", "pict", "eps", "mac",
          "pnt", "ico", "psd",  "icns", "nef", "dng", "tif", "jpf", "jp2", "gif",  "jfif"})
        QTest::newRow(extension) << QString::fromLatin1(extension);
}

void TestDragDropView::everyPictureExtensionIsTold()
{
    QFETCH(QString, extension);
    QVERIFY(!perform({QStringLiteral("/a.") + extension}));
    QVERIFY(perform({QStringLiteral("/a.") + extension + u'x'}));
}

void TestDragDropView::bytesThatAreNotUtf8Survive()
{
    const QString path = fromBytes("/data/stud\xFF\xE9y");
    QVERIFY(perform({path}));
    QCoreApplication::processEvents();
    QCOMPARE(m_delegate.drops, QList<QStringList>{{path}});
    QCOMPARE(toBytes(m_delegate.drops.first().first()), QByteArray("/data/stud\xFF\xE9y"));
}

void TestDragDropView::separatorAtTheEndIsDropped()
{
    QMimeData data;
    data.setUrls({QUrl(QStringLiteral("file:///data/s1/")), QUrl(QStringLiteral("file:///")),
                  QUrl(QStringLiteral("file://localhost/x"))});
    QCOMPARE(droppedPaths(data),
             QStringList({QStringLiteral("/data/s1"), QStringLiteral("/"), QStringLiteral("/x")}));
}

void TestDragDropView::delegateIsCalledAfterTheDropWasAnswered()
{
    QVERIFY(perform({QStringLiteral("/data")}));
    QVERIFY(m_delegate.drops.isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(m_delegate.drops.size(), 1);
}

void TestDragDropView::dropWithoutFileNamesIsTakenAndIgnored()
{
    QMimeData data;
    data.setText(QStringLiteral("/data"));
    QVERIFY(m_view->performDragOperation(data));
    QCoreApplication::processEvents();
    QVERIFY(m_delegate.drops.isEmpty());
}

void TestDragDropView::dragOfOtherThingsIsRefused()
{
    QMimeData data;
    data.setText(QStringLiteral("/data"));
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_view.get(), &enter);
    QVERIFY(!enter.isAccepted());
    QVERIFY(!m_view->isHighlighted());
}

void TestDragDropView::enteringWithoutFileNamesHighlights()
{
    const QMimeData data;
    QCOMPARE(m_view->draggingEntered(data), Qt::CopyAction);
    QVERIFY(m_view->isHighlighted());
}

void TestDragDropView::enteringWithAnAddressElsewhereIsRefused_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::newRow("web address") << QByteArray("https://dravolin.example/a.dcm\r\n");
    QTest::newRow("behind a file") << QByteArray("file:///data\r\nsmb://host/share\r\n");
    QTest::newRow("a NUL in the path") << QByteArray("file:///data/x.dcm%00/y.dcm\r\n");
    QTest::newRow("a file of another host") << QByteArray("file://elsewhere.example/data\r\n");
}

void TestDragDropView::enteringWithAnAddressElsewhereIsRefused()
{
    QFETCH(QByteArray, list);
    m_view->setHighlighted(true);
    QMimeData data;
    data.setData(QStringLiteral("text/uri-list"), list);
    QCOMPARE(m_view->draggingEntered(data), Qt::IgnoreAction);
    QVERIFY(!m_view->isHighlighted());
}

void TestDragDropView::leavingAndDroppingClearTheHighlight()
{
    const auto data = fileNames({QStringLiteral("/data")});
    QDragEnterEvent enter({5, 5}, Qt::CopyAction | Qt::MoveAction, data.get(), Qt::LeftButton,
                          Qt::NoModifier);
    enter.setDropAction(Qt::MoveAction);
    QApplication::sendEvent(m_view.get(), &enter);
    QCOMPARE(enter.dropAction(), Qt::CopyAction);
    QVERIFY(m_view->isHighlighted());
    QDragLeaveEvent leave;
    QApplication::sendEvent(m_view.get(), &leave);
    QVERIFY(!m_view->isHighlighted());

    m_view->setHighlighted(true);
    QVERIFY(perform({QStringLiteral("/data")}));
    QVERIFY(!m_view->isHighlighted());
}

void TestDragDropView::highlightIsDrawn()
{
    m_view->resize(400, 200);
    const QImage plain = m_view->grab().toImage();
    m_view->setHighlighted(true);
    const QImage highlighted = m_view->grab().toImage();
    const QColor colour = m_view->palette().color(QPalette::Highlight);
    QVERIFY(plain.pixelColor(200, 3) != colour);
    for (const int y : {1, 3, 5})
        QCOMPARE(highlighted.pixelColor(200, y), colour);
    QCOMPARE(highlighted.pixelColor(200, 8), plain.pixelColor(200, 8));
    QCOMPARE(highlighted.pixelColor(200, 100), plain.pixelColor(200, 100));
}

void TestDragDropView::imageFollowsTheState_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("image");
    const QString drag = QStringLiteral("DragImage.png");
    QTest::newRow("off") << 0 << drag;
    QTest::newRow("on") << 1 << QStringLiteral("LutImage.png");
    QTest::newRow("mixed") << -1 << drag;
    QTest::newRow("two") << 2 << drag;
}

void TestDragDropView::imageFollowsTheState()
{
    QFETCH(int, state);
    QFETCH(QString, image);
    m_view->setImageForLUTcheckboxState(state);
    QCOMPARE(m_view->imageName(), image);
    QCOMPARE(m_view->accessibleDescription(), QStringLiteral("anonymize"));
}

void TestDragDropView::wordsSayWhatADropWillDo()
{
    m_view->resize(400, 200);
    const auto words = [this] { return m_view->grab({20, 10, 360, 20}).toImage(); };
    const QImage anonymize = words();
    m_view->setConstructing(true);
    QCOMPARE(m_view->accessibleDescription(), QStringLiteral("construct look-up table"));
    QVERIFY(words() != anonymize);
    QCOMPARE(m_view->imageName(), QStringLiteral("DragImage.png"));
    m_view->setConstructing(false);
    QCOMPARE(m_view->accessibleDescription(), QStringLiteral("anonymize"));
    QCOMPARE(words(), anonymize);
}

void TestDragDropView::askingForPathsIsLikeADrop_data()
{
    QTest::addColumn<int>("key"); // 0: a click
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("handedOn");
    const QString folder = QStringLiteral("/data/study #1");
    QTest::newRow("a click") << 0 << folder << true;
    QTest::newRow("Space") << int(Qt::Key_Space) << folder << true;
    QTest::newRow("Return") << int(Qt::Key_Return) << folder << true;
    QTest::newRow("Enter") << int(Qt::Key_Enter) << folder << true;
    QTest::newRow("a single picture does nothing") << 0 << QStringLiteral("/data/a.png") << false;
}

void TestDragDropView::askingForPathsIsLikeADrop()
{
    QFETCH(int, key);
    QFETCH(QString, path);
    QFETCH(bool, handedOn);
    if (key == 0)
        QTest::mouseClick(m_view.get(), Qt::LeftButton);
    else
        QTest::keyClick(m_view.get(), Qt::Key(key));
    auto *const dialog = m_view->findChild<QFileDialog *>();
    QVERIFY(dialog);
    QCOMPARE(dialog->fileMode(), QFileDialog::Directory);
    QVERIFY(m_delegate.drops.isEmpty());
    Q_EMIT dialog->filesSelected({path});
    QCoreApplication::processEvents();
    QCOMPARE(m_delegate.drops, handedOn ? QList<QStringList>{{path}} : QList<QStringList>());
}

void TestDragDropView::isAButtonToAScreenReader()
{
    QAccessibleInterface *const interface = QAccessible::queryAccessibleInterface(m_view.get());
    QCOMPARE(interface->role(), QAccessible::PushButton);
    QCOMPARE(interface->text(QAccessible::Description), QStringLiteral("anonymize"));
    interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QTRY_VERIFY(m_view->findChild<QFileDialog *>());
}

} // namespace

DRAVOLIN_TEST(TestDragDropView)
#include "tst_dragdropview.moc"
