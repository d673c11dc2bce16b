#include "skeldonctl/FileCommands.h"
#include "skeldonctl/RecorderCommands.h"
#include "support/TemporaryFolder.h"
#include "support/recorder/CutTalk.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <string>

namespace skeldon::test {

namespace {

struct Told
{
    ExitStatus status = ExitStatus::Done;
    std::string out;
    std::string err;
};

/// What a command must end with: its status, and a part of what it tells.
struct Expected
{
    ExitStatus status = ExitStatus::Done;
    std::string message;
};

template <class RecorderCommand>
Told RunOn(PlayedRecorder& played, const RecorderCommand& command)
{
    CRecorderLink link(played.m_recorder.MakeFinder(), played.m_recorder.Opener(), played.m_clock);
    ::testing::internal::CaptureStdout();
    ::testing::internal::CaptureStderr();
    Told told;
    told.status = Run(command, link);
    told.out = ::testing::internal::GetCapturedStdout();
    told.err = ::testing::internal::GetCapturedStderr();
    return told;
}

/// The commands of the tool on a recorder whose cable is pulled behind each byte of what they have
/// to say to it.
class PulledFromTool : public ::testing::Test
{
protected:
    using Expect = std::function<Expected(const Wire& wire, std::size_t bytes)>;
    /// Looks at what is left behind; called before the cable is plugged in again.
    using Look = std::function<void(const Wire& wire, std::size_t bytes, const Told& told)>;

    template <class RecorderCommand>
    void PullEverywhere(const PlayedModel& model, const RecorderCommand& command,
                        const Expect& expect, const Look& look = {}, std::size_t step = 1)
    {
        // One silence: a command that has lost its recorder gives up.
        constexpr std::size_t NextEvery = 11;
        constexpr std::int64_t LongestMs = CRecorderTransport::TimeoutMs + 5000;
        const Wire wire = WholeWire(model, command);
        for (std::size_t bytes = 0; bytes <= wire.bytes.size(); bytes += step) {
            SCOPED_TRACE(NameOf(wire, bytes));
            std::filesystem::remove(m_data);
            PlayedRecorder played(model);
            played.PullAt(bytes);
            const std::int64_t begun = played.m_clock.m_ms;
            const Told told = RunOn(played, command);
            EXPECT_LE(played.m_clock.m_ms - begun, LongestMs);
            const Expected expected = expect(wire, bytes);
            EXPECT_EQ(told.status, expected.status) << told.err;
            EXPECT_NE(told.err.find(expected.message), std::string::npos) << told.err;
            if (look)
                look(wire, bytes, told);
            played.PlugAgain();
            EXPECT_EQ(RunOn(played, StatusCommand()).status, ExitStatus::Done);
            // What writes a file waits for the disk.
            if (bytes % NextEvery == 0) {
                EXPECT_EQ(RunOn(played, command).status, ExitStatus::Done);
            }
            if (HasFailure())
                return;
        }
    }

    /// Lines in the file that `get` and `online` write; none without one.
    std::size_t LinesKept() const
    {
        CMeasureData data;
        if (!std::filesystem::exists(m_data) || LoadDataFile(m_data, data) != ExitStatus::Done)
            return 0;
        return data.GetSize();
    }

    std::string WriteProfile(const std::string& conditions) const
    {
        const std::string path = m_folder.Path("crate.skp").string();
        WriteText(path, "[Configuration]\r\n" + conditions);
        return path;
    }

