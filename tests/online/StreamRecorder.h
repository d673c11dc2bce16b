#pragma once

#include <atomic>
#include <functional>
#include <mutex>
#include <string>
#include <thread>

namespace skeldon::test {

/// A recorder on a pseudo terminal that knows one thing: to stream, from the letter "x" on to the
/// mark "#", whatever a test has it send.
class CStreamRecorder
{
public:
    /// Gives the next piece of the stream; an empty one is its end.
    using Source = std::function<std::string()>;

    explicit CStreamRecorder(Source source);
    ~CStreamRecorder();
    CStreamRecorder(const CStreamRecorder&) = delete;
    CStreamRecorder& operator=(const CStreamRecorder&) = delete;

    [[nodiscard]] const std::string& Port() const { return m_port; }
    /// All bytes that were sent to it.
    [[nodiscard]] std::string Heard() const;

private:
    void Run();
    /// Reads what waits. Gives whether the stream goes on.
    bool Listen(bool isStreaming);

    Source m_source;
    std::string m_port;
    int m_master = -1;
    int m_slave = -1;
    std::atomic<bool> m_isEnding = false;
    mutable std::mutex m_lock;
    std::string m_heard;
    std::thread m_thread;
};

} // namespace skeldon::test
