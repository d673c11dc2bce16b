#pragma once

#include <QColor>
#include <QFont>
#include <QString>

namespace skeldon {

/// A caption as it can be drawn in a given width.
struct FittedCaption
{
    QString text; ///< the whole caption, or its beginning with an ellipsis
    QFont font;
};

/// Fits a caption into `width` logical pixels: with the given font if it goes in, with one up to
/// two pixels smaller if that helps, else shortened with an ellipsis.
[[nodiscard]] FittedCaption FitCaption(const QString& text, const QFont& font, int width);

/// Dark or light ink, whichever reads better on `back`. Faint ink, for what can not be used now,
/// is nearer to the background and can still be read.
[[nodiscard]] QColor InkOn(const QColor& back, bool isFaint = false);

/// Contrast of two colours from 1, none, to 21, black on white.
[[nodiscard]] double Contrast(const QColor& a, const QColor& b);

} // namespace skeldon
