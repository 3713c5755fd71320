// A window of this toolkit that says one word; with the argument "empty" it says nothing. bench_window
// measures the application beside it.
#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QWidget>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QWidget window;
    window.resize(640, 600);
    if (argc == 1)
        new QLabel(QStringLiteral("Window"), &window);
    window.move(window.screen()->availableGeometry().center() - window.rect().center());
    window.show();
    return QApplication::exec();
}
