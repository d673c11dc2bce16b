#include "online/MonitorDialog.h"

#include "app/Clipboard.h"
#include "app/CtrlKey.h"
#include "app/DataText.h"
#include "app/SkeldonApp.h"
#include "app/WaitCursor.h"
#include "base/TextScan.h"
#include "controls/CableDialog.h"
#include "online/MonitorList.h"
#include "online/MonitorModel.h"
#include "resources/StringTable.h"

#include <QCheckBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QThread>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>
#include <new>
#include <string>
#include <vector>

namespace skeldon {

namespace {

constexpr QSize SmallestSize(420, 320);
/// Digits of the limit that are looked at: more than the largest has, and few enough to be counted.
constexpr int LimitDigits = 9;
constexpr int LimitWidth = 72;
constexpr int GroupGap = 12;

const QString LinesKey = QStringLiteral("MonitorLines");
const QString PlaceKey = QStringLiteral("Monitor");

/// The screen on which the title of a window at `rect` can be taken hold of; null if there is none.
const QScreen* ScreenOf(const QRect& rect)
{
    constexpr QSize Handle(40, 16);
    const QRect title(rect.topLeft(), QSize(rect.width(), Handle.height()));
    const auto screens = QGuiApplication::screens();
    const auto found = std::ranges::find_if(screens, [&](const QScreen* screen) {
        const QRect seen = title & screen->availableGeometry();
        return seen.width() >= Handle.width() && seen.height() >= Handle.height();
    });
    return found != screens.end() ? *found : nullptr;
}

} // namespace

CMonitorDialog::CMonitorDialog()
    : m_lines(new CMonitorModel(this))
{
    setWindowTitle(Text(StringId::TitleMonitor));
    // Whether this window is there or not says nothing about the program's end.
    setAttribute(Qt::WA_QuitOnClose, false);
    MakeControls();
    LayOut();
    setMinimumSize(SmallestSize.expandedTo(layout()->minimumSize()));
    resize(minimumSize());
    m_lines->SetMaxLines(
        App().Settings().GetInt(SystemSection, LinesKey, CMonitorLines::DefaultMaxLines));
    m_maxLinesEdit->setText(QString::number(m_lines->Lines().m_maxLines));
    StandInTheMiddle();
    if (!App().m_ctrlAtStart && !IsCtrlDown())
        RestorePlacement();
    connect(&m_timer, &QTimer::timeout, this, &CMonitorDialog::Tick);
    m_timer.start(IntervalMs);
    SetEnabled(true);
}

CMonitorDialog::~CMonitorDialog()
{
    App().Settings().WriteProfileRect(SystemSection, PlaceKey, QRect(pos(), size()));
}

void CMonitorDialog::MakeControls()
{
    const auto button = [this](StringId text) {
        auto* const made = new QPushButton(Text(text), this);
        // Enter belongs to the command box, unless a button has the focus.
        made->setAutoDefault(false);
        return made;
    };
    m_alwaysWatched = new QCheckBox(Text(StringId::MonitorAlwaysWatched), this);
    m_maxLinesEdit = new QLineEdit(this);
    m_maxLinesEdit->setFixedWidth(LimitWidth);
    m_set = button(StringId::MonitorSet);
    m_calibrate = button(StringId::MonitorCalibrate);
    m_commandLabel = new QLabel(Text(StringId::MonitorCommand), this);
    m_command = new QLineEdit(this);
    m_commandLabel->setBuddy(m_command);
    m_list = new CMonitorList(this);
    m_list->setAccessibleName(Text(StringId::NameMonitorLines));
    m_list->SetLines(*m_lines);
    m_copy = button(StringId::MonitorCopy);
    m_clear = button(StringId::MonitorClear);
    m_close = button(StringId::ButtonClose);
    connect(m_alwaysWatched, &QCheckBox::toggled, this,
            [](bool isOn) { App().m_link.m_alwaysWatched = isOn; });
    connect(m_set, &QPushButton::clicked, this, &CMonitorDialog::OnSet);
    connect(m_calibrate, &QPushButton::clicked, this, &CMonitorDialog::OnCalibrate);
    connect(m_copy, &QPushButton::clicked, this, &CMonitorDialog::OnCopy);
    connect(m_clear, &QPushButton::clicked, this, &CMonitorDialog::OnClear);
    connect(m_close, &QPushButton::clicked, this, &CMonitorDialog::reject);
}

void CMonitorDialog::LayOut()
{
    auto* const limitLabel = new QLabel(Text(StringId::MonitorMaxLines), this);
    limitLabel->setBuddy(m_maxLinesEdit);
    auto* const top = new QHBoxLayout;
    top->addWidget(m_alwaysWatched);
    top->addSpacing(GroupGap);
    top->addWidget(limitLabel);
    top->addWidget(m_maxLinesEdit);
    top->addWidget(m_set);
    top->addSpacing(GroupGap);
    top->addWidget(m_calibrate);
    top->addStretch(1);
    auto* const command = new QHBoxLayout;
    command->addWidget(m_commandLabel);
    command->addWidget(m_command, 1);
    auto* const bottom = new QHBoxLayout;
    bottom->addWidget(m_copy);
    bottom->addWidget(m_clear);
    bottom->addStretch(1);
    bottom->addWidget(m_close);
    auto* const all = new QVBoxLayout(this);
    all->addLayout(top);
    all->addLayout(command);
    all->addWidget(m_list, 1);
    all->addLayout(bottom);
    m_command->setFocus();
}

/// Where a window stands that has never been moved, so that there is a place to be remembered also
/// of one that never came up.
void CMonitorDialog::StandInTheMiddle()
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    move(screen.center() - rect().center());
}

