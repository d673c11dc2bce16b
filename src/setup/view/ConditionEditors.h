#pragma once

class QWidget;

namespace skeldon {

class CMeasureCondition;
class CProfileStore;

// The two ways to have conditions edited in a dialog. `condition` takes the result, and stays as it
// is where the user cancels, which gives false.

/// The wizard: one page for each condition.
[[nodiscard]] bool RunWizard(CMeasureCondition& condition, QWidget* parent);
/// The card form: all on one sheet. `store` tells which host numbers are in use.
[[nodiscard]] bool RunConditionOption(CMeasureCondition& condition, const CProfileStore& store,
                                      QWidget* parent);

} // namespace skeldon
