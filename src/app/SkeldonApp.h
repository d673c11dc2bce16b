#pragma once

#include "app/Colour.h"
#include "app/CommandLine.h"
#include "app/Conversation.h"
#include "app/Frame.h"
#include "app/Prompts.h"
#include "app/Settings.h"
#include "app/SharedLink.h"
#include "app/platform/LockFile.h"
#include "recorder/RecorderLink.h"

#include <functional>
#include <memory>
#include <string>

namespace skeldon {

/// Unit of the accelerations on the screen; the numbers are the settings store's.
enum class DispUnit
{
    G = 0,
    MetresPerSecondSquared = 1,
    Gal = 2,
};

/// What the application object works with and does not make itself, so that a test can give it
/// something else.
struct AppServices
{
    std::unique_ptr<CSettings> settings;
    std::unique_ptr<CPrompts> prompts;
    std::unique_ptr<CCableFinder> finder;
    PortOpener opener;
    CClock* clock = nullptr; ///< must outlive the application object
    QString language;        ///< the system's language by its English name
    /// Names of the block that other programs see, and of its mutex.
    std::string sharedBlock = CSharedLink::BlockName;
    std::string sharedMutex = CSharedLink::MutexName;
    /// Makes the main window, which the caller owns.
    std::function<CFrame*()> makeFrame;
    /// Shows the about box and waits until it is closed.
    std::function<void(QWidget* parent)> showAbout;
    /// Shows the settings sheet; true if it was closed with OK.
    std::function<bool(QWidget* parent)> showSettings;
    /// Web page of the online support; empty for none.
    QString supportAddress;
};

/// The one application object: what every window needs. Made first in `main` and gone last.
class CSkeldonApp
{
public:
    /// Known to all programs of the user; a second start finds it taken.
    static constexpr const char* InstanceName = "brennick-works SKELDON MutexKey";

    explicit CSkeldonApp(AppServices services);
    CSkeldonApp(const CSkeldonApp&) = delete;
    CSkeldonApp& operator=(const CSkeldonApp&) = delete;
    ~CSkeldonApp();

    /// The start sequence, with the words behind the program's name. False ends the process: the
    /// program runs already, or the window can not be made. Shows no message.
    bool InitInstance(const QStringList& words);
    /// The end sequence.
    void ExitInstance();
    void ShowAbout(QWidget* parent);

    [[nodiscard]] CSettings& Settings() { return *m_services.settings; }
    [[nodiscard]] CPrompts& Prompts() { return *m_services.prompts; }
    [[nodiscard]] const AppServices& Services() const { return m_services; }
    /// The link to the recorder, once no conversation uses it.
    [[nodiscard]] CRecorderLink& Link();
    [[nodiscard]] CConversation& Conversation() { return m_conversation; }
    /// The main window; null while there is none. Set by the window itself.
    [[nodiscard]] CFrame* Frame() const { return m_frame; }
    void SetFrame(CFrame* frame) { m_frame = frame; }
    [[nodiscard]] QWidget* MainWindow() const { return m_frame ? m_frame->Window() : nullptr; }
    /// Whether the system's language is Japanese.
    [[nodiscard]] bool IsJapanese() const;
    /// What `m_dispUnit` stands for; any number but 1 and 2 is G.
    [[nodiscard]] DispUnit GetDispUnit() const;

private:
    /// Makes the object known to all for as long as it lives.
    struct Access
    {
        explicit Access(CSkeldonApp& app);
        Access(const Access&) = delete;
        Access& operator=(const Access&) = delete;
        ~Access();
    };

    // The link's window, which goes with the link, needs these to remember its place.
    Access m_access;
    AppServices m_services;

public:
    CSkeldonCommandLine m_commandLine;
    QString m_language;         ///< the system's language by its English name
    bool m_ctrlAtStart = false; ///< Ctrl was held when the program started
    CRecorderLink m_link;       ///< for use inside of a conversation; else see `Link`
    CSharedLink m_sharedBlock;
    ColourRef m_viewBaseColour = 1; ///< face of the forms
    int m_dispUnit = 0;             ///< see `GetDispUnit`; kept as the settings store has it

private:
    void ReadColoursAndUnits();
    void MakeDataFolder();

    CLockFile m_instanceMutex;
    CConversation m_conversation;
    CFrame* m_frame = nullptr;
};

/// The application object, which must exist.
[[nodiscard]] CSkeldonApp& App();
/// Shows a text in the status bar, where there is a main window.
void SetStatusText(const QString& text);
/// Puts "Ready" back into the status bar.
void ResetStatus();

} // namespace skeldon
