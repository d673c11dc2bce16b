#pragma once

#include <utility>

#include <unistd.h>

namespace skeldon {

/// A file descriptor that is closed with its owner; below 0 is none.
class CDescriptor
{
public:
    explicit CDescriptor(int descriptor = -1)
        : m_descriptor(descriptor)
    {}
    CDescriptor(CDescriptor&& other) noexcept
        : m_descriptor(std::exchange(other.m_descriptor, -1))
    {}
    CDescriptor& operator=(CDescriptor&& other) noexcept
    {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }
    ~CDescriptor()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }

    [[nodiscard]] int Get() const { return m_descriptor; }
    [[nodiscard]] bool IsOpen() const { return m_descriptor >= 0; }

private:
    int m_descriptor;
};

} // namespace skeldon
