#include "app/SharedLink.h"

#include <chrono>
#include <thread>

namespace skeldon {

CSharedLink::CSharedLink(const std::string& blockName, const std::string& mutexName)
{
    m_mutex.Open(mutexName);
    LockWithPatience();
    m_block.emplace(blockName);
    m_mutex.Unlock();
}

void CSharedLink::SetWindowHandle(std::uint32_t value)
{
    if (m_block->GetWords() == nullptr)
        return;
    LockWithPatience();
    m_block->GetWords()[Window] = value;
    m_mutex.Unlock();
}

void CSharedLink::LockWithPatience()
{
    // At the start and end of the program, when nobody waits for it: another program may take its
    // time with the block, but not for ever.
    constexpr int Tries = 50;
    constexpr std::chrono::milliseconds Pause{10};
    for (int i = 0; i < Tries && m_mutex.TryLock() == CLockFile::Outcome::HeldElsewhere; ++i)
        std::this_thread::sleep_for(Pause);
}

std::optional<std::uint32_t> CSharedLink::GetHoldFlag()
{
    if (m_block->GetWords() == nullptr)
        return 0;
    if (m_mutex.TryLock() == CLockFile::Outcome::HeldElsewhere)
        return std::nullopt;
    std::uint32_t flag = m_block->GetWords()[Hold];
    if (flag != 0 && m_block->IsAlone()) {
        flag = 0;
        m_block->GetWords()[Hold] = flag;
    }
    m_mutex.Unlock();
    return flag;
}

} // namespace skeldon
