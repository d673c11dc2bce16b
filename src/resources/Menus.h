#pragma once

#include "resources/Commands.h"
#include "resources/StringTable.h"

#include <qnamespace.h>

#include <span>
#include <vector>

namespace skeldon {

enum class MenuEntryKind
{
    Command,
    SubMenu,
    Separator,
};

/// One entry of a menu. What stands behind a tab in its text is its key, to be shown only: the keys
/// themselves are those of `Accelerators`.
struct MenuEntry
{
    MenuEntryKind kind = MenuEntryKind::Separator;
    StringId text = StringId::Count;     ///< not of a separator
    CommandId command = CommandId::None; ///< of a command alone
    std::vector<MenuEntry> entries = {}; ///< of a sub-menu alone

    bool operator==(const MenuEntry&) const = default;
};

using Menu = std::vector<MenuEntry>;

/// The bar of the data view. The two languages differ in more than words: in English "Display all
/// area" gives the command of the setup view and "Display in center" that of the monitor.
[[nodiscard]] Menu DataViewMenu(bool japanese);
/// The bar of the setup view.
[[nodiscard]] Menu SetupViewMenu();
/// The menu of the measured list, which nothing opens.
[[nodiscard]] Menu ListPopupMenu();
/// The menu of the chart.
[[nodiscard]] Menu ChartPopupMenu();

/// Takes the first entry out that gives the command, in the order of reading, sub-menus where they
/// stand. False where there is none.
bool RemoveFirstEntry(Menu& menu, CommandId command);

struct Accelerator
{
    QKeyCombination key;
    CommandId command = CommandId::None;
};

/// The keys of the main window, the same in both views.
[[nodiscard]] std::span<const Accelerator> Accelerators();

} // namespace skeldon