void CMonitorDialog::RestorePlacement()
{
    const QRect stored = App().Settings().GetProfileRect(SystemSection, PlaceKey, {});
    if (stored.isEmpty())
        return;
    const QScreen* const screen = ScreenOf(stored);
    const QScreen& other = *QGuiApplication::primaryScreen();
    resize(stored.size().boundedTo((screen != nullptr ? *screen : other).availableSize()));
    if (screen != nullptr)
        move(stored.topLeft());
    else
        StandInTheMiddle();
}

void CMonitorDialog::SetEnabled(bool enabled)
{
    // A transfer may be started and ended beside the window's thread.
    if (QThread::currentThread() != thread()) {
        QMetaObject::invokeMethod(
            this, [this, enabled] { SetEnabled(enabled); }, Qt::QueuedConnection);
        return;
    }
    m_enabled = enabled;
    ApplyEnabled();
}

void CMonitorDialog::SetConnected(bool connected)
{
    m_connected = connected;
    ApplyEnabled();
}

void CMonitorDialog::ApplyEnabled()
{
    for (QWidget* const control : {m_set, m_copy, m_clear})
        control->setEnabled(m_enabled);
    for (QWidget* const control :
         {static_cast<QWidget*>(m_calibrate), static_cast<QWidget*>(m_commandLabel),
          static_cast<QWidget*>(m_command)})
        control->setEnabled(m_enabled && m_connected);
}

void CMonitorDialog::ShowMonitor()
{
    QWidget* const main = App().MainWindow();
    if (main != nullptr && main->window()->windowHandle() != nullptr) {
        // Above the main window as a child of it would be, but not its to destroy.
        winId();
        windowHandle()->setTransientParent(main->window()->windowHandle());
    }
    show();
    raise();
    activateWindow();
}

void CMonitorDialog::Tick()
{
    if (m_lines->Add(m_pending.Take()))
        m_list->ScrollToEnd();
}

void CMonitorDialog::reject()
{
    App().m_link.m_monitorShown = false;
    hide();
}

void CMonitorDialog::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isEnter) {
        QDialog::keyPressEvent(event);
        return;
    }
    if (auto* const focused = qobject_cast<QPushButton*>(focusWidget()))
        focused->click();
    else
        OnCommand();
}

void CMonitorDialog::OnSet()
{
    const std::string typed = m_maxLinesEdit->text().trimmed().left(LimitDigits).toStdString();
    const int lines = std::clamp(ScanInt(typed), LeastMaxLines, MostMaxLines);
    m_maxLinesEdit->setText(QString::number(lines));
    App().Settings().WriteInt(SystemSection, LinesKey, lines);
    if (m_lines->SetMaxLines(lines))
        m_list->ScrollToEnd();
    App().Prompts().Beep();
}

void CMonitorDialog::OnCopy()
{
    const CWaitCursor wait;
    const CMonitorLines& shown = m_lines->Lines();
    bool isCopied = false;
    try {
        std::vector<std::string> lines;
        lines.reserve(shown.Size());
        for (std::size_t i = 0; i < shown.Size(); ++i)
            lines.push_back(shown.Line(i));
        isCopied = !lines.empty() && CopyLinesToClipboard(lines);
    } catch (const std::bad_alloc&) {
        // Too much for one text; told by the beep.
    }
    if (isCopied)
        App().Prompts().Beep();
    else
        App().Prompts().BeepFailure();
}

void CMonitorDialog::OnClear()
{
    m_pending.Clear();
    m_lines->Clear();
}

void CMonitorDialog::OnCommand()
{
    if (!m_command->isEnabled()) {
        App().Prompts().BeepFailure();
        return;
    }
    const std::string text = ToDataText(m_command->text());
    m_command->clear();
    App().Conversation().Run([&text] { App().m_link.SendMonitorCommand(text); });
}

void CMonitorDialog::OnCalibrate()
{
    if (App().Prompts().ShowBox(this, BoxKind::YesNo, Text(StringId::AskCalibrate)) != Answer::Yes)
        return;
    bool isStarted = false;
    App().Conversation().Run([&isStarted] { isStarted = App().m_link.Calibrate(); });
    if (!isStarted) {
        App().Prompts().ShowBox(this, BoxKind::Warning, Text(StringId::CouldNotCalibrate));
        return;
    }
    CCableDialog(App().m_link, this).exec();
}

} // namespace skeldon
