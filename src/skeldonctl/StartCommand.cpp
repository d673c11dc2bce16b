#include "recorder/ConditionCommands.h"
#include "setup/conditions/ConditionFitting.h"
#include "setup/conditions/ProfileFile.h"
#include "skeldonctl/Connection.h"
#include "skeldonctl/Messages.h"
#include "skeldonctl/RecorderCommands.h"

#include <string>

namespace skeldon {

namespace {

/// Runs the fitting checks: what is asked is taken where `fit`, and ends the command else.
bool Fit(CMeasureCondition& condition, const CRecorderLink& link, bool fit)
{
    CConditionFitting fitting(condition, FactsOf(link));
    while (const std::optional<FitStep> step = fitting.Next()) {
        const std::string reason = FitReasonText(step->code);
        if (!step->IsQuestion()) {
            Tell(reason);
            continue;
        }
        const std::string offer = FitOfferText(*step);
        Tell(reason + (fit ? " Taking " + offer + "." : " " + offer + " would fit."));
        fitting.Answer(fit);
    }
    return !fitting.IsRefused();
}

/// Whether a reservation's minute has gone by; told.
bool IsPast(const StartCommand& command)
{
    if (!command.at || FromLocalFields(*command.at) >= Now())
        return false;
    Tell("Reservation date should be in the future.");
    return true;
}

/// Whether the recorder's data goes and its clock is set; nothing where it must but may not.
std::optional<bool> Clears(const CRecorderLink& link, const StartCommand& command)
{
    if (link.m_count <= 0 || command.clear)
        return true;
    const bool isFull = link.m_countLimit != 0 && link.m_countLimit <= link.m_count;
    if (!isFull && !command.at)
        return false;
    Tell(isFull ? "The recorder is full: its data must be cleared (--clear)."
                : "A reservation clears the recorder's data: --clear is needed.");
    return std::nullopt;
}

} // namespace

ExitStatus Run(const StartCommand& command, CRecorderLink& link)
{
    CMeasureCondition condition;
    if (const std::error_code error = LoadProfile(command.profile, condition))
        return FailOn(command.profile, error);
    if (IsPast(command))
        return ExitStatus::Failed;
    if (const ExitStatus connected = Connect(link); connected != ExitStatus::Done)
        return connected;
    if (!Fit(condition, link, command.fit))
        return ExitStatus::Failed;
    const std::optional<bool> clears = Clears(link, command);
    // The recorder may have taken its time to answer.
    if (!clears || IsPast(command))
        return ExitStatus::Failed;
    // A reservation always sets the clock, and so always clears.
    const bool isStarted = command.at
                               ? link.StartReserved(condition, FromLocalFields(*command.at), true)
                               : link.StartMeasuring(condition, *clears);
    if (!isStarted) {
        Tell("Could not start measuring.");
        return ExitStatus::Failed;
    }
    Tell("Disconnect KORVA cable.");
    return ExitStatus::Done;
}

} // namespace skeldon
