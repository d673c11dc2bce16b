#pragma once

#include "app/Colour.h"

#include <QFont>
#include <QImage>
#include <QPainter>
#include <QString>

#include <optional>

namespace skeldon {

/// What all painting of the chart goes through, so that the same painter serves the screen at any
/// pixel ratio, a picture and paper: each coordinate is multiplied by a factor and rounded to a
/// device pixel.
class CScaledPainter
{
public:
    /// Which end of a vertical text its place is.
    enum class Vertical
    {
        Centred = 0,  ///< centred on the row
        Downward = 1, ///< starts at the row and runs down
        Upward = 2,   ///< ends at the row and runs up from it
        Column = 3,   ///< centred on the column, starts at the row and runs down
    };

    /// Paints on `target`, which must outlive the painter. `font` has the size that it has at a
    /// factor of 1.
    CScaledPainter(QImage& target, const QFont& font, double scaleX, double scaleY);
    /// Paints with `painter`, whose coordinates are device pixels.
    CScaledPainter(QPainter& painter, const QFont& font, double scaleX, double scaleY);

    void FillRectScaled(int left, int top, int right, int bottom, ColourRef colour);
    /// One line of text, not clipped, at the left or right side and in the middle of the height.
    void DrawTextScaled(const QString& text, int left, int top, int right, int bottom,
                        Qt::AlignmentFlag side, ColourRef colour);
    /// The same, in letters as narrow as it takes to stay within the rectangle.
    void DrawFittedText(const QString& text, int left, int top, int right, int bottom,
                        Qt::AlignmentFlag side, ColourRef colour);
    /// Text that reads upward, on a white ground that wipes what lies under it. Gives its length
    /// before scaling.
    int DrawRotatedText(int x, int y, Vertical alignment, const QString& text, ColourRef colour);
    /// A veil of `colour` over an area, `alpha` of 255.
    void BlendRectScaled(int left, int top, int right, int bottom, ColourRef colour, int alpha);

    /// Length in device pixels of level text in the present font.
    [[nodiscard]] int TextWidth(const QString& text) const;

    [[nodiscard]] double ScaleX() const { return m_scaleX; }
    [[nodiscard]] double ScaleY() const { return m_scaleY; }
    [[nodiscard]] int DeviceX(int x) const;
    [[nodiscard]] int DeviceY(int y) const;
    [[nodiscard]] QPainter& Painter() { return *m_painter; }

private:
    void TakeFont(const QFont& font);
    [[nodiscard]] QRect DeviceRect(int left, int top, int right, int bottom) const;
    void DrawStretched(const QRect& place, double stretch, Qt::Alignment side, const QString& text);

    double m_scaleX;
    double m_scaleY;
    std::optional<QPainter> m_own; ///< where the target is a picture
    QPainter* m_painter;
    QFont m_rotatedFont; ///< of vertical text, whose height goes by the columns
};

} // namespace skeldon
