#include "setup/view/StartQuestion.h"

#include "recorder/RecorderStatus.h"
#include "resources/StringTable.h"
#include "resources/TextFormat.h"
#include "setup/tables/RecorderModel.h"

#include <array>

namespace skeldon {

namespace {

constexpr double TenthsPerG = 10.0;

QString WithLevel(StringId text, int tenths)
{
    return FormatText(Text(text), {tenths / TenthsPerG});
}

bool IsFull(const RecorderStatus& recorder)
{
    return recorder.m_countLimit != 0 && recorder.m_countLimit <= recorder.m_count;
}

} // namespace

QString StartOptionWords(int value)
{
    constexpr std::array Modes = {
        StringId::StartPromptly,      StringId::StartOnMagnet,       StringId::StartStopOnMagnet,
        StringId::StartPauseOnMagnet, StringId::StartPauseOffMagnet,
    };
    if (value >= 0 && static_cast<std::size_t>(value) < Modes.size())
        return Text(Modes[static_cast<std::size_t>(value)]);
    return FormatText(Text(StringId::StartAfterSeconds), {value});
}

StartBox BoxOf(const FitStep& step)
{
    switch (step.code) {
    case FitCode::SamplingUnusable:
        return {BoxKind::YesNo, FormatText(Text(StringId::AskSamplingStandard),
                                           {Text(StringId::StandardSampling)})};
    case FitCode::IntervalUnusable:
        return {BoxKind::YesNo, FormatText(Text(StringId::AskIntervalStandard),
                                           {Text(StringId::StandardInterval)})};
    case FitCode::ThresholdUnusable:
        return {BoxKind::YesNo, Text(StringId::AskThresholdZero)};
    case FitCode::ThresholdOffStep:
        return {BoxKind::YesNo, WithLevel(StringId::AskThresholdApproximate, step.offered)};
    case FitCode::HazardNeedsAlpha:
        return {BoxKind::Warning, Text(StringId::NoHazard)};
    case FitCode::HazardUnusable:
        return {BoxKind::YesNo, Text(StringId::AskHazardCancel)};
    case FitCode::HazardOffStep:
        return {BoxKind::YesNo, WithLevel(StringId::AskHazardApproximate, step.offered)};
    case FitCode::EndlessNeedsAlpha:
        return {BoxKind::Information, Text(StringId::NoEndless)};
    case FitCode::BuzzerMissing:
        break;
    }
    return {BoxKind::Information, Text(StringId::NoBuzzer)};
}

StartBox StartQuestion(const RecorderStatus& recorder, int startOption, bool isPrompt)
{
    StringId text = StringId::AskStart;
    BoxKind kind = BoxKind::NoYes;
    if (recorder.m_count > 0) {
        const bool hasChoice = isPrompt && !IsFull(recorder);
        text = hasChoice ? StringId::AskStartAndClear : StringId::AskStartAfterClearing;
        kind = hasChoice ? BoxKind::YesNoCancel : BoxKind::NoYes;
    }
    // The texts leave room for a word before "measuring" on trace rows; there is none.
    QString question = FormatText(Text(text), {QString()});
    if (isPrompt && recorder.m_type != OldestType && startOption != 0)
        question += FormatText(Text(StringId::StartQuestionTail), {StartOptionWords(startOption)});
    return {kind, question};
}

std::optional<bool> ClearingOf(Answer answer, BoxKind kind)
{
    if (answer == Answer::Yes)
        return true;
    if (answer == Answer::No && kind == BoxKind::YesNoCancel)
        return false;
    return std::nullopt;
}

CalendarSeconds ReserveTime(QDate date, QTime time)
{
    return FromLocalFields({date.year(), date.month(), date.day(), time.hour(), time.minute(), 0});
}

bool IsFuture(CalendarSeconds reserveTime, CalendarSeconds now)
{
    return reserveTime >= now;
}

} // namespace skeldon
