#include "dataview/FrameMenus.h"

#include <QAction>
#include <QMenu>

#include <utility>

namespace skeldon {

CFrameMenus::CFrameMenus(Give give, Ask ask, QObject* parent)
    : QObject(parent)
    , m_give(std::move(give))
    , m_ask(std::move(ask))
{}

QMenuBar* CFrameMenus::MakeBar(Menu menu, QWidget* parent)
{
    auto* const bar = new QMenuBar(parent);
    for (MenuEntry& entry : menu)
        m_unfilled.emplace_back(bar->addMenu(Text(entry.text)), std::move(entry.entries));
    return bar;
}

void CFrameMenus::FillBars()
{
    for (const auto& [popup, entries] : std::exchange(m_unfilled, {}))
        Fill(*popup, entries);
}

void CFrameMenus::Fill(QMenu& target, const Menu& menu)
{
    for (const MenuEntry& entry : menu) {
        switch (entry.kind) {
        case MenuEntryKind::Separator:
            target.addSeparator();
            break;
        case MenuEntryKind::SubMenu:
            Fill(*target.addMenu(Text(entry.text)), entry.entries);
            break;
        case MenuEntryKind::Command: {
            // The key behind the tab is shown by the menu; the window listens for it itself.
            QAction* const action = target.addAction(Text(entry.text));
            action->setMenuRole(QAction::NoRole);
            action->setData(static_cast<int>(entry.command));
            const CommandId command = entry.command;
            connect(action, &QAction::triggered, this, [this, command] { m_give(command); });
            break;
        }
        }
    }
    connect(&target, &QMenu::aboutToShow, this, [this, &target] { Refresh(target); });
}

void CFrameMenus::Refresh(QMenu& menu)
{
    for (QAction* const action : menu.actions()) {
        if (action->isSeparator() || action->menu() != nullptr)
            continue;
        const CommandState state = m_ask(static_cast<CommandId>(action->data().toInt()));
        action->setEnabled(state.isEnabled);
        action->setCheckable(state.isChecked || action->isCheckable());
        action->setChecked(state.isChecked);
    }
}

} // namespace skeldon
