#pragma once

#include "data/MeasureData.h"

#include <cstdint>
#include <vector>

namespace skeldon {

/// Lines and findings of the analysis as the plain walk makes them: step after step, on a copy of
/// each line, with a calendar call for each.
struct PlainAnalysis
{
    std::vector<CMeasureRecord> lines;
    long firstBreak = -1;
    int abnormalCount = 0;
    std::vector<std::uint32_t> marks;
    int extractCount = 0;
    double maxAbs = 0.0;
    std::int64_t minStepMs = 5000;
    bool badTemperature = false;
    bool badHumidity = false;
    bool badMsec = false;
    bool badTime = false;
    bool yearRepairable = false;

    /// `lines` are set before.
    void Analyse(bool fromFile, int month, int day, CalendarSeconds now);
    bool RepairYear();
    [[nodiscard]] std::int64_t Signature() const;
};

/// Fails the test where lines or findings differ.
void ExpectSame(const CMeasureData& data, const PlainAnalysis& plain);

} // namespace skeldon
