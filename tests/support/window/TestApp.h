#pragma once

#include "support/window/TestServices.h"

#include <QDialog>
#include <QSet>
#include <QTemporaryDir>
#include <QUrl>

#include <deque>
#include <memory>
#include <vector>

namespace skeldon::test {

/// A box or dialog that the program showed.
struct Prompt
{
    enum class Kind
    {
        Box,
        OpenPath,
        SavePath,
        Colour,
    };

    Kind kind = Kind::Box;
    BoxKind boxKind = BoxKind::Warning;
    QString text;          ///< of a box; title of a dialog
    FileQuestion question; ///< of a dialog
    ColourRef colour = 0;  ///< that a colour dialog begins at
};

/// Answers in place of the user: boxes by the next prepared answer, or as Enter would; dialogs by
/// the next prepared path, or by Cancel; dialogs of the program's own as prepared.
class CScriptedPrompts final : public CPrompts
{
public:
    Answer ShowBox(QWidget* parent, BoxKind kind, const QString& text) override;
    std::optional<QString> AskOpenPath(QWidget* parent, const FileQuestion& question) override;
    std::optional<QString> AskSavePath(QWidget* parent, const FileQuestion& question) override;
    bool RunDialog(QDialog& dialog) override;
    std::optional<ColourRef> AskColour(QWidget* parent, ColourRef present) override;
    bool PutOnClipboard(std::unique_ptr<QMimeData> contents) override;
    void OpenPage(const QUrl& page) override { m_pages.push_back(page); }
    void Beep() override { ++m_beeps; }
    void BeepFailure() override { ++m_failureBeeps; }

    /// Texts of the boxes so far.
    [[nodiscard]] QStringList Boxes() const;

    std::vector<Prompt> m_shown;
    std::vector<QUrl> m_pages;
    std::deque<Answer> m_answers;
    std::deque<std::optional<QString>> m_paths;
    std::deque<std::optional<ColourRef>> m_colours; ///< none: cancelled
    bool m_clipboardFails = false;
    /// What the user does in the next dialog, which is open then; true closes it by OK if it lets
    /// itself be closed so. Without one it is cancelled.
    std::deque<std::function<bool(QDialog&)>> m_dialogs;
    std::function<void(const Prompt&)> m_whileShown; ///< what happens while a prompt stands
    int m_beeps = 0;
    int m_failureBeeps = 0;

private:
    std::optional<QString> NextPath();
    void Show(Prompt prompt);
};

/// A cable that is there or not as a test says.
class CTestCable final : public CCableFinder
{
public:
    explicit CTestCable(const std::string& port)
        : m_port(port)
    {}
    [[nodiscard]] std::optional<std::string> FindPort() override;

private:
    const std::string& m_port;
};

/// A frame that keeps what it is told, for tests of what lies below the main window.
class CTestFrame final : public CFrame
{
public:
    void SetStatusText(const QString& text) override
    {
        m_status = text;
        m_statuses << text;
    }
    void ResetStatus() override { SetStatusText(QStringLiteral("(reset)")); }
    void SetCaption(const QString& text) override { m_caption = text; }
    [[nodiscard]] bool IsConnected() const override { return m_connected; }
    [[nodiscard]] ViewIndex CurrentView() const override { return m_view; }
    void SwitchView(ViewIndex view) override { m_view = view; }
    [[nodiscard]] bool IsPlacementRestored() const override { return m_placementRestored; }
    void EnableSystemClose(bool enabled) override { m_closeEnabled = enabled; }
    [[nodiscard]] bool IsSystemCloseEnabled() const override { return m_closeEnabled; }
    void CloseFrame() override { m_closed = true; }
    [[nodiscard]] QWidget* Window() override { return m_window; }
    bool BuildViews(ViewIndex /*first*/) override { return true; }

    QString m_status;
    QStringList m_statuses; ///< all texts so far
    QString m_caption;
    bool m_connected = false;
    bool m_placementRestored = false;
    bool m_closeEnabled = true;
    bool m_closed = false;
    ViewIndex m_view = ViewIndex::Display;
    QWidget* m_window = nullptr;
};

/// An application object for tests: settings in a folder of their own, scripted prompts, English, a
/// cable at `m_port` where that is not empty.
class CTestApp
{
public:
    /// `settings` is used again where a test starts the program a second time.
    explicit CTestApp(const QString& language = QStringLiteral("English"),
                      const QString& settings = {});
    ~CTestApp();

    [[nodiscard]] QString Folder() const { return m_folder.path(); }
    [[nodiscard]] QString SettingsFile() const { return m_settingsFile; }

    std::string m_port;
    QTemporaryDir m_folder;
    QString m_settingsFile;
    CMovedClock m_clock;
    CTestFrame m_frame;
    CScriptedPrompts* m_prompts = nullptr;
    std::unique_ptr<CSkeldonApp> m_app;
};

} // namespace skeldon::test
