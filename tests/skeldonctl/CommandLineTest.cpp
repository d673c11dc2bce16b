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

TEST(CommandLine, ReadsTheUnitAsAWordInAnyLetterCase)
{
    const auto unit = [](const std::string& word) {
        return Parsed<CsvCommand>({"csv", "f.skd", "--unit", word}).options.unit;
    };
    EXPECT_EQ(unit("g"), CsvUnit::G);
    EXPECT_EQ(unit("MS2"), CsvUnit::MetresPerSecondSquared);
    EXPECT_EQ(unit("Gal"), CsvUnit::Gal);
}

TEST(CommandLine, ReadsSecondsAsADecimalNumber)
{
    EXPECT_EQ(Parsed<OnlineCommand>({"online", "--seconds", "4999"}).seconds, 4999);
    EXPECT_EQ(Parsed<OnlineCommand>({"online", "--seconds", "060"}).seconds, 60);
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

TEST(CommandLine, ReadsEveryOptionOfChart)
{
    const auto chart =
        Parsed<ChartCommand>({"chart", "a.skd", "-o", "b.png", "--size", "320x16384", "--bars",
                              "--series", "thx", "--unit", "Gal", "--from", "2026-03-04 05:06:07",
                              "--to", "2026-03-04 05:06:07.010", "--elapsed"});
    EXPECT_EQ(chart.file, "a.skd");
    EXPECT_EQ(chart.output, "b.png");
    EXPECT_EQ(chart.width, 320);
    EXPECT_EQ(chart.height, 16384);
    EXPECT_TRUE(chart.bars);
    EXPECT_EQ(chart.series, "thx");
    EXPECT_EQ(chart.unit, ChartUnit::Gal);
    const std::int64_t from = FromLocalFields({2026, 3, 4, 5, 6, 7}) * 1000;
    EXPECT_EQ(chart.from, from);
    EXPECT_EQ(chart.to, from + 10);
    EXPECT_TRUE(chart.elapsed);
}

TEST(CommandLine, DrawsAllSeriesAsLinesInGWithoutOptions)
{
    const auto chart = Parsed<ChartCommand>({"chart", "a.skd", "--output", "b.png"});
    EXPECT_EQ(chart.width, 1200);
    EXPECT_EQ(chart.height, 700);
    EXPECT_FALSE(chart.bars);
    EXPECT_EQ(chart.series, "xyzrth");
    EXPECT_EQ(chart.unit, ChartUnit::G);
    EXPECT_EQ(chart.from, std::nullopt);
    EXPECT_EQ(chart.to, std::nullopt);
    EXPECT_FALSE(chart.elapsed);
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
        {"online", "--seconds", "0x10"},
        {"online", "--seconds", "5.0"},
        {"online", "--seconds", "99999999999999999999"},
        {"start"},
        {"start", "p.skp", "--at", ""},
        {"start", "p.skp", "--at", "tomorrow"},
        {"start", "p.skp", "--at", "2026-02-30 10:00"},
        {"info"},
        {"info", "a.skd", "b.skd"},
        {"convert", "a.skd"},
        {"csv", "a.skd", "--unit", "furlong"},
        {"csv", "a.skd", "--unit", "1"},
        {"chart", "a.skd"},
        {"chart", "-o", "a.png"},
        {"chart", "a.skd", "-o", ""},
        {"chart", "a.skd", "-o", "a.png", "--size", ""},
        {"chart", "a.skd", "-o", "a.png", "--size", "319x200"},
        {"chart", "a.skd", "-o", "a.png", "--size", "320x199"},
        {"chart", "a.skd", "-o", "a.png", "--size", "16385x200"},
        {"chart", "a.skd", "-o", "a.png", "--size", "320x16385"},
        {"chart", "a.skd", "-o", "a.png", "--size", "320"},
        {"chart", "a.skd", "-o", "a.png", "--size", "320x"},
        {"chart", "a.skd", "-o", "a.png", "--size", "320x200x1"},
        {"chart", "a.skd", "-o", "a.png", "--size", "-320x200"},
        {"chart", "a.skd", "-o", "a.png", "--size", "320x99999999999999999999"},
        {"chart", "a.skd", "-o", "a.png", "--series", "xq"},
        {"chart", "a.skd", "-o", "a.png", "--unit", "furlong"},
        {"chart", "a.skd", "-o", "a.png", "--unit", "2"},
        {"chart", "a.skd", "-o", "a.png", "--from", ""},
        {"chart", "a.skd", "-o", "a.png", "--from", "2026-03-04 05:06"},
        {"chart", "a.skd", "-o", "a.png", "--to", "2026-02-30 05:06:07"},
        {"chart", "a.skd", "-o", "a.png", "--from", "2026-03-04 05:06:07", "--to",
         "2026-03-04 05:06:06.999"},
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
    for (const char* command :
         {"status", "get", "online", "start", "info", "convert", "csv", "chart"})
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

TEST(ParseInstant, TakesSecondsOrMilliseconds)
{
    const std::int64_t whole = FromLocalFields({2024, 2, 29, 1, 2, 3}) * 1000;
    EXPECT_EQ(ParseInstant("2024-02-29 01:02:03"), whole);
    EXPECT_EQ(ParseInstant("2024-02-29 01:02:03.045"), whole + 45);
    for (const char* wrong :
         {"", "2024-02-29 01:02", "2024-02-29 01:02:60", "2023-02-29 01:02:03",
          "2024-02-29 01:02:03.", "2024-02-29 01:02:03.4", "2024-02-29 01:02:03.0456",
          "2024-02-29 01:02:03,045", "2024-02-29T01:02:03", "2024-02-29 01:02:03 ",
          "2024-02-29 01:02:03.-45", "2024-02-29 24:00:00"})
        EXPECT_EQ(ParseInstant(wrong), std::nullopt) << wrong;
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
