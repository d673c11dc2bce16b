#include "app/PasteGuard.h"

#include "app/SkeldonApp.h"
#include "app/platform/ClipboardOwner.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>

#include <optional>

namespace skeldon {

namespace {

/// The clipboard that an edit field reads for an event; nothing where it reads none.
std::optional<ClipboardKind> ReadFor(const QEvent& event)
{
    switch (event.type()) {
    case QEvent::ContextMenu:
        return ClipboardKind::Copied;
    case QEvent::KeyPress: {
        const auto& key = static_cast<const QKeyEvent&>(event);
        if (!key.matches(QKeySequence::Paste))
            return std::nullopt;
        // Ctrl, Shift and Insert paste what is selected.
        return key.modifiers() == (Qt::ControlModifier | Qt::ShiftModifier)
                   ? ClipboardKind::Selected
                   : ClipboardKind::Copied;
    }
    case QEvent::MouseButtonRelease:
        if (static_cast<const QMouseEvent&>(event).button() == Qt::MiddleButton)
            return ClipboardKind::Selected;
        return std::nullopt;
    default:
        return std::nullopt;
    }
}

/// An edit field, or what handles its menu and its keys for it.
bool IsEdit(const QObject& object)
{
    const auto* const combo = qobject_cast<const QComboBox*>(&object);
    return qobject_cast<const QLineEdit*>(&object) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(&object) != nullptr ||
           (combo != nullptr && combo->isEditable());
}

} // namespace

bool CPasteGuard::eventFilter(QObject* watched, QEvent* event)
{
    const std::optional<ClipboardKind> kind = ReadFor(*event);
    if (!kind || !IsEdit(*watched) || DoesClipboardAnswer(*kind))
        return QObject::eventFilter(watched, event);
    App().Prompts().BeepFailure();
    return true;
}

} // namespace skeldon
