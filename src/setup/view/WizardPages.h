#pragma once

#include "resources/StringTable.h"
#include "setup/view/SetupLayout.h"

#include <span>

namespace skeldon {

class CMeasureCondition;
class CProfileStore;

/// What a page of the wizard shows and changes. A page has either both arrows or a toggle; what it
/// has not is null. The numbers do not regard the recorder that is connected.
struct WizardPage
{
    /// Steps one condition; at an end nothing changes.
    using Step = void (*)(CMeasureCondition& condition, const CProfileStore& profiles);

    SetupPanel panel{}; ///< its read-out
    StringId heading = StringId::Count;
    StringId description = StringId::Count;
    Step up = nullptr;
    Step down = nullptr;
    Step toggle = nullptr;
    bool speedsUp = false; ///< a held arrow is fast after a while
    /// What a page does to the conditions, once, when it is first shown; null for nothing.
    Step open = nullptr;
};

/// The nine, in their order.
[[nodiscard]] std::span<const WizardPage> WizardPages();

/// Which buttons the wizard offers on a page.
struct WizardButtons
{
    bool hasBack = false;
    bool hasNext = false;
    bool hasFinish = false;

    bool operator==(const WizardButtons&) const = default;
};

[[nodiscard]] WizardButtons WizardButtonsOf(int page);

} // namespace skeldon
