// The least that a Qt program with a window does.
#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
    const QApplication qt(argc, argv);
    QWidget fenster;
    fenster.resize(900, 620);
    fenster.show();
    return QApplication::exec();
}
