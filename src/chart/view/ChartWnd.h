#pragma once

#include "app/MeasureGraph.h"
#include "data/MeasureData.h"

#include <QWidget>

#include <cstdint>

namespace skeldon {

/// The measured result as a picture below the list.
class CChartWnd : public QWidget
{
    Q_OBJECT

public:
    explicit CChartWnd(QWidget* parent = nullptr);

    /// Ties the chart to the data set, which must outlive it.
    void Attach(const CMeasureData& measured);
    /// After a load or a clear.
    void ResetData();
    /// Shows or hides the series of a mask of `RecordFlag` hit bits.
    void SetSeriesShown(std::uint16_t mask, bool shown);

    [[nodiscard]] bool CanRedraw() const { return m_data != nullptr; }
    /// Whether the first change of time between neighbouring lines is an increase.
    [[nodiscard]] bool HasRisingTime() const;
    [[nodiscard]] bool IsAtMaxZoom() const { return false; }
    [[nodiscard]] bool HasZoomHistory() const { return false; }
    bool BeginAreaSelection() { return false; }
    void CancelAreaSelection() {}
    void OnMeasureGraph(MeasureGraphCode code, int argument);

signals:
    void MeasureGraph(skeldon::MeasureGraphCode code, int argument);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const CMeasureData* m_data = nullptr;
    std::uint16_t m_shown = RecordFlag::Extracted;
    int m_currentLine = -1;
};

} // namespace skeldon
