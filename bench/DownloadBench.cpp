#include "Benchmarks.h"
#include "Rounds.h"
#include "SampleData.h"
#include "SimulatorPort.h"

#include "base/Clock.h"
#include "recorder/ReadBack.h"
#include "recorder/RecorderPort.h"

#include <chrono>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <pty.h>
#include <string>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

namespace skeldon::bench {

namespace {

using Instant = std::chrono::steady_clock::time_point;

double SecondsSince(Instant begin)
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

/// Notes when the download's command goes out: what comes before it is waiting that the protocol
/// wants, whatever the number of lines.
class CTimedPort : public CSerialPort
{
public:
    CTimedPort(std::unique_ptr<CSerialPort> port, Instant& begin)
        : m_port(std::move(port))
        , m_begin(begin)
    {}
    Transfer Read(std::span<char> buffer) override { return m_port->Read(buffer); }
    Transfer Write(std::string_view bytes) override
    {
        if (bytes == "D")
            m_begin = std::chrono::steady_clock::now();
        return m_port->Write(bytes);
    }
    std::optional<LineState> ClearErrors() override { return m_port->ClearErrors(); }

private:
    std::unique_ptr<CSerialPort> m_port;
    Instant& m_begin;
};

double Skeldon(std::size_t lines)
{
    Instant begin{};
    CSystemClock clock;
    const PortOpener opener = [&begin, system = SystemPortOpener()](const std::string& path,
                                                                    std::error_code& error) {
        auto port = system(path, error);
        return port ? std::make_unique<CTimedPort>(std::move(port), begin) : nullptr;
    };
    CRecorderLink link(MakeCableFinder(SimulatorPort(lines)), opener, clock);
    CMeasureData data;
    data.Reserve(lines);
    CMeasureRecord record;
    if (!link.FindRecorderPort() || link.StartDownload() != static_cast<int>(lines))
        std::abort();
    for (std::size_t i = 0; i < lines; ++i) {
        if (!link.NextRecord(record))
            std::abort();
        data.AddRecord(record);
    }
    const double seconds = SecondsSince(begin);
    link.FinishDownload(data);
    return seconds;
}

/// Writes the sample stream to a terminal whose other side `cat` reads.
double Cat(std::size_t lines)
{
    const std::string& stream = SampleStream(lines);
    termios raw{};
    ::cfmakeraw(&raw);
    int master = -1;
    int slave = -1;
    if (::openpty(&master, &slave, nullptr, &raw, nullptr) != 0)
        std::abort();
    ::fcntl(master, F_SETFD, FD_CLOEXEC);
    const Instant begin = std::chrono::steady_clock::now();
    const pid_t cat = ::fork();
    if (cat == 0) {
        const int sink = ::open("/dev/null", O_WRONLY);
        ::dup2(slave, STDIN_FILENO);
        ::dup2(sink, STDOUT_FILENO);
        ::dup2(sink, STDERR_FILENO); // it complains of the end that a terminal has
        ::execlp("cat", "cat", nullptr);
        ::_exit(127);
    }
    for (std::string_view rest = stream; !rest.empty();) {
        const ssize_t count = ::write(master, rest.data(), rest.size());
        if (count <= 0)
            std::abort();
        rest.remove_prefix(static_cast<std::size_t>(count));
    }
    // A terminal that is closed throws away what was not read.
    for (int queued = 1; queued > 0;)
        ::ioctl(slave, FIONREAD, &queued);
    const double seconds = SecondsSince(begin);
    ::close(slave);
    ::close(master);
    ::waitpid(cat, nullptr, 0);
    return seconds;
}

} // namespace

Work AddDownload()
{
    AddTimedContender("download", "skeldon", Skeldon);
    AddTimedContender("download", "cat from a terminal", Cat);
    return {"download",
            "Download over a pseudo terminal",
            {"cat from a terminal"},
            {{"cat from a terminal", false, 1.3, 1.1}}};
}

} // namespace skeldon::bench
