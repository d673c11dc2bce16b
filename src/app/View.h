#pragma once

#include "app/Document.h"
#include "resources/Menus.h"

#include <QWidget>

namespace skeldon {

/// Whether a command can be given, and whether its menu entry carries a tick.
struct CommandState
{
    bool isEnabled = false;
    bool isChecked = false;
};

/// One of the main window's views.
class CView : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Called once when the view stands in its window.
    virtual void OnInitialUpdate() = 0;
    /// Carries a command out if it can be given now. Commands of other views are passed over.
    virtual void OnCommand(CommandId command) = 0;
    [[nodiscard]] virtual CommandState StateOf(CommandId command) const = 0;
    virtual void OnUpdate(DocumentHint hint, int argument) = 0;
    /// Smallest size of the view in logical pixels; the setup view has no other.
    [[nodiscard]] virtual QSize SmallestSize() const = 0;
};

} // namespace skeldon
