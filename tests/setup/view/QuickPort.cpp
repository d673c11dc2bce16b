#include "setup/view/QuickPort.h"

#include "recorder/RecorderPort.h"

#include <algorithm>
#include <chrono>
#include <thread>
#include <utility>

namespace skeldon::test {

namespace {

using namespace std::chrono_literals;

CSystemClock& RealClock()
{
    static CSystemClock clock;
    return clock;
}

class CQuickPort final : public CSerialPort
{
public:
    CQuickPort(std::unique_ptr<CSerialPort> port, const std::optional<WireChange>& change)
        : m_port(std::move(port))
        , m_change(change)
    {}

    Transfer Read(std::span<char> buffer) override
    {
        if (!m_awaitsReply && IsSilent())
            return {};
        Transfer read = m_port->Read(buffer);
        m_awaitsReply = m_awaitsReply && read.count == 0;
        if (m_change)
            Change(buffer, read.count);
        return read;
    }
    Transfer Write(std::string_view bytes) override
    {
        m_awaitsReply = true;
        return m_port->Write(bytes);
    }
    std::optional<LineState> ClearErrors() override { return m_port->ClearErrors(); }

private:
    /// Whether nothing arrives in the time that a further byte may take.
    bool IsSilent()
    {
        constexpr int Looks = 3;
        for (int i = 0; i < Looks; ++i) {
            const std::optional<LineState> state = m_port->ClearErrors();
            if (!state || state->queued > 0)
                return false;
            std::this_thread::sleep_for(1ms);
        }
        return true;
    }

    void Change(std::span<char> buffer, std::size_t& count) const
    {
        std::string bytes(buffer.data(), count);
        const std::size_t at = bytes.find(m_change->from);
        if (at == std::string::npos)
            return;
        bytes.replace(at, m_change->from.size(), m_change->to);
        if (bytes.size() > buffer.size())
            return;
        std::copy(bytes.begin(), bytes.end(), buffer.begin());
        count = bytes.size();
    }

    std::unique_ptr<CSerialPort> m_port;
    bool m_awaitsReply = false;
    const std::optional<WireChange>& m_change;
};

} // namespace

std::uint32_t CQuickClock::TickMs()
{
    return RealClock().TickMs() * m_speed;
}

void CQuickClock::SleepMs(std::uint32_t milliseconds)
{
    RealClock().SleepMs(std::max<std::uint32_t>(milliseconds / m_speed, 1));
}

CalendarSeconds CQuickClock::Now()
{
    const CalendarSeconds set = m_now;
    return set != 0 ? set : RealClock().Now();
}

PortOpener QuickPortOpener(const std::optional<WireChange>& change)
{
    return [opener = SystemPortOpener(), &change](
               const std::string& path, std::error_code& error) -> std::unique_ptr<CSerialPort> {
        auto port = opener(path, error);
        if (port == nullptr)
            return nullptr;
        return std::make_unique<CQuickPort>(std::move(port), change);
    };
}

} // namespace skeldon::test
