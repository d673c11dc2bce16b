#include "app/SkeldonApp.h"

#include "app/CtrlKey.h"
#include "app/DataFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QWidget>

#include <utility>

namespace skeldon {

namespace {

CSkeldonApp* theApp = nullptr;

/// Faces of the forms by the setting "ViewBase".
constexpr ColourRef LightFace = 0xD8E9EC;
constexpr ColourRef OlderFace = 0xC8D0D4;

/// What stands for the window in the block that other programs see: its number where windows have
/// numbers that mean something to others, else the process.
std::uint32_t HandleOf(QWidget* window)
{
    if (window != nullptr && QGuiApplication::platformName() == QLatin1String("xcb"))
        return static_cast<std::uint32_t>(window->winId());
    return static_cast<std::uint32_t>(QCoreApplication::applicationPid());
}

} // namespace

CSkeldonApp::Access::Access(CSkeldonApp& app)
{
    theApp = &app;
}

CSkeldonApp::Access::~Access()
{
    theApp = nullptr;
}

CSkeldonApp::CSkeldonApp(AppServices services)
    : m_access(*this)
    , m_services(std::move(services))
    , m_link(std::move(m_services.finder), std::move(m_services.opener), *m_services.clock)
    , m_sharedBlock(m_services.sharedBlock, m_services.sharedMutex)
{}

CSkeldonApp::~CSkeldonApp()
{
    // A conversation that is under way is waited for, but not its recorder.
    m_link.Abandon();
}

bool CSkeldonApp::InitInstance(const QStringList& words)
{
    m_ctrlAtStart = IsCtrlDown();
    if (m_instanceMutex.Open(InstanceName) &&
        m_instanceMutex.TryLock() == CLockFile::Outcome::HeldElsewhere)
        return false;
    m_language = m_services.language;
    ReadColoursAndUnits();
    m_commandLine.Parse(words);
    m_frame = m_services.makeFrame();
    if (m_frame == nullptr)
        return false;
    m_sharedBlock.SetWindowHandle(HandleOf(MainWindow()));
    if (!m_frame->BuildViews(m_commandLine.m_startInDisplay ? ViewIndex::Display
                                                            : ViewIndex::Setup))
        return false;
    MakeDataFolder();
    return true;
}

void CSkeldonApp::ExitInstance()
{
    Settings().WriteInt(SystemSection, QStringLiteral("DispUnit"), m_dispUnit);
    Settings().Sync();
    m_sharedBlock.SetWindowHandle(0);
    m_instanceMutex.Close();
}

void CSkeldonApp::ShowAbout(QWidget* parent)
{
    if (m_services.showAbout)
        m_services.showAbout(parent);
}

CRecorderLink& CSkeldonApp::Link()
{
    m_conversation.Settle();
    return m_link;
}

bool CSkeldonApp::IsJapanese() const
{
    return m_language.compare(QLatin1String("JAPANESE"), Qt::CaseInsensitive) == 0;
}

DispUnit CSkeldonApp::GetDispUnit() const
{
    const auto unit = static_cast<DispUnit>(m_dispUnit);
    return unit == DispUnit::MetresPerSecondSquared || unit == DispUnit::Gal ? unit : DispUnit::G;
}

void CSkeldonApp::ReadColoursAndUnits()
{
    const bool isLight = Settings().GetInt(SystemSection, QStringLiteral("ViewBase"), 1) != 0;
    m_viewBaseColour = isLight ? LightFace : OlderFace;
    m_dispUnit = Settings().GetInt(SystemSection, QStringLiteral("DispUnit"), 0);
}

void CSkeldonApp::MakeDataFolder()
{
    const QString usual = DefaultDataFolder();
    if (Settings().GetText(SystemSection, QStringLiteral("DataPath"), usual) == usual)
        QDir().mkpath(usual);
}

CSkeldonApp& App()
{
    return *theApp;
}

void SetStatusText(const QString& text)
{
    if (App().Frame() != nullptr)
        App().Frame()->SetStatusText(text);
}

void ResetStatus()
{
    if (App().Frame() != nullptr)
        App().Frame()->ResetStatus();
}

} // namespace skeldon
