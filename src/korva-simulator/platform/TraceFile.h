#pragma once

#include "base/platform/Descriptor.h"
#include "korva-simulator/TraceText.h"

#include <filesystem>
#include <string>
#include <system_error>

namespace skeldon {

/// The log of the wire. A failure ends the log and stays to be asked for.
class CTraceFile
{
public:
    /// No log.
    CTraceFile() = default;
    CTraceFile(const std::filesystem::path& path, std::error_code& error);
    CTraceFile(CTraceFile&&) = default;
    CTraceFile& operator=(CTraceFile&&) = default;
    ~CTraceFile() { Flush(); }

    void Bytes(std::int64_t timeUs, TraceDirection direction, std::string_view bytes);
    void Event(std::int64_t timeUs, std::string_view event);
    /// Writes what has gathered.
    void Flush();

    [[nodiscard]] std::error_code Error() const { return m_error; }

private:
    CDescriptor m_file;
    std::string m_text;
    std::error_code m_error;
};

} // namespace skeldon
