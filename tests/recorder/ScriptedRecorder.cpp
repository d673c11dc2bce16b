#include "ScriptedRecorder.h"

#include <algorithm>

namespace skeldon::test {

namespace {

std::error_code Gone()
{
    return std::make_error_code(std::errc::io_error);
}

} // namespace

CSerialPort::Transfer CScriptedRecorder::Read(std::span<char> buffer)
{
    const std::lock_guard guard(m_lock);
    ++m_reads;
    if (m_beforeRead)
        m_beforeRead(m_reads);
    if (m_failReadsFrom > 0 && m_reads >= m_failReadsFrom)
        return {0, Gone()};
    if (m_incoming.empty() && !m_endless.empty())
        m_incoming.push_back(m_endless);
    if (m_incoming.empty()) {
        m_clock.Pass(SerialSetting::ReadWaitMs);
        return {};
    }
    m_clock.Pass(m_readTakesMs);
    std::string& piece = m_incoming.front();
    const std::size_t count = std::min(piece.size(), buffer.size());
    std::copy_n(piece.begin(), count, buffer.begin());
    piece.erase(0, count);
    if (piece.empty())
        m_incoming.pop_front();
    return {count, {}};
}

CSerialPort::Transfer CScriptedRecorder::Write(std::string_view bytes)
{
    const std::lock_guard guard(m_lock);
    const std::string text(bytes);
    m_events.push_back(text);
    if (text == m_failWriteOf)
        return {0, Gone()};
    if (text == m_lineErrorAt)
        m_lineError = true;
    if (const auto reply = m_replies.find(text); reply != m_replies.end())
        m_incoming.insert(m_incoming.end(), reply->second.begin(), reply->second.end());
    return {text == m_shortWriteOf ? text.size() - 1 : text.size(), {}};
}

std::optional<CSerialPort::LineState> CScriptedRecorder::ClearErrors()
{
    if (m_stateFails)
        return std::nullopt;
    const std::lock_guard guard(m_lock);
    const bool errors = std::exchange(m_lineError, false);
    std::size_t queued = 0;
    for (const std::string& piece : m_incoming)
        queued += piece.size();
    return CSerialPort::LineState{errors, queued};
}

LinkFixture::LinkFixture()
{
    m_link.FindRecorderPort();
}

void LinkFixture::Watch()
{
    m_link.SetMonitor(std::make_unique<CTrafficRecorder>(m_traffic));
    m_link.m_alwaysWatched = true;
}

std::unique_ptr<CRecorderLink> LinkFixture::NewLink()
{
    const PortOpener opener = [this](const std::string& path,
                                     std::error_code& error) -> std::unique_ptr<CSerialPort> {
        error = m_recorder.m_openError;
        if (error)
            return nullptr;
        return std::make_unique<CScriptedPort>(m_recorder, path);
    };
    return std::make_unique<CRecorderLink>(std::make_unique<CScriptedFinder>(m_cable), opener,
                                           m_clock);
}

std::string Report(const std::string& count, const std::string& more)
{
    return "@KORVA3 Ver=1.02\r\n@korvaPL RLS=2.10\r\n@Count=" + count +
           "\r\n@Type=10\r\n@Year=2024/05/06 07:08:09\r\n" + more + "#";
}

} // namespace skeldon::test
