#include "recorder/LinkWorker.h"

#include <system_error>
#include <utility>

namespace skeldon {

CLinkWorker::CLinkWorker(std::function<void()> notify)
    : m_notify(std::move(notify))
{}

CLinkWorker::~CLinkWorker()
{
    Finish();
}

void CLinkWorker::Start(std::function<void()> work)
{
    m_underWay = true;
    m_ended = false;
    const auto run = [this, work = std::move(work)] {
        work();
        m_ended = true;
        m_notify();
    };
    try {
        m_thread = std::thread(run);
    } catch (const std::system_error&) {
        run();
    }
}

void CLinkWorker::Finish()
{
    if (m_thread.joinable())
        m_thread.join();
    m_underWay = false;
}

} // namespace skeldon
