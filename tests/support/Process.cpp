#include "support/Process.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace skeldon::test {

namespace {

void Require(bool condition, const char* what)
{
    if (!condition)
        throw std::runtime_error(what);
}

struct Pipe
{
    Pipe() { Require(::pipe2(ends.data(), O_CLOEXEC) == 0, "pipe"); }
    std::array<int, 2> ends{};
};

/// Starts the program with its output on those descriptors; -1 leaves this process's.
pid_t Start(const std::filesystem::path& program, const std::vector<std::string>& arguments,
            const std::vector<std::string>& environment, int out, int err)
{
    std::vector<std::string> texts{program.string()};
    texts.insert(texts.end(), arguments.begin(), arguments.end());
    std::vector<char*> argv;
    for (std::string& text : texts)
        argv.push_back(text.data());
    argv.push_back(nullptr);
    const pid_t child = ::fork();
    Require(child >= 0, "fork");
    if (child > 0)
        return child;
    for (const std::string& entry : environment)
        ::putenv(const_cast<char*>(entry.c_str()));
    const int nothing = ::open("/dev/null", O_RDONLY);
    ::dup2(nothing, STDIN_FILENO);
    if (out >= 0)
        ::dup2(out, STDOUT_FILENO);
    if (err >= 0)
        ::dup2(err, STDERR_FILENO);
    ::execv(argv[0], argv.data());
    ::_exit(127);
}

int StatusOf(pid_t process)
{
    int status = 0;
    while (::waitpid(process, &status, 0) < 0)
        Require(errno == EINTR, "waitpid");
    constexpr int SignalBase = 128;
    return WIFEXITED(status) ? WEXITSTATUS(status) : SignalBase + WTERMSIG(status);
}

/// Reads both pipes to their ends, so that neither fills up.
void Collect(int out, int err, Outcome& outcome)
{
    std::array<pollfd, 2> polled{pollfd{out, POLLIN, 0}, pollfd{err, POLLIN, 0}};
    std::array<std::string*, 2> texts{&outcome.out, &outcome.err};
    while (polled[0].fd >= 0 || polled[1].fd >= 0) {
        if (::poll(polled.data(), polled.size(), -1) < 0)
            continue;
        for (std::size_t i = 0; i < polled.size(); ++i) {
            if (polled[i].fd < 0 || polled[i].revents == 0)
                continue;
            char buffer[65536];
            const ssize_t count = ::read(polled[i].fd, buffer, sizeof buffer);
            if (count > 0)
                texts[i]->append(buffer, static_cast<std::size_t>(count));
            else
                polled[i].fd = -1;
        }
    }
}

} // namespace

Outcome RunProgram(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                   const std::vector<std::string>& environment)
{
    const Pipe out;
    const Pipe err;
    const pid_t child = Start(program, arguments, environment, out.ends[1], err.ends[1]);
    ::close(out.ends[1]);
    ::close(err.ends[1]);
    Outcome outcome;
    Collect(out.ends[0], err.ends[0], outcome);
    ::close(out.ends[0]);
    ::close(err.ends[0]);
    outcome.status = StatusOf(child);
    return outcome;
}

CBackgroundProgram::CBackgroundProgram(const std::filesystem::path& program,
                                       const std::vector<std::string>& arguments)
{
    const Pipe out;
    m_process = Start(program, arguments, {}, out.ends[1], -1);
    ::close(out.ends[1]);
    m_output = out.ends[0];
    for (char c = 0; ::read(m_output, &c, 1) == 1 && c != '\n';)
        m_ready += c;
}

CBackgroundProgram::~CBackgroundProgram()
{
    if (m_process > 0) {
        Signal(SIGTERM);
        Wait();
    }
    ::close(m_output);
}

void CBackgroundProgram::Signal(int signal) const
{
    ::kill(m_process, signal);
}

int CBackgroundProgram::Wait()
{
    const int status = StatusOf(m_process);
    m_process = -1;
    return status;
}

} // namespace skeldon::test
