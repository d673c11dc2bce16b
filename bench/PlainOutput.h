#pragma once

#include "files/Output.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <string_view>
#include <unistd.h>

namespace skeldon::bench {

/// A file that is emptied and written, without any sync. Ends the process on a failure.
class CPlainOutput : public COutput
{
public:
    explicit CPlainOutput(const std::filesystem::path& path)
        : m_descriptor(::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600))
    {}
    ~CPlainOutput() override { ::close(m_descriptor); }
    CPlainOutput(const CPlainOutput&) = delete;
    CPlainOutput& operator=(const CPlainOutput&) = delete;

    std::error_code Write(std::string_view bytes) override
    {
        while (!bytes.empty()) {
            const ssize_t count = ::write(m_descriptor, bytes.data(), bytes.size());
            if (count <= 0)
                std::abort();
            bytes.remove_prefix(static_cast<std::size_t>(count));
        }
        return {};
    }

private:
    int m_descriptor;
};

} // namespace skeldon::bench
