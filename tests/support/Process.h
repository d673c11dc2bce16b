#pragma once

#include "support/TemporaryFolder.h"

#include <filesystem>
#include <string>
#include <sys/types.h>
#include <vector>

namespace skeldon::test {

/// What a program left behind.
struct Outcome
{
    int status = -1; ///< exit status; 128 and the signal where one ended it
    std::string out;
    std::string err;
};

/// Runs a program to its end. `environment` holds "NAME=value" on top of this process's own.
Outcome RunProgram(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                   const std::vector<std::string>& environment = {});

/// A program that runs beside the test and says "ready" on its standard output once it can be
/// used. It is ended with the object.
class CBackgroundProgram
{
public:
    CBackgroundProgram(const std::filesystem::path& program,
                       const std::vector<std::string>& arguments);
    ~CBackgroundProgram();
    CBackgroundProgram(const CBackgroundProgram&) = delete;
    CBackgroundProgram& operator=(const CBackgroundProgram&) = delete;

    /// The line in which it said so; empty if it ended without.
    [[nodiscard]] const std::string& Ready() const { return m_ready; }
    /// Sends a signal.
    void Signal(int signal) const;
    /// Waits for its end and gives its exit status.
    int Wait();

private:
    pid_t m_process = -1;
    int m_output = -1;
    std::string m_ready;
};

} // namespace skeldon::test
