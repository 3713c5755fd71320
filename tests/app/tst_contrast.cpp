#include "app/Contrast.h"
#include "app/OutlineStyle.h"
#include "app/QVDragDropView.h"
#include "app/StatusIcon.h"
#include "support/TestEntry.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>

#include <algorithm>

using namespace dravolin;

namespace {

QPalette darkPalette()
{
    QPalette palette(QColor(0x35, 0x35, 0x35), QColor(0x2d, 0x2d, 0x2d));
    palette.setColor(QPalette::Base, QColor(0x1e, 0x1e, 0x1e));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x50, 0x50, 0x50));
    return palette;
}

// The strongest contrast of the pixels of a line to what is left of it.
double strongest(const QImage &picture, QPoint from, QPoint step, int pixels)
{
    const QColor ground = picture.pixelColor(from);
    double most = 1;
    for (int i = 1; i < pixels; ++i)
        most = std::max(most, contrast(picture.pixelColor(from + i * step), ground));
    return most;
}

} // namespace

// Measured from palettes and from pictures, light and dark.
class TestContrast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void contrastOfKnownPairs();
    void movesAColourNoFurtherThanNeeded();
    void textsAreReadable_data() { palettes(); }
    void textsAreReadable();
    void bordersStandOut_data() { palettes(); }
    void bordersStandOut();
    void edgesOfControlsStandOut_data() { palettes(); }
    void edgesOfControlsStandOut();
    void theDropAreasBorderStandsOut_data() { palettes(); }
    void theDropAreasBorderStandsOut();
    void aDisabledPopUpCanBeRead_data() { palettes(); }
    void aDisabledPopUpCanBeRead();
    void iconsAndTheirLabelsAreReadable_data() { palettes(); }
    void iconsAndTheirLabelsAreReadable();
    void aMarkedFieldDiffers();
    void cleanup() { QApplication::setPalette(QPalette()); }

private:
    static void palettes()
    {
        QTest::addColumn<QPalette>("palette");
        QTest::newRow("light") << QApplication::style()->standardPalette();
        QTest::newRow("dark") << darkPalette();
    }
    // The application gets the row's palette as a desktop's theme would give it.
    static QPalette usePalette()
    {
        QFETCH(QPalette, palette);
        QApplication::style()->polish(palette);
        QApplication::setPalette(palette);
        return palette;
    }
};

void TestContrast::initTestCase()
{
    QApplication::setStyle(QStringLiteral("fusion"));
    QApplication::setStyle(new OutlineStyle);
}

void TestContrast::contrastOfKnownPairs()
{
    QCOMPARE(contrast(Qt::black, Qt::white), 21.0);
    QCOMPARE(contrast(Qt::white, Qt::black), 21.0);
    QCOMPARE(contrast(Qt::red, Qt::red), 1.0);
    QVERIFY(qAbs(contrast(QColor(0x77, 0x77, 0x77), Qt::white) - 4.48) < 0.01);
}

void TestContrast::movesAColourNoFurtherThanNeeded()
{
    QCOMPARE(readable(Qt::black, Qt::white), QColor(Qt::black));
    QCOMPARE(readable(QColor(0x70, 0x70, 0x70), Qt::white), QColor(0x70, 0x70, 0x70));
    const QColor moved = readable(QColor(0xb0, 0xb0, 0xb0), Qt::white);
    QVERIFY(contrast(moved, Qt::white) >= 4.5 && contrast(moved, Qt::white) < 5);
    const QColor halfBlack(0, 0, 0, 128);
    QCOMPARE(readable(halfBlack, Qt::white, 2).alpha(), 255);
    QCOMPARE(readable(Qt::gray, Qt::gray, 21), QColor(Qt::black)); // nothing reaches it
}

