#include "korva-simulator/platform/SignalWatch.h"

#include <csignal>

#include <sys/signalfd.h>

namespace skeldon {

CSignalWatch::CSignalWatch()
{
    (void)std::signal(SIGPIPE, SIG_IGN);
    sigset_t ends{};
    ::sigemptyset(&ends);
    for (const int number : {SIGINT, SIGTERM, SIGHUP})
        ::sigaddset(&ends, number);
    CDescriptor descriptor(::signalfd(-1, &ends, SFD_NONBLOCK | SFD_CLOEXEC));
    // Without the descriptor the signals keep their own way of ending the program.
    if (descriptor.IsOpen())
        ::sigprocmask(SIG_BLOCK, &ends, nullptr);
    m_descriptor = std::move(descriptor);
}

} // namespace skeldon
