#include "dataview/WindowPlacement.h"

#include "app/Frame.h"
#include "app/Settings.h"

#include <algorithm>

namespace skeldon {

namespace {

QString SectionOf(ViewIndex view)
{
    return view == ViewIndex::Setup ? QStringLiteral("Setup2") : QStringLiteral("Display2");
}

/// What encloses all screens.
QRect Desktop(std::span<const QRect> screens)
{
    QRect desktop;
    for (const QRect& screen : screens)
        desktop |= screen;
    return desktop;
}

} // namespace

WindowPlacement ReadPlacement(const CSettings& settings, ViewIndex view,
                              const WindowPlacement& current)
{
    const QString section = SectionOf(view);
    WindowPlacement placement;
    placement.length = settings.GetInt(section, QStringLiteral("Length"), current.length);
    placement.flags = settings.GetInt(section, QStringLiteral("Flags"), current.flags);
    placement.showCommand =
        settings.GetInt(section, QStringLiteral("ShowCmd"), current.showCommand);
    placement.minimised =
        settings.GetProfilePoint(section, QStringLiteral("MinPos"), current.minimised);
    placement.maximised =
        settings.GetProfilePoint(section, QStringLiteral("MaxPos"), current.maximised);
    placement.normal =
        settings.GetProfileRect(section, QStringLiteral("NormalPos"), current.normal);
    return placement;
}

void WritePlacement(CSettings& settings, ViewIndex view, const WindowPlacement& placement)
{
    const QString section = SectionOf(view);
    settings.WriteInt(section, QStringLiteral("Length"), placement.length);
    settings.WriteInt(section, QStringLiteral("Flags"), placement.flags);
    settings.WriteInt(section, QStringLiteral("ShowCmd"), placement.showCommand);
    settings.WriteProfilePoint(section, QStringLiteral("MinPos"), placement.minimised);
    settings.WriteProfilePoint(section, QStringLiteral("MaxPos"), placement.maximised);
    settings.WriteProfileRect(section, QStringLiteral("NormalPos"), placement.normal);
}

QRect OnScreens(const QRect& rect, std::span<const QRect> screens)
{
    // As much of the title as a hand needs.
    constexpr int GripWidth = 60;
    constexpr int GripHeight = 20;
    const auto holdsGrip = [&rect](const QRect& screen) {
        const QRect shown = screen.intersected({rect.topLeft(), QSize(rect.width(), GripHeight)});
        return shown.width() >= GripWidth && shown.height() >= GripHeight;
    };
    if (screens.empty())
        return rect;
    if (std::ranges::any_of(screens, holdsGrip))
        return {rect.topLeft(), rect.size().boundedTo(Desktop(screens).size())};
    const QRect& screen = screens.front();
    const QSize size = rect.size().boundedTo(screen.size());
    const int left = std::clamp(rect.left(), screen.left(), screen.right() + 1 - size.width());
    const int top = std::clamp(rect.top(), screen.top(), screen.bottom() + 1 - size.height());
    return {QPoint(left, top), size};
}

} // namespace skeldon
