#pragma once

#include "data/MeasureData.h"

#include <QString>

#include <optional>

namespace skeldon {

/// Under what conditions the shown data was measured. A field without a value is blank.
struct ConditionSummary
{
    std::optional<int> records;
    std::optional<int> sampling;  ///< row of `SamplingTable`
    std::optional<int> interval;  ///< row of `IntervalTable`
    std::optional<int> threshold; ///< tenths of G
    std::optional<int> hostNumber;
    std::optional<int> hazard; ///< tenths of G
    bool endless = false;
};

/// What the header of `data` tells; values that it does not know are blank.
[[nodiscard]] ConditionSummary SummaryOf(const CMeasureData& data);

/// The one line of text at the bottom of the data view.
[[nodiscard]] QString SummaryText(const ConditionSummary& summary);

} // namespace skeldon
