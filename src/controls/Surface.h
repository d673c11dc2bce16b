#pragma once

#include "app/Colour.h"
#include "controls/Theme.h"
#include "resources/Pictures.h"

#include <QImage>
#include <QRect>
#include <QSize>

class QPainter;

namespace skeldon {

/// An image in device pixels on which a control composes its face. All rectangles given are in
/// logical pixels; each edge goes to the nearest device pixel, so that parts that touch leave no
/// gap at any pixel ratio.
class CSurface
{
public:
    CSurface() = default;
    /// A transparent surface of `size` logical pixels. Throws `std::bad_alloc` where there is no
    /// memory for it.
    CSurface(QSize size, double ratio);

    /// Copies `part` of a picture to `target`, stretched where the sizes differ. Nothing where the
    /// picture could not be loaded.
    void DrawPart(const QImage& picture, const QRect& part, const QRect& target);
    /// Fills `target` with a picture that keeps its ends: `left` and `right` go to the ends of the
    /// target pixel by pixel, `middle` is stretched between them.
    void DrawStretched(const QImage& picture, const QRect& left, const QRect& middle,
                       const QRect& right, const QRect& target);
    /// Lays a tint over all that has been drawn; what is transparent stays so.
    void LayTint(const Tint& tint);
    /// The colour in the middle of `part`.
    [[nodiscard]] QColor ColourAtMiddle(const QRect& part) const;

    [[nodiscard]] bool IsNull() const { return m_image.isNull(); }
    [[nodiscard]] double Ratio() const { return m_ratio; }
    /// The image with its pixel ratio set, ready to be shown or to be drawn upon with a painter.
    [[nodiscard]] QImage& Image() { return m_image; }
    [[nodiscard]] const QImage& Image() const { return m_image; }

private:
    QImage m_image;
    double m_ratio = 1;
};

/// Multiplies each colour channel of `part`, in device pixels, by that of `colour`: white becomes
/// the colour, black stays black.
void MultiplyColour(QImage& image, const QRect& part, const QColor& colour);

} // namespace skeldon
