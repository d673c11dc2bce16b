#include "files/RecordBlocks.h"

#include "base/TextScan.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <thread>

namespace skeldon {

namespace {

constexpr std::size_t BlockSize = std::size_t{1} << 20;
/// Below this a second thread costs more than it brings.
constexpr std::uint64_t WorthAThread = 4 * BlockSize;

/// Length of `text` up to behind its last line that ends a record; 0 where there is none.
std::size_t LengthOfWholeRecords(std::string_view text)
{
    std::size_t end = text.rfind('\n');
    while (end != std::string_view::npos) {
        const std::size_t before = end == 0 ? std::string_view::npos : text.rfind('\n', end - 1);
        const std::size_t begin = before == std::string_view::npos ? 0 : before + 1;
        // The first line of a block is whole too: a block begins behind a line's end.
        if (CRecordMachine::IsRecordEnd(TrimWhite(text.substr(begin, end - begin))))
            return end + 1;
        end = before;
    }
    return 0;
}

/// Cuts a line off the front of `text`.
std::string_view TakeLineOf(const char*& at, const char* end)
{
    const void* const found = std::memchr(at, '\n', static_cast<std::size_t>(end - at));
    const char* const stop = found == nullptr ? end : static_cast<const char*>(found);
    const std::string_view line(at, static_cast<std::size_t>(stop - at));
    at = found == nullptr ? end : stop + 1;
    return TrimWhite(line);
}

} // namespace

CRecordBlocks::CRecordBlocks(const CInputFile& file, std::uint64_t offset, bool withFlags,
                             CMeasureData& data, RecordTally& tally)
    : m_file(file)
    , m_withFlags(withFlags)
    , m_data(data)
    , m_tally(tally)
    , m_offset(offset)
{}

std::error_code CRecordBlocks::Run()
{
    std::thread helper;
    if (m_file.Size() > m_offset + WorthAThread && std::thread::hardware_concurrency() > 1) {
        try {
            helper = std::thread([this] { Work(); });
        } catch (const std::system_error&) {
            // The file is then read by this thread alone.
        }
    }
    Work();
    if (helper.joinable())
        helper.join();
    return m_error;
}

void CRecordBlocks::Work()
{
    try {
        Block block;
        WorkOn(block);
    } catch (const std::bad_alloc&) {
        Stop(std::make_error_code(std::errc::not_enough_memory));
    }
}

void CRecordBlocks::WorkOn(Block& block)
{
    block.buffer = std::make_unique_for_overwrite<char[]>(BlockSize);
    CRecordReader reader(m_withFlags);
    CRecordMachine machine(m_withFlags);
    while (TakeNext(block)) {
        Parse(block, reader, machine);
        Deliver(block);
    }
}

bool CRecordBlocks::TakeNext(Block& block)
{
    const std::lock_guard guard(m_lock);
    if (m_stopped)
        return false;
    std::size_t got = 0;
    m_error = m_file.ReadAt(m_offset, block.buffer.get(), BlockSize, got);
    const bool isLast = got < BlockSize;
    const std::string_view text(block.buffer.get(), got);
    block.text = text.substr(0, isLast ? got : LengthOfWholeRecords(text));
    if (m_error || block.text.empty()) {
        m_stopped = true;
        return false;
    }
    m_stopped = isLast;
    m_offset += block.text.size();
    block.ticket = m_nextTicket++;
    return true;
}

void CRecordBlocks::Parse(Block& block, CRecordReader& reader, CRecordMachine& machine) const
{
    block.records.clear();
    block.started = 0;
    block.humidityFrom = ~std::size_t{0};
    const char* at = block.text.data();
    const char* const end = at + block.text.size();
    CMeasureRecord record{CalendarSeconds{0}};
    const auto store = [&block](const CMeasureRecord& found, bool hasHumidity) {
        if (hasHumidity)
            block.humidityFrom = std::min(block.humidityFrom, block.records.size());
        block.records.push_back(found);
    };
    while (at != end) {
        bool hasHumidity = false;
        const char* const behind =
            machine.IsInRecord() ? nullptr : reader.Read(at, end, record, hasHumidity);
        if (behind != nullptr) {
            ++block.started;
            store(record, hasHumidity);
            at = behind;
            continue;
        }
        const std::string_view line = TakeLineOf(at, end);
        block.started += CRecordMachine::IsRecordStart(line) ? 1 : 0;
        // No line of a block is longer than lines may be.
        if (machine.TakeLine(line) == CRecordMachine::Outcome::Record)
            store(machine.GetRecord(), machine.HasHumidity());
    }
    // Only the last block of a file can end within a record.
    if (machine.TakeEnd() == CRecordMachine::Outcome::Record)
        store(machine.GetRecord(), machine.HasHumidity());
}

void CRecordBlocks::Deliver(const Block& block)
{
    std::unique_lock guard(m_lock);
    m_delivered.wait(guard, [&] { return m_nextDelivery == block.ticket || m_error; });
    if (m_error)
        return;
    ReserveFor(block);
    if (block.humidityFrom < block.records.size())
        m_tally.humidityFrom =
            std::min(m_tally.humidityFrom, m_data.GetSize() + block.humidityFrom);
    m_tally.started += block.started;
    try {
        m_data.AddRecords(block.records);
    } catch (const std::bad_alloc&) {
        m_error = std::make_error_code(std::errc::not_enough_memory);
        m_stopped = true;
    }
    ++m_nextDelivery;
    m_delivered.notify_all();
}

/// Makes room for the whole file as soon as its first block tells how long its records are: an
/// array that grows as it goes would copy itself again and again.
void CRecordBlocks::ReserveFor(const Block& block)
{
    if (block.ticket != 0 || block.records.empty())
        return;
    const std::uint64_t rest = m_file.Size() - m_offset + block.text.size();
    const double perByte =
        static_cast<double>(block.records.size()) / static_cast<double>(block.text.size());
    constexpr double Spare = 1.01;
    const double wanted = static_cast<double>(rest) * perByte * Spare;
    constexpr double Unreasonable = 1e9;
    if (wanted > Unreasonable)
        return;
    try {
        m_data.Reserve(m_data.GetSize() + static_cast<std::size_t>(wanted) + block.records.size());
    } catch (const std::bad_alloc&) {
        // What the file really holds may still fit.
    }
}

void CRecordBlocks::Stop(std::error_code error)
{
    const std::lock_guard guard(m_lock);
    m_error = error;
    m_stopped = true;
    m_delivered.notify_all();
}

} // namespace skeldon
