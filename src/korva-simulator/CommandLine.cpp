#include "korva-simulator/CommandLine.h"

#include "base/TextScan.h"
#include "base/Version.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <sstream>

namespace skeldon {

namespace {

constexpr int WrongUsage = 2;

/// The recorder type of "qm70" and the like or of a number; nothing for any other text.
std::optional<int> TypeOf(const std::string& text)
{
    if (EqualNoCase(text, "oldest"))
        return OldestType;
    if (EqualNoCase(text, "pl04"))
        return 1;
    if (EqualNoCase(text, "pl20"))
        return 10;
    if (EqualNoCase(text, "qm70"))
        return 50;
    const bool isNumber = !text.empty() && text.size() <= 3 &&
                          std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
    return isNumber ? std::optional(ScanInt(text)) : std::nullopt;
}

/// A step in seconds as hundredths; nothing below a hundredth or above a day.
std::optional<std::int64_t> StepOf(const std::string& text)
{
    const double hundredths = ScanDouble(text) * 100;
    if (!(hundredths >= 0.5 && hundredths <= static_cast<double>(SecondsPerDay) * 100))
        return std::nullopt;
    return static_cast<std::int64_t>(hundredths + 0.5);
}

struct RawOptions
{
    SimulatorOptions result;
    std::string type = "qm70";
    std::string from = "2025-01-13 07:00:00";
    std::string step;
};

void AddOptions(CLI::App& app, RawOptions& raw)
{
    constexpr std::size_t MostLines = 50'000'000;
    app.add_option("--link", raw.result.link, "Name of the port while the cable is plugged in")
        ->type_name("PATH");
    app.add_option("--type", raw.type,
                   "Recorder: oldest, pl04, pl20, qm70, or the number that it reports")
        ->type_name("TYPE")
        ->capture_default_str();
    app.add_flag("--alpha", raw.result.recorder.alpha, "With alpha firmware");
    app.add_option("--lines", raw.result.lines.count, "Lines in the memory")
        ->type_name("N")
        ->check(CLI::Range(std::size_t{0}, MostLines));
    app.add_option("--seed", raw.result.recorder.seed, "Number that the measurements follow from")
        ->type_name("N")
        ->capture_default_str();
    app.add_option("--from", raw.from, "Time of the first line, \"YYYY-MM-DD HH:MM:SS\"")
        ->type_name("TIME")
        ->capture_default_str();
    app.add_option("--step", raw.step, "Seconds between two lines, such as 5 or 0.01")
        ->type_name("SECONDS");
}

std::optional<EarlyEnd> Complete(RawOptions& raw)
{
    SimulatorOptions& options = raw.result;
    const std::optional<int> type = TypeOf(raw.type);
    if (!type)
        return EarlyEnd{WrongUsage, "--type: \"" + raw.type + "\" is no recorder type\n"};
    options.recorder.type = *type;
    options.recorder.hasBuzzerKey = *type != OldestType;
    const std::optional<RecorderSeconds> from = ParseRecorderTime(raw.from);
    if (!from)
        return EarlyEnd{WrongUsage, "--from: \"" + raw.from + "\" is no time\n"};
    options.lines.from = *from;
    options.lines.step = DefaultStep(options.lines.count);
    if (!raw.step.empty()) {
        const std::optional<std::int64_t> step = StepOf(raw.step);
        if (!step)
            return EarlyEnd{WrongUsage, "--step: \"" + raw.step + "\" is no step\n"};
        options.lines.step = *step;
    }
    options.recorder.clock = FromRecorderFields(ToLocalFields(Now()));
    return std::nullopt;
}

} // namespace

std::variant<SimulatorOptions, EarlyEnd>
ParseSimulatorLine(const std::vector<std::string>& arguments)
{
    RawOptions raw;
    CLI::App app("Play a KORVA recorder on a pseudo terminal.", "korva-simulator");
    app.set_version_flag("--version", std::string("korva-simulator ") + ProgramVersion,
                         "Print the version and exit");
    AddOptions(app, raw);
    try {
        std::vector<std::string> reversed(arguments.rbegin(), arguments.rend());
        app.parse(std::move(reversed));
    } catch (const CLI::ParseError& error) {
        std::ostringstream out;
        std::ostringstream err;
        const bool isFine = app.exit(error, out, err) == 0;
        return EarlyEnd{isFine ? 0 : WrongUsage, out.str() + err.str()};
    }
    if (const std::optional<EarlyEnd> end = Complete(raw))
        return *end;
    return raw.result;
}

} // namespace skeldon
