#include "base/Paths.h"
#include "files/DataFile.h"
#include "files/DataFileHeader.h"
#include "files/RecordBlocks.h"
#include "files/RecordMachine.h"
#include "files/TextLines.h"
#include "files/platform/InputFile.h"

#include <algorithm>
#include <array>
#include <new>

namespace skeldon {

namespace {

/// Reads one data file into one data set.
class CDataFileReader
{
public:
    CDataFileReader(CMeasureData& data, const CInputFile& file)
        : m_data(data)
        , m_file(file)
    {}

    DataFileResult Read()
    {
        CTextLines lines(m_file);
        if (const DataFileResult result = FindRoot(lines); !result)
            return result;
        // Only now is it known whether records have flags; those that stand before the root line
        // are records too, though they do not count.
        CTextLines again(m_file);
        CRecordMachine machine(m_version == FileVersion::Skeldon);
        if (const DataFileResult result = ReadConfiguration(again, lines.Offset(), machine);
            !result)
            return result;
        const DataFileResult result = ReadRecords(again, machine);
        if (result)
            FitToTally();
        return result;
    }

private:
    static DataFileResult Failure(DataFileError error) { return {error, {}}; }
    static DataFileResult Failure(std::error_code reason)
    {
        return {DataFileError::CannotRead, reason};
    }

    DataFileResult FindRoot(CTextLines& lines)
    {
        std::string_view line;
        while (lines.Next(line)) {
            if (!IsRootLine(line))
                continue;
            m_version = lines.IsCut() ? FileVersion::Unknown : VersionOfRootLine(line);
            return m_version == FileVersion::Unknown ? Failure(DataFileError::UnknownVersion)
                                                     : DataFileResult{};
        }
        return lines.Error() ? Failure(lines.Error()) : Failure(DataFileError::NotADataFile);
    }

    DataFileResult ReadConfiguration(CTextLines& lines, std::uint64_t behindRoot,
                                     CRecordMachine& machine)
    {
        std::string_view line;
        while (lines.Next(line)) {
            if (!Take(machine.TakeLine(line, lines.IsCut()), machine))
                return Failure(DataFileError::ElementTooLong);
            if (lines.Offset() <= behindRoot)
                continue;
            if (lines.IsCut() && IsConfigurationText(line))
                return Failure(DataFileError::ElementTooLong);
            if (!TakeConfigurationLine(m_data, m_version, line))
                break;
        }
        return lines.Error() ? Failure(lines.Error()) : DataFileResult{};
    }

    DataFileResult ReadRecords(CTextLines& lines, CRecordMachine& machine)
    {
        std::uint64_t offset = lines.Offset();
        if (!machine.IsInRecord()) {
            CRecordBlocks blocks(m_file, offset, m_version == FileVersion::Skeldon, m_data,
                                 m_tally);
            if (const std::error_code error = blocks.Run())
                return Failure(error);
            offset = blocks.Offset();
        }
        return ReadLineByLine(offset, machine);
    }

    /// What is left where no record ends for the length of a block, if anything.
    DataFileResult ReadLineByLine(std::uint64_t offset, CRecordMachine& machine)
    {
        CTextLines lines(m_file, offset);
        std::string_view line;
        while (lines.Next(line)) {
            m_tally.started += CRecordMachine::IsRecordStart(line) ? 1 : 0;
            if (!Take(machine.TakeLine(line, lines.IsCut()), machine))
                return Failure(DataFileError::ElementTooLong);
        }
        if (lines.Error())
            return Failure(lines.Error());
        (void)Take(machine.TakeEnd(), machine);
        return {};
    }

    /// Stores a record; false for an element that is too long.
    bool Take(CRecordMachine::Outcome outcome, const CRecordMachine& machine)
    {
        if (outcome == CRecordMachine::Outcome::Record) {
            if (machine.HasHumidity())
                m_tally.humidityFrom = std::min(m_tally.humidityFrom, m_data.GetSize());
            m_data.AddRecord(machine.GetRecord());
        }
        return outcome != CRecordMachine::Outcome::ElementCut;
    }

    /// A file has as many lines as records begin behind its Configuration: records beyond that
    /// number are not there, and for one that could not be used a line of the present time stands
    /// at the end.
    void FitToTally()
    {
        if (m_tally.humidityFrom < m_tally.started)
            m_data.m_hasHumidity = true;
        m_data.SetSize(m_tally.started);
    }

    CMeasureData& m_data;
    const CInputFile& m_file;
    FileVersion m_version = FileVersion::Unknown;
    RecordTally m_tally;
};

void ResetHeader(CMeasureData& data)
{
    data.m_modelName.clear();
    data.m_release.clear();
    data.m_hazard = CMeasureData::Unknown;
    data.m_typeNumber = CMeasureData::Unknown;
    data.m_endless = false;
    data.m_hasHumidity = false;
    data.m_dateVersion = 0;
    data.m_hasTemperature = true;
    data.Clear();
    data.m_extract.clear();
}

/// The types 1 and 20 are written and yet not taken back: files of the family never had them.
int TypeAsRead(int type, std::string_view modelName)
{
    constexpr std::array Accepted = {0, 2, 3, 5, 10, 50};
    if (std::find(Accepted.begin(), Accepted.end(), type) != Accepted.end())
        return type;
    if (modelName == "PL04")
        return 2;
    if (modelName == "PL20")
        return 10;
    return modelName == "QM70" ? 50 : 0;
}

DataFileResult ReadInto(CMeasureData& data, const std::filesystem::path& path)
{
    CInputFile file;
    if (const std::error_code error = file.Open(path))
        return {DataFileError::CannotRead, error};
    try {
        return CDataFileReader(data, file).Read();
    } catch (const std::bad_alloc&) {
        return {DataFileError::CannotRead, std::make_error_code(std::errc::not_enough_memory)};
    }
}

} // namespace

DataFileResult ReadFile(CMeasureData& data, const std::filesystem::path& path)
{
    ResetHeader(data);
    const DataFileResult result = ReadInto(data, path);
    if (!result) {
        ResetHeader(data);
        return result;
    }
    data.m_fileName = FileNameOf(path.native());
    data.m_typeNumber = TypeAsRead(data.m_typeNumber, data.m_modelName);
    data.m_fromFile = true;
    return result;
}

std::string DescribeDataFileError(const DataFileResult& result)
{
    switch (result.error) {
    case DataFileError::None:
        return "no error";
    case DataFileError::CannotRead:
        return result.reason.message();
    case DataFileError::NotADataFile:
        return "not a data file";
    case DataFileError::UnknownVersion:
        return "a data file of an unknown version";
    case DataFileError::ElementTooLong:
        return "a value in the file is longer than 1 MiB";
    }
    return {};
}

} // namespace skeldon
