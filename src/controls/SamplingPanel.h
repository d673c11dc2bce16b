#pragma once

#include "controls/LcdPanel.h"

namespace skeldon {

/// The read-out of the sampling period.
class CSamplingPanel : public CLcdPanel
{
    Q_OBJECT

public:
    explicit CSamplingPanel(QWidget* parent = nullptr);

    /// Shows the period of a row of `SamplingTable`, with the display of its trace mode.
    void SetRow(int row);
};

} // namespace skeldon
