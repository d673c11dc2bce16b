#include "recorder/StatusReport.h"

#include "base/TextScan.h"
#include "recorder/WireNumber.h"
#include "setup/tables/IntervalTable.h"
#include "setup/tables/RecorderModel.h"
#include "setup/tables/SamplingTable.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <string>

namespace skeldon {

namespace {

constexpr int DefaultWait = 5;

/// What follows the first occurrence of `key` up to the end of its line, without white space at
/// both ends; nothing where the key is missing.
std::optional<std::string_view> FindValue(std::string_view report, std::string_view key)
{
    const std::size_t at = report.find(key);
    if (at == std::string_view::npos)
        return std::nullopt;
    const std::string_view rest = report.substr(at + key.size());
    return TrimWhite(rest.substr(0, rest.find_first_of("\r\n")));
}

/// Takes the next word, ended by blanks or tabs, off `text`.
std::string_view NextWord(std::string_view& text)
{
    constexpr std::string_view Blanks = " \t";
    text.remove_prefix(std::min(text.find_first_not_of(Blanks), text.size()));
    const std::string_view word = text.substr(0, text.find_first_of(Blanks));
    text.remove_prefix(word.size());
    return word;
}

/// A number that is held in 32 bits with a sign, whatever its reading: values from 2^31 up come
/// out negative.
std::optional<int> ReadInt(std::string_view text)
{
    const std::optional<std::uint32_t> number = ReadWireNumber(text);
    return number ? std::optional(static_cast<int>(*number)) : std::nullopt;
}

/// Picks the values of one report.
class CReportReader
{
public:
    explicit CReportReader(std::string_view report)
        : m_report(report)
    {}

    [[nodiscard]] std::optional<std::string_view> Value(std::string_view key) const
    {
        return FindValue(m_report, key);
    }

    [[nodiscard]] std::string_view Text(std::string_view key) const
    {
        return Value(key).value_or(std::string_view());
    }

    [[nodiscard]] int Number(std::string_view key, int fallback) const
    {
        return ReadInt(Text(key)).value_or(fallback);
    }

