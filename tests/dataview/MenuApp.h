#pragma once

#include "FrameApp.h"
#include "resources/Commands.h"

#include <QAction>
#include <QMenuBar>

#include <set>

namespace skeldon::test {

using Commands = std::set<CommandId>;

[[nodiscard]] Commands operator+(Commands some, const Commands& more);
[[nodiscard]] Commands operator-(Commands some, const Commands& less);
/// The commands' numbers, for comparing.
[[nodiscard]] QString NamesOf(const Commands& commands);

/// The program with the data view shown and the monitor allowed, worked by its menus.
class CMenuApp : public CFrameApp
{
public:
    explicit CMenuApp(const QString& language);

    /// Every command that an entry of the data view's menus gives.
    [[nodiscard]] Commands InMenus();
    /// What the menus allow now; every one of them is opened.
    [[nodiscard]] Commands Allowed();
    /// Chooses the entry of a command, by Enter or, where it is not allowed, by a click. Gives
    /// whether it was allowed.
    bool Choose(CommandId command);
    /// Whether the entry carries a tick.
    [[nodiscard]] bool IsTicked(CommandId command);

    const bool m_isJapanese;

private:
    /// Opens the menus down to the entry of a command, marks the entry and gives it.
    QAction* GoTo(CommandId command);
    static void CloseMenus();
    [[nodiscard]] QMenuBar& Bar() { return *Frame().MenuOf(ViewIndex::Display); }
};

} // namespace skeldon::test
