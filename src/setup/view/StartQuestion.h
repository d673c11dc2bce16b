#pragma once

#include "app/Prompts.h"
#include "base/CalendarTime.h"
#include "setup/conditions/ConditionFitting.h"

#include <QDate>
#include <QString>
#include <QTime>

#include <optional>

namespace skeldon {

struct RecorderStatus;

/// A box that stands in the way of a start.
struct StartBox
{
    BoxKind kind;
    QString text;
};

/// What start option `value` means, in the user's language: 0..4 name a mode, any other value is a
/// delay in seconds.
[[nodiscard]] QString StartOptionWords(int value);

/// What the fitting of the conditions has to ask or tell.
[[nodiscard]] StartBox BoxOf(const FitStep& step);

/// The last question before a start, by what the recorder last told: a prompt start leaves the
/// user the choice where the recorder holds data and has room for more. `startOption` is told on a
/// prompt start where the recorder knows it.
[[nodiscard]] StartBox StartQuestion(const RecorderStatus& recorder, int startOption,
                                     bool isPrompt);
/// Whether the recorder is to be cleared, which also sets its clock; nothing where there is to be
/// no start.
[[nodiscard]] std::optional<bool> ClearingOf(Answer answer, BoxKind kind);

/// Local time of a reservation at the beginning of the minute; daylight saving is left to the
/// calendar.
[[nodiscard]] CalendarSeconds ReserveTime(QDate date, QTime time);
/// Whether a recorder can still be told to begin then. The present second counts as future.
[[nodiscard]] bool IsFuture(CalendarSeconds reserveTime, CalendarSeconds now);

} // namespace skeldon
