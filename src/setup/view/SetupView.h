#pragma once

#include "app/Prompts.h"
#include "app/View.h"
#include "setup/view/SetupState.h"

#include <functional>

namespace skeldon {

class CSetupForm;
enum class SetupStep;

/// The form on which measurement conditions are picked or edited, kept as profiles, read from the
/// recorder, and given to it with the start of a measurement.
class CSetupView : public CView
{
    Q_OBJECT

public:
    /// Has the user edit conditions; false where that was cancelled.
    using ConditionEditor = std::function<bool(CMeasureCondition& condition,
                                               const CProfileStore& store, QWidget* parent)>;

    explicit CSetupView(QWidget* parent = nullptr);
    ~CSetupView() override;

    void OnInitialUpdate() override;
    void OnCommand(CommandId command) override;
    [[nodiscard]] CommandState StateOf(CommandId command) const override;
    void OnUpdate(DocumentHint hint, int argument) override;
    [[nodiscard]] QSize SmallestSize() const override;

    /// A recorder is connected and conditions are on show.
    [[nodiscard]] bool CanStart() const;

    [[nodiscard]] const CSetupState& State() const { return m_state; }
    /// What the view shows, for changes from outside; `RefreshControls` must follow.
    [[nodiscard]] CSetupState& State() { return m_state; }
    [[nodiscard]] CSetupForm& Form() const { return *m_form; }

    /// Brings buttons, label, name box, arrows and toggles into line with the state.
    void RefreshControls();

    ConditionEditor m_wizard;   ///< the wizard of setup
    ConditionEditor m_cardForm; ///< what stands for it where the user wants one form

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    // List and conditions.
    void SelectLine(int position);
    void NameChanged(const QString& name);
    void ShowName();
    void ShowListMode(ListMode mode);
    void ShowList();
    void ShowConditions();
    void ShowEditMode();
    void FlipEditMode();
    void Restore();
    void Step(SetupStep step);
    void RunWizard();

    // Profiles.
    void AddProfile();
    bool SettleHostNumber();
    void UpdateProfile();
    void DeleteProfile();

    // The recorder.
    void Receive();
    void BlinkStartOption();
    void ChangeRange();
    [[nodiscard]] bool CanChangeRange() const;

    // Starts.
    void StartPrompt();
    void StartReserved();
    bool FitConditions();
    bool ConfirmStart(bool& clear, bool isPrompt);
    void EndStart(bool isStarted);

    void ReadSettings();
    void RunCommand(CommandId command);
    void Warn(StringId text);
    Answer Ask(BoxKind kind, const QString& text);

    bool m_bInitialised = false; ///< the first update has run
    bool m_bBusy = false;        ///< a command runs; others are passed over
    bool m_bExitWanted = false;  ///< the user asked for the end meanwhile
    CSetupState m_state;
    CSetupForm* m_form;
};

} // namespace skeldon
