#pragma once

#include <string_view>
#include <system_error>

namespace skeldon {

/// Where a formatter puts its bytes.
class COutput
{
public:
    virtual ~COutput() = default;

    /// Takes all of `bytes`, or says why it could not.
    [[nodiscard]] virtual std::error_code Write(std::string_view bytes) = 0;
};

} // namespace skeldon
