#include "recorder/OnlineTime.h"
#include "recorder/RecorderLink.h"
#include "recorder/platform/ThreadPriority.h"
#include "setup/tables/RecorderModel.h"

#include <algorithm>
#include <chrono>
#include <exception>
#include <new>

namespace skeldon {

namespace {

/// Room beyond the lines themselves, and the part of it that the download leaves free at the end.
constexpr std::uint64_t SpareBytes = 32;
constexpr std::uint64_t EndBytes = 2;
/// The letter and six digits of a line of the live stream.
constexpr std::uint64_t OnlineLineBytes = 7;
constexpr std::size_t OnlineDigits = 6;
/// The stream's rate is fixed at 200 lines a second, whatever the clock says.
constexpr std::int64_t OnlineStepMs = 1000 / OnlineLinesPerSecond;

} // namespace

int CRecorderLink::StartDownload()
{
    m_hasHumidity = m_alphaFirmware;
    if (!ReadStatus())
        return NoStatus;
    if (m_count < 1)
        return 0;
    if (!SendText(m_type == OldestType ? "G" : "D")) {
        DrainPort();
        ClosePort();
        return NoGetCommand;
    }
    const auto lineBytes = static_cast<std::uint64_t>(m_lineLength);
    m_rxBuffer.Start(lineBytes * static_cast<std::uint64_t>(m_count) + SpareBytes);
    m_records.emplace(m_rxBuffer, CRecordDecoder(*this, m_hasHumidity));
    EnableMonitor(false);
    if (StartThread(&CRecorderLink::ReceiveDownload))
        return m_count;
    DrainPort();
    EndTransfer();
    return NoMemory;
}

bool CRecorderLink::NextRecord(CMeasureRecord& record)
{
    return m_records && m_records->NextRecord(record);
}

void CRecorderLink::FinishDownload(CMeasureData& data)
{
    if (m_thread.joinable())
        m_thread.join();
    DrainPort();
    EndTransfer();
    data.m_hasTemperature = true;
    data.m_hasHumidity = m_hasHumidity;
}

bool CRecorderLink::StartOnline(std::uint32_t lines)
{
    if (m_busy)
        return false;
    m_onlineLimit = lines;
    m_onlineLines = 0;
    m_timedOut = false;
    m_records.reset();
    m_rxBuffer.Start(lines * OnlineLineBytes + SpareBytes);
    if (!SendText("x")) {
        m_rxBuffer.Free();
        ClosePort();
        return false;
    }
    m_onlineStart = Clock().Now();
    m_stopRequest = false;
    EnableMonitor(false);
    if (StartThread(&CRecorderLink::ReceiveOnline))
        return true;
    SendText("#");
    DrainPort();
    EndTransfer();
    return false;
}

void CRecorderLink::FinishOnline(CMeasureData& data)
{
    if (m_thread.joinable())
        m_thread.join();
    data.m_hasTemperature = false;
    data.m_hasHumidity = false;
    try {
        data.SetSize(m_onlineLines);
        FillOnline(m_rxBuffer.TakeAll(), data);
    } catch (const std::bad_alloc&) {
        data.SetSize(0);
    }
    EndTransfer();
}

bool CRecorderLink::WaitForThread(std::uint32_t milliseconds)
{
    std::unique_lock guard(m_doneLock);
    return m_doneSignal.wait_for(guard, std::chrono::milliseconds(milliseconds),
                                 [this] { return m_threadDone.load(); });
}

bool CRecorderLink::StartThread(ThreadWork work)
{
    m_threadDone = false;
    m_timedOut = false;
    m_busy = true;
    try {
        m_thread = std::thread(&CRecorderLink::RunThread, this, work);
    } catch (const std::exception&) {
        // No thread to be had, or no memory for its state.
        m_threadDone = true;
        return false;
    }
    return true;
}

void CRecorderLink::RunThread(ThreadWork work)
{
    RaiseThreadPriority();
    try {
        (this->*work)();
    } catch (const std::bad_alloc&) {
        // No room for what arrives: the lines so far stand.
    }
    m_rxBuffer.Finish();
    const std::lock_guard guard(m_doneLock);
    m_threadDone = true;
    m_doneSignal.notify_all();
}

void CRecorderLink::ReceiveDownload()
{
    const std::uint64_t limit = m_rxBuffer.GetCapacity() - EndBytes;
    std::uint64_t stored = 0;
    std::uint32_t lastByte = Clock().TickMs();
    while (!IsAbandoned() && stored < limit) {
        const std::string_view bytes = PeekBytes();
        if (bytes.empty()) {
            if (SilentSince(lastByte)) {
                m_timedOut = true;
                return;
            }
            continue;
        }
        const std::string_view part = bytes.substr(0, limit - stored);
        const std::size_t mark = part.find('#');
        const std::size_t taken = mark == std::string_view::npos ? part.size() : mark + 1;
        TakeBytes(taken);
        ReportBytes(part.substr(0, taken));
        const std::string_view lines = part.substr(0, mark);
        m_rxBuffer.Append(lines);
        stored += lines.size();
        if (mark != std::string_view::npos)
            return;
        lastByte = Clock().TickMs();
    }
}

void CRecorderLink::ReceiveOnline()
{
    if (!ReceiveOnlineLines()) {
        // The recorder is left streaming.
        m_timedOut = true;
        return;
    }
    SendText("#");
    DrainPort();
}

/// False if the stream fell silent. Received bytes do not renew its clock: once the time is over,
/// the first read without a byte ends it.
bool CRecorderLink::ReceiveOnlineLines()
{
    const std::uint32_t start = Clock().TickMs();
    const std::uint64_t capacity = m_rxBuffer.GetCapacity();
    std::uint64_t stored = 0;
    bool inStep = false; // behind the first end of line: a line cut by the start is lost
    while (!IsAbandoned()) {
        const std::string_view bytes = PeekBytes();
        if (bytes.empty()) {
            if (SilentSince(start))
                return false;
            continue;
        }
        const std::size_t end = bytes.find('\r');
        const bool isEnd = end != std::string_view::npos;
        if (!inStep) {
            TakeBytes(isEnd ? end + 1 : bytes.size());
            inStep = isEnd;
            continue;
        }
        const std::string_view part = bytes.substr(0, end).substr(0, capacity - stored);
        stored += part.size();
        const bool isFull = stored == capacity;
        const std::size_t taken = part.size() + (isEnd && !isFull ? 1 : 0);
        TakeBytes(taken);
        ReportBytes(bytes.substr(0, taken));
        m_rxBuffer.Append(part);
        if (isFull)
            return true;
        if (isEnd && (++m_onlineLines >= m_onlineLimit || m_stopRequest))
            return true;
    }
    return true;
}

void CRecorderLink::EndTransfer()
{
    m_records.reset();
    m_rxBuffer.Free();
    ClosePort();
    EnableMonitor(true);
    m_busy = false;
}

/// Each "G" begins a line of three bytes; whatever stands between the lines is run over.
void CRecorderLink::FillOnline(std::string_view bytes, CMeasureData& data) const
{
    CMeasureRecord record;
    std::int64_t time = m_onlineStart * 1000;
    std::size_t position = 0;
    for (std::size_t index = 0; index < data.GetSize(); ++index) {
        const std::size_t letter = bytes.find('G', position);
        if (letter == std::string_view::npos || bytes.size() - letter - 1 < OnlineDigits)
            return;
        position = letter + 1;
        const auto axis = [&](std::size_t digit) {
            return static_cast<double>(HexByteSigned(bytes, position + digit)) / m_countsPerG;
        };
        record.SetValues(time / 1000, static_cast<std::uint32_t>(time % 1000), axis(0), axis(2),
                         axis(4), 0.0, 0.0);
        data.SetRecord(index, record);
        time += OnlineStepMs;
    }
}

} // namespace skeldon
