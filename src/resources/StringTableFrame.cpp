#include "resources/StringTableParts.h"

namespace skeldon {

namespace {

constexpr StringEntry Entries[] = {
    // Application and main frame.
    {StringId::AppName, QT_TRANSLATE_NOOP3("StringTable", "SKELDON Light", "AppName")},
    {StringId::Ready, QT_TRANSLATE_NOOP3("StringTable", "Ready", "Ready")},
    {StringId::ConnectedToRecorder,
     QT_TRANSLATE_NOOP3("StringTable", "Connected to KORVA", "ConnectedToRecorder")},
    {StringId::PaneModel, QT_TRANSLATE_NOOP3("StringTable", " %s(Max %.1fG)", "PaneModel")},
    {StringId::PaneModelAlpha,
     QT_TRANSLATE_NOOP3("StringTable", " %s(Max %.1fG) Alpha", "PaneModelAlpha")},
    {StringId::PaneRelease, QT_TRANSLATE_NOOP3("StringTable", "RLS=", "PaneRelease")},
    {StringId::ButtonOk, QT_TRANSLATE_NOOP3("StringTable", "OK", "ButtonOk")},
    {StringId::ButtonCancel, QT_TRANSLATE_NOOP3("StringTable", "Cancel", "ButtonCancel")},
    {StringId::ButtonClose, QT_TRANSLATE_NOOP3("StringTable", "Close", "ButtonClose")},
    {StringId::AboutVersion, QT_TRANSLATE_NOOP3("StringTable", "SKELDON Version", "AboutVersion")},
};

static_assert(FollowsEnum(Entries));

} // namespace

std::span<const StringEntry> FrameTexts()
{
    return Entries;
}

} // namespace skeldon
