#include <QApplication>
#include <QWidget>

/// empty_window WIDTH HEIGHT: a window with nothing in it, the least that a start can be.
int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QWidget window;
    window.resize(QApplication::arguments().value(1).toInt(), QApplication::arguments().value(2).toInt());
    window.show();
    return QApplication::exec();
}
