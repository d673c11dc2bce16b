#pragma once

#include <optional>
#include <string>

namespace skeldon {

/// Tells whether the recorder's cable is attached.
class CCableFinder
{
public:
    virtual ~CCableFinder() = default;

    /// The name of the cable's port if it is attached at this moment. No conversation with the
    /// recorder takes place.
    [[nodiscard]] virtual std::optional<std::string> FindPort() = 0;
};

} // namespace skeldon