    CTemporaryFolder m_folder;
    std::filesystem::path m_data = m_folder.Path("out.skd");

private:
    template <class RecorderCommand>
    Wire WholeWire(const PlayedModel& model, const RecorderCommand& command)
    {
        PlayedRecorder played(model);
        played.m_recorder.KeepWire();
        const Told told = RunOn(played, command);
        EXPECT_EQ(told.status, ExitStatus::Done) << told.err;
        return played.m_recorder.GetWire();
    }
};

/// How many bytes have passed with the nth mark of a reply, counted from 1.
std::size_t MarkOf(const Wire& wire, int nth)
{
    std::size_t place = 0;
    for (; nth > 0; --nth)
        place = wire.bytes.find('#', place) + 1;
    return place;
}

const Expected NoRecorder{ExitStatus::NoRecorder, "Can not connect to KORVA: "};

TEST_F(PulledFromTool, StatusIsWholeOrNone)
{
    PullEverywhere(
        {.type = 50, .alpha = true, .lines = 1234}, StatusCommand{.port = {}, .json = true},
        [](const Wire& wire, std::size_t bytes) {
            return bytes < wire.bytes.size() ? NoRecorder : Expected();
        },
        [](const Wire& wire, std::size_t bytes, const Told& told) {
            EXPECT_EQ(told.out.empty(), bytes < wire.bytes.size()) << told.out;
        });
}

/// Lines of a download of which at least a digit has arrived.
std::size_t LinesIn(std::string_view text)
{
    std::size_t lines = 0;
    bool isInLine = false;
    for (const char c : text) {
        const bool isDigit = c != '\r' && c != '\n' && c != '#';
        lines += isDigit && !isInLine ? 1 : 0;
        isInLine = isDigit;
    }
    return lines;
}

TEST_F(PulledFromTool, GetKeepsEveryLineThatArrived)
{
    constexpr PlayedModel Model{.type = 50, .alpha = true, .lines = 3};
    const auto lines = [](const Wire& wire, std::size_t bytes) {
        const std::size_t get = SentAt(wire, "D");
        return bytes < get ? 0 : LinesIn(std::string_view(wire.bytes).substr(get, bytes - get));
    };
    const auto expect = [&](const Wire& wire, std::size_t bytes) -> Expected {
        // The report is read when the cable is found and when the download begins.
        if (bytes < MarkOf(wire, 2))
            return NoRecorder;
        // A command with which the cable goes counts as not sent.
        if (bytes <= SentAt(wire, "D"))
            return {ExitStatus::Failed, "Failed to get the data: the recorder does not answer"};
        const std::size_t arrived = lines(wire, bytes);
        if (arrived < Model.lines)
            return {ExitStatus::Incomplete,
                    "Failed to get the data: " + std::to_string(arrived) + " of 3 lines came."};
        constexpr std::size_t LineEndAndMark = 3;
        if (bytes < wire.bytes.size() - LineEndAndMark)
            return {ExitStatus::Incomplete,
                    "Failed to get the data: the last of 3 lines came in part."};
        return {};
    };
    PullEverywhere(Model, GetCommand{.port = {}, .dataFile = m_data, .csvFile = {}}, expect,
                   [&](const Wire& wire, std::size_t bytes, const Told&) {
                       EXPECT_EQ(LinesKept(), lines(wire, bytes));
                       EXPECT_EQ(std::filesystem::exists(m_data), lines(wire, bytes) > 0);
                   });
}

TEST_F(PulledFromTool, OnlineKeepsEveryLineThatArrived)
{
    constexpr std::size_t Lines = 200;
    constexpr std::size_t Step = 23;
    const auto lines = [&](const Wire& wire, std::size_t bytes) {
        const std::size_t begin = SentAt(wire, "x");
        if (bytes < begin)
            return std::size_t{0};
        const auto ends = static_cast<std::size_t>(
            std::ranges::count(wire.bytes.substr(begin, bytes - begin), '\r'));
        return std::min(ends == 0 ? 0 : ends - 1, Lines);
    };
    const auto expect = [&](const Wire& wire, std::size_t bytes) -> Expected {
        if (bytes < MarkOf(wire, 1))
            return NoRecorder;
        if (bytes <= SentAt(wire, "x"))
            return {ExitStatus::Failed, "Could not start online recording."};
        if (lines(wire, bytes) < Lines)
            return {ExitStatus::Incomplete, "An error has occurred during online recording."};
        return {};
    };
    PullEverywhere(
        {.type = 10, .alpha = false, .lines = 3},
        OnlineCommand{.port = {}, .seconds = 1, .dataFile = m_data}, expect,
        [&](const Wire& wire, std::size_t bytes, const Told&) {
            EXPECT_EQ(LinesKept(), lines(wire, bytes));
        },
        Step);
}

/// A start's end: without a report, in the middle, and behind the last reply.
Expected StartsAtTheEndAlone(const Wire& wire, std::size_t bytes)
{
    if (bytes < MarkOf(wire, 1))
        return NoRecorder;
    if (bytes < wire.bytes.size())
        return {ExitStatus::Failed, "Could not start measuring."};
    return {ExitStatus::Done, "Disconnect KORVA cable."};
}

constexpr PlayedModel WithData{.type = 50, .alpha = true, .lines = 40};

TEST_F(PulledFromTool, StartSaysWhetherItCameThrough)
{
    StartCommand command;
    command.profile = WriteProfile("SerialNo=7\r\nSampling=1\r\nInterval=12\r\n");
    PullEverywhere(WithData, command, StartsAtTheEndAlone);
    command.clear = true;
    PullEverywhere(WithData, command, StartsAtTheEndAlone);
}

TEST_F(PulledFromTool, AReservationSaysWhetherItCameThrough)
{
    StartCommand command;
    command.profile = WriteProfile("SerialNo=7\r\nSampling=1\r\nInterval=12\r\n");
    command.clear = true;
    command.at = CalendarFields{2099, 12, 31, 23, 59, 0};
    PullEverywhere(WithData, command, StartsAtTheEndAlone);
}

} // namespace

} // namespace skeldon::test
