#include "dataview/MainFrame.h"

#include "app/SkeldonApp.h"
#include "controls/FittedLabel.h"
#include "dataview/DisplayView.h"
#include "dataview/FrameMenus.h"
#include "dataview/ManualPath.h"
#include "dataview/RecorderPoll.h"
#include "online/MonitorDialog.h"
#include "resources/Menus.h"
#include "resources/StringTable.h"
#include "setup/view/SetupView.h"

#include <QCloseEvent>
#include <QFrame>
#include <QMenuBar>
#include <QShortcut>
#include <QStackedLayout>
#include <QStatusBar>
#include <QUrl>

#include <memory>
#include <utility>

namespace skeldon {

namespace {

constexpr int ModelPaneWidth = 140;
constexpr int ReleasePaneWidth = 90;
constexpr int ViewBorder = 2;

/// Keys that stand in the table and that neither view serves.
bool IsUnserved(CommandId command)
{
    switch (command) {
    case CommandId::Copy:
    case CommandId::Cut:
    case CommandId::Paste:
    case CommandId::Undo:
    case CommandId::NextPane:
    case CommandId::PreviousPane:
        return true;
    default:
        return false;
    }
}

} // namespace

CMainFrame::CMainFrame()
    : m_poll(new CRecorderPoll(this))
{
    setCentralWidget(new QWidget(this));
    m_views = new QStackedLayout(centralWidget());
    MakeStatusBar();
    MakeMenus();
    MakeAccelerators();
    connect(m_poll, &CRecorderPoll::Changed, this, &CMainFrame::OnConnection);
    SetCaption({});
}

CMainFrame::~CMainFrame()
{
    if (App().Frame() == this)
        App().SetFrame(nullptr);
}

bool CMainFrame::BuildViews(ViewIndex first)
{
    MakeSetupView();
    if (first != ViewIndex::Setup) {
        MakeDisplayView();
        m_bFirstSwitch = true;
        SwitchView(ViewIndex::Setup);
        m_bFirstSwitch = false;
    }
    SwitchView(first);
    show();
    // What nobody sees yet is made behind the first window.
    if (m_display == nullptr)
        MakeDisplayView();
    m_frameMenus->FillBars();
    MakeMonitor();
    m_poll->Start();
    m_bStarted = true;
    return true;
}

void CMainFrame::MakeSetupView()
{
    m_setup = new CSetupView(centralWidget());
    m_views->addWidget(m_setup);
    connect(&m_document, &CSkeldonDoc::Updated, m_setup, &CView::OnUpdate);
    m_setup->OnInitialUpdate();
}

void CMainFrame::MakeDisplayView()
{
    auto* const border = new QFrame(centralWidget());
    border->setFrameStyle(static_cast<int>(QFrame::Panel) | static_cast<int>(QFrame::Sunken));
    border->setLineWidth(ViewBorder);
    auto* const inside = new QStackedLayout(border);
    m_display = new CDisplayView(border);
    inside->addWidget(m_display);
    inside->setContentsMargins(ViewBorder, ViewBorder, ViewBorder, ViewBorder);
    m_views->addWidget(border);
    connect(&m_document, &CSkeldonDoc::Updated, m_display, &CView::OnUpdate);
    m_display->OnInitialUpdate();
}

CView& CMainFrame::ViewOf(ViewIndex view) const
{
    if (view == ViewIndex::Setup)
        return *m_setup;
    return *m_display;
}

QMenuBar* CMainFrame::MenuOf(ViewIndex view) const
{
    return m_menus[static_cast<std::size_t>(view)];
}

void CMainFrame::MakeStatusBar()
{
    for (QLabel*& pane : m_panes)
        pane = new CFittedLabel(this);
    m_panes[0]->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_panes[1]->setMinimumWidth(ModelPaneWidth);
    m_panes[2]->setMinimumWidth(ReleasePaneWidth);
    statusBar()->addWidget(m_panes[0], 1);
    for (int i = 1; i < PaneCount; ++i) {
        QLabel* const pane = m_panes[static_cast<std::size_t>(i)];
        pane->setFrameStyle(static_cast<int>(QFrame::Panel) | static_cast<int>(QFrame::Sunken));
        statusBar()->addPermanentWidget(pane);
    }
    ResetStatus();
}

void CMainFrame::MakeMenus()
{
    m_frameMenus = new CFrameMenus([this](CommandId command) { OnCommand(command); },
                                   [this](CommandId command) { return StateOf(command); }, this);
    Menu setup = SetupViewMenu();
    Menu display = DataViewMenu(App().IsJapanese());
    if (!App().m_commandLine.m_enableMonitor) {
        RemoveFirstEntry(setup, CommandId::Monitor);
        RemoveFirstEntry(display, CommandId::Monitor);
    }
    m_menus = {m_frameMenus->MakeBar(std::move(setup), this),
               m_frameMenus->MakeBar(std::move(display), this)};
    for (QMenuBar* const bar : m_menus)
        bar->hide();
}

void CMainFrame::MakeAccelerators()
{
    for (const Accelerator& accelerator : Accelerators()) {
        if (IsUnserved(accelerator.command))
            continue;
        auto* const key = new QShortcut(accelerator.key, this);
        key->setAutoRepeat(false);
        const CommandId command = accelerator.command;
        connect(key, &QShortcut::activated, this, [this, command] { OnCommand(command); });
    }
}

void CMainFrame::MakeMonitor()
{
    auto monitor = std::make_unique<CMonitorDialog>();
    m_monitor = monitor.get();
    connect(m_poll, &CRecorderPoll::CableSeen, m_monitor, &CMonitorDialog::SetConnected);
    App().m_link.SetMonitor(std::move(monitor));
}

CMonitorDialog& CMainFrame::Monitor()
{
    return *m_monitor;
}

void CMainFrame::OnCommand(CommandId command)
{
    if (!StateOf(command).isEnabled && command != CommandId::SelectArea)
        return;
    switch (command) {
    case CommandId::Configuration:
        return ShowConfiguration();
    case CommandId::Help:
        return OpenHelp();
    case CommandId::OnlineSupport:
        return OpenSupport();
    case CommandId::About:
        return App().ShowAbout(this);
    case CommandId::Monitor:
        return App().m_link.ShowMonitor();
    default:
        return ViewOf(m_nCurrentView).OnCommand(command);
    }
}

CommandState CMainFrame::StateOf(CommandId command) const
{
    switch (command) {
    case CommandId::Help:
    case CommandId::OnlineSupport:
    case CommandId::About:
    case CommandId::Monitor:
        return {true};
    default:
        return ViewOf(m_nCurrentView).StateOf(command);
    }
}

void CMainFrame::ShowConfiguration()
{
    const auto& show = App().Services().showSettings;
    if (show && show(this))
        m_document.UpdateAllViews(DocumentHint::SettingsChanged);
}

void CMainFrame::OpenHelp()
{
    const QString manual = ManualPath(App().IsJapanese());
    if (!manual.isEmpty())
        App().Prompts().OpenPage(QUrl::fromLocalFile(manual));
}

void CMainFrame::OpenSupport()
{
    // Support is given in Japanese alone.
    const QUrl address(App().IsJapanese() ? App().Services().supportAddress : QString());
    if (!address.isEmpty())
        App().Prompts().OpenPage(address);
}

void CMainFrame::SetStatusText(const QString& text)
{
    SetPaneText(0, text);
}

void CMainFrame::ResetStatus()
{
    SetPaneText(0, Text(StringId::Ready));
}

void CMainFrame::SetPaneText(int pane, const QString& text)
{
    m_panes[static_cast<std::size_t>(pane)]->setText(text);
}

QString CMainFrame::PaneText(int pane) const
{
    return m_panes[static_cast<std::size_t>(pane)]->text();
}

void CMainFrame::SetCaption(const QString& text)
{
    // The toolkit takes a star in brackets for its own; doubled it stands for itself.
    const QString star = QStringLiteral("[*]");
    const QString shown = QString(text).replace(star, star + star);
    const QString product = Text(StringId::AppName);
    setWindowTitle(shown.isEmpty() ? product : product + QStringLiteral(" - ") + shown);
}

bool CMainFrame::IsConnected() const
{
    return m_poll->IsConnected();
}

void CMainFrame::OnConnection(bool connected, bool isForced)
{
    if (connected) {
        const RecorderPanes panes = PanesOf(App().Link().Status());
        SetStatusText(Text(StringId::ConnectedToRecorder));
        SetPaneText(2, panes.release);
        SetPaneText(1, panes.model);
    } else {
        ResetStatus();
        SetPaneText(1, {});
        SetPaneText(2, {});
    }
    m_document.UpdateAllViews(DocumentHint::Connection, connected ? 1 : 0);
    if (!isForced)
        App().Prompts().Beep();
}

void CMainFrame::closeEvent(QCloseEvent* event)
{
    if (m_isClosing)
        return;
    event->ignore();
    if (!m_closeEnabled)
        return;
    QMetaObject::invokeMethod(
        this, [this] { ViewOf(m_nCurrentView).OnCommand(CommandId::Exit); }, Qt::QueuedConnection);
}

void CMainFrame::CloseFrame()
{
    m_document.UpdateAllViews(DocumentHint::Closing);
    SavePlacement();
    if (m_monitor)
        m_monitor->close();
    m_poll->Stop();
    m_isClosing = true;
    close();
}

} // namespace skeldon
