#include "recorder/ReadBack.h"

#include <algorithm>
#include <new>

namespace skeldon {

namespace {

/// The bit of the line number that the warning's colour follows.
constexpr int WarningBit = 512;
/// Room taken before the first line arrives; more is taken as lines come, whatever was announced.
constexpr int FirstRoom = 1'000'000;

void ShowProgress(CReadBackObserver& observer, int line)
{
    const auto isRed = [](int number) { return (number & WarningBit) != 0; };
    if (line == 0 || isRed(line) != isRed(line - 1))
        observer.ShowWarning(isRed(line));
    if (line % CReadBackObserver::PositionStep == 0)
        observer.ShowPosition(line);
}

/// Makes room, as far as there is any: a recorder may announce more than it holds.
void ReserveRoom(CMeasureData& data, int expected)
{
    try {
        data.Reserve(static_cast<std::size_t>(std::clamp(expected, 0, FirstRoom)));
    } catch (const std::bad_alloc&) {
        // The lines make their own room as they come.
    }
}

/// Whether there was memory for the line.
bool Keep(CMeasureData& data, const CMeasureRecord& record)
{
    try {
        data.AddRecord(record);
    } catch (const std::bad_alloc&) {
        return false;
    }
    return true;
}

} // namespace

void TakeHeader(const RecorderStatus& status, CMeasureData& data)
{
    data.m_modelName = status.GetModelName();
    data.m_release = status.m_release;
    data.m_typeNumber = status.m_type;
    data.SetSampling(status.m_samplingRow);
    data.SetInterval(status.m_intervalRow);
    data.m_threshold = status.m_threshold;
    data.m_hostNumber = status.m_hostNumber;
    data.m_hazard = status.m_hazard;
    data.m_endless = status.m_endless;
}

int ReadLines(CRecorderLink& link, int expected, CMeasureData& data, CReadBackObserver* observer)
{
    // One record for all lines: the abnormal flag of one stays on those that follow.
    CMeasureRecord record;
    data.SetSize(0);
    ReserveRoom(data, expected);
    int kept = 0;
    bool hasRoom = true;
    for (int line = 0; line < expected; ++line) {
        if (observer)
            ShowProgress(*observer, line);
        if (!link.NextRecord(record))
            break;
        // Lines for which there is no memory are still taken, or they would fill the link's.
        hasRoom = hasRoom && Keep(data, record);
        kept += hasRoom ? 1 : 0;
    }
    return kept;
}

int ReadBack(CRecorderLink& link, int expected, CMeasureData& data, CReadBackObserver* observer)
{
    const int received = ReadLines(link, expected, data, observer);
    link.FinishDownload(data);
    return received;
}

} // namespace skeldon
