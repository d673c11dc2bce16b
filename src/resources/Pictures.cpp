#include "resources/Pictures.h"

#include <QFile>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <mutex>
#include <utility>

namespace skeldon {

namespace {

struct Source
{
    PictureId id;
    const char* file; ///< name without folder and extension
    int width;
    int height;
};

constexpr int IconSize = 16;
constexpr int CursorSize = 32;

constexpr std::array<Source, static_cast<std::size_t>(PictureId::Count)> Sources{{
    {PictureId::ButtonFaces, "button-faces", 40, 168},
    {PictureId::LcdBack, "lcd-back", 96, 42},
    {PictureId::LcdBackTall, "lcd-back-tall", 96, 54},
    {PictureId::LcdDigits, "lcd-digits", 88, 20},
    {PictureId::LcdRecords, "lcd-records", 80, 20},
    {PictureId::LcdSampling, "lcd-sampling", 80, 32},
    {PictureId::LcdSamplingTrace, "lcd-sampling-trace", 80, 32},
    {PictureId::LcdIntervalMinutes, "lcd-interval-minutes", 80, 20},
    {PictureId::LcdIntervalSeconds, "lcd-interval-seconds", 80, 20},
    {PictureId::LcdThreshold, "lcd-threshold", 80, 20},
    {PictureId::LcdId, "lcd-id", 80, 20},
    {PictureId::LcdOff, "lcd-off", 80, 20},
    {PictureId::LcdOn, "lcd-on", 80, 20},
    {PictureId::LcdStartOption, "lcd-start-option", 80, 20},
    {PictureId::SpinUp, "spin-up", 11, 9},
    {PictureId::SpinDown, "spin-down", 11, 9},
    {PictureId::SpinReset, "spin-reset", 11, 9},
    {PictureId::Recorder, "recorder", 180, 160},
    {PictureId::Connection, "connection", 96, 28},
    {PictureId::Progress, "progress", 36, 48},
    {PictureId::About, "about", 480, 300},
    {PictureId::IconOpen, "icon-open", IconSize, IconSize},
    {PictureId::IconSave, "icon-save", IconSize, IconSize},
    {PictureId::IconPrint, "icon-print", IconSize, IconSize},
    {PictureId::IconGetData, "icon-get-data", IconSize, IconSize},
    {PictureId::IconOnline, "icon-online", IconSize, IconSize},
    {PictureId::IconSetup, "icon-setup", IconSize, IconSize},
    {PictureId::IconSwatch, "icon-swatch", IconSize, IconSize},
    {PictureId::IconX, "icon-x", IconSize, IconSize},
    {PictureId::IconY, "icon-y", IconSize, IconSize},
    {PictureId::IconZ, "icon-z", IconSize, IconSize},
    {PictureId::IconZoomIn, "icon-zoom-in", IconSize, IconSize},
    {PictureId::IconZoomOut, "icon-zoom-out", IconSize, IconSize},
    {PictureId::IconProperties, "icon-properties", IconSize, IconSize},
    {PictureId::IconStartPrompt, "icon-start-prompt", IconSize, IconSize},
    {PictureId::IconStartReserved, "icon-start-reserved", IconSize, IconSize},
    {PictureId::IconAdd, "icon-add", IconSize, IconSize},
    {PictureId::IconUpdate, "icon-update", IconSize, IconSize},
    {PictureId::IconDelete, "icon-delete", IconSize, IconSize},
    {PictureId::IconReceive, "icon-receive", IconSize, IconSize},
    {PictureId::IconProfile, "icon-profile", IconSize, IconSize},
    {PictureId::IconTemplate, "icon-template", IconSize, IconSize},
    {PictureId::IconChange, "icon-change", IconSize, IconSize},
    {PictureId::IconRestore, "icon-restore", IconSize, IconSize},
    {PictureId::IconWizard, "icon-wizard", IconSize, IconSize},
    {PictureId::IconCancel, "icon-cancel", IconSize, IconSize},
    {PictureId::IconSwatchOutline, "icon-swatch-outline", IconSize, IconSize},
    {PictureId::IconXOutline, "icon-x-outline", IconSize, IconSize},
    {PictureId::IconYOutline, "icon-y-outline", IconSize, IconSize},
    {PictureId::IconZOutline, "icon-z-outline", IconSize, IconSize},
    {PictureId::SpinUpPushed, "spin-up-pushed", 11, 9},
    {PictureId::SpinDownPushed, "spin-down-pushed", 11, 9},
    {PictureId::SpinResetPushed, "spin-reset-pushed", 11, 9},
    {PictureId::GaugeThumb, "gauge-thumb", 12, 24},
    {PictureId::CursorSplitter, "cursor-splitter", CursorSize, CursorSize},
    {PictureId::CursorAreaOff, "cursor-area-off", CursorSize, CursorSize},
    {PictureId::CursorAreaOn, "cursor-area-on", CursorSize, CursorSize},
    {PictureId::CursorAreaDrag, "cursor-area-drag", CursorSize, CursorSize},
    {PictureId::Cable, "cable", 32, 32},
    {PictureId::OnlineBack, "online-back", 216, 92},
    {PictureId::AppIcon, "app-icon", 48, 48},
    {PictureId::AppIconSmall, "app-icon-small", 16, 16},
}};

constexpr bool InOrder()
{
    for (std::size_t i = 0; i < Sources.size(); ++i) {
        if (Sources[i].id != static_cast<PictureId>(i))
            return false;
    }
    return true;
}
static_assert(InOrder(), "each picture has its source, in the order of the identifiers");

const Source* SourceOf(PictureId id)
{
    const auto index = static_cast<std::size_t>(id);
    return index < Sources.size() ? &Sources[index] : nullptr;
}

/// What has frames, bars or letters of single pixels has a second source for 1.5 device pixels per
/// logical pixel, drawn on that grid; it stands beside the first.
QString PathOf(const Source& source, double ratio)
{
    const QString stem = QStringLiteral(":/pictures/") + QLatin1String(source.file);
    QString fitted = stem + QStringLiteral("@1.5x.svg");
    if (ratio == 1.5 && QFile::exists(fitted))
        return fitted;
    return stem + QStringLiteral(".svg");
}

QImage Render(const Source& source, QSize pixels, double ratio)
{
    QSvgRenderer renderer(PathOf(source, ratio));
    if (!renderer.isValid())
        return {};
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return {};
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter, QRectF(QPointF(), QSizeF(pixels)));
    painter.end();
    image.setDevicePixelRatio(ratio);
    return image;
}

int NearestEdge(double position)
{
    return static_cast<int>(std::floor(position + 0.5));
}

constexpr std::array IconSizes{16, 22, 24, 32, 48, 64, 128, 256};

QImage IconPicture(int size)
{
    constexpr int SmallestLarge = 24;
    const PictureId id = size < SmallestLarge ? PictureId::AppIconSmall : PictureId::AppIcon;
    return Picture(id, static_cast<double>(size) / PictureSize(id).width());
}

PictureId OutlineOf(PictureId id)
{
    switch (id) {
    case PictureId::IconX:
        return PictureId::IconXOutline;
    case PictureId::IconY:
        return PictureId::IconYOutline;
    case PictureId::IconZ:
        return PictureId::IconZOutline;
    case PictureId::IconSwatch:
        return PictureId::IconSwatchOutline;
    default:
        return PictureId::Count;
    }
}

} // namespace

