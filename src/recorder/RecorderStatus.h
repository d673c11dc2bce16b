#pragma once

#include "setup/tables/SamplingTable.h"

#include <array>
#include <string>
#include <string_view>

namespace skeldon {

/// What a recorder tells about itself, as the last status report left it.
struct RecorderStatus
{
    /// Of a recorder that is not one of the family's members with a known type, "???".
    [[nodiscard]] std::string_view GetModelName() const;
    /// Full scale in G.
    [[nodiscard]] double GetMaxG() const;
    /// Wire value of a threshold or hazard per tenth of G.
    [[nodiscard]] double GetThresholdFactor() const;
    [[nodiscard]] bool HasBuzzer() const;
    /// Whether the maximum scanning level can be switched.
    [[nodiscard]] bool CanChangeRange() const;
    /// The maximum scanning level in G that a switch would lead to; 0.0 where there is none.
    [[nodiscard]] double GetOtherRange() const;

    int m_countLimit = 0;                           ///< lines the recorder can hold
    int m_count = 0;                                ///< lines it holds
    int m_samplingRow = SamplingTable::StandardRow; ///< row of `SamplingTable`
    int m_intervalRow = 0;                          ///< row of `IntervalTable`
    int m_threshold = 0;                            ///< tenths of G
    std::array<int, 4> m_tempOffset{};
    std::array<int, 3> m_oneG{};
    std::array<int, 3> m_pValues{};
    std::array<int, 3>
        m_adjHigh{}; ///< on alpha firmware the first is the hazard, the third endless
    std::array<int, 3> m_adjLow{};
    int m_year = 0;
    int m_month = 0; ///< 0 until a report told one
    int m_day = 0;
    int m_hostNumber = 0;
    bool m_buzzer = false;
    bool m_warn = false;
    int m_type = 10; ///< see `RecorderModel`
    int m_wait = 5;
    int m_lag = 0;
    int m_startOption = 0;
    std::string m_version;
    std::string m_release;
    bool m_alphaFirmware = false;
    bool m_hasHumidity = false;  ///< copy of `m_alphaFirmware` taken when a download starts
    bool m_rangeChanged = false; ///< the range was switched and no report was read since
    int m_hazard = 0;            ///< tenths of G
    bool m_endless = false;
    bool m_hasBuzzerKey = false;
    int m_countsPerG = 10;
    int m_lineLength = 20; ///< bytes of a record line on the wire, CR and LF included
    int m_fieldCount = 9;
};

} // namespace skeldon
