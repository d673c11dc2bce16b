#include "korva-simulator/CommandLine.h"

#include "base/TextScan.h"
#include "base/Version.h"
#include "korva-simulator/WirePacer.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cmath>
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
    return std::llround(hundredths);
}

/// Bytes a second of "real", "full" or a number; nothing for any other text.
std::optional<std::int64_t> RateOf(const std::string& text)
{
    constexpr std::size_t MostDigits = 9;
    if (text == "full")
        return 0;
    if (text == "real")
        return CWirePacer::LineRate;
    const bool isNumber = !text.empty() && text.size() <= MostDigits &&
                          std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
    const int rate = isNumber ? ScanInt(text) : 0;
    return rate > 0 ? std::optional<std::int64_t>(rate) : std::nullopt;
}

/// The options whose text is read once all are known.
struct RawOptions
{
    SimulatorOptions result;
    std::string type = "qm70";
    bool noBuzzer = false;
    std::string from = "2025-01-13 07:00:00";
    std::string step;
    std::string clock;
    std::string rate = "full";
    std::vector<std::string> faults;
};

void AddRecorderOptions(CLI::App& app, RawOptions& raw)
{
    constexpr std::size_t MostLines = 50'000'000;
    RecorderState& recorder = raw.result.recorder;
    app.add_option("--type", raw.type,
                   "Recorder: oldest, pl04, pl20, qm70, or the number that it reports")
        ->type_name("TYPE")
        ->capture_default_str();
    app.add_flag("--alpha", recorder.alpha, "With alpha firmware");
    app.add_flag("--no-buzzer", raw.noBuzzer, "Without a buzzer in its report");
    app.add_option("--lines", raw.result.lines.count, "Lines in the memory")
        ->type_name("N")
        ->check(CLI::Range(std::size_t{0}, MostLines).description(""))
        ->capture_default_str();
    app.add_option("--capacity", recorder.capacity, "Lines that the memory can hold")
        ->type_name("N")
        ->check(CLI::Range(std::size_t{0}, MostLines).description(""))
        ->capture_default_str();
    app.add_option("--seed", recorder.seed, "Number that all measurements follow from")
        ->type_name("N")
        ->capture_default_str();
    app.add_option("--from", raw.from, "Time of the first line, \"YYYY-MM-DD HH:MM:SS\"")
        ->type_name("TIME")
        ->capture_default_str();
    app.add_option("--step", raw.step,
                   "Seconds between two lines, such as 5 or 0.01; a day and a bit without it")
        ->type_name("SECONDS");
    app.add_option("--records", raw.result.records, "File with the memory as raw record lines")
        ->type_name("FILE")
        ->excludes("--lines");
    app.add_option("--clock", raw.clock,
                   "What the recorder's clock shows; the PC's time without it")
        ->type_name("TIME");
    app.add_option("--state", raw.result.state,
                   "File that keeps the recorder over runs; once it is there, it tells what the "
                   "recorder is")
        ->type_name("FILE");
}

void AddWireOptions(CLI::App& app, RawOptions& raw)
{
    app.add_option("--link", raw.result.link, "Name of the port while the cable is plugged in")
        ->type_name("PATH");
    app.add_flag("--unplugged", raw.result.unplugged, "Begin with the cable pulled");
    app.add_option("--rate", raw.rate,
                   "How fast it sends: real (131072 baud), full, or bytes a second")
        ->type_name("RATE")
        ->capture_default_str();
    app.add_option("--time-scale", raw.result.timeScale,
                   "Seconds of the recorder in one real second")
        ->type_name("FACTOR")
        ->capture_default_str();
    app.add_option("--fault", raw.faults, "A fault from the list below; may be given again")
        ->type_name("NAME[=VALUE]")
        ->take_all()
        ->expected(1);
    app.add_option("--control", raw.result.control,
                   "Named pipe, made where there is none, that takes the commands below")
        ->type_name("FIFO");
    app.add_option("--trace", raw.result.trace, "File that logs the wire byte for byte")
        ->type_name("FILE");
}

std::string Footer()
{
    constexpr std::size_t Column = 28;
    std::string text = "Faults (lines are counted from 0):\n";
    for (const FaultForm& form : FaultForms()) {
        std::string line = "  " + FaultUsage(form);
        line.resize(std::max(Column, line.size() + 1), ' ');
        text += line + std::string(form.help) + "\n";
    }
    return text + "\nCommands for the pipe, one to a line: plug, pull, start, magnet near, magnet "
                  "away,\nfault NAME[=VALUE], clear-faults, quit. korva-simulator(1) tells more.";
}

EarlyEnd Refuse(const std::string& option, const std::string& text, const std::string& kind)
{
    return {WrongUsage, option + ": \"" + text + "\" is no " + kind + "\n"};
}

/// Reads the times and the step.
std::optional<EarlyEnd> CompleteTimes(RawOptions& raw)
{
    SimulatorOptions& options = raw.result;
    const std::optional<RecorderSeconds> from = ParseRecorderTime(raw.from);
    if (!from)
        return Refuse("--from", raw.from, "time \"YYYY-MM-DD HH:MM:SS\"");
    options.lines.from = *from;
    const std::optional<std::int64_t> step =
        raw.step.empty() ? DefaultStep(options.lines.count) : StepOf(raw.step);
    if (!step)
        return Refuse("--step", raw.step, "number of seconds from 0.01 to 86400");
    options.lines.step = *step;
    const std::optional<RecorderSeconds> clock =
        raw.clock.empty() ? FromRecorderFields(ToLocalFields(Now())) : ParseRecorderTime(raw.clock);
    if (!clock)
        return Refuse("--clock", raw.clock, "time \"YYYY-MM-DD HH:MM:SS\"");
    options.recorder.clock = *clock;
    options.recorder.begun = *clock;
    return std::nullopt;
}

std::optional<EarlyEnd> Complete(RawOptions& raw)
{
    SimulatorOptions& options = raw.result;
    const std::optional<int> type = TypeOf(raw.type);
    if (!type)
        return Refuse("--type", raw.type, "recorder type");
    options.recorder.type = *type;
    options.recorder.hasBuzzerKey = *type != OldestType && !raw.noBuzzer;
    // Written so that "nan" falls out too.
    if (!(options.timeScale >= 0.001 && options.timeScale <= 1e6))
        return EarlyEnd{WrongUsage, "--time-scale: the factor lies between 0.001 and 1000000\n"};
    const std::optional<std::int64_t> rate = RateOf(raw.rate);
    if (!rate)
        return Refuse("--rate", raw.rate, "rate: real, full, or bytes a second");
    options.bytesPerSecond = *rate;
    for (const std::string& text : raw.faults) {
        auto fault = ParseFault(text);
        if (const auto* const reason = std::get_if<std::string>(&fault))
            return EarlyEnd{WrongUsage, "--fault: " + *reason + "\n"};
        options.faults.push_back(std::get<Fault>(std::move(fault)));
    }
    return CompleteTimes(raw);
}

} // namespace

std::variant<SimulatorOptions, EarlyEnd>
ParseSimulatorLine(const std::vector<std::string>& arguments)
{
    RawOptions raw;
    CLI::App app("Play a KORVA recorder on a pseudo terminal.", "korva-simulator");
    app.set_version_flag("--version", std::string("korva-simulator ") + ProgramVersion,
                         "Print the version and exit");
    app.footer(Footer());
    AddRecorderOptions(app, raw);
    AddWireOptions(app, raw);
    try {
        std::vector<std::string> reversed(arguments.rbegin(), arguments.rend());
        app.parse(std::move(reversed));
        raw.result.fromGiven = app.count("--from") > 0;
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
