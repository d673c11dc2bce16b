#include "files/RandomFiles.h"

#include <cstdio>
#include <limits>
#include <utility>

namespace skeldon::test {

namespace {

std::string Element(const std::string& name, const std::string& value)
{
    return "<" + name + ">" + value + "</" + name + ">";
}

} // namespace

double CRandomFiles::Axis(bool isWild)
{
    using Limits = std::numeric_limits<double>;
    const double wild[] = {Limits::infinity(),
                           -Limits::infinity(),
                           Limits::quiet_NaN(),
                           -0.0,
                           -1e300,
                           1e-300,
                           0.00005,
                           -0.00015,
                           1e8,
                           123456789.0125};
    if (isWild && OneIn(6))
        return OneOf(wild);
    if (OneIn(3))
        return static_cast<double>(Below(200001)) / 2000.0 - 50.0;
    return static_cast<double>(static_cast<std::int64_t>(Below(2001)) - 1000) / 20.0;
}

double CRandomFiles::Climate(bool isWild)
{
    const double wild[] = {1e300, -1e18, std::numeric_limits<double>::quiet_NaN(), -0.04, 0.25};
    if (isWild && OneIn(6))
        return OneOf(wild);
    return static_cast<double>(Below(2000)) / 10.0 - 80.0;
}

CalendarSeconds CRandomFiles::Time()
{
    if (OneIn(100))
        m_time = static_cast<CalendarSeconds>(Below(4'000'000'000));
    m_time += static_cast<CalendarSeconds>(Below(600));
    return m_time;
}

CMeasureData CRandomFiles::Data(std::size_t most, bool isWild)
{
    CMeasureData data;
    const std::size_t count = Below(most + 1);
    for (std::size_t i = 0; i < count; ++i) {
        CMeasureRecord line{CalendarSeconds{0}};
        const CalendarSeconds time =
            isWild && OneIn(20)
                ? static_cast<CalendarSeconds>(Below(400'000'000'000)) - 200'000'000'000
                : Time();
        const std::uint32_t oddMsec[] = {1000, 65535, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFB};
        line.SetValues(
            time, isWild && OneIn(10) ? OneOf(oddMsec) : static_cast<std::uint32_t>(Below(1000)),
            Axis(isWild), Axis(isWild), Axis(isWild), Climate(isWild), Climate(isWild));
        if (OneIn(4))
            line.SetFlags(static_cast<std::uint16_t>(Below(0x10000)));
        data.AddRecord(line);
    }
    const std::string_view texts[] = {"", "QM70", "PL04", "a<b", "\x93\x8C\x8B\x9E", "</title>"};
    data.m_modelName = OneOf(texts);
    data.m_release = OneOf(texts);
    data.m_title = OneOf(texts);
    data.SetSampling(static_cast<int>(Below(11)) - 1);
    data.SetInterval(static_cast<int>(Below(16)) - 1);
    data.m_threshold = static_cast<int>(Below(600)) - 50;
    data.m_hostNumber = static_cast<int>(Below(200)) - 50;
    data.m_hazard = OneIn(3) ? 0 : static_cast<int>(Below(600)) - 2;
    data.m_endless = OneIn(2);
    data.m_hasTemperature = OneIn(2);
    data.m_hasHumidity = OneIn(2);
    data.m_typeNumber = static_cast<int>(Below(60)) - 2;
    for (std::uint64_t entries = Below(3); entries > 0; --entries)
        data.m_extract.push_back({0x0800, Axis(isWild), OneIn(2), Axis(isWild), OneIn(2)});
    return data;
}

std::string CRandomFiles::Number()
{
    char text[40];
    std::snprintf(text, sizeof text, "%.3f", static_cast<double>(Below(1000001)) / 1000.0 - 500.0);
    return text;
}

std::string CRandomFiles::OddNumber()
{
    const std::string odd[] = {"",
                               "1e999",
                               "-1e999",
                               "nan",
                               "0x10",
                               "-",
                               "1,5",
                               " 7",
                               "7 ",
                               "+7.25",
                               "12abc",
                               ".",
                               "-.5",
                               "5.",
                               "99999999999",
                               "-1",
                               "000000000000000000012.5",
                               "1234567890.123456",
                               "0.30000000000000004",
                               "1e3",
                               "4294967295",
                               std::string("1\0"
                                           "2",
                                           3),
                               "<",
                               "</x>",
                               std::string(700, '3')};
    return OneOf(odd);
}

std::string CRandomFiles::DateText()
{
    const CalendarFields fields = ToLocalFields(Time());
    char text[120];
    std::snprintf(text, sizeof text, "%d/%02d/%02d %02d:%02d:%02d", fields.year, fields.month,
                  fields.day, fields.hour, fields.minute, fields.second);
    return text;
}

std::vector<std::string> CRandomFiles::Header()
{
    const std::string models[] = {"QM70", "PL20", "PL04", "pl04", "", "X"};
    std::vector<std::string> lines = {"<?xml version=\"1.0\" encoding=\"Shift_JIS\" ?>",
                                      OneIn(5) ? "<ravelin_data version=\"1.0\">"
                                               : "<ravelin_data version=\"SKELDON 1.0\">",
                                      "<Configuration>"};
    for (const char* const name :
         {"date_version", "sampling", "interval", "threshold", "serial_no", "hazard", "type_num"}) {
        if (!OneIn(6))
            lines.push_back(
                Element(name, std::to_string(static_cast<std::int64_t>(Below(700)) - 100)));
    }
    if (OneIn(2))
        lines.push_back(Element("sampling", std::to_string(Below(8))));
    if (OneIn(2))
        lines.push_back(Element("interval", std::to_string(Below(15))));
    lines.push_back(Element("korva_type", OneOf(models)));
    lines.push_back(Element("korva_rls", "1.05"));
    lines.push_back(Element("extract", "16,1.5,1,2.5,0,512,1,1,1,1,"));
    if (OneIn(3))
        lines.emplace_back("<endless>no");
    if (OneIn(3))
        lines.emplace_back("<temp_nothing>");
    if (OneIn(3))
        lines.push_back(Element("title", "early"));
    lines.emplace_back(OneIn(10) ? "" : "</Configuration>");
    lines.emplace_back("<GraphSetting>");
    lines.push_back(Element("title", "late"));
    lines.emplace_back("</GraphSetting>");
    lines.emplace_back("<data>");
    return lines;
}

std::vector<std::string> CRandomFiles::Record()
{
    std::vector<std::string> lines = {"\t\t<record>",
                                      "\t\t\t" + Element("date_time", DateText()),
                                      "\t\t\t" + Element("msec", std::to_string(Below(1000))),
                                      "\t\t\t" + Element("x", Number()),
                                      "\t\t\t" + Element("y", Number()),
                                      "\t\t\t" + Element("z", Number()),
                                      "\t\t\t" + Element("t", "21.5"),
                                      "\t\t\t" + Element("h", "45.5"),
                                      "\t\t\t" + Element("flag", std::to_string(Below(70000))),
                                      "\t\t</record>"};
    if (OneIn(2))
        lines.erase(lines.begin() + 7);
    return lines;
}

void CRandomFiles::MakeOddElement(std::string& line)
{
    const std::size_t open = line.find('>');
    const std::size_t close = line.rfind('<');
    if (open == std::string::npos || close == std::string::npos || close <= open)
        return;
    const std::string dates[] = {"2009/02/30 01:02:03", "2009",  "2009-05-01T12.30.15",
                                 "99/99/99 99:99:99",   "     ", "2008/10/26 02:30:00 and more",
                                 "2009/05/01 24:00:60"};
    const bool isDate = line.find("date_time") != std::string::npos;
    line.replace(open + 1, close - open - 1, isDate ? OneOf(dates) : OddNumber());
}

void CRandomFiles::MakeOdd(std::vector<std::string>& lines, std::size_t at)
{
    switch (Below(8)) {
    case 0:
        for (char& c : lines[at])
            c = OneIn(2) && c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
        break;
    case 1:
        std::swap(lines[at], lines[Below(lines.size())]);
        break;
    case 2:
        lines[at] = " \v\f " + lines[at] + " \t";
        break;
    case 3:
        lines[at].clear();
        break;
    case 4:
        lines[at] = lines[Below(lines.size())];
        break;
    case 5:
        lines[at] += lines[Below(lines.size())];
        break;
    default:
        MakeOddElement(lines[at]);
        break;
    }
}

std::string CRandomFiles::Text(std::size_t count, std::uint64_t rarity)
{
    std::string text;
    const std::string end = OneIn(3) ? "\n" : "\r\n";
    const auto append = [&](std::vector<std::string> lines) {
        for (std::size_t at = 0; at < lines.size(); ++at) {
            if (OneIn(rarity))
                MakeOdd(lines, at);
        }
        for (const std::string& line : lines)
            text += line + (OneIn(rarity) ? "\n" : end);
    };
    if (OneIn(20))
        append(Record()); // before the root line
    append(Header());
    for (std::size_t i = 0; i < count; ++i)
        append(Record());
    append({"\t</data>", "</ravelin_data>"});
    return text;
}

void CRandomFiles::Spoil(std::string& text)
{
    for (std::uint64_t spots = Below(6); spots > 0 && !text.empty(); --spots) {
        const std::size_t at = Below(text.size());
        const std::size_t length = Below(40);
        const std::string_view pieces[] = {"\n",  "<record>", "</record>\r\n",
                                           "<x>", "\x1A",     std::string_view("\0", 1),
                                           "\r",  "<t>5</t>"};
        switch (Below(5)) {
        case 0:
            text[at] = static_cast<char>(Below(256));
            break;
        case 1:
            text.erase(at, length);
            break;
        case 2:
            text.insert(at, text.substr(Below(text.size()), length));
            break;
        case 3:
            text.insert(at, OneOf(pieces));
            break;
        default:
            if (OneIn(4))
                text.resize(at);
            break;
        }
    }
}

} // namespace skeldon::test
