#include "skeldonctl/CommandLine.h"

#include <gtest/gtest.h>

namespace skeldon {

namespace {

using Arguments = std::vector<std::string>;

template <typename T>
T Parsed(const Arguments& arguments)
{
    const auto parsed = ParseCommandLine(arguments);
    const auto* const command = std::get_if<Command>(&parsed);
    if (command == nullptr || !std::holds_alternative<T>(*command)) {
        ADD_FAILURE() << "no such command: " << std::get<Refusal>(parsed).text;
        return {};
    }
    return std::get<T>(*command);
}

Refusal Refused(const Arguments& arguments)
{
    const auto parsed = ParseCommandLine(arguments);
    const auto* const refusal = std::get_if<Refusal>(&parsed);
    return refusal != nullptr ? *refusal : Refusal{ExitStatus::Failed, "a command"};
}

TEST(CommandLine, ReadsEveryOptionOfGet)
{
    const auto get = Parsed<GetCommand>(
        {"get", "-o", "a.skd", "--csv", "b.csv", "--json", "--records", "--port", "/dev/ttyUSB1"});
    EXPECT_EQ(get.dataFile, "a.skd");
    EXPECT_EQ(get.csvFile, "b.csv");
    EXPECT_TRUE(get.json);
    EXPECT_TRUE(get.withRecords);
    EXPECT_EQ(get.port, "/dev/ttyUSB1");
}

TEST(CommandLine, RecordsArePartOfTheJsonObject)
{
    EXPECT_TRUE(Parsed<GetCommand>({"get", "--records"}).json);
    EXPECT_TRUE(Parsed<OnlineCommand>({"online", "--seconds", "1", "--records"}).json);
    EXPECT_TRUE(Parsed<InfoCommand>({"info", "f.skd", "--records"}).json);
    EXPECT_FALSE(Parsed<InfoCommand>({"info", "f.skd", "--json"}).withRecords);
}

TEST(CommandLine, LeavesOutWhatIsNotGiven)
{
    const auto get = Parsed<GetCommand>({"get"});
    EXPECT_TRUE(get.dataFile.empty());
    EXPECT_TRUE(get.csvFile.empty());
    EXPECT_FALSE(get.json);
    EXPECT_TRUE(get.port.empty());
}

TEST(CommandLine, ReadsTheColumnsOfCsv)
{
    const auto csv =
        Parsed<CsvCommand>({"csv", "f.skd", "-o", "o.csv", "--unit", "gal", "--two-fields",
                            "--no-resultant", "--no-temperature", "--no-humidity"});
    EXPECT_EQ(csv.file, "f.skd");
    EXPECT_EQ(csv.output, "o.csv");
    EXPECT_EQ(csv.options.unit, CsvUnit::Gal);
    EXPECT_FALSE(csv.options.dateTime);
    EXPECT_FALSE(csv.options.accel);
    EXPECT_FALSE(csv.options.temperature);
    EXPECT_FALSE(csv.options.humidity);
    EXPECT_FALSE(csv.options.ravelin);
}

TEST(CommandLine, HasAllColumnsOfCsvInGWithoutOptions)
{
    const auto csv = Parsed<CsvCommand>({"csv", "f.skd"});
    EXPECT_EQ(csv.options.unit, CsvUnit::G);
    EXPECT_TRUE(csv.options.dateTime);
    EXPECT_TRUE(csv.options.accel);
    EXPECT_TRUE(csv.options.temperature);
    EXPECT_TRUE(csv.options.humidity);
}

TEST(CommandLine, ReadsAReservation)
{
    const auto start =
        Parsed<StartCommand>({"start", "p.skp", "--clear", "--fit", "--at", "2026-12-31 23:59"});
    EXPECT_EQ(start.profile, "p.skp");
    EXPECT_TRUE(start.clear);
    EXPECT_TRUE(start.fit);
    EXPECT_EQ(start.at, (CalendarFields{2026, 12, 31, 23, 59, 0}));
}

TEST(CommandLine, RefusesWrongUsageWithStatusTwoAndAReason)
{
    const std::vector<Arguments> wrong{
        {},
        {"frobnicate"},
        {"status", "get"},
        {"status", "--frobnicate"},
        {"status", "--port", ""},
        {"get", "-o"},
        {"get", "-o", ""},
        {"online"},
        {"online", "--seconds", "0"},
        {"online", "--seconds", "5000"},
        {"online", "--seconds", "-1"},
        {"online", "--seconds", "many"},
        {"online", "--seconds", "99999999999999999999"},
        {"start"},
        {"start", "p.skp", "--at", "tomorrow"},
        {"start", "p.skp", "--at", "2026-02-30 10:00"},
        {"info"},
        {"info", "a.skd", "b.skd"},
        {"convert", "a.skd"},
        {"csv", "a.skd", "--unit", "furlong"},
        {"chart", "a.skd"},
    };
    for (const Arguments& arguments : wrong) {
        const Refusal refusal = Refused(arguments);
        EXPECT_EQ(refusal.status, ExitStatus::Usage) << ::testing::PrintToString(arguments);
        EXPECT_FALSE(refusal.text.empty()) << ::testing::PrintToString(arguments);
    }
}

TEST(CommandLine, TellsHelpAndVersionEverywhere)
{
    std::vector<Arguments> lines{{}};
    for (const char* command : {"status", "get", "online", "start", "info", "convert", "csv"})
        lines.push_back({command});
    for (Arguments& line : lines) {
        line.push_back("--version");
        EXPECT_EQ(Refused(line).status, ExitStatus::Done);
        EXPECT_EQ(Refused(line).text, "skeldonctl 1.0.0.0\n");
        line.back() = "--help";
        EXPECT_EQ(Refused(line).status, ExitStatus::Done);
        EXPECT_NE(Refused(line).text.find("--version"), std::string::npos);
    }
}

TEST(ParseMinute, TakesOneFormOnly)
{
    EXPECT_EQ(ParseMinute("2024-02-29 00:00"), (CalendarFields{2024, 2, 29, 0, 0, 0}));
    for (const char* wrong :
         {"", "2024-02-29", "2024-02-29 00:00:00", "2024-2-29 00:00", "2024/02/29 00:00",
          "2024-02-29T00:00", " 2024-02-29 00:00", "2024-02-29 00:00 ", "2023-02-29 00:00",
          "2024-13-01 00:00", "2024-00-01 00:00", "2024-01-01 24:00", "2024-01-01 00:60",
          "+024-01-01 00:00"})
        EXPECT_EQ(ParseMinute(wrong), std::nullopt) << wrong;
}

TEST(ParseMinute, LeavesAnHourThatTheClockSkipsToTheCalendar)
{
    // The tests run in a zone whose clock goes from 02:00 to 03:00 on that day.
    EXPECT_EQ(ParseMinute("2024-03-31 02:30"), (CalendarFields{2024, 3, 31, 2, 30, 0}));
}

} // namespace

} // namespace skeldon
