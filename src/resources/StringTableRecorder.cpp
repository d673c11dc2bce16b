#include "resources/StringTableParts.h"

namespace skeldon {

namespace {

constexpr StringEntry Entries[] = {
    // Operations on the recorder.
    {StringId::TitleCable, QT_TRANSLATE_NOOP3("StringTable", "SKELDON", "TitleCable")},
    {StringId::DisconnectCable,
     QT_TRANSLATE_NOOP3("StringTable", "Disconnect KORVA cable.", "DisconnectCable")},
    {StringId::AskCalibrate,
     QT_TRANSLATE_NOOP3("StringTable", "Start calibrating. Have your magnet ready.\nAre you sure?",
                        "AskCalibrate")},
    {StringId::CouldNotCalibrate,
     QT_TRANSLATE_NOOP3("StringTable", "Could not start calibrating.", "CouldNotCalibrate")},
    {StringId::AskAdjustTemperature,
     QT_TRANSLATE_NOOP3("StringTable", "Start adjusting temperature.\nAre you sure?",
                        "AskAdjustTemperature")},
    {StringId::CouldNotAdjustTemperature,
     QT_TRANSLATE_NOOP3("StringTable", "Could not start adjusting temperature.",
                        "CouldNotAdjustTemperature")},
    {StringId::FailedToAdjustHostNumber,
     QT_TRANSLATE_NOOP3("StringTable", "Failed to adjust host number.",
                        "FailedToAdjustHostNumber")},
    {StringId::RemoveCable,
     QT_TRANSLATE_NOOP3("StringTable", "Remove KORVA cable.", "RemoveCable")},
    {StringId::DatesCorrected,
     QT_TRANSLATE_NOOP3("StringTable", "Dates have been corrected for the new year.",
                        "DatesCorrected")},

    // Monitor window.
    {StringId::TitleMonitor,
     QT_TRANSLATE_NOOP3("StringTable", "SKELDON - Monitor", "TitleMonitor")},
    {StringId::MonitorAlwaysWatched,
     QT_TRANSLATE_NOOP3("StringTable", "&Always watched", "MonitorAlwaysWatched")},
    {StringId::MonitorMaxLines,
     QT_TRANSLATE_NOOP3("StringTable", "&Max lines :", "MonitorMaxLines")},
    {StringId::MonitorSet, QT_TRANSLATE_NOOP3("StringTable", "&Set", "MonitorSet")},
    {StringId::MonitorCalibrate,
     QT_TRANSLATE_NOOP3("StringTable", "Cali&brate", "MonitorCalibrate")},
    {StringId::MonitorCommand, QT_TRANSLATE_NOOP3("StringTable", "Comman&d :", "MonitorCommand")},
    {StringId::MonitorCopy, QT_TRANSLATE_NOOP3("StringTable", "Cop&y", "MonitorCopy")},
    {StringId::MonitorClear, QT_TRANSLATE_NOOP3("StringTable", "&Clear", "MonitorClear")},

    // Online recording.
    {StringId::OnlineSeconds, QT_TRANSLATE_NOOP3("StringTable", "sec", "OnlineSeconds")},
    {StringId::TitleOnlineConfiguration,
     QT_TRANSLATE_NOOP3("StringTable", "Online Recording Configuration",
                        "TitleOnlineConfiguration")},
    {StringId::OnlineMaximumTime,
     QT_TRANSLATE_NOOP3("StringTable", "&Maximum Recording Time :", "OnlineMaximumTime")},
    {StringId::OnlineMaximumTimeUnit,
     QT_TRANSLATE_NOOP3("StringTable", "sec", "OnlineMaximumTimeUnit")},
    {StringId::OnlineListMinutes,
     QT_TRANSLATE_NOOP3("StringTable", "%d(%dmin)", "OnlineListMinutes")},
    {StringId::OnlineMaximumName,
     QT_TRANSLATE_NOOP3("StringTable", "Maximum number of recording", "OnlineMaximumName")},
};

static_assert(FollowsEnum(Entries));

} // namespace

std::span<const StringEntry> RecorderTexts()
{
    return Entries;
}

} // namespace skeldon
