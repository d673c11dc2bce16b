#include "Tool.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>

namespace skeldon::test {

namespace {

/// Two lines of a recorder with humidity, the second marked; the first has values that need all
/// their digits.
std::string DataFileText()
{
    return "<?xml version=\"1.0\" encoding=\"Shift_JIS\" ?>\r\n"
           "<ravelin_data version=\"SKELDON 1.0\">\r\n"
           "\t<Configuration>\r\n"
           "\t\t<date_version>1</date_version>\r\n"
           "\t\t<korva_type>QM70</korva_type>\r\n"
           "\t\t<korva_rls>1.23</korva_rls>\r\n"
           "\t\t<sampling>2</sampling>\r\n"
           "\t\t<interval>12</interval>\r\n"
           "\t\t<threshold>25</threshold>\r\n"
           "\t\t<serial_no>7</serial_no>\r\n"
           "\t\t<extract>16,1.000000,1,2.500000,0,</extract>\r\n"
           "\t\t<endless>yes</endless>\r\n"
           "\t\t<type_num>50</type_num>\r\n"
           "\t</Configuration>\r\n"
           "\t<data>\r\n"
           "\t\t<record>\r\n\t\t\t<date_time>2026/03/04 05:06:07</date_time>\r\n"
           "\t\t\t<msec>010</msec>\r\n\t\t\t<x>3.000</x>\r\n\t\t\t<y>-4.000</y>\r\n"
           "\t\t\t<z>0.000</z>\r\n\t\t\t<t>21.5</t>\r\n\t\t\t<h>45.0</h>\r\n"
           "\t\t\t<flag>0</flag>\r\n\t\t</record>\r\n"
           "\t\t<record>\r\n\t\t\t<date_time>2026/03/04 05:06:09</date_time>\r\n"
           "\t\t\t<msec>020</msec>\r\n\t\t\t<x>10.000</x>\r\n\t\t\t<y>0.000</y>\r\n"
           "\t\t\t<z>0.000</z>\r\n\t\t\t<t>-5.5</t>\r\n\t\t\t<h>46.0</h>\r\n"
           "\t\t\t<flag>17</flag>\r\n\t\t</record>\r\n"
           "\t</data>\r\n"
           "</ravelin_data>\r\n";
}

class FileCommand : public ::testing::Test
{
protected:
    FileCommand() { WriteText(m_file, DataFileText()); }

