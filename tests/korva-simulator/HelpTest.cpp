#include "SimulatedSupport.h"
#include "support/Process.h"

#include <filesystem>
#include <set>
#include <sstream>

namespace skeldon::test {

namespace {

const std::filesystem::path Packaging = SKELDON_PACKAGING;

/// What the completion offers for the last of `words`.
std::set<std::string> Offered(const std::vector<std::string>& words)
{
    std::string script = "source '" + (Packaging / "completion/korva-simulator").string() +
                         "'; COMP_WORDS=(korva-simulator";
    for (const std::string& word : words)
        script += " '" + word + "'";
    script += "); COMP_CWORD=" + std::to_string(words.size()) +
              "; _korva_simulator; printf '%s\\n' \"${COMPREPLY[@]}\"";
    std::istringstream lines(RunProgram("/bin/bash", {"-c", script}).out);
    std::set<std::string> offered;
    for (std::string line; std::getline(lines, line);)
        offered.insert(line);
    return offered;
}

/// All long options that the help lists.
std::set<std::string> Options()
{
    std::istringstream words(RunProgram(KORVA_SIMULATOR, {"--help"}).out);
    std::set<std::string> options;
    for (std::string word; words >> word;) {
        if (word.starts_with("-h,"))
            word.erase(0, 3);
        if (word.starts_with("--"))
            options.insert(word);
    }
    return options;
}

TEST(ManualPage, TellsEveryOption)
{
    const std::string page = ReadText(Packaging / "man/korva-simulator.1");
    const std::set<std::string> options = Options();
    EXPECT_GT(options.size(), 15U);
    for (const std::string& option : options)
        EXPECT_NE(page.find("Fl Fl " + option.substr(2)), std::string::npos) << option;
}

TEST(ManualPage, TellsEveryFault)
{
    const std::string page = ReadText(Packaging / "man/korva-simulator.1");
    for (const FaultForm& form : FaultForms())
        EXPECT_NE(page.find(".It Cm " + std::string(form.name)), std::string::npos) << form.name;
}

TEST(Completion, OffersEveryOption)
{
    EXPECT_EQ(Offered({"-"}), Options());
    EXPECT_EQ(Offered({"--alpha", "--tr"}), std::set<std::string>{"--trace"});
}

TEST(Completion, OffersEveryFaultInItsForm)
{
    std::set<std::string> faults;
    for (const FaultForm& form : FaultForms()) {
        const bool needsValue = form.value == FaultValue::Number ||
                                form.value == FaultValue::NumberPair ||
                                form.value == FaultValue::Text;
        faults.insert(std::string(form.name) + (needsValue ? "=" : ""));
    }
    EXPECT_EQ(Offered({"--fault", ""}), faults);
}

TEST(Completion, OffersTypesAndRates)
{
    EXPECT_EQ(Offered({"--type", "p"}), (std::set<std::string>{"pl04", "pl20"}));
    EXPECT_EQ(Offered({"--rate", ""}), (std::set<std::string>{"full", "real"}));
}

} // namespace

} // namespace skeldon::test
