// Writes all pictures on sheets, one for each pixel ratio on each colour of the forms, to be looked
// at by whoever changes one: picture-sheet FOLDER

#include "resources/Pictures.h"

#include <QDir>
#include <QGuiApplication>
#include <QPainter>

#include <algorithm>
#include <cstdio>
#include <vector>

using namespace skeldon;

namespace {

constexpr int SheetWidth = 640;
constexpr int Space = 8;

struct Place
{
    PictureId id;
    QPoint at;
};

/// Rows of pictures, each as high as its highest; the height of all comes back in `height`.
std::vector<Place> Arrange(int& height)
{
    std::vector<Place> places;
    QPoint at(Space, Space);
    int row = 0;
    for (int i = 0; i < static_cast<int>(PictureId::Count); ++i) {
        const auto id = static_cast<PictureId>(i);
        const QSize size = PictureSize(id);
        if (at.x() + size.width() + Space > SheetWidth) {
            at = QPoint(Space, at.y() + row + Space);
            row = 0;
        }
        places.push_back({id, at});
        at.rx() += size.width() + Space;
        row = std::max(row, size.height());
    }
    height = at.y() + row + Space;
    return places;
}

bool WriteSheet(const QString& folder, double ratio, const QColor& form)
{
    int height = 0;
    const std::vector<Place> places = Arrange(height);
    QImage sheet(QSize(SheetWidth, height) * ratio, QImage::Format_RGB32);
    sheet.setDevicePixelRatio(ratio);
    sheet.fill(form);
    QPainter painter(&sheet);
    for (const Place& place : places)
        painter.drawImage(place.at, Picture(place.id, ratio));
    painter.end();
    return sheet.save(QStringLiteral("%1/pictures-%2-%3.png")
                          .arg(folder, form.name().mid(1))
                          .arg(static_cast<int>(ratio * 100)));
}

} // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    if (argc != 2 || !QDir().mkpath(QString::fromLocal8Bit(argv[1]))) {
        std::fputs("usage: picture-sheet FOLDER\n", stderr);
        return 2;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]);
    for (const double ratio : {1.0, 1.5, 2.0}) {
        for (const QColor& form : {QColor(0xEC, 0xE9, 0xD8), QColor(0xD4, 0xD0, 0xC8)}) {
            if (!WriteSheet(folder, ratio, form)) {
                std::fputs("picture-sheet: cannot write\n", stderr);
                return 1;
            }
        }
    }
    return 0;
}
