#pragma once

#include "chart/model/Series.h"
#include "chart/model/platform/SixValues.h"
#include "data/MeasureRecord.h"

#include <array>
#include <cstddef>

namespace skeldon {

// The six quantities of a line all at once, in the order in which they lie in the record: pictures
// and extremes of a million lines are made of nothing else.

static_assert(CSixValues::Count == SeriesCount);
static_assert(offsetof(CMeasureRecord, m_resultant) ==
              offsetof(CMeasureRecord, m_x) + (SeriesCount - 1) * sizeof(double));

/// Where the quantity of `series` stands.
[[nodiscard]] constexpr std::size_t FieldOf(Series series)
{
    constexpr std::array<std::size_t, SeriesCount> Fields{0, 1, 2, 5, 3, 4};
    return Fields[Index(series)];
}

/// The quantities as they are, in the record's own units.
[[nodiscard]] inline CSixValues FieldValues(const CMeasureRecord& line)
{
    const auto* const bytes = reinterpret_cast<const std::byte*>(&line);
    return CSixValues::Loaded(bytes + offsetof(CMeasureRecord, m_x));
}

/// The same as they are drawn: what is no number counts as 0.
[[nodiscard]] inline CSixValues DrawableFields(const CMeasureRecord& line)
{
    return FieldValues(line).OrZero();
}

/// The factors to the value axis.
[[nodiscard]] inline CSixValues FieldFactors()
{
    static constexpr auto Factors = [] {
        std::array<double, SeriesCount> factors{};
        for (const Series series : AllSeries)
            factors[FieldOf(series)] = Info(series).factor;
        return factors;
    }();
    return CSixValues::Loaded(Factors.data());
}

} // namespace skeldon
