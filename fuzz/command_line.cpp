// Any bytes as the arguments of the command line tool, one a line: there is a command or a refusal
// with a text.
#include "Check.h"
#include "skeldonctl/CommandLine.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

using namespace skeldon;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count)
{
    std::string_view text(reinterpret_cast<const char*>(bytes), count);
    std::vector<std::string> arguments;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        // An argument ends at a zero byte, as the system hands it over.
        const std::string_view line = text.substr(0, end);
        arguments.emplace_back(line.substr(0, line.find('\0')));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    const auto parsed = ParseCommandLine(arguments);
    if (const auto* const refusal = std::get_if<Refusal>(&parsed))
        FUZZ_CHECK(!refusal->text.empty());
    else if (const auto* const online = std::get_if<OnlineCommand>(&std::get<Command>(parsed)))
        FUZZ_CHECK(online->seconds >= 1 && online->seconds <= 4999);
    return 0;
}
