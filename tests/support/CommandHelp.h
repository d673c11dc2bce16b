#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace skeldon::test {

/// A program's completion for bash: the script and the function in it.
struct Completion
{
    std::filesystem::path script;
    std::string program;
    std::string function;
};

/// What the completion offers for the last of `words`, which stand behind the program's name.
[[nodiscard]] std::set<std::string> Offered(const Completion& completion,
                                            const std::vector<std::string>& words);

/// All long options that a program's help lists, which it prints for `arguments`.
[[nodiscard]] std::set<std::string> LongOptions(const std::filesystem::path& program,
                                                const std::vector<std::string>& arguments);

} // namespace skeldon::test
