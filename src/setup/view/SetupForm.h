#pragma once

#include "setup/view/SetupLayout.h"
#include "setup/view/StepRules.h"

#include <QWidget>

#include <array>

class QLabel;

namespace skeldon {

class CLcdPanel;
class CMeasureCondition;
class CNameEdit;
class CProfileList;
class CRecorderPicture;
class CSkinButton;
class CSpinButton;
enum class DigitColour;
enum class ListMode;

/// The face of the setup view: all controls in their places. Decides nothing.
class CSetupForm : public QWidget
{
    Q_OBJECT

public:
    explicit CSetupForm(QWidget* parent = nullptr);
    ~CSetupForm() override;

    [[nodiscard]] CSkinButton& Button(SetupButton button) const;
    [[nodiscard]] CLcdPanel& Panel(SetupPanel panel) const;
    /// The arrow or toggle of a step.
    [[nodiscard]] CSpinButton& Spin(SetupStep step) const;

    /// Writes one read-out from the conditions; a blank one is lit again.
    void ShowValue(SetupPanel panel, const CMeasureCondition& condition);
    /// Writes the nine read-outs of the conditions.
    void ShowConditions(const CMeasureCondition& condition);
    /// Blanks those nine.
    void BlankConditions();
    /// Colours those nine.
    void SetDigitColour(DigitColour colour);
    void ShowListMode(ListMode mode);
    /// Shows the arrows and toggles, or hides them.
    void ShowSpins(bool isShown);
    void HideDataDisplay();

    CNameEdit* m_name;
    CProfileList* m_list;
    QLabel* m_label;
    CRecorderPicture* m_picture;

signals:
    void ButtonClicked(skeldon::CommandId command);
    void Stepped(skeldon::SetupStep step);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void MakeLabelAndList();
    void MakeButtons();
    void MakePanels();
    void MakeSpins();
    void OrderFocus();

    std::array<CSkinButton*, static_cast<std::size_t>(SetupButton::Count)> m_buttons{};
    std::array<CLcdPanel*, static_cast<std::size_t>(SetupPanel::Count)> m_panels{};
    std::array<CSpinButton*, static_cast<std::size_t>(SetupStep::Count)> m_spins{};
};

} // namespace skeldon
