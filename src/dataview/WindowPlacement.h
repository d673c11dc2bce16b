#pragma once

#include <QPoint>
#include <QRect>

#include <span>

namespace skeldon {

class CSettings;
enum class ViewIndex;

/// Where a view's window stands, as it is remembered.
struct WindowPlacement
{
    static constexpr int Normal = 1;
    static constexpr int Maximised = 3;

    int length = 44; ///< of the record that older programs keep it in
    int flags = 0;
    int showCommand = Normal;
    QPoint minimised{-1, -1}; ///< where the icon stands; window systems of today do not tell
    QPoint maximised{-1, -1};
    QRect normal; ///< top left corner of the window with its frame, size without it
};

/// The placement stored for a view; what is not stored is taken from `current`.
[[nodiscard]] WindowPlacement ReadPlacement(const CSettings& settings, ViewIndex view,
                                            const WindowPlacement& current);
void WritePlacement(CSettings& settings, ViewIndex view, const WindowPlacement& placement);

/// `rect` where its title can be seen and taken hold of on one of the `screens`, and no larger than
/// all of them together; else moved to the first, and no larger than that one.
[[nodiscard]] QRect OnScreens(const QRect& rect, std::span<const QRect> screens);

} // namespace skeldon
