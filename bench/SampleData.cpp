#include "SampleData.h"

#include "files/DataFile.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>
#include <random>
#include <unistd.h>

namespace skeldon::bench {

namespace {

constexpr CalendarSeconds FirstLine = 1'772'600'400; // a morning in March 2026
constexpr double CountsPerG = 2.0;

std::filesystem::path Folder()
{
    static const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("skeldon-bench-" + std::to_string(::getpid()));
    std::filesystem::create_directories(folder);
    return folder;
}

unsigned Below(std::mt19937& random, unsigned limit)
{
    return static_cast<unsigned>(random() % limit);
}

/// Values as a QM70 gives them: half a G on the axes, tenths of a degree.
CMeasureData Make(std::size_t lines)
{
    std::mt19937 random(7);
    CMeasureData data;
    data.m_modelName = "QM70";
    data.m_typeNumber = 50;
    data.m_hasHumidity = true;
    CalendarSeconds time = FirstLine;
    for (CMeasureRecord& record : data.NewLines(lines)) {
        record = CMeasureRecord(time);
        const int reach = random() % 50 == 0 ? 127 : 6;
        const auto axis = [&] {
            return (static_cast<int>(random() % unsigned(2 * reach + 1)) - reach) / CountsPerG;
        };
        const double x = axis();
        const double y = axis();
        const double z = axis();
        record.SetValues(time, Below(random, 100) * 10, x, y, z,
                         (static_cast<int>(random() % 400) - 50) / 10.0, Below(random, 100));
        record.SetFlags(random() % 200 == 0 ? RecordFlag::Marked : 0);
        time += 1 + random() % 5;
    }
    return data;
}

/// An axis as the recorder's signed byte.
unsigned Count(double value)
{
    return static_cast<unsigned>(static_cast<int>(value * CountsPerG)) & 0xFFU;
}

} // namespace

const CMeasureData& SampleData(std::size_t lines)
{
    static std::map<std::size_t, CMeasureData> made;
    const auto known = made.find(lines);
    return known != made.end() ? known->second : made.emplace(lines, Make(lines)).first->second;
}

const std::filesystem::path& SampleFile(std::size_t lines)
{
    static std::map<std::size_t, std::filesystem::path> made;
    auto known = made.find(lines);
    if (known == made.end()) {
        const std::filesystem::path path = OutputPath("sample-" + std::to_string(lines) + ".skd");
        if (WriteFile(SampleData(lines), path))
            std::abort();
        known = made.emplace(lines, path).first;
    }
    return known->second;
}

const std::string& SampleStream(std::size_t lines)
{
    static std::map<std::size_t, std::string> made;
    std::string& text = made[lines];
    if (!text.empty())
        return text;
    std::mt19937 random(11);
    CLocalCalendar calendar;
    for (const CMeasureRecord& record : SampleData(lines).Records()) {
        const CalendarFields at = calendar.ToFields(record.m_time);
        const unsigned day = unsigned(at.day);
        const unsigned second = unsigned(at.second);
        char line[32];
        std::snprintf(line, sizeof line, "%02X%02X%02X%02X%02X%02X%02X%02X%02X%02X\r\n",
                      unsigned(at.month) << 4 | day >> 3, (day & 7) << 5 | unsigned(at.hour),
                      unsigned(at.minute) << 2 | second >> 4,
                      (second & 15) << 4 | Below(random, 10), Count(record.m_x), Count(record.m_y),
                      Count(record.m_z), Below(random, 40), record.m_msec / 10, Below(random, 100));
        text += line;
    }
    return text;
}

std::filesystem::path OutputPath(std::string_view name)
{
    return Folder() / name;
}

void RemoveFiles()
{
    std::error_code ignored;
    std::filesystem::remove_all(Folder(), ignored);
}

std::string FileText(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    std::string text(std::filesystem::file_size(path), '\0');
    file.read(text.data(), static_cast<std::streamsize>(text.size()));
    return text;
}

} // namespace skeldon::bench
