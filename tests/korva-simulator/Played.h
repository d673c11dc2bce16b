#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

namespace skeldon::test {

/// A running korva-simulator. It is ended with the object.
class CPlayed
{
public:
    /// Starts it and takes its first line.
    explicit CPlayed(const std::vector<std::string>& arguments);
    ~CPlayed();
    CPlayed(const CPlayed&) = delete;
    CPlayed& operator=(const CPlayed&) = delete;

    [[nodiscard]] const std::string& FirstLine() const { return m_first; }
    /// The next line of its output; empty where it has ended.
    std::string NextLine();
    /// Writes a line into the pipe of that name and gives what the simulator says to it.
    std::string Control(const std::filesystem::path& fifo, const std::string& line);
    /// Nobody listens any more to what it says.
    void CloseOutput();
    void Signal(int signal) const;
    /// Asks it to end and gives its exit status.
    int Quit();
    /// Waits for its end and gives its exit status.
    int Wait();
    /// Processor time it has used so far.
    [[nodiscard]] std::chrono::nanoseconds ProcessorTime() const;

private:
    pid_t m_process = -1;
    int m_output = -1;
    std::string m_text;
    std::string m_first;
};

/// The host's end of the port, open as long as the object lives.
class CHostPort
{
public:
    explicit CHostPort(const std::filesystem::path& path);
    ~CHostPort();
    CHostPort(const CHostPort&) = delete;
    CHostPort& operator=(const CHostPort&) = delete;

    void Write(std::string_view text) const;
    /// Reads up to and including `end`, or to the end of the line's life.
    std::string ReadTo(char end);
    /// Reads so many bytes, or to the end of the line's life.
    std::string ReadCount(std::size_t count);
    /// Wakes the recorder up and waits for its echo.
    void WakeUp();
    [[nodiscard]] int Descriptor() const { return m_descriptor; }

private:
    /// Reads what is there into `m_held`; false when the line is dead.
    bool Fill();

    int m_descriptor;
    std::string m_held;
};

} // namespace skeldon::test
