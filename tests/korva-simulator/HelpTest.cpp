#include "SimulatedSupport.h"
#include "support/CommandHelp.h"
#include "support/TemporaryFolder.h"

#include <filesystem>
#include <set>

namespace skeldon::test {

namespace {

const std::filesystem::path Packaging = SKELDON_PACKAGING;

const Completion ForBash{Packaging / "completion/bash/korva-simulator", "korva-simulator",
                         "_korva_simulator"};

std::set<std::string> Options()
{
    return LongOptions(KORVA_SIMULATOR, {"--help"});
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
    EXPECT_EQ(Offered(ForBash, {"-"}), Options());
    EXPECT_EQ(Offered(ForBash, {"--alpha", "--tr"}), std::set<std::string>{"--trace"});
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
    EXPECT_EQ(Offered(ForBash, {"--fault", ""}), faults);
}

TEST(Completion, OffersTypesAndRates)
{
    EXPECT_EQ(Offered(ForBash, {"--type", "p"}), (std::set<std::string>{"pl04", "pl20"}));
    EXPECT_EQ(Offered(ForBash, {"--rate", ""}), (std::set<std::string>{"full", "real"}));
}

} // namespace

} // namespace skeldon::test
