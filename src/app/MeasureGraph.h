#pragma once

namespace skeldon {

/// What chart, scale gauge, list and data view tell each other, with an argument of its own each.
enum class MeasureGraphCode
{
    ScaleStep = 1,   ///< the user moved the gauge to a step
    AreaEnded = 2,   ///< an area selection ended; 0 at the largest zoom
    Refresh = 3,     ///< the lines have changed
    CurrentLine = 4, ///< a line is the current one, -1 for none
    LineTaken = 5,   ///< a line picked with the mouse was taken over
    Marks = 6,       ///< marks have changed
    MarksToo = 7,    ///< likewise
    CornerUsed = 8,  ///< a corner button of the chart was used
};

} // namespace skeldon
