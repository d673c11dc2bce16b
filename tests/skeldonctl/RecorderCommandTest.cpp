#include "ToolOnRecorder.h"
#include "base/CalendarTime.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

namespace skeldon::test {

namespace {

using RecorderCommand = ToolOnRecorder;

TEST_F(RecorderCommand, WithoutACableThereIsNoRecorder)
{
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"status"},
                                                      {"get", "-o", m_data},
                                                      {"online", "--seconds", "1"}}) {
        const Outcome outcome = OnPort(arguments);
        EXPECT_EQ(outcome.status, 3);
        EXPECT_EQ(outcome.out, "");
        EXPECT_NE(outcome.err.find("Can not connect to KORVA"), std::string::npos);
    }
    EXPECT_FALSE(std::filesystem::exists(m_data));
}

TEST_F(RecorderCommand, APortThatIsNoneIsNoRecorder)
{
    WriteText(m_port, "");
    EXPECT_EQ(OnPort({"status"}).status, 3);
}

TEST_F(RecorderCommand, StatusGivesEveryMemberOfTheJsonObject)
{
    const auto simulator = Simulator({"--type", "qm70", "--alpha", "--lines", "123"});
    const Outcome outcome = OnPort({"status", "--json"});
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    const nlohmann::json json = JsonOf(outcome);
    for (const char* key :
         {"port",       "model", "type",       "maxG",     "alpha",     "release",
          "version",    "count", "countLimit", "sampling", "interval",  "threshold",
          "hostNumber", "warn",  "wait",       "hazard",   "endless",   "buzzer",
          "hasBuzzer",  "year",  "month",      "day",      "lineLength"})
        EXPECT_TRUE(json.contains(key)) << key;
    EXPECT_EQ(json.size(), 23U);
    EXPECT_EQ(json.value("port", ""), m_port);
    EXPECT_EQ(json.value("model", ""), "QM70");
    EXPECT_EQ(json.value("type", 0), 50);
    EXPECT_EQ(json.value("maxG", 0.0), 50.0);
    EXPECT_EQ(json.value("alpha", false), true);
    EXPECT_EQ(json.value("count", 0), 123);
    EXPECT_EQ(json.value("lineLength", 0), 22);
    EXPECT_EQ(json.value("hasBuzzer", false), true);
}

TEST_F(RecorderCommand, TheEnvironmentNamesThePortToo)
{
    const auto simulator = Simulator({"--type", "pl20", "--lines", "5"});
    const Outcome outcome = Tool({"status", "--json"}, {"SKELDON_PORT=" + m_port});
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(JsonOf(outcome).value("model", ""), "PL20");
}

TEST_F(RecorderCommand, GetLeavesDataFileAndCsvOfWhatItPrints)
{
    const auto simulator = Simulator({"--type", "qm70", "--alpha", "--lines", "2000"});
    const Outcome outcome = OnPort({"get", "-o", m_data, "--csv", m_csv, "--json", "--records"});
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    nlohmann::json got = JsonOf(outcome);
    EXPECT_EQ(got.value("records", 0), 2000);
    EXPECT_EQ(got.value("expected", 0), 2000);
    EXPECT_EQ(got.value("file", ""), "out.skd");
    nlohmann::json saved = JsonOf(Tool({"info", m_data, "--json", "--records"}));
    for (const char* key :
         {"marks", "firstBreak", "abnormal", "model", "release", "sampling", "interval",
          "threshold", "hostNumber", "hasHumidity", "typeNumber", "minStepMs", "signature"})
        EXPECT_EQ(got[key], saved[key]) << key;
    EXPECT_EQ(got["lines"].size(), 2000U);
    EXPECT_EQ(ReadText(m_csv), Tool({"csv", m_data}).out);
}

TEST_F(RecorderCommand, GetReadsEveryFamily)
{
    const std::vector<std::vector<std::string>> families{
        {"--type", "oldest"},          {"--type", "pl04"},
        {"--type", "pl04", "--alpha"}, {"--type", "pl20"},
        {"--type", "20", "--alpha"},   {"--type", "qm70"},
        {"--type", "qm70", "--alpha"},
    };
    for (std::vector<std::string> options : families) {
        options.insert(options.end(), {"--lines", "50"});
        const auto simulator = Simulator(options);
        const nlohmann::json json = JsonOf(OnPort({"get", "--json"}));
        EXPECT_EQ(json.value("records", 0), 50) << ::testing::PrintToString(options);
        EXPECT_EQ(json.value("abnormal", -1), 0) << ::testing::PrintToString(options);
        const bool isAlpha = options[2] == "--alpha";
        EXPECT_EQ(json.value("hasHumidity", !isAlpha), isAlpha)
            << ::testing::PrintToString(options);
    }
}