    /// As many words as `numbers` holds, each by itself; a missing or bad one gives 0.
    template <std::size_t Count>
    void Numbers(std::string_view key, std::array<int, Count>& numbers) const
    {
        std::string_view text = Text(key);
        for (int& number : numbers)
            number = ReadInt(NextWord(text)).value_or(0);
    }

private:
    std::string_view m_report;
};

void ReadCounts(const CReportReader& reader, RecorderStatus& status)
{
    std::array<int, 2> counts{};
    reader.Numbers("@Count=", counts);
    status.m_count = counts[0];
    status.m_countLimit = counts[1];
}

void ReadDate(const CReportReader& reader, int currentYear, RecorderStatus& status)
{
    constexpr std::size_t YearLength = 4;
    constexpr std::size_t MonthAt = 5;
    constexpr std::size_t DayAt = 8;
    constexpr std::size_t PartLength = 2;
    const std::string_view value = reader.Text("@Year=");
    status.m_year = ReadInt(value.substr(0, YearLength)).value_or(currentYear);
    if (value.size() < DayAt + PartLength)
        return;
    status.m_month =
        ReadSignedWireNumber(value.substr(MonthAt, PartLength)).value_or(status.m_month);
    status.m_day = ReadSignedWireNumber(value.substr(DayAt, PartLength)).value_or(status.m_day);
}

int ReadType(const CReportReader& reader)
{
    const std::optional<int> type = ReadInt(reader.Text("@Type="));
    if (!type)
        return OldestType;
    return IsReportedType(*type) ? *type : UnknownType;
}

/// A threshold may carry its unit and a point, which are removed and not interpreted.
int ReadThreshold(const CReportReader& reader, const RecorderStatus& status)
{
    std::string text(reader.Text(status.m_type == OldestType ? "@Detect=" : "@detect="));
    std::erase_if(text, [](char c) { return c == 'g' || c == 'G' || c == '.'; });
    return CutToInt(ReadInt(text).value_or(0) / status.GetThresholdFactor());
}

void ReadRows(const CReportReader& reader, RecorderStatus& status)
{
    const auto row = [](std::string_view value, auto search, int fallback) {
        const int found = value.empty() ? -1 : search(value.front());
        return found < 0 ? fallback : found;
    };
    const int type = status.m_type;
    status.m_intervalRow = row(reader.Text("@Record="), IntervalTable::RowOfCharacter, 0);
    status.m_samplingRow = row(
        reader.Text("@Interval="),
        [type](char c) { return SamplingTable::RowOfCharacterFor(type, c); },
        SamplingTable::StandardRow);
}

/// 0 on the wire means that the buzzer is on.
void ReadBuzzer(const CReportReader& reader, RecorderStatus& status)
{
    const std::optional<int> value = ReadInt(reader.Text("@BZZ="));
    status.m_hasBuzzerKey = value.has_value();
    status.m_buzzer = value == 0;
}

/// Which of two keys carries the release tells the kind of firmware.
void ReadRelease(const CReportReader& reader, RecorderStatus& status)
{
    const bool qm = status.m_type == QmType;
    status.m_alphaFirmware = false;
    status.m_release = reader.Text(qm ? "@korvaQM RLS=" : "@korvaPL RLS=");
    if (!status.m_release.empty())
        return;
    const auto alpha = reader.Value(qm ? "@korvaQM_A RLS=" : "@korvaPL_A RLS=");
    status.m_alphaFirmware = alpha.has_value();
    status.m_release = alpha.value_or(std::string_view());
}

void SetLineShape(RecorderStatus& status)
{
    constexpr int AlphaLength = 22;
    constexpr int StandardLength = 20;
    constexpr int OldestLength = 18;
    const bool oldest = status.m_type == OldestType && !status.m_alphaFirmware;
    status.m_lineLength = status.m_alphaFirmware ? AlphaLength
                          : oldest               ? OldestLength
                                                 : StandardLength;
    status.m_fieldCount = oldest ? 8 : 9;
    status.m_hazard = 0;
    status.m_endless = false;
    if (!status.m_alphaFirmware)
        return;
    status.m_hazard = CutToInt(status.m_adjHigh[0] / status.GetThresholdFactor());
    status.m_endless = status.m_adjHigh[2] != 0;
}

} // namespace

int CutToInt(double value)
{
    constexpr double Lowest = std::numeric_limits<int>::min();
    constexpr double Highest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(value, Lowest, Highest));
}

bool ReadStatusReport(std::string_view report, int currentYear, RecorderStatus& status)
{
    const CReportReader reader(report);
    if (!reader.Value("@Count="))
        return false;
    ReadCounts(reader, status);
    reader.Numbers("@Ondo+offset=", status.m_tempOffset);
    reader.Numbers("@1G=", status.m_oneG);
    reader.Numbers("@P=", status.m_pValues);
    reader.Numbers("@ADJ h=", status.m_adjHigh);
    reader.Numbers("@ADJ L=", status.m_adjLow);
    ReadDate(reader, currentYear, status);
    status.m_hostNumber = reader.Number("@My_ID=", 0);
    status.m_warn = reader.Number("@Warn=", 0) != 0;
    status.m_type = ReadType(reader);
    status.m_countsPerG = ModelOfType(status.m_type).countsPerG;
    status.m_threshold = ReadThreshold(reader, status);
    ReadRows(reader, status);
    status.m_wait = reader.Number("@wait=", DefaultWait);
    ReadBuzzer(reader, status);
    status.m_startOption = reader.Number("@start=", 0);
    status.m_lag = reader.Number("@Lag=", 0);
    status.m_version = reader.Text("@KORVA3 Ver=");
    ReadRelease(reader, status);
    SetLineShape(status);
    return true;
}

} // namespace skeldon
