#pragma once

namespace skeldon {

/// What the program ends with.
enum class ExitStatus : int
{
    Done = 0,
    Failed = 1,     ///< the operation failed
    Usage = 2,      ///< the command line is wrong
    NoRecorder = 3, ///< no cable, or no status report
    Incomplete = 4, ///< fewer lines arrived than announced; what arrived is kept and written
};

} // namespace skeldon
