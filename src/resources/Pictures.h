#pragma once

#include <QColor>
#include <QIcon>
#include <QImage>
#include <QPoint>
#include <QRect>
#include <QSize>

namespace skeldon {

/// The pictures of the program, each an SVG source of its own.
///
/// *Masks* are white where the picture is lit and black (displays, digits) or transparent (letters,
/// swatch) elsewhere; whoever draws them brings the colour. The display masks keep the places of
/// their digits black.
enum class PictureId
{
    ButtonFaces, ///< six faces under each other, each 40 x 28: focus, normal, disabled, pushed,
                 ///< pressed, pressed and disabled. Their corners are transparent; a tint goes on
                 ///< with `QPainter::CompositionMode_SourceAtop`
    LcdBack,     ///< background of a read-out, 96 x 42: caption (7,1)-(89,17), glass (8,18)-(88,38)
    LcdBackTall, ///< background of the sampling read-out, 96 x 54: glass (8,18)-(88,50)
    LcdDigits,   ///< mask; digits 0 to 9 and the minus side by side, each 8 wide, 20 high
    LcdRecords,  ///< mask; display of the number of records, 80 x 20
    LcdSampling, ///< mask; display of the sampling period, 80 x 32: point after the first digit,
                 ///< sec
    LcdSamplingTrace,   ///< mask; the same in trace mode, with a lit mark under the digits
    LcdIntervalMinutes, ///< mask; display of an interval in minutes, 80 x 20
    LcdIntervalSeconds, ///< mask; display of an interval in seconds
    LcdThreshold,   ///< mask; display of a threshold or hazard in G, point before the last digit
    LcdId,          ///< mask; display of the host number
    LcdOff,         ///< mask; display of something switched off
    LcdOn,          ///< mask; display of something switched on
    LcdStartOption, ///< mask; display of the start option
    SpinUp,         ///< faces of the small repeat buttons, 11 x 9, opaque
    SpinDown,
    SpinReset,  ///< flips a lamp's value
    Recorder,   ///< the recorder alone and with its cable, side by side, each 90 x 160
    Connection, ///< no recorder and a recorder connected, side by side, each 48 x 28
    Progress, ///< the gauge of the progress strip, 36 x 48: left end, empty middle column 17, right
              ///< end from 18, filled middle column 35
    About,    ///< picture of the about box, 480 x 300
    IconOpen, ///< pictures on buttons, 16 x 16
    IconSave,
    IconPrint,
    IconGetData,
    IconOnline,
    IconSetup,
    IconSwatch, ///< mask; shape that is filled with a channel's colour, 16 x 16
    IconX,      ///< masks; letters filled with a channel's colour
    IconY,
    IconZ,
    IconZoomIn,
    IconZoomOut,
    IconProperties,
    IconStartPrompt,
    IconStartReserved,
    IconAdd,
    IconUpdate,
    IconDelete,
    IconReceive,
    IconProfile,
    IconTemplate,
    IconChange,
    IconRestore,
    IconWizard,
    IconCancel,
    IconSwatchOutline, ///< rim and light that go over the filled shape
    IconXOutline,
    IconYOutline,
    IconZOutline,
    SpinUpPushed, ///< the small repeat buttons held down
    SpinDownPushed,
    SpinResetPushed,
    GaugeThumb,     ///< thumb of the chart's scale gauge, 12 x 24
    CursorSplitter, ///< pointers, 32 x 32, see `PictureHotSpot`
    CursorAreaOff,  ///< a time range is to be picked, the pointer is off the plot
    CursorAreaOn,   ///< the same, the pointer is on the plot
    CursorAreaDrag, ///< the time range is being drawn
    Cable,          ///< a cable to be pulled, 32 x 32
    OnlineBack,     ///< background of the online recording box, 216 x 92; its counters stand at the
                    ///< right between (138,10) and (206,38)
    AppIcon,        ///< the program's icon for 24 pixels and more, 48 x 48
    AppIconSmall,   ///< the program's icon for less, 16 x 16
    Count,
};

/// Width of either end of a button face, in logical pixels. The ends keep their shape; all columns
/// between them are equal and are stretched to the button's width.
inline constexpr int ButtonFaceEnd = 6;
/// Height of one button face.
inline constexpr int ButtonFaceHeight = 28;

/// Size in logical pixels at which the picture is meant to be shown.
[[nodiscard]] QSize PictureSize(PictureId id);

/// The picture at `ratio` device pixels per logical pixel, with that ratio set, drawn once and then
/// remembered. Null where there is no such picture.
[[nodiscard]] QImage Picture(PictureId id, double ratio);
/// Draws the pictures that the first window shows, and the program's icon, so that they are at
/// hand: for a thread beside the one that makes the window. Any thread may ask for pictures.
void PreparePictures(double ratio);

/// The device pixels of `part`, a part of a picture in logical pixels. Each edge goes to the
/// nearest pixel edge, so that parts that touch neither overlap nor leave a gap. The pictures are
/// fitted to the pixel grid by the same rule.
[[nodiscard]] QRect PicturePixels(const QRect& part, double ratio);

/// The mask `id` (swatch or letter) filled with `colour`, with its rim and light over it.
[[nodiscard]] QImage ColouredPicture(PictureId id, const QColor& colour, double ratio);

/// The point of a pointer picture that points, in logical pixels; the middle for anything else.
[[nodiscard]] QPoint PictureHotSpot(PictureId id);

/// The program's icon in all usual sizes.
[[nodiscard]] QIcon ApplicationIcon();

} // namespace skeldon