    CTemporaryFolder m_folder;
    std::string m_file = m_folder.Path("crate.skd").string();
};

TEST_F(FileCommand, InfoTellsPeopleWhatMatters)
{
    const Outcome outcome = Tool({"info", m_file});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.err, "");
    for (const char* part :
         {"crate.skd", "QM70, type 50, release 1.23", "2026-03-04 05:06:07.010", "0.0312 sec",
          "5 sec", "2.5 G", "1.00 G", "-5.5 to 21.5 C", "45.0 to 46.0 %"})
        EXPECT_NE(outcome.out.find(part), std::string::npos) << part << " in\n" << outcome.out;
}

TEST_F(FileCommand, InfoGivesEveryMemberOfTheJsonObject)
{
    const nlohmann::json json = JsonOf(Tool({"info", m_file, "--json"}));
    const nlohmann::json expected{
        {"file", "crate.skd"},
        {"records", 2},
        {"firstBreak", 2},
        {"abnormal", 0},
        {"extracted", 1},
        {"marks", {1}},
        {"maxAbs", 1.0},
        {"minStepMs", 2010},
        {"badTemperature", false},
        {"badHumidity", false},
        {"badMsec", false},
        {"badTime", false},
        {"yearRepairable", false},
        {"yearRepaired", false},
        {"model", "QM70"},
        {"release", "1.23"},
        {"sampling", 4},
        {"interval", 13},
        {"threshold", 25},
        {"hostNumber", 7},
        {"hazard", -1},
        {"endless", true},
        {"hasTemperature", true},
        {"hasHumidity", true},
        {"typeNumber", 50},
        {"dateVersion", 1},
        {"title", ""},
        {"extract", "16,1.000000,1,2.500000,0,"},
    };
    for (const auto& [key, value] : expected.items())
        EXPECT_EQ(json.value(key, nlohmann::json("missing")), value) << key;
    EXPECT_TRUE(json.value("signature", nlohmann::json()).is_string());
    EXPECT_EQ(json.size(), expected.size() + 1);
}

TEST_F(FileCommand, RecordsGiveTheSameDoublesBackAndKeysAsText)
{
    const nlohmann::json json = JsonOf(Tool({"info", m_file, "--json", "--records"}));
    const nlohmann::json lines = json.value("lines", nlohmann::json());
    ASSERT_EQ(lines.size(), 2U);
    // 2026-03-04 05:06:07 in the zone of the tests is 04:06:07 UTC.
    constexpr std::int64_t Time = 1'772'597'167;
    EXPECT_EQ(lines[0][0], Time);
    EXPECT_EQ(lines[0][1], 10);
    EXPECT_EQ(lines[0][2].get<double>(), 3.0 * 0.1);
    EXPECT_EQ(lines[0][3].get<double>(), -4.0 * 0.1);
    EXPECT_EQ(lines[0][5].get<double>(), 21.5);
    EXPECT_EQ(lines[0][6].get<double>(), 45.0);
    EXPECT_EQ(lines[0][8], 0);
    EXPECT_EQ(lines[0][9], std::to_string(Time * 1000 + 10 + 1));
    EXPECT_EQ(lines[1][8], 17);
    EXPECT_EQ(lines[1][9], std::to_string(((Time + 2) * 1000 + 20 + 1) * 18));
}

TEST_F(FileCommand, TheYearsOfAFileAreNeverRepaired)
{
    std::string text = DataFileText();
    text.replace(text.find("2026/03/04"), 10, "2099/12/31");
    text.replace(text.find("2026/03/04"), 10, "2099/01/01");
    WriteText(m_file, text);
    const nlohmann::json json = JsonOf(Tool({"info", m_file, "--json", "--records"}));
    EXPECT_EQ(json.value("yearRepairable", false), true);
    EXPECT_EQ(json.value("yearRepaired", true), false);
    EXPECT_EQ(json.value("badTime", false), true);
    EXPECT_EQ(json.value("firstBreak", -1), 1);
    EXPECT_EQ(json["lines"][1][8].get<int>(), 0x6000 | 17);
    const std::string output = m_folder.Path("out.skd").string();
    EXPECT_EQ(Tool({"convert", m_file, output}).status, 0);
    EXPECT_NE(ReadText(output).find("2099/01/01"), std::string::npos);
}

TEST_F(FileCommand, JsonDecodesTextsFromTheDataCodePage)
{
    std::string text = DataFileText();
    text.replace(text.find("QM70"), 4, "caf\xE9");
    WriteText(m_file, text);
    EXPECT_EQ(JsonOf(Tool({"info", m_file, "--json"}, {"LC_ALL=C.UTF-8", "LANG=en_US.UTF-8"}))
                  .value("model", ""),
              "caf\xC3\xA9");
}

TEST_F(FileCommand, WhatIsNoNumberIsNullInJson)
{
    std::string text = DataFileText();
    text.replace(text.find("<x>3.000"), 8, "<x>1e999");
    text.replace(text.find("<y>-4.000"), 9, "<y>nan");
    WriteText(m_file, text);
    const nlohmann::json json = JsonOf(Tool({"info", m_file, "--json", "--records"}));
    ASSERT_TRUE(json.contains("lines"));
    EXPECT_TRUE(json["lines"][0][2].is_null());
    EXPECT_TRUE(json["lines"][0][3].is_null());
    EXPECT_TRUE(json["maxAbs"].is_null());
}

TEST_F(FileCommand, CsvGoesToStandardOutputWithItsLineEnds)
{
    const Outcome outcome = Tool({"csv", m_file});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.out, "Date/Time,X axis(G),Y axis(G),Z axis(G),Rsltnt(G),Temperature(C),"
                           "Humidity(%)\r\n"
                           "2026/03/04 05.06.07.010,0.300 ,-0.400 ,0.000 ,0.500 ,21.5 ,45.0 \r\n"
                           "2026/03/04 05.06.09.020,1.000 ,0.000 ,0.000 ,1.000 ,-5.5 ,46.0 \r\n");
    EXPECT_EQ(outcome.err, "");
}

