#pragma once

#include "app/View.h"
#include "resources/Menus.h"

#include <QMenuBar>
#include <QObject>

#include <functional>
#include <utility>
#include <vector>

namespace skeldon {

/// Fills menu bars from the resource menus. Entries take their state when they are about to be
/// seen.
class CFrameMenus : public QObject
{
    Q_OBJECT

public:
    using Give = std::function<void(CommandId)>;
    using Ask = std::function<CommandState(CommandId)>;

    /// `give` carries a command out, `ask` tells its state.
    CFrameMenus(Give give, Ask ask, QObject* parent);

    /// A bar with the titles of `menu`, owned by `parent`; `FillBars` gives it the entries.
    [[nodiscard]] QMenuBar* MakeBar(Menu menu, QWidget* parent);
    void FillBars();

private:
    void Fill(QMenu& target, const Menu& menu);
    void Refresh(QMenu& menu);

    Give m_give;
    Ask m_ask;
    std::vector<std::pair<QMenu*, Menu>> m_unfilled;
};

} // namespace skeldon
