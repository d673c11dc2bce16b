#pragma once

#include "base/CalendarTime.h"
#include "recorder/RecorderStatus.h"
#include "setup/conditions/MeasureCondition.h"

#include <string>
#include <vector>

namespace skeldon {

/// The commands that give a recorder its conditions, in their order on the wire. What the model
/// does not know is left out.
[[nodiscard]] std::vector<std::string> ConditionCommands(const RecorderStatus& recorder,
                                                         const CMeasureCondition& condition);

/// Sets the recorder's clock.
[[nodiscard]] std::string ClockCommand(CalendarSeconds time);

/// Has the recorder begin at the minute of `time`; the command holds no year.
[[nodiscard]] std::string ReservationCommand(CalendarSeconds time);

/// Puts what the recorder holds into `condition`. The name is emptied; the path and the keep-mode
/// block stay.
void TakeConditions(const RecorderStatus& recorder, CMeasureCondition& condition);

/// What the fitting of conditions needs to know.
[[nodiscard]] RecorderFacts FactsOf(const RecorderStatus& recorder);

} // namespace skeldon