TEST_F(FileCommand, CsvTakesItsOptions)
{
    EXPECT_EQ(Tool({"csv", m_file, "--unit", "ms2", "--two-fields", "--no-resultant",
                    "--no-temperature", "--no-humidity"})
                  .out,
              "Date,Time,X axis(m/s^2),Y axis(m/s^2),Z axis(m/s^2)\r\n"
              "2026/03/04,05.06.07.010,2.9400 ,-3.9200 ,0.0000 \r\n"
              "2026/03/04,05.06.09.020,9.8000 ,0.0000 ,0.0000 \r\n");
    EXPECT_EQ(Tool({"csv", m_file, "--ravelin", "--unit", "gal"}).out,
              "date time,x(G),y(G),z(G),temperature(C)\r\n"
              "2026/03/04 05:06:07.010,     3,    -4,     0,  21\r\n"
              "2026/03/04 05:06:09.020,    10,     0,     0,  -5\r\n");
}

TEST_F(FileCommand, CsvWritesAFileWithItsExtensionAndSaysWhich)
{
    const std::string target = m_folder.Path("out.txt").string();
    const Outcome outcome = Tool({"csv", m_file, "-o", target});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.out, "");
    EXPECT_NE(outcome.err.find(m_folder.Path("out.csv").string()), std::string::npos);
    EXPECT_EQ(ReadText(m_folder.Path("out.csv")), Tool({"csv", m_file}).out);
    EXPECT_FALSE(std::filesystem::exists(target));
}

TEST_F(FileCommand, ConvertKeepsLinesAndHeader)
{
    const std::string target = m_folder.Path("out.skd").string();
    EXPECT_EQ(Tool({"convert", m_file, target}).status, 0);
    nlohmann::json before = JsonOf(Tool({"info", m_file, "--json", "--records"}));
    nlohmann::json after = JsonOf(Tool({"info", target, "--json", "--records"}));
    before.erase("file");
    after.erase("file");
    EXPECT_EQ(before, after);
}

TEST_F(FileCommand, ConvertMovesAnOlderFileUp)
{
    std::string text = DataFileText();
    text.replace(text.find("SKELDON 1.0"), 11, "1.0");
    const std::string older = m_folder.Path("old.sks").string();
    WriteText(older, text);
    const std::string target = m_folder.Path("new.skd").string();
    EXPECT_EQ(Tool({"convert", older, target}).status, 0);
    const nlohmann::json json = JsonOf(Tool({"info", target, "--json"}));
    EXPECT_EQ(json.value("records", 0), 2);
    EXPECT_EQ(json.value("typeNumber", -9), 0);
    EXPECT_EQ(json.value("marks", nlohmann::json()), nlohmann::json::array());
}

TEST_F(FileCommand, NoneWritesToItsInput)
{
    EXPECT_EQ(Tool({"convert", m_file, m_file}).status, 1);
    const std::string link = m_folder.Path("link.skd").string();
    std::filesystem::create_symlink(m_file, link);
    EXPECT_EQ(Tool({"convert", m_file, link}).status, 1);
    EXPECT_EQ(Tool({"info", m_file}).status, 0);
    EXPECT_EQ(Tool({"csv", m_file}).status, 0);
    EXPECT_EQ(ReadText(m_file), DataFileText());
    EXPECT_FALSE(std::filesystem::exists(m_file + ".bak"));
}

