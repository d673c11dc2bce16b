#include "resources/StringTableParts.h"

namespace skeldon {

namespace {

constexpr StringEntry Entries[] = {
    // Setup wizard: heading and description of each page.
    {StringId::WizardSampling,
     QT_TRANSLATE_NOOP3("StringTable", "Set the sampling.", "WizardSampling")},
    {StringId::WizardSamplingText,
     QT_TRANSLATE_NOOP3("StringTable",
                        "Set the cycle to measure.\r\n When trace mode is selected, recording "
                        "starts every  specified sampling cycle, from the time when the excess of "
                        "the threshold is first detected. (trigger mode)",
                        "WizardSamplingText")},
    {StringId::WizardInterval,
     QT_TRANSLATE_NOOP3("StringTable", "Set recording intervals.", "WizardInterval")},
    {StringId::WizardIntervalText,
     QT_TRANSLATE_NOOP3(
         "StringTable",
         "Set the recording intervals.\r\n The maximum record of the measured sampling is recorded "
         "during the specified the recording intervals (One data per recording interval)",
         "WizardIntervalText")},
    {StringId::WizardThreshold,
     QT_TRANSLATE_NOOP3("StringTable", "Set a threshold.", "WizardThreshold")},
    {StringId::WizardThresholdText,
     QT_TRANSLATE_NOOP3("StringTable",
                        "Set a threshold.\r\n All sampling measurement data that exceeds the "
                        "specified threshold will be recorded.\r\n When threshold is 0, one "
                        "maximum data during the recording interval is recorded.",
                        "WizardThresholdText")},
    {StringId::WizardDetectOver,
     QT_TRANSLATE_NOOP3("StringTable",
                        "Set it active, the detection of the excess of upper threshold.",
                        "WizardDetectOver")},
    {StringId::WizardDetectOverText,
     QT_TRANSLATE_NOOP3("StringTable",
                        "Set the option of the display \"SHOCKED\" on LCD when the excess of the "
                        "threshold is detected.\r\n(Not applicable during the trace mode)",
                        "WizardDetectOverText")},
    {StringId::WizardId, QT_TRANSLATE_NOOP3("StringTable", "Set host number (ID).", "WizardId")},
    {StringId::WizardIdText,
     QT_TRANSLATE_NOOP3("StringTable",
                        "Set the number from 1 to 99 to KORVA\r\nThe host number specified in an "
                        "existing profile is not available.",
                        "WizardIdText")},
    {StringId::WizardStartOption,
     QT_TRANSLATE_NOOP3("StringTable", "Set the starting option.", "WizardStartOption")},
    {StringId::WizardStartOptionText,
     QT_TRANSLATE_NOOP3(
         "StringTable",
         "0: Promptly, start measuring. Maximum value display mode (magnet reset)\r\n1: Magnet "
         "trigger only on start measuring\r\n2: Magnet on start measuring. After start, measuring "
         "stop on magnet\r\n3 Magnet on start measuring. After start, measuring pause on magnet. "
         "Restart on releasing magnet\r\n4: Magnet on start measuring. After start, measuring "
         "pause on releasing magnet. Restart on magnet\r\n5〜90: Set the idling time (sec.) after "
         "USB cable is disconnected till measuring starts.",
         "WizardStartOptionText")},
    {StringId::WizardHazard,
     QT_TRANSLATE_NOOP3("StringTable", "Configure hazard value.", "WizardHazard")},
    {StringId::WizardHazardText,
     QT_TRANSLATE_NOOP3("StringTable",
                        "When G higher than the configured level is detected, it will stop after "
                        "1000 records.\r\nWhen is configured at 0, it will not stop.",
                        "WizardHazardText")},
    {StringId::WizardEndless,
     QT_TRANSLATE_NOOP3("StringTable", "Configure the Endless mode (Cyclic Recording)",
                        "WizardEndless")},
    {StringId::WizardEndlessText,
     QT_TRANSLATE_NOOP3("StringTable",
                        "Configure ON/OFF for Endless Recording (Cyclic Recording).\r\nWhen is ON, "
                        "it will  not stop when data is full, but will overwrite the oldest data "
                        "with the new,\r\nWhen is OFF, it will stop when data is full.",
                        "WizardEndlessText")},
    {StringId::WizardBuzzer,
     QT_TRANSLATE_NOOP3("StringTable", "Configure the buzzer.", "WizardBuzzer")},
    {StringId::WizardBuzzerText,
     QT_TRANSLATE_NOOP3("StringTable", "Configure the buzzer.\r\nValid only for type QM70 Alpha.",
                        "WizardBuzzerText")},
};

static_assert(FollowsEnum(Entries));

} // namespace

std::span<const StringEntry> WizardTexts()
{
    return Entries;
}

} // namespace skeldon
