#pragma once

#include "dataview/DataViewLayout.h"
#include "resources/Commands.h"
#include "resources/Pictures.h"
#include "resources/StringTable.h"

#include <cstdint>
#include <span>

namespace skeldon {

/// What a button of the data view shows, gives and remembers.
struct ButtonForm
{
    DataViewButton button = DataViewButton::Count;
    CommandId command = CommandId::None;
    PictureId picture = PictureId::Count;
    StringId caption = StringId::Count;
    StringId name = StringId::Count; ///< for screen readers and as a tool tip
    std::uint16_t series = 0;        ///< bit of the chart's series; 0 of any other button
    const char* shownKey = nullptr;  ///< of a series: where its being shown is remembered

    [[nodiscard]] bool IsSeries() const { return series != 0; }
    /// An axis: its picture is its letter.
    [[nodiscard]] bool IsAxis() const { return IsSeries() && caption == name; }
};

/// All buttons in the order of `DataViewButton`.
[[nodiscard]] std::span<const ButtonForm> ButtonForms();

} // namespace skeldon
