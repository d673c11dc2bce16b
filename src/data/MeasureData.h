#pragma once

#include "data/ExtractConditions.h"
#include "data/MeasureRecord.h"
#include "data/RecordArray.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace skeldon {

/// What an analysis must know from outside the data set.
struct AnalysisSetting
{
    int startMonth = 0;      ///< month of the status report; 0 where it told none
    int startDay = 0;        ///< day of the status report
    CalendarSeconds now = 0; ///< the PC's present time
};

/// The measured data that a view shows: lines in the order in which they arrived, how they were
/// measured, and what the last analysis found. Never sorted.
///
/// Statistics follow an `Analyse` only; filling the lines leaves them stale on purpose.
/// Not for use by two threads at once.
class CMeasureData
{
public:
    static constexpr int Unknown = -1;

    // --- lines ---

    [[nodiscard]] std::size_t GetSize() const { return m_records.size(); }
    [[nodiscard]] bool IsEmpty() const { return m_records.empty(); }
    [[nodiscard]] std::span<const CMeasureRecord> Records() const { return m_records; }
    /// A copy of the line at `index`, which must exist.
    [[nodiscard]] CMeasureRecord GetRecord(std::size_t index) const { return m_records[index]; }
    /// Replaces the line at `index`, which must exist. Statistics stay as they are.
    void SetRecord(std::size_t index, const CMeasureRecord& record);
    /// Adds a line at the end.
    void AddRecord(const CMeasureRecord& record);
    /// Adds lines at the end, in their order.
    void AddRecords(std::span<const CMeasureRecord> records);
    /// Grows or shrinks to `count` lines; new ones are lines of the present time with values 0.
    void SetSize(std::size_t count);
    /// Makes room for `count` lines without changing them.
    void Reserve(std::size_t count);
    /// Drops all lines and gives `count` new ones for filling. Every one of them must be written,
    /// since they hold nothing yet.
    [[nodiscard]] std::span<CMeasureRecord> NewLines(std::size_t count);
    /// Drops the lines and what came with them from a recorder or file. Model, release, hazard,
    /// endless, title, the extract list and the quantities carried stay.
    void Clear();

    // --- header values with a range ---

    /// Row of `SamplingTable`; negative is unknown, above the table its last row.
    void SetSampling(int row);
    /// Row of `IntervalTable`, likewise.
    void SetInterval(int row);
    [[nodiscard]] int GetSampling() const { return m_sampling; }
    [[nodiscard]] int GetInterval() const { return m_interval; }

    // --- marks ---

    /// False for an index outside the lines.
    [[nodiscard]] bool IsMarked(std::size_t index) const;
    /// The nearest marked line before `index`; -1 where there is none or no such line.
    [[nodiscard]] std::ptrdiff_t PreviousMark(std::size_t index) const;
    /// The nearest marked line behind `index`, likewise.
    [[nodiscard]] std::ptrdiff_t NextMark(std::size_t index) const;

    // --- analysis ---

    /// One pass over the lines: moves dates before the report's month and day into the next year
    /// (unless the data came from a file), flags abnormal lines and what lies behind a break of
    /// the time line, and rebuilds all statistics.
    void Analyse(const AnalysisSetting& setting);
    /// Puts the lines behind a break into the next year, where the analysis found that they are
    /// from the future and they are in order. For a download only. True if lines were changed.
    bool RepairYear();

    // --- signature ---

    /// A number that tells whether lines, their times or their flags have changed. Remembered
    /// until a line changes.
    [[nodiscard]] std::int64_t ComputeSignature() const;
    void StoreSignature() { m_signature = ComputeSignature(); }
    [[nodiscard]] bool SignatureUnchanged() const { return ComputeSignature() == m_signature; }

    // --- what the last analysis found ---

    std::ptrdiff_t m_firstBreak = -1; ///< first line of a break; the number of lines without one
    int m_abnormalCount = 0;
    std::vector<std::uint32_t> m_marks; ///< marked lines, ascending
    int m_extractCount = 0;             ///< lines with an extraction bit
    double m_maxAbs = 50.0;             ///< largest absolute value of any axis in G
    std::int64_t m_minStepMs = 0;       ///< smallest step between lines before the first abnormal
    bool m_badTemperature = false;
    bool m_badHumidity = false;
    bool m_badMsec = false;
    bool m_badTime = false;
    bool m_yearRepairable = false;

    // --- what came with the lines ---

    ExtractConditions m_extract;
    std::string m_fileName;       ///< name with extension, no folder
    std::int64_t m_signature = 0; ///< as it was when the data was last stored or loaded
    std::string m_modelName;
    std::string m_release;
    int m_threshold = Unknown; ///< tenths of G
    int m_hostNumber = Unknown;
    std::string m_title;
    int m_hazard = Unknown; ///< tenths of G
    bool m_endless = false;
    bool m_hasTemperature = true;
    bool m_hasHumidity = false;
    int m_typeNumber = Unknown; ///< "@Type=" of the recorder
    int m_dateVersion = 0;
    bool m_fromFile = false;

private:
    void LinesChanged() { m_knownSignature.reset(); }

    RecordArray m_records;
    int m_sampling = Unknown;
    int m_interval = Unknown;
    mutable std::optional<std::int64_t> m_knownSignature;
};

} // namespace skeldon
