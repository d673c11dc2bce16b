// A window of the toolkit with nothing in it, for comparison.
#include <QApplication>
#include <QMainWindow>
#include <QSvgRenderer>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const QSvgRenderer renderer; // the same modules as the program's
    QMainWindow window;
    window.setWindowTitle(QStringLiteral("empty-window"));
    window.resize(744, 500);
    window.show();
    return QApplication::exec();
}
