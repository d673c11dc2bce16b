#pragma once

#include "recorder/CableFinder.h"

#include <string_view>

namespace skeldon {

/// A cable at a path that the user has named: attached exactly while the path exists. Serves the
/// simulator and cables behind a bridge.
class CFixedPortFinder final : public CCableFinder
{
public:
    explicit CFixedPortFinder(std::string_view path);

    [[nodiscard]] std::optional<std::string> FindPort() override;

private:
    std::string m_path; ///< always with a slash, so that it is opened as a path
};

} // namespace skeldon
