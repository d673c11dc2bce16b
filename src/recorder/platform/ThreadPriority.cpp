#include "recorder/platform/ThreadPriority.h"

#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace skeldon {

void RaiseThreadPriority()
{
    // On Linux a nice value belongs to the thread whose id is named.
    constexpr int HighNice = -10;
    const auto thread = static_cast<id_t>(::syscall(SYS_gettid));
    (void)::setpriority(PRIO_PROCESS, thread, HighNice);
}

} // namespace skeldon
