#pragma once

#include <atomic>
#include <functional>
#include <thread>

namespace skeldon {

/// Runs conversations with the recorder beside the thread that asks for them, one at a time, so
/// that a recorder that does not answer keeps nobody waiting. All operations belong to the thread
/// that owns the worker; what the work wrote may be read after `Finish`.
class CLinkWorker
{
public:
    /// `notify` is called by the worker's thread when work has ended: it may only pass that on.
    explicit CLinkWorker(std::function<void()> notify);
    CLinkWorker(const CLinkWorker&) = delete;
    CLinkWorker& operator=(const CLinkWorker&) = delete;
    /// Waits for work that still runs.
    ~CLinkWorker();

    /// Begins `work`; nothing may be under way. Where no thread is to be had the work is done at
    /// once by the caller.
    void Start(std::function<void()> work);
    /// Work was begun and `Finish` was not called since.
    [[nodiscard]] bool IsUnderWay() const { return m_underWay; }
    /// The work under way has ended.
    [[nodiscard]] bool HasEnded() const { return m_ended; }
    /// Waits for the end of work under way.
    void Finish();

private:
    std::function<void()> m_notify;
    std::thread m_thread;
    bool m_underWay = false;
    std::atomic<bool> m_ended = true;
};

} // namespace skeldon
