#include "recorder/platform/PosixSerialPort.h"

#include "ScriptedRecorder.h"

#include "base/Clock.h"
#include "recorder/FixedPortFinder.h"
#include "recorder/ReadBack.h"
#include "recorder/RecorderPort.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <thread>

#include <asm/termbits.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace skeldon {
namespace {

/// A pseudo terminal whose other side the test plays.
class CPseudoTerminal
{
public:
    CPseudoTerminal()
        : m_master(::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC))
    {
        EXPECT_GE(m_master, 0);
        EXPECT_EQ(::grantpt(m_master), 0);
        EXPECT_EQ(::unlockpt(m_master), 0);
        m_path = ::ptsname(m_master);
        // With the terminal never quite closed, reading the other side does not fail between two
        // openings.
        m_keeper = ::open(m_path.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
        EXPECT_GE(m_keeper, 0);
    }
    ~CPseudoTerminal()
    {
        Hangup();
        ::close(m_keeper);
    }
    CPseudoTerminal(const CPseudoTerminal&) = delete;
    CPseudoTerminal& operator=(const CPseudoTerminal&) = delete;

    void Hangup()
    {
        if (m_master >= 0)
            ::close(m_master);
        m_master = -1;
    }
    void Send(std::string_view bytes) const
    {
        while (!bytes.empty()) {
            const ssize_t count = ::write(m_master, bytes.data(), bytes.size());
            ASSERT_GT(count, 0);
            bytes.remove_prefix(static_cast<std::size_t>(count));
        }
    }
    /// Waits for just so many bytes.
    [[nodiscard]] std::string Receive(std::size_t count) const
    {
        std::string bytes(count, '\0');
        for (std::size_t at = 0; at < count;) {
            const ssize_t got = ::read(m_master, &bytes[at], count - at);
            if (got <= 0)
                return bytes.substr(0, at);
            at += static_cast<std::size_t>(got);
        }
        return bytes;
    }

    int m_master;
    int m_keeper = -1;
    std::string m_path;
};

std::unique_ptr<CSerialPort> Open(const std::string& path)
{
    std::error_code error;
    std::unique_ptr<CSerialPort> port = CPosixSerialPort::Open(path, error);
    EXPECT_EQ(port == nullptr, static_cast<bool>(error));
    return port;
}

std::error_code OpenError(const std::string& path)
{
    std::error_code error;
    EXPECT_EQ(CPosixSerialPort::Open(path, error), nullptr);
    return error;
}

/// Bytes from the port until `count` have come or a read brings none.
std::string ReadAll(CSerialPort& port, std::size_t count)
{
    std::string all;
    std::vector<char> buffer(65536);
    while (all.size() < count) {
        const CSerialPort::Transfer read = port.Read(buffer);
        if (read.count == 0)
            break;
        all.append(buffer.data(), read.count);
    }
    return all;
}

double SecondsOf(const std::function<void()>& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

TEST(PosixSerialPort, PassesEveryByteAsItIs)
{
    const CPseudoTerminal terminal;
    const auto port = Open(terminal.m_path);
    ASSERT_TRUE(port);
    std::string all;
    for (int i = 0; i < 256; ++i)
        all += static_cast<char>(i);
    terminal.Send(all);
    EXPECT_EQ(ReadAll(*port, all.size()), all);
    const CSerialPort::Transfer written = port->Write(all);
    EXPECT_EQ(written.count, all.size());
    EXPECT_FALSE(written.error);
    EXPECT_EQ(terminal.Receive(all.size()), all);
    // No echo of what the other side sent.
    EXPECT_EQ(port->ClearErrors()->queued, 0U);
}

TEST(PosixSerialPort, TellsTheDriverSpeedAndDataBits)
{
    const CPseudoTerminal terminal;
    termios2 before{};
    ASSERT_EQ(::ioctl(terminal.m_master, TCGETS2, &before), 0);
    before.c_cflag = (before.c_cflag & ~static_cast<tcflag_t>(CSIZE)) | CS7 | CSTOPB | CRTSCTS;
    ASSERT_EQ(::ioctl(terminal.m_master, TCSETS2, &before), 0);
    const auto port = Open(terminal.m_path);
    ASSERT_TRUE(port);
    termios2 setting{};
    ASSERT_EQ(::ioctl(terminal.m_master, TCGETS2, &setting), 0);
    EXPECT_EQ(setting.c_ospeed, 131072U);
    EXPECT_EQ(setting.c_ispeed, 131072U);
    EXPECT_EQ(setting.c_cflag & CSIZE, static_cast<tcflag_t>(CS8));
    EXPECT_EQ(setting.c_lflag & (ICANON | ECHO | ISIG), 0U);
    // Stop bits and flow control are the driver's.
    EXPECT_NE(setting.c_cflag & CSTOPB, 0U);
    EXPECT_NE(setting.c_cflag & CRTSCTS, 0U);
}

TEST(PosixSerialPort, WaitsAReadTimeForTheFirstByte)
{
    const CPseudoTerminal terminal;
    const auto port = Open(terminal.m_path);
    ASSERT_TRUE(port);
    std::vector<char> buffer(100);
    CSerialPort::Transfer read;
    const double seconds = SecondsOf([&] { read = port->Read(buffer); });
    EXPECT_EQ(read.count, 0U);
    EXPECT_FALSE(read.error);
    EXPECT_GE(seconds, 0.149);
}

TEST(PosixSerialPort, GivesWhatIsThereWithoutWaitingForMore)
{
    const CPseudoTerminal terminal;
    const auto port = Open(terminal.m_path);
    ASSERT_TRUE(port);
    terminal.Send("abc");
    std::vector<char> buffer(2);
    EXPECT_EQ(port->Read(buffer).count, 2U);
    EXPECT_EQ(buffer[0], 'a');
    EXPECT_EQ(port->ClearErrors()->queued, 1U);
    EXPECT_FALSE(port->ClearErrors()->errors);
    EXPECT_EQ(port->Read(buffer).count, 1U);
    EXPECT_EQ(buffer[0], 'c');
}

TEST(PosixSerialPort, FailsWhenTheOtherSideIsGone)
{
    CPseudoTerminal terminal;
    const auto port = Open(terminal.m_path);
    ASSERT_TRUE(port);
    terminal.Hangup();
    std::vector<char> buffer(10);
    const CSerialPort::Transfer read = port->Read(buffer);
    EXPECT_EQ(read.count, 0U);
    EXPECT_TRUE(read.error);
    EXPECT_TRUE(port->Write("x").error);
}

TEST(PosixSerialPort, IsOpenedOnceAtATime)
{
    const CPseudoTerminal terminal;
    auto port = Open(terminal.m_path);
    ASSERT_TRUE(port);
    EXPECT_EQ(OpenError(terminal.m_path), std::errc::device_or_resource_busy);
    port.reset();
    EXPECT_TRUE(Open(terminal.m_path));
}

TEST(PosixSerialPort, CanBeOpenedAgainAfterAKill)
{
    constexpr uid_t Nobody = 65534;
    const CPseudoTerminal terminal;
    ASSERT_EQ(::chmod(terminal.m_path.c_str(), 0666), 0);
    // Whoever may open any device would not notice a mark that was left.
    const auto inChild = [&terminal](bool isKilled) {
        const pid_t child = ::fork();
        if (child == 0) {
            if (::geteuid() == 0 && ::setuid(Nobody) != 0)
                ::_exit(2);
            std::error_code error;
            const auto port = CPosixSerialPort::Open(terminal.m_path, error);
            if (isKilled)
                ::raise(SIGKILL);
            ::_exit(port ? 0 : 1);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    };
    EXPECT_EQ(inChild(true), -1);
    EXPECT_EQ(inChild(false), 0);
}

TEST(PosixSerialPort, OpensNothingThatIsNoTerminal)
{
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("skeldon-port-" + std::to_string(::getpid()));
    std::filesystem::create_directory(folder);
    const std::filesystem::path file = folder / "file";
    std::ofstream(file) << "precious";
    EXPECT_EQ(OpenError(file), std::errc::inappropriate_io_control_operation);
    std::string contents;
    std::ifstream(file) >> contents;
    EXPECT_EQ(contents, "precious");
    EXPECT_EQ(OpenError(folder), std::errc::is_a_directory);
    EXPECT_EQ(OpenError(folder / "none"), std::errc::no_such_file_or_directory);
    EXPECT_TRUE(OpenError("/dev/null"));
    std::filesystem::remove_all(folder);
}

/// Answers on the other side of a pseudo terminal: each command as it comes by what stands for it.
class CAnsweringRecorder
{
public:
    CAnsweringRecorder(const CPseudoTerminal& terminal, std::vector<std::string> talk)
        : m_thread([&terminal, talk = std::move(talk)] {
            for (std::size_t i = 0; i + 1 < talk.size(); i += 2) {
                if (terminal.Receive(talk[i].size()) != talk[i])
                    return;
                terminal.Send(talk[i + 1]);
            }
        })
    {}
    ~CAnsweringRecorder() { m_thread.join(); }

private:
    std::thread m_thread;
};

TEST(PosixSerialPort, CarriesAWholeDownload)
{
    const CPseudoTerminal terminal;
    constexpr int Count = 3000;
    std::string lines;
    for (int i = 0; i < Count; ++i)
        lines += "52ADB7A00102031900\r\n";
    const std::string report = test::Report(std::to_string(Count) + " 9999");
    const CAnsweringRecorder recorder(terminal, {"mp", report, "mD", lines + "#"});
    CSystemClock clock;
    CRecorderLink link(MakeCableFinder(terminal.m_path), SystemPortOpener(), clock);
    ASSERT_TRUE(link.FindRecorderPort());
    CMeasureData data;
    const int expected = link.StartDownload();
    ASSERT_EQ(expected, Count);
    EXPECT_EQ(ReadBack(link, expected, data), Count);
    EXPECT_EQ(data.GetRecord(Count - 1).m_z, 0.3);
    EXPECT_EQ(data.GetRecord(Count - 1).m_flags, 0);
    EXPECT_FALSE(link.m_timedOut);
}

TEST(PosixSerialPort, LetsTheProcessorSleepWhileTheWireIsSlow)
{
    const CPseudoTerminal terminal;
    const auto port = Open(terminal.m_path);
    ASSERT_TRUE(port);
    std::vector<char> buffer(100);
    const auto processorSeconds = [] {
        rusage usage{};
        ::getrusage(RUSAGE_SELF, &usage);
        return static_cast<double>(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
               static_cast<double>(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) * 1e-6;
    };
    const double before = processorSeconds();
    double waited = 0;
    for (int i = 0; i < 3; ++i)
        waited += SecondsOf([&] { (void)port->Read(buffer); });
    EXPECT_LT(processorSeconds() - before, waited / 4);
}

TEST(FixedPortFinder, IsAttachedExactlyWhileThePathExists)
{
    const std::filesystem::path link =
        std::filesystem::temp_directory_path() / ("skeldon-cable-" + std::to_string(::getpid()));
    std::filesystem::remove(link);
    CFixedPortFinder finder(link.string());
    EXPECT_EQ(finder.FindPort(), std::nullopt);
    CPseudoTerminal terminal;
    std::filesystem::create_symlink(terminal.m_path, link);
    EXPECT_EQ(finder.FindPort(), link.string());
    // A name whose port is gone is no cable.
    terminal.Hangup();
    EXPECT_EQ(finder.FindPort(), std::nullopt);
    std::filesystem::remove(link);
    EXPECT_EQ(finder.FindPort(), std::nullopt);
}

TEST(FixedPortFinder, MakesAPathOfAPlainName)
{
    const std::string name = "skeldon-name-" + std::to_string(::getpid());
    std::ofstream(name) << "";
    EXPECT_EQ(CFixedPortFinder(name).FindPort(), "./" + name);
    std::filesystem::remove(name);
}

TEST(MakeCableFinder, PrefersThePathThenTheEnvironmentThenTheCable)
{
    ASSERT_EQ(::setenv("SKELDON_PORT", "/dev/null", 1), 0);
    EXPECT_EQ(MakeCableFinder("/dev/zero")->FindPort(), "/dev/zero");
    EXPECT_EQ(MakeCableFinder()->FindPort(), "/dev/null");
    ASSERT_EQ(::setenv("SKELDON_PORT", "", 1), 0);
    EXPECT_EQ(dynamic_cast<CFixedPortFinder*>(MakeCableFinder().get()), nullptr);
    ASSERT_EQ(::unsetenv("SKELDON_PORT"), 0);
    EXPECT_EQ(dynamic_cast<CFixedPortFinder*>(MakeCableFinder().get()), nullptr);
}

} // namespace
} // namespace skeldon
