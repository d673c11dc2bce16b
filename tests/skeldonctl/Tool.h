#pragma once

#include "support/Process.h"

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace skeldon::test {

/// Runs the tool.
inline Outcome Tool(const std::vector<std::string>& arguments,
                    const std::vector<std::string>& environment = {})
{
    return RunProgram(SKELDONCTL, arguments, environment);
}

/// Its standard output as JSON; a failure shows what it was.
inline nlohmann::json JsonOf(const Outcome& outcome)
{
    const auto json = nlohmann::json::parse(outcome.out, nullptr, false);
    return json.is_discarded() ? nlohmann::json{{"noJson", outcome.out}, {"err", outcome.err}}
                               : json;
}

} // namespace skeldon::test
