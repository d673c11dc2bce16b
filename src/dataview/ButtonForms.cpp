#include "dataview/ButtonForms.h"

#include "data/RecordFlags.h"

#include <array>
#include <cstddef>

namespace skeldon {

std::span<const ButtonForm> ButtonForms()
{
    using enum DataViewButton;
    static constexpr std::array<ButtonForm, static_cast<std::size_t>(Count)> forms{{
        {Open, CommandId::Open, PictureId::IconOpen, StringId::ButtonOpen, StringId::TitleOpenData},
        {Save, CommandId::SaveAs, PictureId::IconSave, StringId::ButtonSave,
         StringId::TitleSaveData},
        {Print, CommandId::Print, PictureId::IconPrint, StringId::ButtonPrint,
         StringId::ButtonPrint},
        {GetData, CommandId::GetData, PictureId::IconGetData, StringId::ButtonGetData,
         StringId::ButtonGetData},
        {OnlineRecording, CommandId::OnlineRecording, PictureId::IconOnline,
         StringId::ButtonOnlineRecording, StringId::ButtonOnlineRecording},
        {Setup, CommandId::ViewSetup, PictureId::IconSetup, StringId::ButtonSetup,
         StringId::ButtonSetup},
        {X, CommandId::ShowX, PictureId::IconX, StringId::NameButtonX, StringId::NameButtonX,
         RecordFlag::HitX, "ChkGraphX", "IconColorX", 0xC50CC5},
        {Y, CommandId::ShowY, PictureId::IconY, StringId::NameButtonY, StringId::NameButtonY,
         RecordFlag::HitY, "ChkGraphY", "IconColorY", 0x800000},
        {Z, CommandId::ShowZ, PictureId::IconZ, StringId::NameButtonZ, StringId::NameButtonZ,
         RecordFlag::HitZ, "ChkGraphZ", "IconColorZ", 0x008000},
        {Resultant, CommandId::ShowResultant, PictureId::IconSwatch, StringId::ButtonResultant,
         StringId::NameButtonResultant, RecordFlag::HitResultant, "ChkGraphG", "IconColorG",
         0x008080},
        {Temperature, CommandId::ShowTemperature, PictureId::IconSwatch,
         StringId::ButtonTemperature, StringId::NameButtonTemperature, RecordFlag::HitTemperature,
         "ChkGraphC", "IconColorC", 0x0202C1},
        {Humidity, CommandId::ShowHumidity, PictureId::IconSwatch, StringId::ButtonHumidity,
         StringId::NameButtonHumidity, RecordFlag::HitHumidity, "ChkGraphH", "IconColorH",
         0xF98B49},
        {ZoomIn, CommandId::SelectArea, PictureId::IconZoomIn, StringId::ButtonZoomIn,
         StringId::NameButtonZoomIn},
        {ZoomOut, CommandId::HorizontalDeflate, PictureId::IconZoomOut, StringId::ButtonZoomOut,
         StringId::NameButtonZoomOut},
        {Properties, CommandId::ChartProperties, PictureId::IconProperties,
         StringId::ButtonProperties, StringId::NameButtonProperties},
    }};
    return forms;
}

} // namespace skeldon
