#pragma once

#include "controls/LcdPanel.h"

namespace skeldon {

/// The read-out of the recording interval.
class CIntervalPanel : public CLcdPanel
{
    Q_OBJECT

public:
    explicit CIntervalPanel(QWidget* parent = nullptr);

    /// Shows the length of a row of `IntervalTable`, with the display of its unit.
    void SetRow(int row);
};

} // namespace skeldon