TEST_F(RecorderCommand, AnEmptyRecorderIsNoFailureAndLeavesNoFile)
{
    const auto simulator = Simulator({"--lines", "0"});
    const Outcome outcome = OnPort({"get", "-o", m_data, "--csv", m_csv});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_NE(outcome.err.find("No measured data is available."), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(m_data));
    EXPECT_FALSE(std::filesystem::exists(m_csv));
    const nlohmann::json json = JsonOf(OnPort({"get", "--json"}));
    EXPECT_EQ(json.value("records", -1), 0);
    EXPECT_EQ(json.value("expected", -1), 0);
    EXPECT_EQ(json.value("typeNumber", -1), 50);
}

TEST_F(RecorderCommand, ANumberOfLinesBeyondAnIntCountsAsNone)
{
    const auto simulator = Simulator({"--lines", "5", "--fault", "count=4294967295"});
    EXPECT_EQ(JsonOf(OnPort({"status", "--json"})).value("count", 0), -1);
    const Outcome outcome = OnPort({"get", "--json"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(JsonOf(outcome).value("expected", -1), 0);
}

TEST_F(RecorderCommand, FewerLinesThanAnnouncedAreKeptWithStatusFour)
{
    const auto simulator = Simulator({"--alpha", "--lines", "50", "--fault", "too-few=20"});
    const Outcome outcome = OnPort({"get", "-o", m_data, "--csv", m_csv, "--json"});
    EXPECT_EQ(outcome.status, 4);
    EXPECT_NE(outcome.err.find("Failed to get the data"), std::string::npos);
    EXPECT_EQ(JsonOf(outcome).value("records", 0), 30);
    EXPECT_EQ(JsonOf(outcome).value("expected", 0), 50);
    EXPECT_EQ(JsonOf(Tool({"info", m_data, "--json"})).value("records", 0), 30);
    EXPECT_EQ(std::ranges::count(ReadText(m_csv), '\n'), 31);
}

TEST_F(RecorderCommand, NoLinesOfThoseAnnouncedLeaveEarlierFilesAlone)
{
    const auto simulator = Simulator({"--alpha", "--lines", "5", "--fault", "too-few=5"});
    WriteText(m_data, "earlier");
    const Outcome outcome = OnPort({"get", "-o", m_data});
    EXPECT_EQ(outcome.status, 4);
    EXPECT_NE(outcome.err.find("No measured data is available."), std::string::npos);
    EXPECT_EQ(ReadText(m_data), "earlier");
}

TEST_F(RecorderCommand, ACableThatIsPulledInMidTransferLeavesWhatArrived)
{
    const auto simulator =
        Simulator({"--alpha", "--lines", "5000", "--fault", "pull-after=11000", "--rate", "real"});
    const Outcome outcome = OnPort({"get", "-o", m_data, "--json"});
    EXPECT_EQ(outcome.status, 4);
    const int records = JsonOf(outcome).value("records", 0);
    EXPECT_GT(records, 0);
    EXPECT_LE(records, 500);
    EXPECT_EQ(JsonOf(Tool({"info", m_data, "--json"})).value("records", 0), records);
}

TEST_F(RecorderCommand, ALineThatIsCutShortIsAbnormalWithAllBehindIt)
{
    const auto simulator = Simulator({"--alpha", "--lines", "10", "--fault", "short-line=6:6"});
    const nlohmann::json json = JsonOf(OnPort({"get", "--json", "--records"}));
    ASSERT_EQ(json.value("records", 0), 10);
    for (std::size_t i = 0; i < 10; ++i)
        EXPECT_EQ((json["lines"][i][8].get<int>() & 0x4000) != 0, i >= 6) << i;
}

TEST_F(RecorderCommand, LinesBehindATurnOfTheYearMoveIntoTheNextByTheReportsDate)
{
    const auto simulator = Simulator({"--alpha", "--lines", "100", "--from", "2024-12-20 12:00:00",
                                      "--clock", "2024-12-20 12:00:00", "--fault", "new-year=40"});
    const nlohmann::json json = JsonOf(OnPort({"get", "--json", "--records"}));
    ASSERT_EQ(json.value("records", 0), 100);
    EXPECT_EQ(json.value("badTime", true), false);
    EXPECT_EQ(json.value("firstBreak", 0), 100);
    EXPECT_LT(json["lines"][39][0].get<std::int64_t>(), json["lines"][40][0].get<std::int64_t>());
}

TEST_F(RecorderCommand, LinesBehindATurnOfTheYearInTheFutureAreRepairedWithoutTheReportsDate)
{
    const auto simulator =
        Simulator({"--alpha", "--lines", "100", "--from", "2099-12-20 12:00:00", "--clock",
                   "2099-12-20 12:00:00", "--fault", "new-year=40", "--fault", "year-only"});
    const nlohmann::json json = JsonOf(OnPort({"get", "--json", "--records", "-o", m_data}));
    ASSERT_EQ(json.value("records", 0), 100);
    EXPECT_EQ(json.value("yearRepairable", false), true);
    EXPECT_EQ(json.value("yearRepaired", false), true);
    EXPECT_EQ(json.value("badTime", true), false);
    EXPECT_EQ(json.value("firstBreak", 0), 100);
    EXPECT_EQ(json.value("abnormal", 0), 60);
    EXPECT_LT(json["lines"][39][0].get<std::int64_t>(), json["lines"][40][0].get<std::int64_t>());
    EXPECT_EQ(json["lines"][40][8].get<int>(), 0x4000);
}

TEST_F(RecorderCommand, ASilentRecorderIsNone)
{
    const auto simulator = Simulator({"--lines", "5", "--fault", "silence=p"});
    const Outcome outcome = OnPort({"status"});
    EXPECT_EQ(outcome.status, 3);
    EXPECT_NE(outcome.err.find("no status report"), std::string::npos);
}

TEST_F(RecorderCommand, AMissingFolderIsToldBeforeTheRecorderIsRead)
{
    const auto simulator = Simulator({"--lines", "10"});
    const Outcome outcome =
        OnPort({"get", "-o", m_folder.Path("nowhere/out.skd").string(), "--csv", m_csv});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.err.find("nowhere"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(m_csv));
}

TEST_F(RecorderCommand, AFileThatCanNotBeWrittenIsAFailureThoughAllLinesCame)
{
    const auto simulator = Simulator({"--lines", "10"});
    const Outcome outcome = OnPort({"get", "-o", "/dev/full", "--csv", m_csv, "--json"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.err.find("/dev/full"), std::string::npos);
    EXPECT_EQ(JsonOf(outcome).value("records", 0), 10);
    EXPECT_TRUE(std::filesystem::exists(m_csv));
}

TEST_F(RecorderCommand, AFileThatCanNotBeWrittenIsAFailureWhereLinesAreMissingToo)
{
    const auto simulator = Simulator({"--lines", "10", "--fault", "too-few=4"});
    const Outcome outcome = OnPort({"get", "-o", "/dev/full", "--json"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(JsonOf(outcome).value("records", 0), 6);
}

TEST_F(RecorderCommand, WhatTheAnalysisFoundIsTold)
{
    const auto simulator = Simulator({"--lines", "10", "--fault", "break=5"});
    const Outcome outcome = OnPort({"get"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_NE(outcome.err.find("Error in date/time."), std::string::npos) << outcome.err;
    EXPECT_EQ(outcome.err.find("Error in temperature."), std::string::npos) << outcome.err;
}

TEST_F(RecorderCommand, OnlineLinesGoByTheReportsDateToo)
{
    const auto simulator = Simulator({"--lines", "1", "--from", "2024-12-31 12:00:00"});
    const nlohmann::json json = JsonOf(OnPort({"online", "--seconds", "1", "--json", "--records"}));
    ASSERT_EQ(json.value("records", 0), 200);
    const CalendarFields now = ToLocalFields(Now());
    const CalendarFields line = ToLocalFields(json["lines"][0][0].get<std::int64_t>());
    // On the last day of the year itself no line lies before it.
    const bool isBefore = line.month * 100 + line.day < 1231;
    EXPECT_EQ(line.year, now.year + (isBefore ? 1 : 0));
}

TEST_F(RecorderCommand, OnlineRecordsTwoHundredLinesASecond)
{
    const auto simulator = Simulator({"--type", "qm70", "--alpha"});
    const Outcome outcome = OnPort({"online", "--seconds", "1", "-o", m_data, "--json"});
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    const nlohmann::json json = JsonOf(outcome);
    EXPECT_EQ(json.value("records", 0), 200);
    EXPECT_EQ(json.value("expected", 0), 200);
    EXPECT_EQ(json.value("minStepMs", 0), 5);
    EXPECT_EQ(json.value("hasTemperature", true), false);
    EXPECT_EQ(json.value("hasHumidity", true), false);
    EXPECT_EQ(JsonOf(Tool({"info", m_data, "--json"})).value("hasTemperature", true), false);
}

} // namespace

} // namespace skeldon::test
