#pragma once

#include "base/platform/Descriptor.h"

#include <filesystem>
#include <string>

namespace skeldon {

/// A lock that is known by its name to all processes of the user and that ends with the process
/// holding it, however that ends.
class CLockFile
{
public:
    enum class Outcome
    {
        Taken,
        HeldElsewhere, ///< another process, or another object of this one, holds it
        Failed,        ///< the system has no such lock, or no room for its file
    };

    CLockFile() = default;
    CLockFile(const CLockFile&) = delete;
    CLockFile& operator=(const CLockFile&) = delete;

    /// Opens the lock `name` without taking it. False where that can not be done.
    bool Open(const std::string& name);
    /// Takes the lock if it is free; does not wait.
    [[nodiscard]] Outcome TryLock();
    void Unlock();
    void Close();

private:
    CDescriptor m_descriptor;
};

/// The folder for what lives only as long as the user is logged in.
[[nodiscard]] std::filesystem::path RuntimeFolder();

} // namespace skeldon
