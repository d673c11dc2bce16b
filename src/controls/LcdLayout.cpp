#include "controls/LcdLayout.h"

namespace skeldon {

namespace {

constexpr QSize PanelSize(96, 42);
constexpr QSize TallPanelSize(96, 54);
constexpr QRect DisplayArea(8, 18, 80, 20);
constexpr QRect TallDisplayArea(8, 18, 80, 32);

constexpr int RecordsOffsets[] = {11, 21, 31, 41, 51, 61};
constexpr int SamplingOffsets[] = {6, 20, 30, 40, 50};
constexpr int IntervalOffsets[] = {25, 35};
constexpr int AccelerationOffsets[] = {19, 29, 43};
constexpr int TwoDigitOffsets[] = {31, 41};

LcdLayout Usual(PictureId display, std::span<const int> offsets, int leastDigits,
                LcdReading reading)
{
    return {PictureId::LcdBack, display, PanelSize, DisplayArea, offsets, leastDigits, reading};
}

} // namespace

LcdLayout LcdLayoutOf(LcdPanelKind kind)
{
    switch (kind) {
    case LcdPanelKind::Sampling:
        return {PictureId::LcdBackTall, PictureId::LcdSampling, TallPanelSize,
                TallDisplayArea,        SamplingOffsets,        5,
                LcdReading::Period};
    case LcdPanelKind::Interval:
        return Usual(PictureId::LcdIntervalMinutes, IntervalOffsets, 1, LcdReading::Length);
    case LcdPanelKind::Threshold:
    case LcdPanelKind::Hazard:
        return Usual(PictureId::LcdThreshold, AccelerationOffsets, 2, LcdReading::TenthsOfG);
    case LcdPanelKind::Id:
        return Usual(PictureId::LcdId, TwoDigitOffsets, 1, LcdReading::Number);
    case LcdPanelKind::StartOption:
        return Usual(PictureId::LcdStartOption, TwoDigitOffsets, 1, LcdReading::Number);
    case LcdPanelKind::Endless:
    case LcdPanelKind::DetectOverTemperature:
    case LcdPanelKind::Buzzer:
        return Usual(PictureId::LcdOff, {}, 1, LcdReading::Lamp);
    case LcdPanelKind::Records:
        break;
    }
    return Usual(PictureId::LcdRecords, RecordsOffsets, 1, LcdReading::Number);
}

} // namespace skeldon
