#pragma once

#include <QString>

class QWidget;

namespace skeldon {

/// Which of the main window's two views.
enum class ViewIndex
{
    Setup = 0,
    Display = 1,
};

/// What views, dialogs and controls may ask of the main window without knowing it.
class CFrame
{
public:
    virtual ~CFrame() = default;

    /// Shows a transient text in the first pane of the status bar.
    virtual void SetStatusText(const QString& text) = 0;
    /// Puts "Ready" back into the first pane.
    virtual void ResetStatus() = 0;
    /// Names what the data view shows in the window's title; nothing where the text is empty.
    virtual void SetCaption(const QString& text) = 0;
    /// Whether a recorder was connected when last looked for.
    [[nodiscard]] virtual bool IsConnected() const = 0;
    [[nodiscard]] virtual ViewIndex CurrentView() const = 0;
    virtual void SwitchView(ViewIndex view) = 0;
    /// Whether the data view's stored placement was applied.
    [[nodiscard]] virtual bool IsPlacementRestored() const = 0;
    /// Whether the window is on its way to a view's place: the sizes that it has meanwhile are not
    /// the user's.
    [[nodiscard]] virtual bool IsPlacing() const { return false; }
    /// Whether the window system's own close button works.
    virtual void EnableSystemClose(bool enabled) = 0;
    [[nodiscard]] virtual bool IsSystemCloseEnabled() const = 0;
    /// A view agreed to the end of the program.
    virtual void CloseFrame() = 0;
    [[nodiscard]] virtual QWidget* Window() = 0;
    /// Makes both views and shows the window with one of them. False where a view can not be made.
    virtual bool BuildViews(ViewIndex first) = 0;
};

} // namespace skeldon
