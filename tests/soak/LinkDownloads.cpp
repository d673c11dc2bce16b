#include "LinkDownloads.h"

#include "AnyFault.h"
#include "Growth.h"
#include "recorder/ReadBack.h"
#include "setup/tables/RecorderModel.h"
#include "support/recorder/VirtualRecorder.h"

#include <algorithm>
#include <cmath>
#include <iostream>

namespace skeldon::soak {

namespace {

/// A line as it went over the wire: its digits alone.
using WireLines = std::vector<std::string>;

/// The lines that a stream of bytes holds, by the plainest of walks.
WireLines LinesOf(std::string_view bytes, std::size_t mostDigits)
{
    WireLines lines;
    std::string line;
    const auto end = [&] {
        if (!line.empty())
            lines.push_back(line);
        line.clear();
    };
    for (const char c : bytes) {
        if ((c >= '0' && c <= '9') || (c >= 'A' && c <= 'F'))
            line += c;
        if (c == '\r' || c == '\n' || line.size() == mostDigits)
            end();
    }
    end();
    return lines;
}

/// The reading of an axis in G; 0 is X.
double AxisOf(std::string line, std::size_t axis, int countsPerG)
{
    constexpr std::size_t FirstAxisDigit = 8;
    constexpr std::size_t MostDigits = 20;
    line.resize(std::max(line.size(), MostDigits), '0');
    const int byte = std::stoi(line.substr(FirstAxisDigit + 2 * axis, 2), nullptr, 16);
    return static_cast<double>(byte < 128 ? byte : byte - 256) / countsPerG;
}

class CDownloads
{
public:
    explicit CDownloads(const SoakOptions& options)
        : m_soak(options, "link")
        , m_random(options.seed)
        , m_recorder(m_clock, options.seed)
        , m_link(m_recorder.MakeFinder(), m_recorder.Opener(), m_clock)
        , m_growth(options.judgesMemory)
    {}

    void Run()
    {
        constexpr int MarkEvery = 50;
        while (m_soak.Next(m_soak.Options().downloads)) {
            if (m_random.OneIn(8) || m_soak.Step() == 1)
                ChangeRecorder();
            const bool isFaulty = !m_random.OneIn(4);
            SetFaults(isFaulty);
            m_recorder.Plug();
            if (m_random.OneIn(10))
                RecordOnline();
            else
                Download(!isFaulty);
            CheckAtRest();
            if (m_soak.Step() % MarkEvery == 0)
                m_soak.Log(m_growth.Mark().Text());
        }
        std::cout << "link: " << m_soak.Step() << " downloads, " << m_lines << " lines, " << m_whole
                  << " of them whole; " << m_growth.Text() << std::endl;
        const std::string grown = m_growth.Judgement();
        m_soak.Check(grown.empty(), grown);
    }

private:
    void ChangeRecorder()
    {
        m_type = m_random.OneOf({OldestType, 1, 10, 50});
        m_alpha = m_type != OldestType && m_random.OneIn(2);
        m_count = m_random.OneIn(6) ? m_random.Below(16000) : m_random.Below(600);
        m_soak.Log("type " + std::to_string(m_type) + (m_alpha ? " alpha, " : ", ") +
                   std::to_string(m_count) + " lines");
        m_recorder.Replace(m_type, m_alpha, static_cast<std::size_t>(m_count));
    }

    void SetFaults(bool isFaulty)
    {
        std::vector<std::string> faults;
        while (isFaulty && (faults.empty() || m_random.OneIn(3)))
            faults.push_back(AnyFault(m_random, m_count));
        std::string all = "faults:";
        for (const std::string& fault : faults)
            all += " " + fault;
        m_soak.Log(all);
        m_recorder.SetFaults(faults);
    }

    void Download(bool isClean)
    {
        m_soak.Check(m_link.FindRecorderPort(), "the cable is not found");
        const int expected = m_link.StartDownload();
        m_soak.Log("expected " + std::to_string(expected));
        if (isClean)
            m_soak.Check(expected == m_count, "a sound recorder of " + std::to_string(m_count) +
                                                  " lines announces " + std::to_string(expected));
        if (expected <= 0)
            return;
        const int lineBytes = m_link.m_lineLength;
        CMeasureData data;
        TakeHeader(m_link.Status(), data);
        const int received = ReadBack(m_link, expected, data);
        m_soak.Log("received " + std::to_string(received));
        m_soak.Check(data.GetSize() == static_cast<std::size_t>(received), "lines miscounted");
        const std::string bytes = m_recorder.Delivered();
        CompareWith(Taken(bytes, lineBytes, expected), data, expected);
        if (isClean) {
            m_soak.Check(received == m_count, "a sound download is not whole");
            CompareWith(m_recorder.Memory(), data, expected);
            ++m_whole;
        }
        m_lines += received;
    }

