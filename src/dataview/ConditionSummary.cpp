#include "dataview/ConditionSummary.h"

#include "resources/StringTable.h"
#include "resources/TextFormat.h"
#include "setup/tables/IntervalTable.h"
#include "setup/tables/SamplingTable.h"

#include <algorithm>
#include <limits>

namespace skeldon {

namespace {

constexpr double TenthsPerG = 10.0;

std::optional<int> Known(int value)
{
    return value >= 0 ? std::optional(value) : std::nullopt;
}

QString Filled(StringId pattern, CTextArgument value)
{
    return FormatText(Text(pattern), {std::move(value)});
}

} // namespace

ConditionSummary SummaryOf(const CMeasureData& data)
{
    const std::size_t most = std::numeric_limits<int>::max();
    return {static_cast<int>(std::min(data.GetSize(), most)),
            Known(data.GetSampling()),
            Known(data.GetInterval()),
            Known(data.m_threshold),
            Known(data.m_hostNumber),
            Known(data.m_hazard),
            data.m_endless};
}

QString SummaryText(const ConditionSummary& summary)
{
    QString text;
    if (summary.records)
        text += Filled(StringId::SummaryRecords, *summary.records);
    if (summary.sampling)
        text += Filled(SamplingTable::IsTrace(*summary.sampling) ? StringId::SummarySamplingTrace
                                                                 : StringId::SummarySampling,
                       SamplingTable::Period(*summary.sampling));
    if (summary.interval)
        text +=
            Filled(IntervalTable::InSeconds(*summary.interval) ? StringId::SummaryIntervalSeconds
                                                               : StringId::SummaryIntervalMinutes,
                   IntervalTable::Length(*summary.interval));
    if (summary.threshold)
        text += Filled(StringId::SummaryThreshold, *summary.threshold / TenthsPerG);
    if (summary.hostNumber)
        text += Filled(StringId::SummaryId, *summary.hostNumber);
    if (summary.hazard)
        text += Filled(StringId::SummaryHazard, *summary.hazard / TenthsPerG);
    if (summary.endless)
        text += Text(StringId::SummaryEndlessOn);
    return text;
}

} // namespace skeldon
