#pragma once

#include <cerrno>
#include <string_view>
#include <system_error>
#include <utility>

#include <unistd.h>

namespace skeldon {

/// The reason of the system call that failed last.
[[nodiscard]] inline std::error_code LastSystemError()
{
    return {errno, std::generic_category()};
}

/// A file descriptor that is closed with its owner; below 0 is none.
class CDescriptor
{
public:
    explicit CDescriptor(int value = -1)
        : m_value(value)
    {}
    ~CDescriptor()
    {
        if (m_value >= 0)
            ::close(m_value);
    }
    CDescriptor(CDescriptor&& other) noexcept
        : m_value(std::exchange(other.m_value, -1))
    {}
    CDescriptor& operator=(CDescriptor&& other) noexcept
    {
        std::swap(m_value, other.m_value);
        return *this;
    }

    [[nodiscard]] bool IsOpen() const { return m_value >= 0; }
    [[nodiscard]] int Get() const { return m_value; }
    /// Closes it and says whether that failed, as a write delayed by the system can.
    [[nodiscard]] std::error_code Close()
    {
        return ::close(std::exchange(m_value, -1)) == 0 ? std::error_code{} : LastSystemError();
    }

private:
    int m_value;
};

/// Writes all bytes, also where the system takes them in pieces or a signal comes between.
[[nodiscard]] std::error_code WriteAll(int descriptor, std::string_view bytes);

} // namespace skeldon