TEST_F(FileCommand, RefusesASaveThatWouldTakeItsInputAway)
{
    // A save that succeeds removes what failed ones kept.
    const std::string broken = m_folder.Path("broken.skd").string();
    WriteText(broken, "half a f");
    for (const char* suffix : {".bak", ".bak1"}) {
        const std::string kept = broken + suffix;
        WriteText(kept, DataFileText());
        const Outcome outcome = Tool({"convert", kept, broken});
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.err.find("skeldonctl: " + kept + ": "), 0U) << outcome.err;
        EXPECT_EQ(std::ranges::count(outcome.err, '\n'), 1) << outcome.err;
        EXPECT_EQ(ReadText(kept), DataFileText());
        EXPECT_EQ(ReadText(broken), "half a f");
    }
    const std::string rows = m_folder.Path("rows.csv.bak").string();
    WriteText(rows, DataFileText());
    EXPECT_EQ(Tool({"csv", rows, "-o", m_folder.Path("rows.csv").string()}).status, 1);
    EXPECT_EQ(ReadText(rows), DataFileText());
    EXPECT_FALSE(std::filesystem::exists(m_folder.Path("rows.csv")));
    EXPECT_EQ(Tool({"convert", broken + ".bak", m_folder.Path("whole.skd").string()}).status, 0);
    EXPECT_EQ(ReadText(broken + ".bak"), DataFileText());
}

TEST_F(FileCommand, TellsPathAndReasonInOneLineWhereTheInputCanNotBeRead)
{
    const std::string nothing = m_folder.Path("nothing.skd").string();
    const std::string folder = m_folder.Path("").string();
    const std::string other = m_folder.Path("other.skd").string();
    WriteText(other, "PK\x03\x04 something else\n");
    const std::string version = m_folder.Path("version.skd").string();
    WriteText(version, "<ravelin_data version=\"SKELDON 2.0\">\r\n");
    for (const std::string& path : {nothing, folder, other, version}) {
        for (const std::vector<std::string>& arguments :
             {std::vector<std::string>{"info", path},
              {"info", path, "--json"},
              {"csv", path},
              {"convert", path, m_folder.Path("out.skd").string()}}) {
            const Outcome outcome = Tool(arguments);
            EXPECT_EQ(outcome.status, 1) << path;
            EXPECT_EQ(outcome.out, "") << path;
            EXPECT_NE(outcome.err.find(path), std::string::npos) << outcome.err;
            EXPECT_EQ(std::ranges::count(outcome.err, '\n'), 1) << outcome.err;
        }
    }
    EXPECT_FALSE(std::filesystem::exists(m_folder.Path("out.skd")));
}

TEST_F(FileCommand, FailsWhereTheDiskIsFull)
{
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"csv", m_file, "-o", "/dev/full"},
          {"convert", m_file, "/dev/full"}}) {
        const Outcome outcome = Tool(arguments);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_NE(outcome.err.find("/dev/full"), std::string::npos);
        EXPECT_NE(outcome.err.find("Failed to write"), std::string::npos);
    }
    EXPECT_FALSE(std::filesystem::exists("/dev/full.csv"));
}

TEST_F(FileCommand, AReaderThatGoesAwayIsAFailureWithoutACrash)
{
    std::string text = DataFileText();
    const std::size_t begin = text.find("\t\t<record>");
    const std::string group = text.substr(begin, text.find("</record>") + 11 - begin);
    std::string many;
    for (int i = 0; i < 20000; ++i)
        many += group;
    text.insert(begin, many);
    WriteText(m_file, text);
    const Outcome outcome =
        RunProgram("/bin/sh", {"-c", std::string(SKELDONCTL) + " csv " + m_file +
                                         " 2>&1 >/dev/full; echo status $?; (" + SKELDONCTL +
                                         " csv " + m_file + "; echo status $? >&2) | head -n 1"});
    EXPECT_NE(outcome.out.find("standard output"), std::string::npos) << outcome.out;
    EXPECT_NE(outcome.out.find("status 1"), std::string::npos) << outcome.out;
    EXPECT_EQ(outcome.err, "status 1\n");
}

} // namespace

} // namespace skeldon::test
