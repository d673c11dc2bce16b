#include "skeldonctl/FileCommands.h"

#include "files/CsvFile.h"
#include "files/DataFile.h"
#include "files/platform/KeptCopy.h"
#include "skeldonctl/DataSetJson.h"
#include "skeldonctl/DataSetText.h"
#include "skeldonctl/Messages.h"
#include "skeldonctl/OutputFiles.h"
#include "skeldonctl/platform/Streams.h"

namespace skeldon {

ExitStatus LoadDataFile(const std::filesystem::path& path, CMeasureData& data)
{
    const DataFileResult result = ReadFile(data, path);
    if (!result)
        return FailOn(path, DescribeDataFileError(result));
    data.Analyse({.startMonth = 0, .startDay = 0, .now = Now()});
    data.StoreSignature();
    return ExitStatus::Done;
}

ExitStatus CheckInputStays(const std::filesystem::path& file, const std::filesystem::path& target)
{
    std::error_code ignored;
    if (std::filesystem::equivalent(file, target, ignored))
        return FailOn(target, "is the input itself");
    if (IsKeptCopy(file, target))
        return FailOn(file, "is kept of " + target.string() +
                                " and would go away with this save; rename it first");
    return ExitStatus::Done;
}

ExitStatus Run(const InfoCommand& command)
{
    CMeasureData data;
    if (const ExitStatus loaded = LoadDataFile(command.file, data); loaded != ExitStatus::Done)
        return loaded;
    CStandardOutput output;
    if (!command.json)
        return StandardOutputDone(output.Write(DataSetText(data)));
    return StandardOutputDone(WriteDataSetJson(
        data, {.yearRepaired = false, .expected = {}, .withRecords = command.withRecords}, output));
}

ExitStatus Run(const ConvertCommand& command)
{
    if (const ExitStatus checked = CheckInputStays(command.file, TargetOf(command.output, "skd"));
        checked != ExitStatus::Done)
        return checked;
    CMeasureData data;
    if (const ExitStatus loaded = LoadDataFile(command.file, data); loaded != ExitStatus::Done)
        return loaded;
    return SaveDataFile(data, command.output);
}

ExitStatus Run(const CsvCommand& command)
{
    if (!command.output.empty()) {
        const ExitStatus checked = CheckInputStays(command.file, TargetOf(command.output, "csv"));
        if (checked != ExitStatus::Done)
            return checked;
    }
    CMeasureData data;
    if (const ExitStatus loaded = LoadDataFile(command.file, data); loaded != ExitStatus::Done)
        return loaded;
    if (!command.output.empty())
        return SaveCsvFile(data, command.output, command.options);
    CStandardOutput output;
    return StandardOutputDone(FormatCsv(data, command.options, {}, {}, output));
}

} // namespace skeldon
