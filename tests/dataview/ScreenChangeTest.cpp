#include "FrameApp.h"

#include <QFile>
#include <QImage>
#include <QScreen>
#include <QTest>
#include <QWindow>

#include <map>
#include <utility>

using namespace skeldon;
using namespace skeldon::test;

namespace {

/// The window as it looks where it was made, and on the other screen behind a move there.
struct Travel
{
    QImage made;
    QImage moved;
};

/// From ratio 1 to 2 and back, by the word that the program is started with.
struct Travels
{
    Travel up;
    Travel down;
};
using TravelsOfViews = std::map<QString, Travels>;

/// Two screens side by side, the first of which the window is made on.
QByteArray TwoScreens(double first, double second)
{
    const QByteArray screen = R"({"name": "%1", "x": %2, "y": 0, "width": 1600, "height": 1200,
        "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": %3})";
    QByteArray screens;
    int x = 0;
    for (const double ratio : {first, second}) {
        QByteArray one = screen;
        one.replace("%1", "at" + QByteArray::number(x)).replace("%2", QByteArray::number(x));
        screens += (x > 0 ? "," : "") + one.replace("%3", QByteArray::number(ratio));
        x += 1600;
    }
    return R"({"synchronousWindowSystemEvents": true, "windowFrameMargins": false, "screens": [)" +
           screens + "]}";
}

Travel TravelFrom(double first, double second, const QString& view, int argc, char** argv)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("screens.json"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(TwoScreens(first, second)) < 0)
        return {};
    file.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(path));
    const QApplication application(argc, argv);
    CFrameApp app;
    if (QGuiApplication::screens().size() != 2 || !app.Start({view}))
        return {};
    app.TakeLines(500);
    Travel travel;
    travel.made = app.Frame().grab().toImage();
    QScreen* const other = QGuiApplication::screens().back();
    app.Frame().move(other->geometry().topLeft() + QPoint(100, 100));
    if (QTest::qWaitFor([&] { return app.Frame().windowHandle()->screen() == other; }))
        travel.moved = app.Frame().grab().toImage();
    return travel;
}

} // namespace

/// The window that is moved between screens of different pixel ratios.
class ScreenChangeTest : public QObject
{
    Q_OBJECT

public:
    explicit ScreenChangeTest(TravelsOfViews views)
        : m_views(std::move(views))
    {}

private slots:
    void LooksAsIfMadeThere_data()
    {
        QTest::addColumn<QString>("view");
        for (const auto& [view, travels] : m_views)
            QTest::newRow(qPrintable(view)) << view;
    }

    void LooksAsIfMadeThere()
    {
        QFETCH(const QString, view);
        const Travels& travels = m_views.at(view);
        const QImage& coarse = travels.up.made;
        const QImage& fine = travels.down.made;
        QCOMPARE(coarse.devicePixelRatio(), 1.0);
        QCOMPARE(fine.devicePixelRatio(), 2.0);
        QCOMPARE(fine.size(), coarse.size() * 2);
        QCOMPARE(travels.up.moved, fine);
        QCOMPARE(travels.down.moved, coarse);
    }

private:
    const TravelsOfViews m_views;
};

int main(int argc, char** argv)
{
    TravelsOfViews views;
    for (const QString& view : {QStringLiteral("-setup"), QStringLiteral("-display")})
        views[view] = {TravelFrom(1.0, 2.0, view, argc, argv),
                       TravelFrom(2.0, 1.0, view, argc, argv)};
    ScreenChangeTest test(std::move(views));
    return QTest::qExec(&test, argc, argv);
}

#include "ScreenChangeTest.moc"
