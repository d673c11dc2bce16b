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
         RecordFlag::HitX, "ChkGraphX"},
        {Y, CommandId::ShowY, PictureId::IconY, StringId::NameButtonY, StringId::NameButtonY,
         RecordFlag::HitY, "ChkGraphY"},
        {Z, CommandId::ShowZ, PictureId::IconZ, StringId::NameButtonZ, StringId::NameButtonZ,
         RecordFlag::HitZ, "ChkGraphZ"},
        {Resultant, CommandId::ShowResultant, PictureId::IconSwatch, StringId::ButtonResultant,
         StringId::NameButtonResultant, RecordFlag::HitResultant, "ChkGraphG"},
        {Temperature, CommandId::ShowTemperature, PictureId::IconSwatch,
         StringId::ButtonTemperature, StringId::NameButtonTemperature, RecordFlag::HitTemperature,
         "ChkGraphC"},
        {Humidity, CommandId::ShowHumidity, PictureId::IconSwatch, StringId::ButtonHumidity,
         StringId::NameButtonHumidity, RecordFlag::HitHumidity, "ChkGraphH"},
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
