#include "setup/conditions/ProfileFile.h"

#include "base/TextScan.h"
#include "setup/conditions/IniFile.h"
#include "setup/conditions/platform/WholeFile.h"
#include "setup/tables/IntervalTable.h"
#include "setup/tables/SamplingTable.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace skeldon {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view Conditions = "Configuration";
constexpr std::string_view KeepMode = "KeepMode";
constexpr std::string_view Extension = ".skp";
constexpr std::size_t TextLimit = 127; // bytes of a text value that count
constexpr int HighestKeepChoice = 2;

/// The code that a file without "Sampling" stands for: 0.0200 s, not the period of a new object.
constexpr int MissingSamplingCode = 4;

int ReadClamped(const CIniFile& file, std::string_view section, std::string_view key, int fallback,
                int highest)
{
    return std::clamp(file.GetInt(section, key, fallback), 0, highest);
}

void ReadConditions(const CIniFile& file, CMeasureCondition& condition)
{
    using C = CMeasureCondition;
    condition.SerialNo = ReadClamped(file, Conditions, "SerialNo", 0, C::HighestHostNumber);
    const int sampling =
        SamplingTable::RowOfCode(file.GetInt(Conditions, "Sampling", MissingSamplingCode));
    condition.SetSampling(sampling < 0 ? SamplingTable::StandardRow : sampling);
    // An unknown code is row -1, which is clamped to row 0.
    condition.SetInterval(IntervalTable::RowOfCode(file.GetInt(Conditions, "Interval", 0)));
    condition.Threshold = ReadClamped(file, Conditions, "Threshold", 0, C::HighestThreshold);
    condition.StartOpt = ReadClamped(file, Conditions, "StartOpt", 5, C::HighestStartOption);
    condition.Alarm = file.GetFlag(Conditions, "Alarm");
    condition.OverThreshold = file.GetFlag(Conditions, "OverThreshold");
    condition.Hazard = ReadClamped(file, Conditions, "Hazard", 0, C::HighestHazard);
    condition.Endless = file.GetFlag(Conditions, "Endless");
    condition.Buzzer = file.GetFlag(Conditions, "Buzzer");
}

void ReadKeepMode(const CIniFile& file, CMeasureCondition& condition)
{
    condition.SaveFileType = ReadClamped(file, KeepMode, "SaveFileType", 0, HighestKeepChoice);
    condition.SaveFileSpecify = file.GetString(KeepMode, "SaveFileSpecify", "", TextLimit);
    condition.Extract =
        ExtractConditionsFromString(file.GetString(KeepMode, "Extract", "", TextLimit));
    condition.ExtractSave = file.GetFlag(KeepMode, "ExtractSave");
    condition.LoadProfType = ReadClamped(file, KeepMode, "LoadProfType", 0, HighestKeepChoice);
    condition.LoadProfName = file.GetString(KeepMode, "LoadProfName", "", TextLimit);
    condition.ClearData = ReadClamped(file, KeepMode, "ClearData", 0, HighestKeepChoice);
}

/// The file's title as the file system has it. A backslash is a part of the name here, or half a
/// character of the Japanese code page: cutting at it would make different names equal.
std::string TitleOf(const fs::path& path)
{
    const std::string name = path.filename().string();
    return name.substr(0, name.rfind('.'));
}

/// Whether the two differ in the letter case of their extensions at most.
bool IsSameProfile(const fs::path& a, const fs::path& b)
{
    return a.parent_path() == b.parent_path() && a.stem() == b.stem() &&
           EqualNoCase(a.extension().native(), b.extension().native());
}

/// Whether `name` can be the title of a file, in the folder that it is put into.
bool IsFileTitle(std::string_view name)
{
    constexpr std::string_view Forbidden("/\0", 2);
    return !name.empty() && name.find_first_of(Forbidden) == std::string_view::npos;
}

