#include "korva-simulator/platform/HostWatch.h"

#include <array>
#include <cstddef>
#include <cstring>

#include <sys/inotify.h>

namespace skeldon {

CHostWatch::CHostWatch(const std::string& path)
    : m_descriptor(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
{
    if (m_descriptor.IsOpen() &&
        ::inotify_add_watch(m_descriptor.Get(), path.c_str(), IN_OPEN | IN_CLOSE) < 0)
        m_descriptor = CDescriptor();
}

bool CHostWatch::Update()
{
    bool isClosed = false;
    std::array<char, 4096> buffer{};
    for (;;) {
        const ssize_t count = ::read(m_descriptor.Get(), buffer.data(), buffer.size());
        if (count <= 0)
            return isClosed;
        for (std::size_t i = 0; i + sizeof(inotify_event) <= static_cast<std::size_t>(count);) {
            inotify_event event{};
            std::memcpy(&event, buffer.data() + i, sizeof event);
            i += sizeof event + event.len;
            if ((event.mask & IN_OPEN) != 0)
                ++m_users;
            if ((event.mask & IN_CLOSE) != 0 && m_users > 0)
                isClosed = --m_users == 0 || isClosed;
        }
    }
}

} // namespace skeldon
