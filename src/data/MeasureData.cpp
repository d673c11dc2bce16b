#include "data/MeasureData.h"

#include "setup/tables/IntervalTable.h"
#include "setup/tables/SamplingTable.h"

#include <algorithm>
#include <bit>

namespace skeldon {

void CMeasureData::SetRecord(std::size_t index, const CMeasureRecord& record)
{
    m_records[index] = record;
    LinesChanged();
}

void CMeasureData::AddRecord(const CMeasureRecord& record)
{
    m_records.push_back(record);
    LinesChanged();
}

void CMeasureData::AddRecords(std::span<const CMeasureRecord> records)
{
    m_records.insert(m_records.end(), records.begin(), records.end());
    LinesChanged();
}

void CMeasureData::SetSize(std::size_t count)
{
    m_records.resize(count, CMeasureRecord(Now()));
    LinesChanged();
}

void CMeasureData::Reserve(std::size_t count)
{
    m_records.reserve(count);
}

std::span<CMeasureRecord> CMeasureData::NewLines(std::size_t count)
{
    m_records.clear();
    m_records.resize(count);
    LinesChanged();
    return m_records;
}

void CMeasureData::Clear()
{
    m_records.clear();
    m_firstBreak = -1;
    m_marks.clear();
    m_fileName.clear();
    m_sampling = Unknown;
    m_interval = Unknown;
    m_threshold = Unknown;
    m_hostNumber = Unknown;
    m_fromFile = false;
    LinesChanged();
}

void CMeasureData::SetSampling(int row)
{
    m_sampling = std::clamp(row, Unknown, SamplingTable::Count - 1);
}

void CMeasureData::SetInterval(int row)
{
    m_interval = std::clamp(row, Unknown, IntervalTable::Count - 1);
}

bool CMeasureData::IsMarked(std::size_t index) const
{
    return index < m_records.size() && m_records[index].HasFlag(RecordFlag::Marked);
}

std::ptrdiff_t CMeasureData::PreviousMark(std::size_t index) const
{
    const auto at = std::lower_bound(m_marks.begin(), m_marks.end(), index);
    if (index >= m_records.size() || at == m_marks.begin())
        return -1;
    return static_cast<std::ptrdiff_t>(*(at - 1));
}

std::ptrdiff_t CMeasureData::NextMark(std::size_t index) const
{
    const auto at = std::upper_bound(m_marks.begin(), m_marks.end(), index);
    if (index >= m_records.size() || at == m_marks.end())
        return -1;
    return static_cast<std::ptrdiff_t>(*at);
}

std::int64_t CMeasureData::ComputeSignature() const
{
    if (m_knownSignature)
        return *m_knownSignature;
    // Wraps on purpose, so it is reckoned without a sign.
    std::uint64_t sum = m_records.size();
    std::uint64_t weight = 1;
    bool odd = false;
    for (const CMeasureRecord& record : m_records) {
        const std::uint64_t term = static_cast<std::uint64_t>(record.m_checkKey) * weight;
        sum = std::rotl(odd ? sum + term : sum - term, 1);
        ++weight;
        odd = !odd;
    }
    m_knownSignature = static_cast<std::int64_t>(sum);
    return *m_knownSignature;
}

} // namespace skeldon
