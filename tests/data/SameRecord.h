#pragma once

#include "data/MeasureRecord.h"

#include <bit>
#include <cmath>
#include <cstdint>

namespace skeldon {

/// Same to the last bit; what is no number is all alike.
inline bool SameBits(double a, double b)
{
    return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b) ||
           (std::isnan(a) && std::isnan(b));
}

/// Whether all fields are the same, numbers to the last bit.
inline bool SameRecord(const CMeasureRecord& a, const CMeasureRecord& b)
{
    return a.m_time == b.m_time && a.m_msec == b.m_msec && a.m_flags == b.m_flags &&
           a.m_checkKey == b.m_checkKey && SameBits(a.m_x, b.m_x) && SameBits(a.m_y, b.m_y) &&
           SameBits(a.m_z, b.m_z) && SameBits(a.m_temperature, b.m_temperature) &&
           SameBits(a.m_humidity, b.m_humidity) && SameBits(a.m_resultant, b.m_resultant);
}

} // namespace skeldon
