#include "Soak.h"

#include <cstdlib>
#include <utility>

namespace skeldon::soak {

CSoak::CSoak(const SoakOptions& options, std::string part)
    : m_options(options)
    , m_part(std::move(part))
    , m_log(std::fopen(options.log.c_str(), "a"))
    , m_end(Clock::now() + std::chrono::seconds(options.seconds))
{
    if (!m_log)
        throw std::runtime_error(options.log.string() + " can not be written");
    Log("=== " + m_part + ", seed " + std::to_string(options.seed));
    m_watch = std::thread(&CSoak::Watch, this);
}

CSoak::~CSoak()
{
    {
        const std::lock_guard guard(m_lock);
        m_isOver = true;
    }
    m_ended.notify_all();
    m_watch.join();
}

bool CSoak::Next(int most)
{
    if (Clock::now() >= m_end || (most > 0 && m_step >= most))
        return false;
    ++m_step;
    return true;
}

void CSoak::Log(const std::string& text)
{
    std::fprintf(m_log.get(), "%s %d: %s\n", m_part.c_str(), m_step.load(), text.c_str());
    std::fflush(m_log.get());
}

void CSoak::Check(bool holds, const std::string& what)
{
    if (holds)
        return;
    Log("FAILED: " + what);
    throw CFound(m_part + ", step " + std::to_string(m_step) + ": " + what);
}

void CSoak::Watch()
{
    int step = 0;
    Clock::time_point begun = Clock::now();
    std::unique_lock guard(m_lock);
    while (!m_ended.wait_for(guard, std::chrono::seconds(1), [this] { return m_isOver; })) {
        const int now = m_step;
        if (std::exchange(step, now) != now) {
            begun = Clock::now();
        } else if (Clock::now() - begun > std::chrono::seconds(m_options.stepSeconds)) {
            std::fprintf(stderr, "%s, step %d hangs; seed %llu, log %s\n", m_part.c_str(), now,
                         static_cast<unsigned long long>(m_options.seed), m_options.log.c_str());
            std::abort();
        }
    }
}

} // namespace skeldon::soak
