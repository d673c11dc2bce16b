#include "files/PlainReader.h"

#include "base/PlainCalendar.h"
#include "data/SameRecord.h"

#include <cctype>
#include <cmath>
#include <cstdlib>
#include <map>

#include <gtest/gtest.h>

namespace skeldon::test {

namespace {

std::vector<std::string> LinesOf(std::string_view bytes)
{
    std::vector<std::string> lines(1);
    for (const char c : bytes) {
        if (c == '\n')
            lines.emplace_back();
        else
            lines.back() += c;
    }
    if (lines.back().empty())
        lines.pop_back();
    for (std::string& line : lines) {
        constexpr const char* Blanks = " \t\r\n\v\f";
        const std::size_t first = line.find_first_not_of(Blanks);
        if (first == std::string::npos)
            line.clear();
        else
            line = line.substr(first, line.find_last_not_of(Blanks) - first + 1);
    }
    return lines;
}

char Lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(std::tolower(c)) : c;
}

/// Whether `tag` stands in `line` at `at`, in any letter case.
bool StandsAt(const std::string& line, std::size_t at, std::string_view tag)
{
    for (std::size_t i = 0; i < tag.size(); ++i) {
        if (at + i >= line.size() || Lower(line[at + i]) != Lower(tag[i]))
            return false;
    }
    return true;
}

bool Starts(const std::string& line, std::string_view tag)
{
    return StandsAt(line, 0, tag);
}

bool Ends(const std::string& line, std::string_view tag)
{
    return line.size() >= tag.size() && StandsAt(line, line.size() - tag.size(), tag);
}

bool IsElement(const std::string& line, const std::string& name)
{
    return Starts(line, "<" + name + ">") && Ends(line, "</" + name + ">");
}

std::string Value(const std::string& line, const std::string& name)
{
    if (!IsElement(line, name))
        return {};
    return line.substr(name.size() + 2, line.size() - 2 * name.size() - 5);
}

int RowOf(const std::vector<int>& codes, int code)
{
    for (std::size_t row = 0; row < codes.size(); ++row) {
        if (codes[row] == code)
            return static_cast<int>(row);
    }
    return -1;
}

int Limited(int value, int highest)
{
    return value < -1 ? -1 : value > highest ? highest : value;
}

void TakeKeys(PlainFile& file, const std::string& line)
{
    const std::vector<int> samplingCodes = {20, 21, 0, 1, 2, 3, 4, 5, 6, 7};
    const std::vector<int> intervalCodes = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 14, 11, 12, 13};
    const auto number = [&line](const char* name) { return std::atoi(Value(line, name).c_str()); };
    if (IsElement(line, "date_version"))
        file.dateVersion = number("date_version");
    if (IsElement(line, "korva_type"))
        file.modelName = Value(line, "korva_type");
    if (IsElement(line, "korva_rls"))
        file.release = Value(line, "korva_rls");
    if (IsElement(line, "sampling"))
        file.sampling = RowOf(samplingCodes, number("sampling"));
    if (IsElement(line, "interval"))
        file.interval = RowOf(intervalCodes, number("interval"));
    if (IsElement(line, "threshold"))
        file.threshold = Limited(number("threshold"), 490);
    if (IsElement(line, "serial_no"))
        file.hostNumber = Limited(number("serial_no"), 99);
    if (IsElement(line, "extract"))
        file.extract = Value(line, "extract");
    if (IsElement(line, "hazard"))
        file.hazard = Limited(number("hazard"), 495);
    if (Starts(line, "<endless>"))
        file.endless = true;
    if (IsElement(line, "type_num"))
        file.typeNumber = number("type_num");
    if (Starts(line, "<temp_nothing>"))
        file.hasTemperature = false;
}

int DatePart(const std::string& date, std::size_t at, std::size_t length)
{
    return at < date.size() ? std::atoi(date.substr(at, length).c_str()) : 0;
}

using Texts = std::map<std::string, std::string>;

CMeasureRecord BuildLine(PlainFile& file, Texts& texts)
{
    const auto real = [&texts](const char* name) {
        return std::strtod(texts[name].c_str(), nullptr);
    };
    const std::string date = texts["date_time"];
    CMeasureRecord line{CalendarSeconds{0}};
    line.m_time = PlainInstant(DatePart(date, 0, 4), DatePart(date, 5, 2), DatePart(date, 8, 2),
                               DatePart(date, 11, 2), DatePart(date, 14, 2), DatePart(date, 17, 2));
    line.m_msec = static_cast<std::uint32_t>(std::atoi(texts["msec"].c_str()));
    line.m_x = real("x") * 0.1;
    line.m_y = real("y") * 0.1;
    line.m_z = real("z") * 0.1;
    line.m_temperature = real("t");
    if (!texts["h"].empty()) {
        line.m_humidity = real("h");
        file.hasHumidity = true;
    }
    line.m_resultant = std::sqrt(line.m_x * line.m_x + line.m_y * line.m_y + line.m_z * line.m_z);
    line.m_flags = static_cast<std::uint16_t>(std::atoi(texts["flag"].c_str()));
    const std::int64_t instant = line.m_time * 1000 + static_cast<std::int64_t>(line.m_msec);
    line.m_checkKey = (instant + 1) * (std::int64_t{line.m_flags} + 1);
    return line;
}

