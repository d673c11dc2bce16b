// Any bytes as a profile: values come out within their limits, and what is written into that same
// text reads as the same conditions and stays the same when written again.
#include "Check.h"
#include "setup/conditions/ProfileFile.h"
#include "setup/tables/IntervalTable.h"

#include <cstddef>
#include <cstdint>
#include <string>

using namespace skeldon;

namespace {

bool IsWithin(int value, int highest)
{
    return value >= 0 && value <= highest;
}

void CheckLimits(const CMeasureCondition& condition)
{
    using C = CMeasureCondition;
    FUZZ_CHECK(IsWithin(condition.GetSampling(), SamplingTable::Count - 1));
    FUZZ_CHECK(IsWithin(condition.GetInterval(), IntervalTable::Count - 1));
    FUZZ_CHECK(IsWithin(condition.Threshold, C::HighestThreshold));
    FUZZ_CHECK(IsWithin(condition.Hazard, C::HighestHazard));
    FUZZ_CHECK(IsWithin(condition.StartOpt, C::HighestStartOption));
    FUZZ_CHECK(IsWithin(condition.SerialNo, C::HighestHostNumber));
    FUZZ_CHECK(IsWithin(condition.SaveFileType, 2) && IsWithin(condition.LoadProfType, 2) &&
               IsWithin(condition.ClearData, 2));
    FUZZ_CHECK(condition.SaveFileSpecify.size() <= 127 && condition.LoadProfName.size() <= 127);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count)
{
    const std::string text(reinterpret_cast<const char*>(bytes), count);
    CMeasureCondition condition;
    ReadProfileText(text, condition);
    CheckLimits(condition);

    const std::string written = WriteProfileText(condition, text);
    CMeasureCondition again;
    ReadProfileText(written, again);
    FUZZ_CHECK(again.SameConditions(condition));
    FUZZ_CHECK(WriteProfileText(condition, written) == written);
    return 0;
}
