#pragma once

#include "data/MeasureData.h"
#include "recorder/RecorderLink.h"

#include <cstddef>

namespace skeldon {

/// What a window or terminal shows while a recorder is read back.
class CReadBackObserver
{
public:
    /// Lines between two calls of `ShowPosition`.
    static constexpr int PositionStep = 40;

    virtual ~CReadBackObserver() = default;

    /// Before the first line and whenever it changes, every 512 lines: whether the warning not to
    /// separate the recorder is shown in red, else in white.
    virtual void ShowWarning(bool red) = 0;
    /// Lines read so far, every `PositionStep` lines, behind a change of the warning.
    virtual void ShowPosition(int line) = 0;
};

/// Copies into `data` how the recorder measured: model, release, type, sampling, interval,
/// threshold, host number, hazard and endless.
void TakeHeader(const RecorderStatus& status, CMeasureData& data);

/// The lines of the download that was started with `expected` lines, without its end; see
/// `ReadBack`.
int ReadLines(CRecorderLink& link, int expected, CMeasureData& data, CReadBackObserver* observer);

/// Fills `data` with the lines of the download that was started with `expected` lines, at most so
/// many, and finishes the download. Gives the number of lines; where memory ends, the lines so far
/// stand. A download can not be cancelled.
int ReadBack(CRecorderLink& link, int expected, CMeasureData& data,
             CReadBackObserver* observer = nullptr);

} // namespace skeldon
