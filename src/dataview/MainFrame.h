#pragma once

#include "app/Document.h"
#include "app/Frame.h"
#include "app/View.h"
#include "dataview/WindowPlacement.h"

#include <QLabel>
#include <QMainWindow>
#include <QPointer>

#include <array>
#include <optional>

class QStackedLayout;

namespace skeldon {

class CDisplayView;
class CFrameMenus;
class CMonitorDialog;
class CRecorderPoll;
class CSetupView;

/// The one top-level window: two views, of which one is shown at a time with a menu and a placement
/// of its own, the status bar, and the look for the recorder.
class CMainFrame : public QMainWindow, public CFrame
{
    Q_OBJECT

public:
    CMainFrame();
    ~CMainFrame() override;

    void SetStatusText(const QString& text) override;
    void ResetStatus() override;
    void SetCaption(const QString& text) override;
    [[nodiscard]] bool IsConnected() const override;
    [[nodiscard]] ViewIndex CurrentView() const override { return m_nCurrentView; }
    void SwitchView(ViewIndex view) override;
    [[nodiscard]] bool IsPlacementRestored() const override { return m_bPlacementRestored; }
    [[nodiscard]] bool IsPlacing() const override;
    void EnableSystemClose(bool enabled) override { m_closeEnabled = enabled; }
    [[nodiscard]] bool IsSystemCloseEnabled() const override { return m_closeEnabled; }
    void CloseFrame() override;
    [[nodiscard]] QWidget* Window() override { return this; }
    bool BuildViews(ViewIndex first) override;

    /// Shows a text in any of the three panes.
    void SetPaneText(int pane, const QString& text);
    [[nodiscard]] QString PaneText(int pane) const;
    [[nodiscard]] CDisplayView& DisplayView() { return *m_display; }
    [[nodiscard]] CSetupView& SetupView() { return *m_setup; }
    [[nodiscard]] CSkeldonDoc& Document() { return m_document; }
    [[nodiscard]] CRecorderPoll& Poll() { return *m_poll; }
    /// The monitor window, from the start of the views on; the link owns it.
    [[nodiscard]] CMonitorDialog& Monitor();
    /// The bar of the view that is shown.
    [[nodiscard]] QMenuBar* MenuOf(ViewIndex view) const;
    /// Carries out what a menu entry or key asks for.
    void OnCommand(CommandId command);
    [[nodiscard]] CommandState StateOf(CommandId command) const;

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    static constexpr int PaneCount = 3;

    [[nodiscard]] CView& ViewOf(ViewIndex view) const;
    void MakeSetupView();
    void MakeDisplayView();
    void MakeStatusBar();
    void MakeMenus();
    void MakeAccelerators();
    void MakeMonitor();
    void ShowConfiguration();
    void OpenHelp();
    void OpenSupport();
    void OnConnection(bool connected, bool isForced);

    // Placement.
    [[nodiscard]] WindowPlacement CurrentPlacement() const;
    void ShowView(ViewIndex view);
    void RestorePlacement();
    [[nodiscard]] bool IsGrowing() const;
    void SavePlacement();
    void SavePlacementAs(Qt::WindowStates states);
    void FitToView();
    /// Puts the window there, or where it can be seen.
    void Place(const QRect& wanted);

    CSkeldonDoc m_document;
    bool m_bStarted = false;
    CSetupView* m_setup = nullptr;
    CDisplayView* m_display = nullptr;
    ViewIndex m_nCurrentView = ViewIndex::Setup;
    bool m_hasView = false; ///< a view was switched to
    bool m_bPlacementRestored = false;
    bool m_bFirstSwitch = false;
    bool m_isSwitching = false;           ///< on the way from one view to the other
    bool m_isRestoring = false;           ///< a stored placement is being applied
    bool m_isMaximising = false;          ///< asked for, and the window may not be as large yet
    std::optional<QRect> m_maximisedFrom; ///< where a maximised window goes back to
    bool m_closeEnabled = true;
    bool m_isClosing = false;
    std::array<QLabel*, PaneCount> m_panes{};
    std::array<QMenuBar*, 2> m_menus{};
    QStackedLayout* m_views = nullptr;
    CFrameMenus* m_frameMenus = nullptr;
    CRecorderPoll* m_poll = nullptr;
    QPointer<CMonitorDialog> m_monitor;
};

} // namespace skeldon
