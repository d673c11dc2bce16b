#pragma once

namespace skeldon {

/// The fifteen recording intervals of the family. Objects hold rows, files hold codes, the wire
/// holds characters. A row given to a value lookup is clamped to the table.
class IntervalTable
{
public:
    static constexpr int Count = 15;
    /// The shortest interval of a recorder of type 0, one minute.
    static constexpr int LastMinuteRow = 8;

    /// Length of the interval, in seconds or minutes as `InSeconds` says.
    [[nodiscard]] static int Length(int row);
    [[nodiscard]] static bool InSeconds(int row);
    /// The number that data files and profiles store; -1 for a row outside the table. The code of
    /// the 15 second row breaks the order of the others.
    [[nodiscard]] static int Code(int row);
    /// What the interval command sends and "@Record=" of the status report brings; 0 for a row
    /// outside the table.
    [[nodiscard]] static char Character(int row);

    // Searches; -1 where there is none.
    [[nodiscard]] static int RowOfCode(int code);
    [[nodiscard]] static int RowOfCharacter(char character);
};

} // namespace skeldon