/// What the file holds now; nothing where there is none.
std::error_code ReadExisting(const fs::path& path, std::string& text)
{
    std::error_code error = ReadWholeFile(path, ProfileSizeLimit + 1, text);
    if (error == std::errc::no_such_file_or_directory)
        error.clear();
    if (!error && text.size() > ProfileSizeLimit)
        error = std::make_error_code(std::errc::file_too_large);
    return error;
}

} // namespace

void ReadProfileText(std::string text, CMeasureCondition& condition)
{
    const CIniFile file(std::move(text));
    ReadConditions(file, condition);
    ReadKeepMode(file, condition);
}

std::string WriteProfileText(const CMeasureCondition& condition, std::string text)
{
    CIniFile file(std::move(text));
    const auto writeText = [&file](std::string_view section, std::string_view key,
                                   std::string_view value) { file.Set(section, key, value); };
    const auto writeNumber = [&file](std::string_view section, std::string_view key, int value) {
        file.Set(section, key, std::to_string(value));
    };
    const auto writeFlag = [&file](std::string_view section, std::string_view key, bool value) {
        file.Set(section, key, value ? "yes" : "no");
    };
    writeText(Conditions, "ProfileName", '"' + condition.ProfileName + '"');
    writeNumber(Conditions, "SerialNo", condition.SerialNo);
    writeNumber(Conditions, "Sampling", SamplingTable::Code(condition.GetSampling()));
    writeNumber(Conditions, "Interval", IntervalTable::Code(condition.GetInterval()));
    writeNumber(Conditions, "Threshold", condition.Threshold);
    writeNumber(Conditions, "StartOpt", condition.StartOpt);
    writeFlag(Conditions, "Alarm", condition.Alarm);
    writeFlag(Conditions, "OverThreshold", condition.OverThreshold);
    writeNumber(Conditions, "Hazard", condition.Hazard);
    writeFlag(Conditions, "Endless", condition.Endless);
    writeFlag(Conditions, "Buzzer", condition.Buzzer);
    writeNumber(KeepMode, "SaveFileType", condition.SaveFileType);
    writeText(KeepMode, "SaveFileSpecify", condition.SaveFileSpecify);
    writeText(KeepMode, "Extract", ExtractConditionsToString(condition.Extract));
    writeFlag(KeepMode, "ExtractSave", condition.ExtractSave);
    writeNumber(KeepMode, "LoadProfType", condition.LoadProfType);
    writeText(KeepMode, "LoadProfName", condition.LoadProfName);
    writeNumber(KeepMode, "ClearData", condition.ClearData);
    return file.Text();
}

std::error_code LoadProfile(const fs::path& path, CMeasureCondition& condition)
{
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (error)
        return error;
    if (fs::is_directory(status))
        return std::make_error_code(std::errc::is_a_directory);
    if (!fs::exists(status))
        return std::make_error_code(std::errc::no_such_file_or_directory);
    if (!fs::is_regular_file(status))
        return std::make_error_code(std::errc::invalid_argument);
    condition.FilePath = path;
    condition.ProfileName = TitleOf(path);
    std::string text;
    error = ReadWholeFile(path, ProfileSizeLimit, text);
    ReadProfileText(std::move(text), condition);
    return error;
}

std::error_code SaveProfile(CMeasureCondition& condition, const fs::path& folder)
{
    if (condition.SerialNo > CMeasureCondition::HighestHostNumber ||
        !IsFileTitle(condition.ProfileName))
        return std::make_error_code(std::errc::invalid_argument);
    if (folder.empty())
        return std::make_error_code(std::errc::no_such_file_or_directory);
    const fs::path path = folder / (condition.ProfileName + std::string(Extension));
    // "ROAD.SKP" is the file of that profile too, and a second one would go under its name.
    if (!IsSameProfile(condition.FilePath, path))
        condition.FilePath = path;
    std::string text;
    if (const std::error_code error = ReadExisting(condition.FilePath, text))
        return error;
    return ReplaceWholeFile(condition.FilePath, WriteProfileText(condition, std::move(text)));
}

} // namespace skeldon
