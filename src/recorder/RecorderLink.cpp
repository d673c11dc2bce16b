#include "recorder/RecorderLink.h"

#include "recorder/ConditionCommands.h"
#include "recorder/StatusReport.h"

#include <array>
#include <cstdio>
#include <utility>

namespace skeldon {

CRecorderLink::CRecorderLink(std::unique_ptr<CCableFinder> finder, PortOpener opener, CClock& clock)
    : CRecorderTransport(std::move(finder), std::move(opener), clock)
{
    m_year = ToLocalFields(clock.Now()).year;
}

CRecorderLink::~CRecorderLink()
{
    Abandon();
    if (m_thread.joinable())
        m_thread.join();
}

bool CRecorderLink::ReadStatus()
{
    if (m_busy)
        return false;
    const std::string reply = SendText("p") ? ReadReply() : std::string();
    // Where the cable went in the middle, anything may be missing, and be half of a number.
    if (reply.empty() || (m_timedOut && IsPortGone())) {
        ClosePort();
        return false;
    }
    if (!ReadStatusReport(reply, ToLocalFields(Clock().Now()).year, *this))
        return false;
    ClosePort();
    m_rangeChanged = false;
    return true;
}

bool CRecorderLink::ReadStatus(CMeasureCondition& condition)
{
    if (!ReadStatus())
        return false;
    TakeConditions(*this, condition);
    return true;
}

bool CRecorderLink::WriteConditions(const CMeasureCondition& condition)
{
    if (m_busy)
        return false;
    for (const std::string& command : ConditionCommands(*this, condition)) {
        if (!SendOrClose(command))
            return false;
    }
    ClosePort();
    return true;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): a start works on a snapshot
bool CRecorderLink::StartMeasuring(CMeasureCondition condition, bool setClock)
{
    if (!WriteConditions(condition))
        return false;
    if (setClock && !SendOrClose(ClockCommand(Clock().Now())))
        return false;
    if (!SendOrClose("t"))
        return false;
    ClosePort();
    return true;
}

bool CRecorderLink::StartReserved(CMeasureCondition condition, CalendarSeconds reserveTime,
                                  bool setClock)
{
    if (!StartMeasuring(std::move(condition), setClock) ||
        !SendOrClose(ReservationCommand(reserveTime)))
        return false;
    ClosePort();
    return true;
}

/// Here a reply that silence cut short is a failure too.
bool CRecorderLink::SendOrClose(std::string_view text)
{
    if (SendCommand(text) && !m_timedOut)
        return true;
    ClosePort();
    return false;
}

bool CRecorderLink::Calibrate()
{
    if (m_busy)
        return false;
    const bool answered = SendCommand("w99");
    ClosePort();
    return answered;
}

bool CRecorderLink::ChangeRange()
{
    if (m_busy || !CanChangeRange())
        return false;
    std::array<char, 16> command{};
    std::snprintf(command.data(), command.size(), "%02d", static_cast<int>(GetOtherRange()));
    const bool answered = SendCommand(command.data());
    ClosePort();
    if (answered)
        m_rangeChanged = true;
    return answered;
}

bool CRecorderLink::SendMonitorCommand(std::string_view text)
{
    if (m_busy)
        return false;
    const bool isSent = SendText(text);
    if (isSent)
        ReportUntilSilence();
    // A dead port would fail the next operation, be the cable back by then or not.
    if (IsPortGone())
        ClosePort();
    return isSent;
}

void CRecorderLink::ReportUntilSilence()
{
    m_timedOut = false;
    std::uint32_t lastByte = Clock().TickMs();
    while (!m_timedOut) {
        const std::string_view bytes = PeekBytes();
        ReportBytes(bytes);
        TakeBytes(bytes.size());
        if (!bytes.empty())
            lastByte = Clock().TickMs();
        m_timedOut = IsAbandoned() || (bytes.empty() && SilentSince(lastByte));
    }
}

} // namespace skeldon
