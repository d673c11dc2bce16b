#pragma once

#include <QAccessible>
#include <QImage>
#include <QWidget>

#include <memory>

namespace skeldon::test {

/// What a widget paints at its own pixel ratio, over magenta.
[[nodiscard]] QImage Painted(QWidget& widget);

/// Number of pixels of `colour` in a part of an image.
[[nodiscard]] int CountPixels(const QImage& image, const QRect& part, QRgb colour);

/// A text of the widget as screen readers get it.
[[nodiscard]] QString AccessibleText(QWidget& widget, QAccessible::Text kind);
[[nodiscard]] QAccessible::Role AccessibleRoleOf(QWidget& widget);

/// Shows the widget as the active window.
[[nodiscard]] bool ShowActive(QWidget& widget);

} // namespace skeldon::test
