#include "korva-simulator/StatusText.h"

#include "korva-simulator/DownloadText.h"
#include "setup/tables/RecorderModel.h"

#include <array>
#include <cstdio>

namespace skeldon {

namespace {

class CReport
{
public:
    void Add(const char* key, const std::string& value)
    {
        m_text += key;
        m_text += '=';
        m_text += value;
        m_text += "\r\n";
    }
    void Add(const char* key, int value) { Add(key, std::to_string(value)); }

    std::string m_text = "\r\n";
};

std::string ThresholdText(int counts)
{
    return std::to_string(counts / 10) + "." + std::to_string(counts % 10) + "G";
}

std::string CountText(const RecorderState& state, const CFaults& faults)
{
    const Fault* const fault = faults.Find(FaultKind::Count);
    const std::string count = fault ? fault->text : std::to_string(state.memory.Count());
    return count + " " + std::to_string(state.capacity);
}

std::string DateText(RecorderSeconds seconds, const CFaults& faults)
{
    const CalendarFields fields = ToRecorderFields(seconds);
    if (faults.Has(FaultKind::YearOnly))
        return std::to_string(fields.year);
    std::array<char, 64> text{};
    (void)std::snprintf(text.data(), text.size(), "%04d/%02d/%02d %02d:%02d:%02d", fields.year,
                        fields.month, fields.day, fields.hour, fields.minute, fields.second);
    return text.data();
}

} // namespace

std::string StatusText(const RecorderState& state, const CFaults& faults)
{
    const RecorderConditions& conditions = state.conditions;
    const bool hasType = state.type != OldestType;
    CReport report;
    report.Add("@KORVA3 Ver", "3.02");
    const std::string family = state.type == QmType ? "@korvaQM" : "@korvaPL";
    report.Add((family + (state.alpha ? "_A RLS" : " RLS")).c_str(), state.alpha ? "2.10" : "1.40");
    if (hasType)
        report.Add("@Type", state.type);
    if (!faults.Has(FaultKind::NoCount))
        report.Add("@Count", CountText(state, faults));
    report.Add("@Interval", std::string(1, conditions.sampling));
    report.Add("@Record", std::string(1, conditions.interval));
    report.Add(hasType ? "@detect" : "@Detect", ThresholdText(conditions.threshold));
    report.Add("@Ondo+offset", "12 0 3 128");
    report.Add("@1G", "64 64 63");
    report.Add("@P", "512 510 514");
    report.Add("@ADJ h", state.alpha ? std::to_string(conditions.hazard) + " 0 " +
                                           (conditions.endless ? "1" : "0")
                                     : "130 131 129");
    report.Add("@ADJ L", "126 125 127");
    report.Add("@Year", DateText(state.begun + NewYearShift(state, faults), faults));
    report.Add("@My_ID", conditions.hostNumber);
    // A recorder with its buzzer on says 0.
    if (state.hasBuzzerKey)
        report.Add("@BZZ", conditions.buzzer ? 0 : 1);
    report.Add("@Warn", conditions.warn);
    if (hasType)
        report.Add("@wait", conditions.startOption);
    report.Add("@Lag", 0);
    report.Add("@start", 0);
    if (faults.Has(FaultKind::KeysTwice)) {
        report.Add("@Count", "1 1");
        report.Add("@Type", 1);
        report.Add("@Year", "1999/12/31 23:59:59");
        report.Add("@My_ID", 98);
    }
    return report.m_text;
}

} // namespace skeldon
