#include "korva-simulator/Surroundings.h"

#include <algorithm>
#include <cmath>

namespace skeldon {

namespace {

constexpr std::int64_t LinesPerKnock = 2500;
constexpr std::int64_t CentisecondsPerDay = SecondsPerDay * 100;
/// Full scale of every member of the family, in counts.
constexpr int FullScaleCounts = 100;

/// A well mixed number from any number (the finalizer of splitmix64).
std::uint64_t Mix(std::uint64_t value)
{
    value += 0x9E3779B97F4A7C15ULL;
    value = (value ^ value >> 30U) * 0xBF58476D1CE4E5B9ULL;
    value = (value ^ value >> 27U) * 0x94D049BB133111EBULL;
    return value ^ value >> 31U;
}

std::int64_t FloorDivide(std::int64_t value, std::int64_t divisor)
{
    const std::int64_t quotient = value / divisor;
    return value % divisor < 0 ? quotient - 1 : quotient;
}

/// One swing of the day between -1 and 1, with its middle at 10 in the morning and its top at 16.
/// Parabolas, and no sine, so that every machine finds the same tenths of a degree.
double DaySwing(std::int64_t centiseconds)
{
    constexpr std::int64_t Middle = 10LL * 3600 * 100;
    const std::int64_t shifted = centiseconds - Middle;
    const std::int64_t time =
        shifted - FloorDivide(shifted, CentisecondsPerDay) * CentisecondsPerDay;
    const double part = static_cast<double>(time) / static_cast<double>(CentisecondsPerDay);
    const double half = part < 0.5 ? part * 2 : part * 2 - 1;
    const double arch = 4 * half * (1 - half);
    return part < 0.5 ? arch : -arch;
}

int Clip(int counts)
{
    return std::clamp(counts, -FullScaleCounts, FullScaleCounts);
}

} // namespace

CSurroundings::CSurroundings(std::uint64_t seed, int countsPerG, std::int64_t step)
    : m_seed(Mix(seed))
    , m_countsPerG(countsPerG)
    , m_step(std::max<std::int64_t>(step, 1))
{}

Measurement CSurroundings::At(std::int64_t centiseconds) const
{
    const std::int64_t line = FloorDivide(centiseconds, m_step);
    const std::uint64_t chance = Chance(line, 0);
    const auto noise = [&](unsigned shift) { return static_cast<int>(chance >> shift & 3U) - 1; };
    int axes[] = {noise(0) / 2, noise(2) / 2, m_countsPerG + noise(4) / 2};
    if (const Knock knock = KnockAt(line); knock.counts != 0) {
        axes[knock.axis] += knock.counts;
        axes[(knock.axis + 1) % 3] -= knock.counts / 3;
        axes[(knock.axis + 2) % 3] += knock.counts / 5;
    }
    const double swing = DaySwing(centiseconds);
    Measurement measurement;
    measurement.centiseconds = centiseconds;
    measurement.x = static_cast<std::int8_t>(Clip(axes[0]));
    measurement.y = static_cast<std::int8_t>(Clip(axes[1]));
    measurement.z = static_cast<std::int8_t>(Clip(axes[2]));
    measurement.temperature = static_cast<int>(std::lround(80 + 140 * swing)) + noise(6);
    measurement.humidity = static_cast<int>(std::lround(58 - 24 * swing)) + noise(8);
    return measurement;
}

CSurroundings::Knock CSurroundings::KnockAt(std::int64_t line) const
{
    constexpr std::int64_t MostLines = 8;
    const std::int64_t span = FloorDivide(line, LinesPerKnock);
    const std::uint64_t chance = Chance(span, 1);
    const auto first = static_cast<std::int64_t>(chance % (LinesPerKnock - MostLines));
    const std::int64_t lines = 3 + static_cast<std::int64_t>(chance >> 32U) % (MostLines - 2);
    const std::int64_t place = line - span * LinesPerKnock - first;
    if (place < 0 || place >= lines)
        return {};
    const int peak = 35 + static_cast<int>(chance >> 16U & 63U);
    const auto fading = static_cast<int>(peak * (lines - place) / lines);
    return {.counts = (place % 2 == 0) == ((chance >> 24U & 1U) != 0) ? fading : -fading,
            .axis = static_cast<unsigned>(chance >> 25U) % 3};
}

std::uint64_t CSurroundings::Chance(std::int64_t line, std::uint64_t purpose) const
{
    return Mix(m_seed ^ Mix(static_cast<std::uint64_t>(line) * 2 + purpose));
}

} // namespace skeldon
