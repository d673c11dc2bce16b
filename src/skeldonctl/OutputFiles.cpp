#include "skeldonctl/OutputFiles.h"

#include "base/Paths.h"
#include "files/CsvFile.h"
#include "files/DataFile.h"
#include "skeldonctl/Messages.h"

namespace skeldon {

ExitStatus TellOutcome(const std::filesystem::path& path, std::error_code error)
{
    if (error)
        return FailOn(path, "Failed to write: " + error.message());
    Tell("wrote " + path.string());
    return ExitStatus::Done;
}

std::filesystem::path TargetOf(const std::filesystem::path& path, std::string_view extension)
{
    std::error_code ignored;
    const std::filesystem::file_status status = std::filesystem::status(path, ignored);
    return std::filesystem::is_other(status) ? path : WithExtension(path, extension);
}

ExitStatus CheckTarget(const std::filesystem::path& target)
{
    std::error_code ignored;
    if (std::filesystem::is_directory(target, ignored))
        return FailOn(target, std::make_error_code(std::errc::is_a_directory));
    const std::filesystem::path folder = target.parent_path();
    if (!folder.empty() && !std::filesystem::is_directory(folder, ignored))
        return FailOn(folder, std::make_error_code(std::errc::no_such_file_or_directory));
    return ExitStatus::Done;
}

ExitStatus SaveDataFile(CMeasureData& data, const std::filesystem::path& path)
{
    const std::filesystem::path target = TargetOf(path, "skd");
    const ExitStatus outcome = TellOutcome(target, WriteFile(data, target));
    if (outcome == ExitStatus::Done) {
        data.m_fileName = target.filename().string();
        data.StoreSignature();
    }
    return outcome;
}

ExitStatus SaveCsvFile(const CMeasureData& data, const std::filesystem::path& path,
                       const CsvOptions& options)
{
    const std::filesystem::path target = TargetOf(path, "csv");
    return TellOutcome(target, WriteCsvFile(data, target, options));
}

} // namespace skeldon
