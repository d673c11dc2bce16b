#pragma once

namespace skeldon {

/// The ten sampling settings of the family. Objects hold rows, files hold codes, the wire holds
/// characters. A row given to a value lookup is clamped to the table.
class SamplingTable
{
public:
    static constexpr int Count = 10;
    /// The row that stands for the standard period of 0.0312 s without trace mode.
    static constexpr int StandardRow = 4;

    /// Sampling period in ten-thousandths of a second.
    [[nodiscard]] static int Period(int row);
    [[nodiscard]] static bool IsTrace(int row);
    /// The number that data files and profiles store; -1 for a row outside the table.
    [[nodiscard]] static int Code(int row);
    /// What the sampling command sends to, and "@Interval=" of the status report brings from, a
    /// recorder of type 0; 0 where there is no such setting or no such row.
    [[nodiscard]] static char CharacterForType0(int row);
    /// The same for every other type.
    [[nodiscard]] static char CharacterForOthers(int row);
    /// The column that belongs to recorder type `type`.
    [[nodiscard]] static char CharacterFor(int type, int row);

    // Searches; -1 where there is none.
    [[nodiscard]] static int RowOfCode(int code);
    [[nodiscard]] static int RowOfCharacterForType0(char character);
    [[nodiscard]] static int RowOfCharacterForOthers(char character);
    [[nodiscard]] static int RowOfCharacterFor(int type, char character);
};

} // namespace skeldon
