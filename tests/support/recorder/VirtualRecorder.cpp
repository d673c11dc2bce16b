#include "support/recorder/VirtualRecorder.h"

#include "korva-simulator/SyntheticMemory.h"

#include <algorithm>
#include <stdexcept>

namespace skeldon::test {

class CVirtualRecorder::CPort final : public CSerialPort
{
public:
    explicit CPort(CVirtualRecorder& recorder)
        : m_recorder(recorder)
        , m_plug(recorder.m_plugs)
    {}
    ~CPort() override
    {
        if (IsAlive())
            m_recorder.Close();
    }
    CPort(const CPort&) = delete;
    CPort& operator=(const CPort&) = delete;

    Transfer Read(std::span<char> buffer) override
    {
        return IsAlive() ? m_recorder.Read(buffer) : Dead();
    }
    Transfer Write(std::string_view bytes) override
    {
        return IsAlive() ? m_recorder.Write(bytes) : Dead();
    }
    std::optional<LineState> ClearErrors() override
    {
        return IsAlive() ? m_recorder.ClearErrors() : std::nullopt;
    }

private:
    static Transfer Dead() { return {0, std::make_error_code(std::errc::io_error)}; }
    bool IsAlive()
    {
        const std::lock_guard guard(m_recorder.m_lock);
        m_recorder.CatchUp();
        return m_recorder.m_isPlugged && m_recorder.m_plugs == m_plug;
    }

