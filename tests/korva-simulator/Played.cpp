#include "Played.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fstream>
#include <stdexcept>
#include <utility>

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace skeldon::test {

namespace {

/// Longer than anything takes; only a failing test waits for it.
constexpr int PatienceMs = 60'000;

void Require(bool condition, const std::string& what)
{
    if (!condition)
        throw std::runtime_error(what);
}

void Await(int descriptor, short events)
{
    pollfd entry{descriptor, events, 0};
    int ready = 0;
    do
        ready = ::poll(&entry, 1, PatienceMs);
    while (ready < 0 && errno == EINTR);
    Require(ready > 0, "nothing came");
}

} // namespace

CPlayed::CPlayed(const std::vector<std::string>& arguments)
{
    std::vector<std::string> texts{KORVA_SIMULATOR};
    texts.insert(texts.end(), arguments.begin(), arguments.end());
    std::vector<char*> argv;
    for (std::string& text : texts)
        argv.push_back(text.data());
    argv.push_back(nullptr);
    std::array<int, 2> ends{};
    Require(::pipe2(ends.data(), O_CLOEXEC) == 0, "pipe");
    m_process = ::fork();
    Require(m_process >= 0, "fork");
    if (m_process == 0) {
        ::dup2(ends[1], STDOUT_FILENO);
        ::execv(argv[0], argv.data());
        ::_exit(127);
    }
    ::close(ends[1]);
    m_output = ends[0];
    m_first = NextLine();
}

CPlayed::~CPlayed()
{
    if (m_process > 0) {
        Signal(SIGKILL);
        (void)Wait();
    }
    CloseOutput();
}

std::string CPlayed::NextLine()
{
    for (;;) {
        if (const std::size_t end = m_text.find('\n'); end != std::string::npos) {
            const std::string line = m_text.substr(0, end);
            m_text.erase(0, end + 1);
            return line;
        }
        Await(m_output, POLLIN);
        std::array<char, 4096> buffer{};
        const ssize_t count = ::read(m_output, buffer.data(), buffer.size());
        if (count <= 0)
            return {};
        m_text.append(buffer.data(), static_cast<std::size_t>(count));
    }
}

std::string CPlayed::Control(const std::filesystem::path& fifo, const std::string& line)
{
    const int descriptor = ::open(fifo.c_str(), O_WRONLY | O_CLOEXEC);
    Require(descriptor >= 0, "no control pipe");
    const std::string text = line + "\n";
    const ssize_t count = ::write(descriptor, text.data(), text.size());
    ::close(descriptor);
    Require(count == static_cast<ssize_t>(text.size()), "control pipe");
    return NextLine();
}

void CPlayed::CloseOutput()
{
    if (m_output >= 0)
        ::close(m_output);
    m_output = -1;
}

void CPlayed::Signal(int signal) const
{
    ::kill(m_process, signal);
}

int CPlayed::Quit()
{
    Signal(SIGTERM);
    return Wait();
}

int CPlayed::Wait()
{
    int status = 0;
    while (::waitpid(m_process, &status, 0) < 0)
        Require(errno == EINTR, "waitpid");
    m_process = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

std::chrono::nanoseconds CPlayed::ProcessorTime() const
{
    std::ifstream file("/proc/" + std::to_string(m_process) + "/schedstat");
    std::int64_t time = -1;
    file >> time;
    Require(time >= 0, "schedstat");
    return std::chrono::nanoseconds(time);
}

CHostPort::CHostPort(const std::filesystem::path& path)
    : m_descriptor(::open(path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC))
{
    Require(m_descriptor >= 0, "no port " + path.string());
}

CHostPort::~CHostPort()
{
    ::close(m_descriptor);
}

void CHostPort::Write(std::string_view text) const
{
    Require(::write(m_descriptor, text.data(), text.size()) == static_cast<ssize_t>(text.size()),
            "write to the port");
}

bool CHostPort::Fill()
{
    Await(m_descriptor, POLLIN);
    std::array<char, 65536> buffer{};
    const ssize_t count = ::read(m_descriptor, buffer.data(), buffer.size());
    if (count < 0 && (errno == EAGAIN || errno == EINTR))
        return true;
    if (count <= 0)
        return false;
    m_held.append(buffer.data(), static_cast<std::size_t>(count));
    return true;
}

std::string CHostPort::ReadTo(char end)
{
    std::size_t place = 0;
    std::size_t from = 0;
    while ((place = m_held.find(end, from)) == std::string::npos) {
        from = m_held.size();
        if (!Fill())
            return std::exchange(m_held, {});
    }
    const std::string text = m_held.substr(0, place + 1);
    m_held.erase(0, place + 1);
    return text;
}

std::string CHostPort::ReadCount(std::size_t count)
{
    while (m_held.size() < count && Fill()) {
    }
    const std::string text = m_held.substr(0, count);
    m_held.erase(0, count);
    return text;
}

void CHostPort::WakeUp()
{
    Write("m");
    Require(ReadTo('m').back() == 'm', "no echo");
}

} // namespace skeldon::test
