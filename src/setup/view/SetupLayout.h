#pragma once

#include "controls/LcdLayout.h"
#include "resources/Commands.h"
#include "resources/Pictures.h"
#include "resources/StringTable.h"

#include <QPoint>
#include <QRect>

#include <span>

namespace skeldon {

// Where everything stands on the setup view, in logical pixels of its form.

/// The read-outs; all but the number of records belong to the conditions.
enum class SetupPanel
{
    Interval,
    StartOption,
    Sampling,
    Threshold,
    Hazard,
    DetectOver,
    Endless,
    Records,
    Id,
    Buzzer,
    Count,
};

enum class SetupButton
{
    StartPrompt,
    StartReserved,
    Add,
    Update,
    Delete,
    Receive,
    Profile,
    Template,
    Change,
    Restore,
    Wizard,
    DataDisplay,     ///< shown with the mouse over the recorder's picture
    Automatic,       ///< never shown
    CalibrateWizard, ///< never shown
    Count,
};

struct SetupPanelForm
{
    SetupPanel panel{};
    LcdPanelKind kind{};
    StringId caption = StringId::Count;
    QPoint place;
};

struct SetupButtonForm
{
    SetupButton button{};
    CommandId command = CommandId::None;
    StringId caption = StringId::Count;
    PictureId picture = PictureId::Count;
    QRect place; ///< empty for one that is never shown
};

namespace setup_layout {

/// The whole view: the form and a border of two pixels round it.
inline constexpr QSize View(744, 450);
inline constexpr QSize Form(740, 446);
inline constexpr int Border = 2;

/// The two rows of the divider under the start buttons.
inline constexpr int DividerDark = 33;
inline constexpr int DividerLight = 34;

inline constexpr QRect LeftGroup(16, 50, 348, 380);
inline constexpr QRect RightGroup(380, 50, 344, 380);
inline constexpr QRect NameLabel(32, 66, 316, 28);
inline constexpr QRect NameBox(32, 102, 212, 22);
inline constexpr QRect List(32, 132, 212, 238);
inline constexpr QRect PicturePlace(615, 258, 90, 160);
/// Where the mouse brings up the button over the recorder's picture.
inline constexpr QRect PictureHotArea(615, 258, 90, 109);

/// From a read-out to the arrows or the toggle at its right.
inline constexpr QPoint ArrowUp(85, 18);
inline constexpr QPoint ArrowDown(85, 29);
inline constexpr QPoint Toggle(85, 23);

/// Most characters of a name.
inline constexpr int NameLimit = 32;
/// Height of the letters of buttons, read-outs, name box and list.
inline constexpr int FontHeight = 12;

} // namespace setup_layout

/// All in the order of `SetupPanel`.
[[nodiscard]] std::span<const SetupPanelForm> SetupPanels();
/// All in the order of `SetupButton`, with places for a system that is not Japanese.
[[nodiscard]] std::span<const SetupButtonForm> SetupButtons();
/// Where a button stands; the start buttons stand by language.
[[nodiscard]] QRect PlaceOf(SetupButton button, bool isJapanese);

} // namespace skeldon
