#include "recorder/ConditionCommands.h"

#include "recorder/StatusReport.h"
#include "setup/tables/IntervalTable.h"
#include "setup/tables/RecorderModel.h"
#include "setup/tables/SamplingTable.h"

#include <array>
#include <cstdio>

namespace skeldon {

namespace {

/// Goes out where the recorder has no character for the sampling row.
constexpr char StandardSampling = '5';

/// `letters` and a number of at least two digits.
std::string TwoDigitCommand(const char* letters, int number)
{
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%s%02d", letters, number);
    return text.data();
}

} // namespace

std::vector<std::string> ConditionCommands(const RecorderStatus& recorder,
                                           const CMeasureCondition& condition)
{
    const double factor = recorder.GetThresholdFactor();
    const char sampling = SamplingTable::CharacterFor(recorder.m_type, condition.GetSampling());
    std::vector<std::string> commands{
        std::string("i") + (sampling ? sampling : StandardSampling),
        std::string("j") + IntervalTable::Character(condition.GetInterval()),
        TwoDigitCommand("d", CutToInt(condition.Threshold * factor)),
        condition.OverThreshold ? "k1" : "k0",
        TwoDigitCommand("N", condition.SerialNo),
    };
    if (recorder.m_type != OldestType)
        commands.push_back(TwoDigitCommand("w", condition.StartOpt));
    if (recorder.m_alphaFirmware) {
        commands.push_back(TwoDigitCommand("Ox", CutToInt(condition.Hazard * factor)));
        commands.push_back(TwoDigitCommand("Oz", condition.Endless ? 1 : 0));
    }
    // 0 on the wire turns the buzzer on.
    if (recorder.HasBuzzer())
        commands.emplace_back(condition.Buzzer ? "z0" : "z1");
    return commands;
}

std::string ClockCommand(CalendarSeconds time)
{
    const CalendarFields local = ToLocalFields(time);
    std::array<char, 80> text{};
    std::snprintf(text.data(), text.size(), "s%04d %02d/%02d %02d:%02d:%02d", local.year,
                  local.month, local.day, local.hour, local.minute, local.second);
    return text.data();
}

std::string ReservationCommand(CalendarSeconds time)
{
    const CalendarFields local = ToLocalFields(time);
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "l%02d/%02d %02d:%02d", local.month, local.day,
                  local.hour, local.minute);
    return text.data();
}

void TakeConditions(const RecorderStatus& recorder, CMeasureCondition& condition)
{
    condition.ProfileName.clear();
    condition.SerialNo = recorder.m_hostNumber;
    condition.Threshold = recorder.m_threshold;
    condition.SetInterval(recorder.m_intervalRow);
    condition.SetSampling(recorder.m_samplingRow);
    condition.OverThreshold = recorder.m_warn;
    condition.StartOpt = recorder.m_wait;
    condition.Hazard = recorder.m_hazard;
    condition.Endless = recorder.m_endless;
    condition.Buzzer = recorder.m_buzzer;
}

RecorderFacts FactsOf(const RecorderStatus& recorder)
{
    return {recorder.m_type, recorder.m_alphaFirmware, recorder.HasBuzzer()};
}

} // namespace skeldon
