#include "data/RecordFlags.h"
#include "recorder/OnlineTime.h"
#include "recorder/ReadBack.h"
#include "skeldonctl/Connection.h"
#include "skeldonctl/DataSetJson.h"
#include "skeldonctl/DataSetText.h"
#include "skeldonctl/Messages.h"
#include "skeldonctl/OutputFiles.h"
#include "skeldonctl/ProgressBar.h"
#include "skeldonctl/RecorderCommands.h"
#include "skeldonctl/StatusOutput.h"
#include "skeldonctl/platform/Interruption.h"
#include "skeldonctl/platform/Streams.h"

namespace skeldon {

namespace {

/// What came of a transfer, for the report.
struct Transferred
{
    CMeasureData data;
    DataSetTold told;
    ExitStatus status = ExitStatus::Done;
};

class CTerminalObserver : public CReadBackObserver
{
public:
    explicit CTerminalObserver(int expected)
        : m_bar("Do not separate KORVA", static_cast<std::uint64_t>(expected))
    {}
    void ShowWarning(bool) override {}
    void ShowPosition(int line) override { m_bar.SetPosition(static_cast<std::uint64_t>(line)); }

private:
    CProgressBar m_bar;
};

/// What the analysis found wrong, in the window's words.
void TellErrors(const CMeasureData& data)
{
    if (data.m_badMsec || data.m_badTime)
        Tell("Error in date/time.");
    if (data.m_badTemperature)
        Tell("Error in temperature.");
    if (data.m_badHumidity)
        Tell("Error in Humidity.");
}

ExitStatus Worse(ExitStatus one, ExitStatus other)
{
    return one == ExitStatus::Done ? other : one;
}

/// Writes the files that were asked for and prints the data set. What failed last stands behind
/// a file that could not be written.
ExitStatus Report(Transferred& transferred, const std::filesystem::path& dataFile,
                  const std::filesystem::path& csvFile, bool json)
{
    ExitStatus written = ExitStatus::Done;
    if (!transferred.data.IsEmpty()) {
        if (!dataFile.empty())
            written = SaveDataFile(transferred.data, dataFile);
        if (!csvFile.empty())
            written = Worse(written, SaveCsvFile(transferred.data, csvFile, {}));
    }
    CStandardOutput output;
    if (json)
        written =
            Worse(written,
                  StandardOutputDone(WriteDataSetJson(transferred.data, transferred.told, output)));
    else if (!transferred.data.IsEmpty())
        written = Worse(written, StandardOutputDone(output.Write(DataSetText(transferred.data))));
    return Worse(written, transferred.status);
}

/// Looks at the files that are to be written before the recorder is asked for anything.
ExitStatus CheckTargets(const std::filesystem::path& dataFile, const std::filesystem::path& csvFile)
{
    ExitStatus status = ExitStatus::Done;
    if (!dataFile.empty())
        status = CheckTarget(TargetOf(dataFile, "skd"));
    if (!csvFile.empty() && status == ExitStatus::Done)
        status = CheckTarget(TargetOf(csvFile, "csv"));
    return status;
}

/// Why `StartDownload` gave no lines to expect.
ExitStatus DownloadRefused(int code)
{
    switch (code) {
    case CRecorderLink::NoStatus:
        Tell("Can not connect to KORVA: no status report");
        return ExitStatus::NoRecorder;
    case CRecorderLink::NoMemory:
        Tell("Failed to get the data: no memory");
        return ExitStatus::Failed;
    default:
        Tell("Failed to get the data: the recorder does not answer");
        return ExitStatus::Failed;
    }
}

/// Whether the lines are all there, but the last one broke off.
bool IsLastLineCut(const CRecorderLink& link, const CMeasureData& data)
{
    return link.m_timedOut && !data.IsEmpty() &&
           data.Records().back().HasFlag(RecordFlag::Abnormal);
}

/// Reads the recorder back as the Get data command does: lines, analysis, year repair.
void ReadRecorder(CRecorderLink& link, int expected, Transferred& transferred)
{
    CMeasureData& data = transferred.data;
    TakeHeader(link, data);
    CTerminalObserver observer(expected);
    const int received = ReadBack(link, expected, data, &observer);
    data.Analyse({.startMonth = link.m_month, .startDay = link.m_day, .now = Now()});
    transferred.told.yearRepaired = data.RepairYear();
    if (received < expected || IsLastLineCut(link, data))
        transferred.status = ExitStatus::Incomplete;
}

/// How much came of a download that is not whole.
std::string PartText(const CMeasureData& data, int expected)
{
    const auto received = std::to_string(data.GetSize());
    return static_cast<int>(data.GetSize()) < expected
               ? received + " of " + std::to_string(expected) + " lines came."
               : "the last of " + received + " lines came in part.";
}

/// Waits for the end of the stream; an interruption stops it.
void WaitForStream(CRecorderLink& link, int seconds, CInterruption& interruption)
{
    constexpr std::uint32_t LookMs = 100;
    CProgressBar bar("Recording", static_cast<std::uint64_t>(seconds) * OnlineLinesPerSecond);
    while (!link.WaitForThread(LookMs)) {
        bar.SetPosition(link.m_onlineLines);
        if (interruption.Came())
            link.m_stopRequest = true;
    }
}

} // namespace

ExitStatus Run(const StatusCommand& command, CRecorderLink& link)
{
    if (const ExitStatus connected = Connect(link); connected != ExitStatus::Done)
        return connected;
    CStandardOutput output;
    return StandardOutputDone(output.Write(command.json ? StatusJson(link, link.m_portName)
                                                        : StatusText(link, link.m_portName)));
}

ExitStatus Run(const GetCommand& command, CRecorderLink& link)
{
    if (const ExitStatus checked = CheckTargets(command.dataFile, command.csvFile);
        checked != ExitStatus::Done)
        return checked;
    if (const ExitStatus connected = Connect(link); connected != ExitStatus::Done)
        return connected;
    const int expected = link.StartDownload();
    if (expected < 0)
        return DownloadRefused(expected);
    Transferred transferred;
    transferred.told.expected = expected;
    transferred.told.withRecords = command.withRecords;
    if (expected > 0)
        ReadRecorder(link, expected, transferred);
    else
        TakeHeader(link, transferred.data);
    if (transferred.data.IsEmpty())
        Tell("No measured data is available.");
    else if (transferred.status == ExitStatus::Incomplete)
        Tell("Failed to get the data: " + PartText(transferred.data, expected));
    TellErrors(transferred.data);
    return Report(transferred, command.dataFile, command.csvFile, command.json);
}

ExitStatus Run(const OnlineCommand& command, CRecorderLink& link)
{
    if (const ExitStatus checked = CheckTargets(command.dataFile, {}); checked != ExitStatus::Done)
        return checked;
    if (const ExitStatus connected = Connect(link); connected != ExitStatus::Done)
        return connected;
    Transferred transferred;
    CMeasureData& data = transferred.data;
    data.m_typeNumber = link.m_type;
    data.m_modelName = link.GetModelName();
    data.m_release = link.m_release;
    transferred.told.expected = command.seconds * OnlineLinesPerSecond;
    transferred.told.withRecords = command.withRecords;
    CInterruption interruption; // before the link's thread is there
    if (!link.StartOnline(static_cast<std::uint32_t>(*transferred.told.expected))) {
        Tell("Could not start online recording.");
        return ExitStatus::Failed;
    }
    WaitForStream(link, command.seconds, interruption);
    link.FinishOnline(data);
    data.Analyse({.startMonth = link.m_month, .startDay = link.m_day, .now = Now()});
    if (link.m_timedOut) {
        Tell("An error has occurred during online recording.");
        transferred.status = ExitStatus::Incomplete;
    }
    TellErrors(data);
    return Report(transferred, command.dataFile, {}, command.json);
}

} // namespace skeldon
