// Any bytes as the reply to the status command, through the link: every field stays within what the
// rest of the program takes for granted, and reading the same report again changes nothing.
#include "Check.h"
#include "recorder/ScriptedRecorder.h"
#include "setup/conditions/MeasureCondition.h"
#include "setup/tables/IntervalTable.h"
#include "setup/tables/RecorderModel.h"

#include <cstddef>
#include <cstdint>
#include <string>

using namespace skeldon;

namespace {

bool IsWithin(int value, int lowest, int highest)
{
    return value >= lowest && value <= highest;
}

void CheckFields(const CRecorderLink& link)
{
    FUZZ_CHECK(link.m_type == UnknownType || link.m_type == OldestType ||
               IsReportedType(link.m_type));
    FUZZ_CHECK(link.m_countsPerG > 0);
    FUZZ_CHECK(link.m_lineLength == 18 || link.m_lineLength == 20 || link.m_lineLength == 22);
    FUZZ_CHECK(IsWithin(link.m_samplingRow, 0, SamplingTable::Count - 1));
    FUZZ_CHECK(IsWithin(link.m_intervalRow, 0, IntervalTable::Count - 1));
    FUZZ_CHECK(link.m_release.find_first_of("\r\n") == std::string::npos);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count)
{
    test::LinkFixture fixture;
    const std::string reply(reinterpret_cast<const char*>(bytes), count);
    fixture.m_recorder.On("p", reply + '#');
    CMeasureCondition condition;
    if (!fixture.m_link.ReadStatus(condition))
        return 0;
    CheckFields(fixture.m_link);
    FUZZ_CHECK(condition.GetSampling() == fixture.m_link.m_samplingRow);
    const RecorderStatus first = fixture.m_link.Status();
    FUZZ_CHECK(fixture.m_link.ReadStatus(condition));
    const RecorderStatus& second = fixture.m_link.Status();
    FUZZ_CHECK(first.m_count == second.m_count && first.m_type == second.m_type &&
               first.m_threshold == second.m_threshold && first.m_hazard == second.m_hazard &&
               first.m_release == second.m_release && first.m_month == second.m_month);
    return 0;
}
