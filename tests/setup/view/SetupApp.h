#pragma once

#include "setup/view/ProfileFolder.h"
#include "setup/view/QuickPort.h"
#include "setup/view/SetupForm.h"
#include "setup/view/SetupView.h"
#include "support/Process.h"
#include "support/window/TestApp.h"

#include <QPointer>
#include <QTimer>

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace skeldon {
class CCableDialog;
class CLcdPanel;
class CReservedStartDialog;
class CSkinButton;
class CSpinButton;
} // namespace skeldon

namespace skeldon::test {

/// A frame that keeps what it is told, and whose connection can change between two questions.
class CSetupFrame final : public CFrame
{
public:
    void SetStatusText(const QString& text) override { m_status = text; }
    void ResetStatus() override { m_status = QStringLiteral("(reset)"); }
    void SetCaption(const QString& text) override { m_caption = text; }
    [[nodiscard]] bool IsConnected() const override;
    [[nodiscard]] ViewIndex CurrentView() const override { return ViewIndex::Setup; }
    void SwitchView(ViewIndex view) override { m_switched.push_back(view); }
    [[nodiscard]] bool IsPlacementRestored() const override { return false; }
    void EnableSystemClose(bool /*enabled*/) override {}
    [[nodiscard]] bool IsSystemCloseEnabled() const override { return true; }
    void CloseFrame() override { ++m_closed; }
    [[nodiscard]] QWidget* Window() override { return nullptr; }
    bool BuildViews(ViewIndex /*first*/) override { return true; }

    QString m_status;
    QString m_caption = QStringLiteral("(none)");
    bool m_connected = false;
    mutable std::deque<bool> m_answers; ///< of `IsConnected`, before `m_connected` is asked
    std::vector<ViewIndex> m_switched;
    int m_closed = 0;
};

/// The setup view in a window of its own, over folders of its own, with a simulated recorder where
/// one is played. Dialogs of a start are closed with OK as soon as they stand, unless the test
/// says otherwise.
class CSetupApp
{
public:
    explicit CSetupApp(const QString& language = QStringLiteral("English"));
    ~CSetupApp();
    CSetupApp(const CSetupApp&) = delete;
    CSetupApp& operator=(const CSetupApp&) = delete;

    /// Profiles and settings are given before this.
    void Show();
    /// Plays a recorder on a pseudo terminal and lets the view know.
    void Play(std::vector<std::string> options);
    /// What the host sent since the recorder was played or this was asked, as the recorder's
    /// trace has it. As much as is expected is waited for.
    [[nodiscard]] QByteArray Sent(const QByteArray& expected = {});
    /// The recorder is ended and its cable pulled.
    void Unplug();

    [[nodiscard]] CSetupView& View() { return *m_view; }
    [[nodiscard]] CSetupState& State() { return m_view->State(); }
    [[nodiscard]] CSetupForm& Form() { return m_view->Form(); }
    [[nodiscard]] CLcdPanel& Panel(SetupPanel panel) { return Form().Panel(panel); }
    [[nodiscard]] CSkinButton& Button(SetupButton button) { return Form().Button(button); }
    [[nodiscard]] bool Can(CommandId command) const { return m_view->StateOf(command).isEnabled; }
    void Command(CommandId command) { m_view->OnCommand(command); }
    /// Real clicks.
    void Click(SetupButton button);
    void ClickLine(int position);
    void Press(SetupStep step);
    /// Texts of the list.
    [[nodiscard]] QStringList Lines();
    /// Does it once, as soon as the recorder is being spoken to and `isTime` holds.
    void DuringTheTalk(std::function<void()> act, std::function<bool()> isTime = {});
    /// Puts conditions on show, as a profile would.
    void Load(const CMeasureCondition& condition);

    CProfileFolder m_folder;
    CTemporaryFolder m_wire;
    std::string m_port;
    CQuickClock m_clock;
    std::optional<WireChange> m_change;
    CScriptedPrompts* m_prompts = nullptr;
    CSetupFrame m_frame;
    std::unique_ptr<CSkeldonApp> m_app;

    std::function<void(CCableDialog&)> m_onCable;
    std::function<void(CReservedStartDialog&)> m_onReserved;
    int m_cableDialogs = 0;
    int m_reservedDialogs = 0;

private:
    void WatchDialogs();

    std::unique_ptr<CSetupView> m_view;
    std::unique_ptr<CBackgroundProgram> m_recorder;
    std::size_t m_traceRead = 0;
    QTimer m_watch;
    QPointer<QWidget> m_seen; ///< the dialog that was taken care of
};

} // namespace skeldon::test
