#include "support/CommandHelp.h"

#include "support/Process.h"

#include <sstream>

namespace skeldon::test {

namespace {

constexpr const char* OptionLetters = "abcdefghijklmnopqrstuvwxyz0123456789-";

} // namespace

std::set<std::string> Offered(const Completion& completion, const std::vector<std::string>& words)
{
    std::string script =
        "source '" + completion.script.string() + "'; COMP_WORDS=(" + completion.program;
    for (const std::string& word : words)
        script += " '" + word + "'";
    script += "); COMP_CWORD=" + std::to_string(words.size()) + "; " + completion.function +
              "; printf '%s\\n' \"${COMPREPLY[@]}\"";
    std::istringstream lines(RunProgram("/bin/bash", {"-c", script}).out);
    std::set<std::string> offered;
    for (std::string line; std::getline(lines, line);)
        offered.insert(line);
    return offered;
}

std::set<std::string> LongOptions(const std::filesystem::path& program,
                                  const std::vector<std::string>& arguments)
{
    std::istringstream words(RunProgram(program, arguments).out);
    std::set<std::string> options;
    for (std::string word; words >> word;) {
        // "-o,--output" is one with a short name.
        if (word.size() > 3 && word[0] == '-' && word[2] == ',')
            word.erase(0, 3);
        if (word.starts_with("--"))
            options.insert(word.substr(0, word.find_first_not_of(OptionLetters)));
    }
    return options;
}

} // namespace skeldon::test
