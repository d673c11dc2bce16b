#pragma once

#include <QImage>
#include <QSize>

namespace skeldon {

/// The pictures of the program, each an SVG source of its own.
enum class PictureId
{
    ButtonFaces,        ///< six faces under each other, each 40 x 28; stretched between its ends
    LcdBack,            ///< background of a read-out, 96 x 42
    LcdBackTall,        ///< background of the sampling read-out, 96 x 54
    LcdDigits,          ///< digits 0 to 9 and the minus side by side, each 8 wide, 20 high
    LcdRecords,         ///< display of the number of records, 80 x 20
    LcdSampling,        ///< display of the sampling period, 80 x 32
    LcdSamplingTrace,   ///< the same in trace mode
    LcdIntervalMinutes, ///< display of an interval in minutes, 80 x 20
    LcdIntervalSeconds, ///< display of an interval in seconds
    LcdThreshold,       ///< display of a threshold or hazard in G with its point
    LcdId,              ///< display of the host number
    LcdOff,             ///< display of something switched off
    LcdOn,              ///< display of something switched on
    LcdStartOption,     ///< display of the start option
    SpinUp,             ///< arrows of the small repeat buttons, 11 x 9
    SpinDown,
    SpinReset,
    Recorder,   ///< the recorder alone and with its cable, side by side, each 90 x 160
    Connection, ///< no recorder and a recorder connected, side by side, each 48 x 28
    Progress,   ///< the gauge of the progress strip, 36 x 48: left end, empty middle column, right
                ///< end, filled middle column
    About,      ///< picture of the about box
    IconOpen,   ///< pictures on buttons, 16 x 16
    IconSave,
    IconPrint,
    IconGetData,
    IconOnline,
    IconSetup,
    IconSwatch, ///< shape that is filled with a channel's colour, 16 x 16
    IconX,      ///< letters filled with a channel's colour
    IconY,
    IconZ,
    IconZoomIn,
    IconZoomOut,
    IconProperties,
    Count,
};

/// Size in logical pixels at which the picture is meant to be shown.
[[nodiscard]] QSize PictureSize(PictureId id);

/// The picture at `ratio` device pixels per logical pixel, with that ratio set, drawn once and then
/// remembered. Null where there is no such picture.
[[nodiscard]] QImage Picture(PictureId id, double ratio);

} // namespace skeldon
