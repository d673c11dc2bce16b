#pragma once

#include "app/SkeldonApp.h"
#include "base/CalendarTime.h"
#include "data/MeasureData.h"

#include <QString>

#include <cstddef>

namespace skeldon {

/// The columns of the measured list, in their order.
enum class ListColumn
{
    Number,
    Date,
    Time,
    X,
    Y,
    Z,
    Resultant,
    Temperature,
    Humidity,
    Count,
};

inline constexpr int ListColumnCount = static_cast<int>(ListColumn::Count);

/// Width in pixels that a column has until the user changes it.
[[nodiscard]] int DefaultColumnWidth(ListColumn column);

/// A stored width where it is one that a column can be seen and taken hold of with, else the
/// default.
[[nodiscard]] int UsableColumnWidth(ListColumn column, int stored);

/// Texts of the measured list's cells, on the screen and on paper. All end in one blank, which is
/// their right margin too. Not for use by two threads at once.
class CListText
{
public:
    CListText() = default;
    /// Accelerations are shown in `unit`: G as stored, or times 9.8 or 980.
    explicit CListText(DispUnit unit);

    /// The cell of the line at `row`. Temperature and humidity are empty where `data` has none.
    [[nodiscard]] QString CellText(const CMeasureData& data, std::size_t row, ListColumn column);

private:
    [[nodiscard]] QString Acceleration(double value) const;

    DispUnit m_unit = DispUnit::G;
    CLocalCalendar m_calendar;
};

} // namespace skeldon
