#include "setup/view/SetupLayout.h"

#include <array>

namespace skeldon {

namespace {

constexpr int Height = ButtonFaceHeight;
constexpr int StartTop = 3;

constexpr std::array<SetupPanelForm, static_cast<std::size_t>(SetupPanel::Count)> Panels = {{
    {SetupPanel::Interval, LcdPanelKind::Interval, StringId::PanelInterval, {396, 66}},
    {SetupPanel::StartOption, LcdPanelKind::StartOption, StringId::PanelStartOption, {504, 66}},
    {SetupPanel::Sampling, LcdPanelKind::Sampling, StringId::PanelSampling, {612, 66}},
    {SetupPanel::Threshold, LcdPanelKind::Threshold, StringId::PanelThreshold, {396, 124}},
    {SetupPanel::Hazard, LcdPanelKind::Hazard, StringId::PanelHazard, {504, 124}},
    {SetupPanel::DetectOver,
     LcdPanelKind::DetectOverTemperature,
     StringId::PanelDetectOver,
     {396, 182}},
    {SetupPanel::Endless, LcdPanelKind::Endless, StringId::PanelEndless, {504, 182}},
    {SetupPanel::Records, LcdPanelKind::Records, StringId::PanelRecords, {612, 182}},
    {SetupPanel::Id, LcdPanelKind::Id, StringId::PanelId, {396, 240}},
    {SetupPanel::Buzzer, LcdPanelKind::Buzzer, StringId::PanelBuzzer, {504, 240}},
}};

constexpr std::array<SetupButtonForm, static_cast<std::size_t>(SetupButton::Count)> Buttons = {{
    {SetupButton::StartPrompt,
     CommandId::StartPrompt,
     StringId::ButtonPromptMeasuring,
     PictureId::IconStartPrompt,
     {16, StartTop, 136, Height}},
    {SetupButton::StartReserved,
     CommandId::StartReserved,
     StringId::ButtonReservedMeasuring,
     PictureId::IconStartReserved,
     {158, StartTop, 136, Height}},
    {SetupButton::Add,
     CommandId::AddProfile,
     StringId::ButtonAdd,
     PictureId::IconAdd,
     {260, 148, 88, Height}},
    {SetupButton::Update,
     CommandId::UpdateProfile,
     StringId::ButtonUpdate,
     PictureId::IconUpdate,
     {260, 184, 88, Height}},
    {SetupButton::Delete,
     CommandId::DeleteProfile,
     StringId::ButtonDelete,
     PictureId::IconDelete,
     {260, 220, 88, Height}},
    {SetupButton::Receive,
     CommandId::Receive,
     StringId::ButtonReceive,
     PictureId::IconReceive,
     {260, 256, 88, Height}},
    {SetupButton::Profile,
     CommandId::ViewProfile,
     StringId::ButtonProfile,
     PictureId::IconProfile,
     {36, 386, 100, Height}},
    {SetupButton::Template,
     CommandId::ViewTemplate,
     StringId::ButtonTemplate,
     PictureId::IconTemplate,
     {140, 386, 100, Height}},
    {SetupButton::Change,
     CommandId::ConditionChange,
     StringId::ButtonChange,
     PictureId::IconChange,
     {396, 312, 96, Height}},
    {SetupButton::Restore,
     CommandId::ConditionRestore,
     StringId::ButtonRestore,
     PictureId::IconRestore,
     {396, 348, 96, Height}},
    {SetupButton::Wizard,
     CommandId::Wizard,
     StringId::ButtonWizard,
     PictureId::IconWizard,
     {396, 386, 140, Height}},
    {SetupButton::DataDisplay,
     CommandId::ViewDataDisplay,
     StringId::ButtonDataDisplay,
     PictureId::Count,
     {621, 298, 78, Height}},
    {SetupButton::Automatic,
     CommandId::AutomaticOperation,
     StringId::ButtonAutomatic,
     PictureId::Count,
     {}},
    {SetupButton::CalibrateWizard,
     CommandId::CalibrateWizard,
     StringId::ButtonCalibrateWizard,
     PictureId::Count,
     {}},
}};

constexpr QRect JapaneseStartPrompt(16, StartTop, 112, Height);
constexpr QRect JapaneseStartReserved(134, StartTop, 112, Height);

} // namespace

std::span<const SetupPanelForm> SetupPanels()
{
    return Panels;
}

std::span<const SetupButtonForm> SetupButtons()
{
    return Buttons;
}

QRect PlaceOf(SetupButton button, bool isJapanese)
{
    if (isJapanese && button == SetupButton::StartPrompt)
        return JapaneseStartPrompt;
    if (isJapanese && button == SetupButton::StartReserved)
        return JapaneseStartReserved;
    return Buttons[static_cast<std::size_t>(button)].place;
}

} // namespace skeldon
