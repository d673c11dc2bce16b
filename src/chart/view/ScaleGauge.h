#pragma once

#include "app/MeasureGraph.h"
#include "chart/model/GaugeTrack.h"
#include "controls/AccessibleFace.h"

#include <QWidget>

#include <utility>

namespace skeldon {

/// The vertical slider at the chart's left edge, with one tick for each scale step. The track is
/// the chart's: this is its picture, and the mouse's and keyboard's way to it. The arrow keys move
/// it by a step, Home and End to the coarsest and the finest one.
class CChartScaleGauge : public QWidget, public CAccessibleFace
{
    Q_OBJECT

public:
    /// `track` must outlive the gauge.
    CChartScaleGauge(CGaugeTrack& track, QWidget* parent);

    /// Shows the track's step if another one was shown.
    void ShowStep();

    [[nodiscard]] QAccessible::Role AccessibleRole() const override;
    /// The step, counted from 1, and their number.
    [[nodiscard]] QString AccessibleValue() const override;
    bool GaugeNumbers(int& present, int& smallest, int& largest) const override;

signals:
    /// The user chose a step, which may be the present one; `code` is always `ScaleStep`.
    void MeasureGraph(skeldon::MeasureGraphCode code, int argument);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void PaintTrack(QPainter& painter) const;
    void TellStep();

    CGaugeTrack& m_track;
    std::pair<int, unsigned> m_shown; ///< row of the thumb, and the step
};

} // namespace skeldon
