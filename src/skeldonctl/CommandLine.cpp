#include "skeldonctl/CommandLine.h"

#include "base/Version.h"
#include "recorder/OnlineTime.h"

#include <CLI/CLI.hpp>
#include <charconv>
#include <sstream>
#include <tuple>

namespace skeldon {

namespace {

/// The options of all commands; the parser writes into it.
struct Options
{
    StatusCommand status;
    GetCommand get;
    OnlineCommand online;
    StartCommand start;
    InfoCommand info;
    ConvertCommand convert;
    CsvCommand csv;
    ChartCommand chart;
    std::string at;
    std::string size;
    std::string from;
    std::string to;
    bool twoFields = false;
    bool noResultant = false;
    bool noTemperature = false;
    bool noHumidity = false;
};

CLI::App* AddCommand(CLI::App& app, const std::string& name, const std::string& description)
{
    CLI::App* const command = app.add_subcommand(name, description);
    command->set_version_flag("--version", std::string("skeldonctl ") + ProgramVersion,
                              "Print the version and exit");
    return command;
}

void AddPort(CLI::App& command, PortOption& port)
{
    command
        .add_option("--port", port,
                    "Port of the recorder; like the environment variable SKELDON_PORT")
        ->type_name("PATH")
        ->check([](const std::string& text) {
            return text.empty() ? std::string("the path is empty") : std::string();
        });
}

/// For an option that counts as not given where its text is empty: a script's empty variable is
/// refused.
std::string IsGiven(const std::string& text)
{
    return text.empty() ? "nothing is given" : "";
}

void AddPath(CLI::App& command, const std::string& name, std::filesystem::path& path,
             const std::string& type, const std::string& description, bool isRequired)
{
    command
        .add_option_function<std::string>(
            name, [&path](const std::string& text) { path = text; }, description)
        ->type_name(type)
        ->required(isRequired)
        ->check([](const std::string& text) {
            return text.empty() ? std::string("the path is empty") : std::string();
        });
}

/// Read as words: by itself the parser takes the enumerators' numbers, too.
template <class Unit>
void AddUnit(CLI::App& command, Unit& unit)
{
    command
        .add_option_function<std::string>(
            "--unit",
            [&unit](const std::string& text) {
                unit = text == "g"     ? Unit::G
                       : text == "gal" ? Unit::Gal
                                       : Unit::MetresPerSecondSquared;
            },
            "Unit of the axes: g, ms2 or gal")
        ->type_name("UNIT")
        ->transform(CLI::IsMember({"g", "ms2", "gal"}, CLI::ignore_case));
}

/// Digits and nothing else: by itself the parser takes "010" for eight.
void AddSeconds(CLI::App& command, int& seconds)
{
    const auto read = [](const std::string& text, int& value) {
        const char* const end = text.data() + text.size();
        const auto [behind, error] = std::from_chars(text.data(), end, value);
        return error == std::errc() && behind == end && value >= LeastOnlineSeconds &&
               value <= MostOnlineSeconds;
    };
    command
        .add_option_function<std::string>(
            "--seconds", [&seconds, read](const std::string& text) { (void)read(text, seconds); },
            "How long, 1 to 4999 seconds")
        ->type_name("N")
        ->required()
        ->check([read](const std::string& text) {
            int value = 0;
            return read(text, value) ? std::string() : "\"" + text + "\" is not 1 to 4999 seconds";
        });
}

void AddJson(CLI::App& command, bool& json, bool* records)
{
    command.add_flag("--json", json, "Print one JSON object");
    if (records != nullptr)
        command.add_flag("--records", *records, "The same with all lines in it");
}

void AddRecorderCommands(CLI::App& app, Options& options)
{
    CLI::App* const status = AddCommand(app, "status", "Ask the recorder for its status");
    AddJson(*status, options.status.json, nullptr);
    AddPort(*status, options.status.port);

    CLI::App* const get = AddCommand(app, "get", "Read the recorder's memory");
    AddPath(*get, "-o,--output", options.get.dataFile, "FILE.skd", "Save as a data file", false);
    AddPath(*get, "--csv", options.get.csvFile, "FILE.csv", "Export as CSV", false);
    AddJson(*get, options.get.json, &options.get.withRecords);
    AddPort(*get, options.get.port);

    CLI::App* const online = AddCommand(app, "online", "Record a live stream of the axes");
    AddSeconds(*online, options.online.seconds);
    AddPath(*online, "-o,--output", options.online.dataFile, "FILE.skd", "Save as a data file",
            false);
    AddJson(*online, options.online.json, &options.online.withRecords);
    AddPort(*online, options.online.port);

    CLI::App* const start =
        AddCommand(app, "start", "Give the recorder the conditions of a profile and start it");
    AddPath(*start, "PROFILE", options.start.profile, "", "Profile file (skp)", true);
    start->add_flag("--clear", options.start.clear,
                    "Clear the recorder's data and set its clock first");
    start->add_option("--at", options.at, "Start at this local time instead of at once")
        ->type_name("\"YYYY-MM-DD HH:MM\"")
        ->check(IsGiven);
    start->add_flag("--fit", options.start.fit,
                    "Take the offered value where one does not fit the recorder");
    AddPort(*start, options.start.port);
}

void AddFileCommands(CLI::App& app, Options& options)
{
    CLI::App* const info = AddCommand(app, "info", "Tell what a data file holds");
    AddPath(*info, "FILE", options.info.file, "", "Data file (skd, sks)", true);
    AddJson(*info, options.info.json, &options.info.withRecords);

    CLI::App* const convert =
        AddCommand(app, "convert", "Write a data file anew, in the present format");
    AddPath(*convert, "FILE", options.convert.file, "", "Data file (skd, sks)", true);
    AddPath(*convert, "OUT", options.convert.output, "", "Data file to write (skd)", true);

    CLI::App* const csv = AddCommand(app, "csv", "Export a data file as CSV");
    AddPath(*csv, "FILE", options.csv.file, "", "Data file (skd, sks)", true);
    AddPath(*csv, "-o,--output", options.csv.output, "OUT.csv",
            "CSV file to write; standard output without it", false);
    AddUnit(*csv, options.csv.options.unit);
    csv->add_flag("--ravelin", options.csv.options.ravelin,
                  "The form of the older tools; no other option then counts");
    csv->add_flag("--two-fields", options.twoFields, "Date and time in a field each");
    csv->add_flag("--no-resultant", options.noResultant, "Without the resultant");
    csv->add_flag("--no-temperature", options.noTemperature, "Without the temperature");
    csv->add_flag("--no-humidity", options.noHumidity, "Without the humidity");
}

void AddChart(CLI::App& app, Options& options)
{
    CLI::App* const chart = AddCommand(app, "chart", "Draw a data file as a picture");
    AddPath(*chart, "FILE", options.chart.file, "", "Data file (skd, sks)", true);
    AddPath(*chart, "-o,--output", options.chart.output, "OUT.png", "Picture to write", true);
    chart->add_option("--size", options.size, "Size of the picture, 320x200 to 16384x16384")
        ->type_name("WxH")
        ->check(IsGiven);
    chart->add_flag("--bars", options.chart.bars, "Bars instead of lines");
    chart
        ->add_option("--series", options.chart.series,
                     "Letters of the series to show: x y z, r resultant, t temperature, h humidity")
        ->type_name("LETTERS")
        ->check([](const std::string& text) {
            const bool isKnown = text.find_first_not_of("xyzrth") == std::string::npos;
            return isKnown ? std::string() : "\"" + text + "\" holds other letters than xyzrth";
        });
    AddUnit(*chart, options.chart.unit);
    for (const auto& [name, text, description] :
         {std::tuple{"--from", &options.from, "First local time that is shown"},
          std::tuple{"--to", &options.to, "Last local time that is shown"}})
        chart->add_option(name, *text, description)
            ->type_name("\"YYYY-MM-DD HH:MM:SS[.mmm]\"")
            ->check(IsGiven);
    chart->add_flag("--elapsed", options.chart.elapsed, "Time since the first line on the axis");
}

Refusal Misused(const std::string& text)
{
    return {ExitStatus::Usage, "skeldonctl: " + text + '\n'};
}

/// Reads "1200x700".
bool ParseSize(const std::string& text, ChartCommand& command)
{
    const std::size_t cross = text.find('x');
    const auto side = [&text](std::size_t begin, std::size_t end, int& value) {
        const char* const first = text.data() + begin;
        const char* const last = text.data() + end;
        const auto [behind, error] = std::from_chars(first, last, value);
        return error == std::errc() && behind == last && value <= ChartCommand::LargestSide;
    };
    return cross != std::string::npos && side(0, cross, command.width) &&
           side(cross + 1, text.size(), command.height) &&
           command.width >= ChartCommand::SmallestWidth &&
           command.height >= ChartCommand::SmallestHeight;
}

std::variant<Command, Refusal> ChosenChart(Options& options)
{
    ChartCommand& chart = options.chart;
    if (!options.size.empty() && !ParseSize(options.size, chart))
        return Misused("--size: \"" + options.size + "\" is no size from 320x200 to 16384x16384");
    for (const auto& [name, text, instant] : {std::tuple{"--from", &options.from, &chart.from},
                                              std::tuple{"--to", &options.to, &chart.to}}) {
        if (text->empty())
            continue;
        *instant = ParseInstant(*text);
        if (!*instant)
            return Misused(std::string(name) + ": \"" + *text +
                           "\" is no time \"YYYY-MM-DD HH:MM:SS[.mmm]\"");
    }
    if (chart.from && chart.to && *chart.from > *chart.to)
        return Misused("--from lies behind --to");
    return chart;
}

/// The command that was given; the line has been parsed.
std::variant<Command, Refusal> Chosen(const CLI::App& app, Options& options)
{
    const std::string name = app.get_subcommands().front()->get_name();
    // The lines are a part of the object.
    options.get.json |= options.get.withRecords;
    options.online.json |= options.online.withRecords;
    options.info.json |= options.info.withRecords;
    if (name == "status")
        return options.status;
    if (name == "get")
        return options.get;
    if (name == "online")
        return options.online;
    if (name == "info")
        return options.info;
    if (name == "convert")
        return options.convert;
    if (name == "chart")
        return ChosenChart(options);
    if (name == "start") {
        if (!options.at.empty()) {
            options.start.at = ParseMinute(options.at);
            if (!options.start.at)
                return Misused("--at: \"" + options.at + "\" is no time \"YYYY-MM-DD HH:MM\"");
        }
        return options.start;
    }
    options.csv.options.dateTime = !options.twoFields;
    options.csv.options.accel = !options.noResultant;
    options.csv.options.temperature = !options.noTemperature;
    options.csv.options.humidity = !options.noHumidity;
    return options.csv;
}

} // namespace

std::variant<Command, Refusal> ParseCommandLine(const std::vector<std::string>& arguments)
{
    Options options;
    CLI::App app("Work with KORVA shock and acceleration recorders and their data files.",
                 "skeldonctl");
    app.set_version_flag("--version", std::string("skeldonctl ") + ProgramVersion,
                         "Print the version and exit");
    app.require_subcommand(1);
    app.footer("\"skeldonctl COMMAND --help\" tells the options of a command; skeldonctl(1) tells "
               "more.");
    AddRecorderCommands(app, options);
    AddFileCommands(app, options);
    AddChart(app, options);
    try {
        std::vector<std::string> reversed(arguments.rbegin(), arguments.rend());
        app.parse(std::move(reversed));
    } catch (const CLI::ParseError& error) {
        std::ostringstream out;
        std::ostringstream err;
        const bool isFine = app.exit(error, out, err) == 0;
        return Refusal{isFine ? ExitStatus::Done : ExitStatus::Usage, out.str() + err.str()};
    }
    return Chosen(app, options);
}

} // namespace skeldon
