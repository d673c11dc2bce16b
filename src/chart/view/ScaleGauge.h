#pragma once

#include "app/MeasureGraph.h"
#include "chart/model/GaugeTrack.h"

#include <QWidget>

namespace skeldon {

/// The vertical slider at the chart's left edge, with one tick for each scale step. The track is
/// the chart's: this is its picture, and the mouse's and keyboard's way to it.
class CChartScaleGauge : public QWidget
{
    Q_OBJECT

public:
    /// `track` must outlive the gauge.
    CChartScaleGauge(CGaugeTrack& track, QWidget* parent);

signals:
    /// The user chose a step, which may be the present one; `code` is always `ScaleStep`.
    void MeasureGraph(skeldon::MeasureGraphCode code, int argument);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    CGaugeTrack& m_track;
};

} // namespace skeldon
