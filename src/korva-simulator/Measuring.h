#pragma once

#include "korva-simulator/RecorderState.h"

namespace skeldon {

// What a recorder does with its cable out. `clock` is what its clock shows at that moment.

/// The cable is pulled: a recorder that was told to begin is alone from now on. It measures at
/// once, after its delay, from its reservation on, or when its magnet comes.
void BeginAlone(RecorderState& state, RecorderSeconds clock);
/// The magnet comes near or goes away.
void MoveMagnet(RecorderState& state, bool isNear, RecorderSeconds clock);
/// Notes down the lines that have fallen due: one for each recording interval and, with a
/// threshold, one more for each interval in which a knock exceeds it. A full memory ends the
/// measurement, or loses its oldest lines where it is endless.
void NoteDown(RecorderState& state, RecorderSeconds clock);
/// The cable is plugged in: the measurement is over.
void EndAlone(RecorderState& state, RecorderSeconds clock);

} // namespace skeldon