    /// What of the bytes delivered belongs to the download.
    static std::string_view Taken(std::string_view bytes, int lineBytes, int expected)
    {
        constexpr std::size_t Spare = 30;
        const std::size_t limit =
            static_cast<std::size_t>(lineBytes) * static_cast<std::size_t>(expected) + Spare;
        return bytes.substr(0, std::min(bytes.find('#'), limit));
    }

    void CompareWith(std::string_view wire, const CMeasureData& data, int expected)
    {
        const std::size_t digits = m_alpha ? 20 : m_type == OldestType ? 16 : 18;
        WireLines lines = LinesOf(wire, digits + 2);
        if (lines.size() > static_cast<std::size_t>(expected))
            lines.resize(static_cast<std::size_t>(expected));
        m_soak.Check(lines.size() == data.GetSize(),
                     std::to_string(lines.size()) + " lines arrived and " +
                         std::to_string(data.GetSize()) + " are held");
        const int countsPerG = ModelOfType(m_type).countsPerG;
        for (std::size_t i = 0; i < lines.size(); ++i) {
            const CMeasureRecord& record = data.Records()[i];
            constexpr double LastBits = 1e-9; // the oldest recorders' are multiplied by 0.1
            const auto isAxis = [&](double value, std::size_t axis) {
                return std::abs(value - AxisOf(lines[i], axis, countsPerG)) < LastBits;
            };
            const bool isSame =
                isAxis(record.m_x, 0) && isAxis(record.m_y, 1) && isAxis(record.m_z, 2);
            if (!isSame)
                m_soak.Check(false, "line " + std::to_string(i) + " (" + lines[i] +
                                        ") is held as " + std::to_string(record.m_x) + " " +
                                        std::to_string(record.m_y) + " " +
                                        std::to_string(record.m_z));
        }
    }

    void RecordOnline()
    {
        const auto most = static_cast<std::uint32_t>(m_random.Between(1, 400));
        m_soak.Log("online, " + std::to_string(most));
        m_soak.Check(m_link.FindRecorderPort(), "the cable is not found");
        if (!m_link.StartOnline(most))
            return;
        CMeasureData data;
        m_link.FinishOnline(data);
        m_soak.Log("received " + std::to_string(data.GetSize()));
        m_soak.Check(data.GetSize() <= most, "more lines than asked for");
        m_soak.Check(data.GetSize() == m_link.m_onlineLines, "lines miscounted");
    }

    /// Whatever went wrong, a sound recorder is heard again at once. The port is opened anew, as
    /// the look for the cable does: it stays open, with all that is in it, behind a reply that is
    /// no report.
    void CheckAtRest()
    {
        m_soak.Check(!m_link.m_busy, "the link is busy after a transfer");
        m_soak.Check(m_link.m_threadDone, "the reader's thread goes on");
        m_recorder.SetFaults({});
        m_recorder.Plug();
        m_soak.Check(m_link.FindRecorderPort(), "the cable is not found");
        // Of a report without end there is still a piece in the line, which may be taken for the
        // beginning of the next.
        constexpr int MostLooks = 3;
        int looks = 1;
        while (!(m_link.OpenPort() && m_link.ReadStatus() && m_link.m_count == m_count))
            m_soak.Check(++looks <= MostLooks,
                         "a sound recorder is not heard; the last look told " +
                             std::to_string(m_link.m_count) + " lines of " +
                             std::to_string(m_count));
        m_soak.Check(!m_link.IsOpen(), "the port stays open");
    }

    CSoak m_soak;
    CRandom m_random;
    test::CVirtualClock m_clock;
    test::CVirtualRecorder m_recorder;
    CRecorderLink m_link;
    CGrowth m_growth;
    int m_type = OldestType;
    bool m_alpha = false;
    int m_count = 0;
    long long m_lines = 0;
    int m_whole = 0;
};

} // namespace

void DownloadOverLink(const SoakOptions& options)
{
    CDownloads(options).Run();
}

} // namespace skeldon::soak