void TestContrast::textsAreReadable()
{
    const QPalette palette = usePalette();
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const auto of = [&](QPalette::ColorRole one, QPalette::ColorRole other) {
            return contrast(palette.color(group, one), palette.color(group, other));
        };
        QVERIFY(of(QPalette::WindowText, QPalette::Window) >= textContrast);
        QVERIFY(of(QPalette::Text, QPalette::Base) >= textContrast);
        QVERIFY(of(QPalette::ButtonText, QPalette::Button) >= textContrast);
        QVERIFY(of(QPalette::PlaceholderText, QPalette::Base) >= textContrast);
        QVERIFY(of(QPalette::HighlightedText, QPalette::Highlight) >= textContrast);
        QVERIFY(of(QPalette::ToolTipText, QPalette::ToolTipBase) >= textContrast);
    }
}

void TestContrast::bordersStandOut()
{
    const QPalette palette = usePalette();
    for (const QColor &edge : {borderColour(palette), focusColour(palette)}) {
        QVERIFY(contrast(edge, palette.color(QPalette::Window)) >= borderContrast);
        QVERIFY(contrast(edge, palette.color(QPalette::Base)) >= borderContrast);
    }
}

void TestContrast::edgesOfControlsStandOut()
{
    usePalette();
    QWidget window;
    QLineEdit edit(&window);
    QCheckBox box(&window);
    QComboBox popup(&window);
    QPushButton button(&window);
    QProgressBar bar(&window);
    const QList<QWidget *> controls = {&edit, &box, &popup, &button, &bar};
    for (int i = 0; i < controls.size(); ++i)
        controls.at(i)->setGeometry(20, 10 + 40 * i, 100, 24);
    window.resize(200, 220);
    window.ensurePolished();
    const QImage picture = window.grab().toImage();
    for (QWidget *control : controls) {
        const QPoint beside(10, control->geometry().center().y() - 4);
        QVERIFY2(strongest(picture, beside, {1, 0}, 14) >= borderContrast,
                 control->metaObject()->className());
    }
}

void TestContrast::theDropAreasBorderStandsOut()
{
    usePalette();
    QVDragDropView view;
    view.resize(300, 200);
    const QImage picture = view.grab().toImage();
    // dashes: on the best of some rows there is one
    double most = 1;
    for (int y = 60; y < 90; ++y)
        most = std::max(most, strongest(picture, {6, y}, {-1, 0}, 6));
    QVERIFY2(most >= borderContrast, qPrintable(QString::number(most)));
}

void TestContrast::aDisabledPopUpCanBeRead()
{
    usePalette();
    QComboBox popup;
    popup.addItem(QStringLiteral("HHHHHH"));
    popup.setEnabled(false);
    popup.resize(160, 26);
    const QImage picture = popup.grab().toImage();
    double most = 1;
    for (int y = 6; y < 20; ++y)
        most = std::max(most, strongest(picture, {100, y}, {-1, 0}, 95));
    QVERIFY2(most >= textContrast, qPrintable(QString::number(most)));
}

void TestContrast::iconsAndTheirLabelsAreReadable()
{
    using Kind = StatusIcon::Kind;
    const QColor ground = usePalette().color(QPalette::Window);
    QLabel label;
    StatusIcon icon;
    icon.setLabel(&label);
    for (const Kind kind : {Kind::Done, Kind::Attention, Kind::Errors, Kind::Refused}) {
        icon.setKind(kind);
        QVERIFY(contrast(label.palette().color(QPalette::WindowText), ground) >= textContrast);
        QVERIFY(strongest(icon.grab().toImage(), {0, 0}, {1, 1}, icon.sizeHint().width()) >= textContrast);
    }
    icon.setKind(Kind::None);
    QCOMPARE(label.palette().color(QPalette::WindowText),
             QApplication::palette().color(QPalette::WindowText));
}

void TestContrast::aMarkedFieldDiffers()
{
    QLineEdit edit;
    const QImage plain = edit.grab().toImage();
    edit.setProperty(markedProperty, true);
    QVERIFY(edit.grab().toImage() != plain);
}

DRAVOLIN_TEST(TestContrast)
#include "tst_contrast.moc"
