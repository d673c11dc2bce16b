#pragma once

#include <QRect>

class QColor;
class QPainter;

namespace skeldon {

/// Fills a line, a rectangle in logical pixels of which one side is 1. Whatever the pixel ratio and
/// wherever it stands, the line is crisp, and as thick as all others: as many device pixels as the
/// ratio has wholes, at least one. For painters that only move and scale.
void FillLine(QPainter& painter, const QRect& line, const QColor& colour);

} // namespace skeldon
