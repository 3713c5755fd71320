// The least that a program with a window of this toolkit can be; bench_window measures the application beside
// it.
#include <QApplication>
#include <QScreen>
#include <QWidget>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QWidget window;
    window.resize(640, 600);
    window.move(window.screen()->availableGeometry().center() - window.rect().center());
    window.show();
    return QApplication::exec();
}