/// The record that begins behind `at`, if it has all it needs.
void ReadRecord(PlainFile& file, const std::vector<std::string>& lines, std::size_t& at,
                bool withFlags, std::size_t count)
{
    std::vector<std::string> names = {"date_time", "msec", "x", "y", "z", "t", "h"};
    if (withFlags)
        names.emplace_back("flag");
    Texts texts;
    for (++at; at < lines.size() && !Starts(lines[at], "</record>"); ++at) {
        for (const std::string& name : names) {
            if (!texts[name].empty())
                continue;
            texts[name] = Value(lines[at], name);
            if (!texts[name].empty())
                break;
        }
    }
    for (const char* const name : {"date_time", "msec", "x", "y", "z", "t"}) {
        if (texts[name].empty())
            return;
    }
    if (file.lines.size() < count)
        file.lines.push_back(BuildLine(file, texts));
}

int TypeOf(const PlainFile& file)
{
    for (const int good : {0, 2, 3, 5, 10, 50}) {
        if (file.typeNumber == good)
            return good;
    }
    return file.modelName == "PL04"   ? 2
           : file.modelName == "PL20" ? 10
           : file.modelName == "QM70" ? 50
                                      : 0;
}

} // namespace

PlainFile PlainRead(std::string_view bytes, const std::string& title)
{
    PlainFile file;
    file.title = title;
    const std::vector<std::string> lines = LinesOf(bytes);
    std::size_t at = 0;
    while (at < lines.size() && !Starts(lines[at], "<ravelin_data version="))
        ++at;
    if (at == lines.size())
        return file;
    const bool isNew = Ends(lines[at], "\"SKELDON 1.0\">");
    if (!isNew && !Ends(lines[at], "\"1.0\">"))
        return file;
    for (++at; at < lines.size(); ++at) {
        if (Starts(lines[at], "</Configuration>") ||
            (!isNew && Starts(lines[at], "<GraphSetting>")))
            break;
        if (file.title.empty() && Starts(lines[at], "<title>"))
            file.title = Value(lines[at], "title");
        if (isNew)
            TakeKeys(file, lines[at]);
    }
    std::size_t count = 0;
    for (; at < lines.size(); ++at)
        count += Starts(lines[at], "<record>") && !Starts(lines[at], "</record>") ? 1 : 0;
    for (at = 0; at < lines.size(); ++at) {
        if (Starts(lines[at], "<record>"))
            ReadRecord(file, lines, at, isNew, count);
    }
    file.newLines = count - file.lines.size();
    file.typeNumber = TypeOf(file);
    file.isGood = true;
    return file;
}

void ExpectSame(const CMeasureData& data, const PlainFile& plain)
{
    EXPECT_EQ(data.m_modelName, plain.modelName);
    EXPECT_EQ(data.m_release, plain.release);
    EXPECT_EQ(data.m_title, plain.title);
    EXPECT_EQ(data.m_extract, ExtractConditionsFromString(plain.extract));
    EXPECT_EQ(data.GetSampling(), plain.sampling);
    EXPECT_EQ(data.GetInterval(), plain.interval);
    EXPECT_EQ(data.m_threshold, plain.threshold);
    EXPECT_EQ(data.m_hostNumber, plain.hostNumber);
    EXPECT_EQ(data.m_hazard, plain.hazard);
    EXPECT_EQ(data.m_typeNumber, plain.typeNumber);
    EXPECT_EQ(data.m_dateVersion, plain.dateVersion);
    EXPECT_EQ(data.m_endless, plain.endless);
    EXPECT_EQ(data.m_hasTemperature, plain.hasTemperature);
    EXPECT_EQ(data.m_hasHumidity, plain.hasHumidity);
    EXPECT_TRUE(data.m_fromFile);
    ASSERT_EQ(data.GetSize(), plain.lines.size() + plain.newLines);
    for (std::size_t i = 0; i < plain.lines.size(); ++i)
        ASSERT_TRUE(SameRecord(data.GetRecord(i), plain.lines[i])) << "line " << i;
    for (std::size_t i = plain.lines.size(); i < data.GetSize(); ++i) {
        const CMeasureRecord line = data.GetRecord(i);
        CMeasureRecord fresh{line.m_time};
        ASSERT_LE(std::abs(line.m_time - Now()), 600);
        ASSERT_TRUE(SameRecord(line, fresh)) << "line " << i;
    }
}

} // namespace skeldon::test
