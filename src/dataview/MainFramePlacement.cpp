// Where the main window stands, and how large it is.
#include "dataview/MainFrame.h"

#include "app/CtrlKey.h"
#include "app/SkeldonApp.h"
#include "dataview/DisplayView.h"
#include "setup/view/SetupView.h"

#include <QGuiApplication>
#include <QMenuBar>
#include <QScreen>
#include <QStackedLayout>
#include <QStatusBar>
#include <QWindow>
#include <QWindowStateChangeEvent>

#include <vector>

namespace skeldon {

namespace {

constexpr int ViewBorder = 2;

std::vector<QRect> Screens()
{
    std::vector<QRect> screens;
    for (const QScreen* const screen : QGuiApplication::screens())
        screens.push_back(screen->availableGeometry());
    return screens;
}

} // namespace

void CMainFrame::SwitchView(ViewIndex view)
{
    m_isSwitching = true;
    ShowView(view);
    m_isSwitching = false;
    m_document.UpdateAllViews(DocumentHint::ActiveView, static_cast<int>(view));
    ViewOf(view).update();
    ViewOf(view).setFocus();
}

void CMainFrame::ShowView(ViewIndex view)
{
    QPoint corner;
    if (m_bStarted) {
        SavePlacement();
        corner =
            ReadPlacement(App().Settings(), m_nCurrentView, CurrentPlacement()).normal.topLeft();
    }
    if (m_hasView)
        MenuOf(m_nCurrentView)->hide();
    m_nCurrentView = view;
    m_hasView = true;
    layout()->setMenuBar(MenuOf(view));
    MenuOf(view)->show();
    m_views->setCurrentIndex(static_cast<int>(view));
    if (m_bStarted) {
        // The window stays where it is, although each view has its own size.
        FitToView();
        WindowPlacement next = ReadPlacement(App().Settings(), view, CurrentPlacement());
        next.normal.moveTopLeft(corner);
        WritePlacement(App().Settings(), view, next);
    }
    RestorePlacement();
}

bool CMainFrame::IsPlacing() const
{
    return m_isSwitching || IsGrowing();
}

/// The window system maximises a window when it likes.
bool CMainFrame::IsGrowing() const
{
    return m_isMaximising && m_maximisedFrom && size() == m_maximisedFrom->size();
}

void CMainFrame::FitToView()
{
    const bool isSetup = m_nCurrentView == ViewIndex::Setup;
    const QSize view = ViewOf(m_nCurrentView).SmallestSize();
    statusBar()->setSizeGripEnabled(!isSetup);
    if (isSetup)
        setWindowState(windowState() & ~Qt::WindowMaximized);
    setMinimumSize(0, 0);
    setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    if (isSetup) {
        centralWidget()->setFixedSize(view);
    } else {
        centralWidget()->setMinimumSize(view + QSize(2 * ViewBorder, 2 * ViewBorder));
        centralWidget()->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    }
    layout()->invalidate();
    const QSize smallest = layout()->totalMinimumSize();
    if (isSetup)
        setFixedSize(smallest);
    else
        setMinimumSize(smallest);
    if (!isMaximized() || isSetup)
        resize(smallest);
}

WindowPlacement CMainFrame::CurrentPlacement() const
{
    WindowPlacement placement;
    placement.showCommand = isMaximized() ? WindowPlacement::Maximised : WindowPlacement::Normal;
    placement.normal = QRect(pos(), size());
    if (isMaximized() || isMinimized() || isFullScreen()) {
        const QPoint frame = geometry().topLeft() - frameGeometry().topLeft();
        placement.normal = normalGeometry();
        placement.normal.translate(-frame);
        // The window system knows nothing of a frame that was never seen.
        if (m_maximisedFrom)
            placement.normal = *m_maximisedFrom;
    }
    return placement;
}

void CMainFrame::RestorePlacement()
{
    m_bPlacementRestored = false;
    m_isMaximising = false;
    FitToView();
    if (m_bStarted ? IsCtrlKeyDown() : IsCtrlDown())
        return;
    const bool isSetup = m_nCurrentView == ViewIndex::Setup;
    const WindowPlacement current = CurrentPlacement();
    WindowPlacement stored = ReadPlacement(App().Settings(), m_nCurrentView, current);
    m_bPlacementRestored = !isSetup;
    // What was never stored is left to the window system.
    bool isKnown = !ReadPlacement(App().Settings(), m_nCurrentView, {}).normal.isNull();
    if (isSetup && m_bFirstSwitch) {
        const QRect display = ReadPlacement(App().Settings(), ViewIndex::Display, {}).normal;
        if (display.width() != 0) {
            stored.normal.moveTopLeft(display.topLeft());
            isKnown = true;
        }
    }
    const bool isMaximised = !isSetup && stored.showCommand == WindowPlacement::Maximised;
    if (isMaximised && isMaximized())
        return;
    m_isRestoring = true;
    setWindowState(windowState() & ~Qt::WindowMaximized);
    if (isKnown)
        Place(stored.normal);
    // The place that the window has now is the one that it goes back to.
    if (isMaximised) {
        m_maximisedFrom = QRect(pos(), size());
        m_isMaximising = true;
        setWindowState(windowState() | Qt::WindowMaximized);
    }
    m_isRestoring = false;
}

void CMainFrame::Place(const QRect& wanted)
{
    const QSize size = wanted.size().expandedTo(minimumSize()).boundedTo(maximumSize());
    const QRect rect = OnScreens({wanted.topLeft(), size}, Screens());
    move(rect.topLeft());
    resize(rect.size());
    // How wide the frame will be is not known before the window has been seen, nor while a
    // maximised one goes back: the window system is told that the corner is the frame's.
    if (QWindow* const window = windowHandle()) {
        window->resize(rect.size());
        window->setFramePosition(rect.topLeft());
    }
}

void CMainFrame::SavePlacement()
{
    SavePlacementAs(windowState());
}

void CMainFrame::SavePlacementAs(Qt::WindowStates states)
{
    const bool isMaximised = states.testFlag(Qt::WindowMaximized);
    if (states.testFlag(Qt::WindowMinimized) || (isMaximised && m_nCurrentView == ViewIndex::Setup))
        return;
    // What the window system does not tell stays as it was stored.
    WindowPlacement placement = ReadPlacement(App().Settings(), m_nCurrentView, CurrentPlacement());
    placement.normal = CurrentPlacement().normal;
    placement.showCommand = isMaximised ? WindowPlacement::Maximised : WindowPlacement::Normal;
    WritePlacement(App().Settings(), m_nCurrentView, placement);
}

void CMainFrame::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    m_isMaximising = IsGrowing();
}

void CMainFrame::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange || !m_bStarted || m_isRestoring)
        return;
    if (!isMaximized() && !isMinimized()) {
        m_maximisedFrom.reset();
        m_isMaximising = false;
    }
    // Before the icon or the whole screen takes its place, the window's own place is kept.
    const Qt::WindowStates before = static_cast<QWindowStateChangeEvent*>(event)->oldState();
    // The setup view's one size leaves nothing to maximise: where a window system does so all the
    // same, nothing is kept.
    const bool isSetup = m_nCurrentView == ViewIndex::Setup;
    const bool isNew = (isMinimized() && !before.testFlag(Qt::WindowMinimized)) ||
                       (isMaximized() && !before.testFlag(Qt::WindowMaximized) && !isSetup);
    if (!isNew)
        return;
    SavePlacementAs(before);
    // The frame of the whole screen may be another one.
    if (isMaximized() && !m_maximisedFrom)
        m_maximisedFrom = CurrentPlacement().normal;
}

} // namespace skeldon
