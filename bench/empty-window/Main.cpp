// A window of the toolkit with nothing in it, for comparison.
#include <QApplication>
#include <QMainWindow>
#include <QPrintDialog>
#include <QSvgRenderer>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    // The same modules as the program's.
    const QSvgRenderer renderer;
    QMainWindow window;
    window.setObjectName(QLatin1String(QPrintDialog::staticMetaObject.className()));
    window.setWindowTitle(QStringLiteral("empty-window"));
    window.resize(744, 500);
    window.show();
    return QApplication::exec();
}
