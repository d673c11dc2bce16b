#pragma once

#include <string_view>

namespace skeldon {

/// What the family's members can do, by the number that "@Type=" of the status report brings.
/// Thresholds and hazards are whole tenths of G.
struct RecorderModel
{
    int type;
    std::string_view word;  ///< model word, such as "QM70"
    double maxG;            ///< full scale in G
    int countsPerG;         ///< counts of an axis byte per G
    double thresholdFactor; ///< wire value of a threshold per tenth of G
    int highestThreshold;
    int thresholdStep;
    int highestHazard; ///< on alpha firmware only; 0 where the type has no hazard
    int hazardStep;
};

/// Type of a report without "@Type=": the oldest recorders.
inline constexpr int OldestType = 0;
/// Type of a report whose "@Type=" names no member of the family.
inline constexpr int UnknownType = -2;

/// Type of the QM70, whose release keys and buzzer follow rules of their own.
inline constexpr int QmType = 50;

/// Whether "@Type=" may carry `type`: 1, 2, 3, 5, 10, 20 or 50.
[[nodiscard]] bool IsReportedType(int type);

/// The member of that type; for any other number the row of `UnknownType`.
[[nodiscard]] const RecorderModel& ModelOfType(int type);

} // namespace skeldon
