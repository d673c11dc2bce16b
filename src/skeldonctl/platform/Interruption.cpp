#include "skeldonctl/platform/Interruption.h"

#include <ctime>

namespace skeldon {

namespace {

sigset_t OnlyInterruptions()
{
    sigset_t set{};
    sigemptyset(&set);
    sigaddset(&set, SIGINT);
    return set;
}

} // namespace

CInterruption::CInterruption()
{
    // Held back and asked for, so that no handler needs to reach anything.
    const sigset_t set = OnlyInterruptions();
    pthread_sigmask(SIG_BLOCK, &set, &m_before);
}

CInterruption::~CInterruption()
{
    pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
}

bool CInterruption::Came()
{
    if (m_came)
        return true;
    const sigset_t set = OnlyInterruptions();
    constexpr timespec AtOnce{};
    m_came = sigtimedwait(&set, nullptr, &AtOnce) == SIGINT;
    if (m_came)
        pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
    return m_came;
}

} // namespace skeldon
