#pragma once

#include "dataview/DisplayView.h"
#include "dataview/MainFrame.h"
#include "dataview/RecorderPoll.h"
#include "support/Process.h"
#include "support/window/TestApp.h"

#include <QTemporaryDir>

#include <QAction>

#include <functional>
#include <memory>

namespace skeldon::test {

/// The whole program in one process, as `main` puts it together: settings, lock files and cable in
/// a folder of its own, scripted prompts.
class CFrameApp
{
public:
    static constexpr const char* SupportAddress = "https://support.example/recorders?in=ja";

    /// What the program gets otherwise than the tests' programs do.
    using Adjust = std::function<void(AppServices&)>;

    /// `settings` is used again where a test starts the program a second time.
    explicit CFrameApp(const QString& language = QStringLiteral("English"),
                       const QString& settings = {}, const Adjust& adjust = {});
    ~CFrameApp();

    /// The start sequence with these words; the window is shown then.
    bool Start(const QStringList& words = {QStringLiteral("-display")});
    /// Starts the program in the data view and connects such a recorder to it.
    [[nodiscard]] bool StartWith(std::vector<std::string> options);
    /// Ends the program as a return from its event loop would.
    void End();

    /// Plays a recorder on the cable. `options` are the simulator's.
    void PlugIn(std::vector<std::string> options);
    /// The cable is pulled, or plugged in again.
    void Pull();
    void PlugInAgain();
    /// Puts a path in the cable's place that is no recorder.
    void PlugInJunk();
    void RemoveJunk();
    /// Looks for the recorder until the frame takes it as connected or not.
    [[nodiscard]] bool Connect(bool connected = true);

    [[nodiscard]] CMainFrame& Frame() { return *m_frame; }
    [[nodiscard]] CDisplayView& View() { return m_frame->DisplayView(); }
    [[nodiscard]] CSettings& Settings() { return m_app->Settings(); }
    [[nodiscard]] QString SettingsFile() const { return m_settingsFile; }
    [[nodiscard]] QString Port() const { return m_folder.filePath(QStringLiteral("korva")); }
    /// Loads `count` lines, one a second, as if they had been read and not been saved.
    void TakeLines(std::size_t count);
    /// A data file with so many lines in the folder.
    [[nodiscard]] QString WriteLines(const QString& name, std::size_t count);
    /// The menu entry of the view with this text; null without one.
    [[nodiscard]] QAction* Entry(ViewIndex view, const QString& text) const;
    /// A key press that the window system gives to the window that has the focus.
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    QTemporaryDir m_folder;
    CMovedClock m_clock;
    CScriptedPrompts* m_prompts = nullptr;
    QString m_hints;              ///< of the document, as "1:0 1:1 "
    int m_abouts = 0;             ///< times that the about box was asked for
    int m_sheets = 0;             ///< times that the settings sheet was asked for
    bool m_acceptsSheet = true;   ///< whether the sheet is closed with OK
    std::function<void()> m_made; ///< called when the frame stands and has no views yet
    std::unique_ptr<CSkeldonApp> m_app;
    std::unique_ptr<CMainFrame> m_frame;

private:
    void Control(const char* line);

    QString m_settingsFile;
    std::unique_ptr<CBackgroundProgram> m_simulator;
};

} // namespace skeldon::test