QSize PictureSize(PictureId id)
{
    const Source* source = SourceOf(id);
    return source != nullptr ? QSize(source->width, source->height) : QSize();
}

QRect PicturePixels(const QRect& part, double ratio)
{
    const int left = NearestEdge(part.x() * ratio);
    const int top = NearestEdge(part.y() * ratio);
    const int right = NearestEdge((part.x() + part.width()) * ratio);
    const int bottom = NearestEdge((part.y() + part.height()) * ratio);
    return {left, top, right - left, bottom - top};
}

QImage Picture(PictureId id, double ratio)
{
    static std::mutex guard;
    static std::map<std::pair<PictureId, double>, QImage> drawn;

    const Source* source = SourceOf(id);
    if (source == nullptr || !(ratio > 0))
        return {};
    const std::pair key(id, ratio);
    {
        const std::lock_guard lock(guard);
        const auto found = drawn.find(key);
        if (found != drawn.end())
            return found->second;
    }
    // Drawn outside the lock: a window never waits for a picture that another thread prepares.
    const QSize pixels = PicturePixels(QRect(QPoint(), PictureSize(id)), ratio).size();
    QImage image = Render(*source, pixels, ratio);
    const std::lock_guard lock(guard);
    return drawn.try_emplace(key, std::move(image)).first->second;
}

void PreparePictures(double ratio)
{
    for (int id = 0; id <= static_cast<int>(PictureId::Connection); ++id)
        (void)Picture(static_cast<PictureId>(id), ratio);
    for (const int size : IconSizes)
        (void)IconPicture(size);
}

QImage ColouredPicture(PictureId id, const QColor& colour, double ratio)
{
    QImage image = Picture(id, ratio);
    if (image.isNull())
        return image;
    const QRectF whole(QPointF(), PictureSize(id));
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(whole, colour);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    const QImage outline = Picture(OutlineOf(id), ratio);
    if (!outline.isNull())
        painter.drawImage(QPoint(), outline);
    return image;
}

QPoint PictureHotSpot(PictureId id)
{
    switch (id) {
    case PictureId::CursorAreaOff:
    case PictureId::CursorAreaOn:
    case PictureId::CursorAreaDrag:
        return {15, 15};
    default: {
        const QSize size = PictureSize(id);
        return {size.width() / 2, size.height() / 2};
    }
    }
}

QIcon ApplicationIcon()
{
    QIcon icon;
    for (const int size : IconSizes) {
        QImage image = IconPicture(size);
        image.setDevicePixelRatio(1);
        icon.addPixmap(QPixmap::fromImage(image));
    }
    return icon;
}

} // namespace skeldon
