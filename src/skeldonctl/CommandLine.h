#pragma once

#include "base/CalendarTime.h"
#include "files/CsvText.h"
#include "skeldonctl/ExitStatus.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace skeldon {

/// Path of the port; empty for the cable that is found.
using PortOption = std::string;

struct StatusCommand
{
    PortOption port;
    bool json = false;
};

struct GetCommand
{
    PortOption port;
    std::filesystem::path dataFile; ///< empty: not written
    std::filesystem::path csvFile;  ///< empty: not written
    bool json = false;
    bool withRecords = false;
};

struct OnlineCommand
{
    PortOption port;
    int seconds = 0; ///< within the limits of recorder/OnlineTime.h
    std::filesystem::path dataFile;
    bool json = false;
    bool withRecords = false;
};

struct StartCommand
{
    PortOption port;
    std::filesystem::path profile;
    std::optional<CalendarFields> at; ///< a reservation; local time
    bool clear = false;               ///< the recorder's data and clock are set anew
    bool fit = false;                 ///< values that do not fit the recorder are changed
};

struct InfoCommand
{
    std::filesystem::path file;
    bool json = false;
    bool withRecords = false;
};

struct ConvertCommand
{
    std::filesystem::path file;
    std::filesystem::path output;
};

struct CsvCommand
{
    std::filesystem::path file;
    std::filesystem::path output; ///< empty: standard output
    CsvOptions options;
};

/// The unit of the acceleration axis.
enum class ChartUnit
{
    G,
    MetresPerSecondSquared,
    Gal,
};

struct ChartCommand
{
    // The smallest picture in which a plot is left, and one that no memory is short of.
    static constexpr int SmallestWidth = 320;
    static constexpr int SmallestHeight = 200;
    static constexpr int LargestSide = 16384;

    std::filesystem::path file;
    std::filesystem::path output;
    int width = 1200; ///< of the whole picture, in pixels
    int height = 700;
    bool bars = false;
    std::string series = "xyzrth"; ///< a letter for each series shown
    ChartUnit unit = ChartUnit::G;
    std::optional<std::int64_t> from; ///< milliseconds since the epoch
    std::optional<std::int64_t> to;
    bool elapsed = false;
};

using Command = std::variant<StatusCommand, GetCommand, OnlineCommand, StartCommand, InfoCommand,
                             ConvertCommand, CsvCommand, ChartCommand>;

/// Why there is no command: a text that was asked for, or what is wrong with the line.
struct Refusal
{
    ExitStatus status = ExitStatus::Done;
    std::string text; ///< for standard output where `status` is `Done`, else for standard error
};

/// Reads the arguments behind the program's name.
[[nodiscard]] std::variant<Command, Refusal>
ParseCommandLine(const std::vector<std::string>& arguments);

/// Reads "YYYY-MM-DD HH:MM"; nothing where the text is not of that form or names no date or time.
[[nodiscard]] std::optional<CalendarFields> ParseMinute(const std::string& text);

/// Reads "YYYY-MM-DD HH:MM:SS", with ".mmm" behind it or not, as milliseconds since the epoch;
/// nothing likewise.
[[nodiscard]] std::optional<std::int64_t> ParseInstant(const std::string& text);

} // namespace skeldon
