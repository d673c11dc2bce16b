#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <mutex>
#include <stdexcept>
#include <string>
#include <thread>

namespace skeldon::soak {

/// What was found: ends the run.
class CFound : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// What a run is given.
struct SoakOptions
{
    std::uint64_t seed = 0;
    int seconds = 60;      ///< of each part
    int lines = 1'000'000; ///< of the large data file
    int downloads = 0;     ///< end of the part before its time; 0 is none
    int ticks = 0;         ///< likewise
    int steps = 0;         ///< likewise
    int stepSeconds = 120; ///< a step that lasts longer hangs
    bool judgesMemory = true;
    std::filesystem::path log;
};

/// One part of a run: its time, its log and the watch over its steps.
class CSoak
{
public:
    CSoak(const SoakOptions& options, std::string part);
    ~CSoak();
    CSoak(const CSoak&) = delete;
    CSoak& operator=(const CSoak&) = delete;

    /// Begins a step, which is logged before it is done: after a crash or a hang, the last line
    /// tells of it. False when the part's time is over or `most` steps, if any, were done.
    [[nodiscard]] bool Next(int most);
    /// What the step does.
    void Log(const std::string& text);
    /// Ends the run where `holds` is false.
    void Check(bool holds, const std::string& what);

    [[nodiscard]] int Step() const { return m_step; }
    [[nodiscard]] const SoakOptions& Options() const { return m_options; }
    /// Of this part.
    [[nodiscard]] std::uint64_t Seed() const { return m_options.seed; }

private:
    using Clock = std::chrono::steady_clock;
    struct Closer
    {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    void Watch();

    const SoakOptions m_options;
    const std::string m_part;
    std::unique_ptr<std::FILE, Closer> m_log;
    const Clock::time_point m_end;
    std::atomic<int> m_step = 0;
    std::mutex m_lock;
    std::condition_variable m_ended;
    bool m_isOver = false;
    std::thread m_watch;
};

} // namespace skeldon::soak
