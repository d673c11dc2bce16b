#pragma once

class QWidget;

namespace skeldon {

class CLcdPanel;
class CMeasureCondition;
enum class SetupPanel;

// The read-outs, as setup view and wizard have them.

/// The read-out of its kind, with caption and the tint of the forms. Its parent deletes it.
[[nodiscard]] CLcdPanel* MakeConditionPanel(SetupPanel panel, QWidget* parent);
/// Writes the read-out `display`, of kind `panel`, from the conditions; a blank one is lit again.
/// The number of records is none of them.
void ShowCondition(CLcdPanel& display, SetupPanel panel, const CMeasureCondition& condition);

} // namespace skeldon