    CVirtualRecorder& m_recorder;
    const int m_plug;
};

class CVirtualRecorder::CFinder final : public CCableFinder
{
public:
    explicit CFinder(CVirtualRecorder& recorder)
        : m_recorder(recorder)
    {}
    std::optional<std::string> FindPort() override
    {
        return m_recorder.IsPlugged() ? std::optional<std::string>(PortName) : std::nullopt;
    }

private:
    CVirtualRecorder& m_recorder;
};

CVirtualRecorder::CVirtualRecorder(CVirtualClock& clock, std::uint64_t seed)
    : m_clock(clock)
    , m_random(seed)
{
    Replace(50, false, 0);
}

void CVirtualRecorder::Replace(int type, bool alpha, std::size_t lines)
{
    const std::lock_guard guard(m_lock);
    constexpr std::int64_t StepHundredths = 500;
    RecorderState state;
    state.type = type;
    state.alpha = alpha;
    state.hasBuzzerKey = type != OldestType;
    state.seed = m_random() % 1000 + 1;
    state.clock = ParseRecorderTime("2025-06-01 12:00:00").value();
    if (lines > 0)
        FillMemory(state, {.count = lines,
                           .from = ParseRecorderTime("2025-05-06 07:08:09").value(),
                           .step = StepHundredths});
    m_recorder.emplace(std::move(state));
    if (m_isPlugged)
        m_recorder->Plug(m_clock.m_ms);
}

void CVirtualRecorder::Plug()
{
    const std::lock_guard guard(m_lock);
    m_isPlugDue = false;
    if (!m_isPlugged)
        PlugIn();
}

void CVirtualRecorder::PlugIn()
{
    m_isPlugged = true;
    ++m_plugs;
    m_recorder->Plug(m_clock.m_ms);
}

void CVirtualRecorder::Pull()
{
    const std::lock_guard guard(m_lock);
    if (!m_isPlugged)
        return;
    m_isPlugged = false;
    m_recorder->Unplug(m_clock.m_ms);
}

void CVirtualRecorder::PlugAgainAfter(std::int64_t milliseconds)
{
    const std::lock_guard guard(m_lock);
    m_pause = milliseconds;
}

void CVirtualRecorder::ObeyFault()
{
    if (!m_recorder->HasPullRequest())
        return;
    m_isPlugged = false;
    m_recorder->Unplug(m_clock.m_ms);
    m_isPlugDue = m_pause.has_value();
    m_plugMs = m_clock.m_ms + m_pause.value_or(0);
}

void CVirtualRecorder::CatchUp()
{
    if (!m_isPlugDue || m_clock.m_ms < m_plugMs)
        return;
    m_isPlugDue = false;
    PlugIn();
}

bool CVirtualRecorder::IsPlugged()
{
    const std::lock_guard guard(m_lock);
    CatchUp();
    return m_isPlugged;
}

void CVirtualRecorder::SetFaults(const std::vector<std::string>& faults)
{
    const std::lock_guard guard(m_lock);
    m_recorder->m_faults.Clear();
    for (const std::string& text : faults) {
        auto parsed = ParseFault(text);
        if (const auto* const reason = std::get_if<std::string>(&parsed))
            throw std::logic_error(*reason);
        m_recorder->m_faults.Add(std::get<Fault>(std::move(parsed)));
    }
}

std::string CVirtualRecorder::Memory()
{
    const std::lock_guard guard(m_lock);
    return std::string(m_recorder->State().memory.Wire());
}

void CVirtualRecorder::KeepWire()
{
    const std::lock_guard guard(m_lock);
    m_wire.emplace();
}

Wire CVirtualRecorder::GetWire()
{
    const std::lock_guard guard(m_lock);
    return m_wire.value_or(Wire());
}

void CVirtualRecorder::Keep(std::string_view bytes, char way)
{
    if (!m_wire)
        return;
    m_wire->bytes += bytes;
    m_wire->ways.append(bytes.size(), way);
}

std::string CVirtualRecorder::Delivered()
{
    const std::lock_guard guard(m_lock);
    return m_delivered;
}

std::unique_ptr<CCableFinder> CVirtualRecorder::MakeFinder()
{
    return std::make_unique<CFinder>(*this);
}

PortOpener CVirtualRecorder::Opener()
{
    return [this](const std::string& /*path*/,
                  std::error_code& error) -> std::unique_ptr<CSerialPort> {
        error.clear();
        if (IsPlugged())
            return std::make_unique<CPort>(*this);
        error = std::make_error_code(std::errc::no_such_file_or_directory);
        return nullptr;
    };
}

CSerialPort::Transfer CVirtualRecorder::Read(std::span<char> buffer)
{
    const std::lock_guard guard(m_lock);
    WaitForBytes();
    constexpr std::size_t MostBytes = 5000;
    constexpr std::int64_t BytesPerMs = SerialSetting::Baud / 10 / 1000;
    const std::string_view output = m_recorder->Output();
    const std::size_t count = std::min({output.size(), buffer.size(), m_random() % MostBytes + 1});
    std::copy_n(output.begin(), count, buffer.begin());
    m_delivered.append(output.substr(0, count));
    Keep(output.substr(0, count), '<');
    m_recorder->Sent(count);
    m_clock.m_ms += static_cast<std::int64_t>(count) / BytesPerMs;
    ObeyFault();
    return {count, {}};
}

void CVirtualRecorder::WaitForBytes()
{
    const std::int64_t end = m_clock.m_ms + SerialSetting::ReadWaitMs;
    m_recorder->Advance(m_clock.m_ms);
    // The clock also moves when the other thread waits.
    for (std::int64_t now = m_clock.m_ms; m_recorder->Output().empty() && now < end;
         now = m_clock.m_ms) {
        const std::int64_t next = m_recorder->NextMs().value_or(end);
        m_clock.m_ms = std::min(std::max(next, now + 1), end);
        m_recorder->Advance(m_clock.m_ms);
    }
}

CSerialPort::Transfer CVirtualRecorder::Write(std::string_view bytes)
{
    const std::lock_guard guard(m_lock);
    if (bytes == "D" || bytes == "G")
        m_delivered.clear();
    Keep(bytes, '>');
    m_recorder->Receive(bytes, m_clock.m_ms);
    ObeyFault();
    return {bytes.size(), {}};
}

std::optional<CSerialPort::LineState> CVirtualRecorder::ClearErrors()
{
    const std::lock_guard guard(m_lock);
    m_recorder->Advance(m_clock.m_ms);
    return CSerialPort::LineState{false, m_recorder->Output().size()};
}

void CVirtualRecorder::Close()
{
    const std::lock_guard guard(m_lock);
    m_recorder->LoseOutput();
}

} // namespace skeldon::test
