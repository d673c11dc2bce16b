#pragma once

#include "data/ExtractConditions.h"
#include "setup/tables/SamplingTable.h"

#include <filesystem>
#include <string>
#include <system_error>

namespace skeldon {

/// What the fitting of conditions depends on, as the last status report told it.
struct RecorderFacts
{
    int type = 0;         ///< see `RecorderModel`
    bool isAlpha = false; ///< alpha firmware: it knows hazard and endless
    bool hasBuzzer = false;
};

/// How a threshold or hazard suits a recorder.
enum class LevelFit
{
    Unusable = 0, ///< beyond what the recorder reaches
    OffStep = 1,  ///< between two values of the recorder's step
    Usable = 2,
};

/// What a recorder is to measure, and how what it measured is to be kept. Levels are whole tenths
/// of G. Nothing but the two rows is checked: the limits apply where a profile is read.
class CMeasureCondition
{
public:
    static constexpr int HighestThreshold = 490;
    static constexpr int HighestHazard = 495;
    static constexpr int HighestStartOption = 90;
    static constexpr int HighestHostNumber = 99;

    /// Makes, once in a process, the folders of profiles and templates.
    CMeasureCondition();

    // --- the rows of `SamplingTable` and `IntervalTable` ---

    [[nodiscard]] int GetSampling() const { return m_sampling; }
    /// Clamps to the table.
    void SetSampling(int row);
    [[nodiscard]] int GetInterval() const { return m_interval; }
    /// Clamps to the table.
    void SetInterval(int row);

    // --- single steps; false, and nothing changed, where there is no further one ---

    /// To the next higher row, a shorter period.
    bool NextSampling();
    bool PreviousSampling();
    bool NextInterval();
    bool PreviousInterval();
    /// Along the scale of `StepGUp`; refused from the highest value on.
    bool ThresholdUp();
    /// Refused below 1.
    bool ThresholdDown();
    bool HazardUp();
    bool HazardDown();

    // --- on disk ---

    /// As `LoadProfile`.
    [[nodiscard]] std::error_code Load(const std::filesystem::path& path);
    /// As `SaveProfile`, always into `ProfileDirectory`, which is made at need. An entry that came
    /// from a template becomes a profile by it.
    [[nodiscard]] std::error_code Save();

    // --- against a recorder ---

    /// `value` is what the recorder would take: the threshold itself, the nearest lower level of
    /// the recorder's step, or 0 where the threshold is unusable.
    [[nodiscard]] LevelFit CheckThreshold(const RecorderFacts& recorder, int& value) const;
    /// The same for the hazard. A recorder that has none takes 0 alone.
    [[nodiscard]] LevelFit CheckHazard(const RecorderFacts& recorder, int& value) const;

    // --- comparisons ---

    /// Whether all that a recorder measures by is equal.
    [[nodiscard]] bool SameConditions(const CMeasureCondition& other) const;
    /// Whether the keep-mode block is equal; texts compare byte for byte, extract conditions by
    /// their text form.
    [[nodiscard]] bool SameKeepMode(const CMeasureCondition& other) const;

    std::filesystem::path FilePath; ///< where the entry was read from or last written to
    std::string ProfileName;        ///< the file's title; in the system's encoding
    int Threshold = 0;              ///< 0..490
    bool OverThreshold = false;     ///< the recorder flags the excess of the threshold
    int SerialNo = 0;               ///< host number 0..99; 0 means none given
    int StartOpt = 5;               ///< see `StartOptionText`
    bool Alarm = false;             ///< kept in files; nothing edits or sends it
    int Hazard = 0;                 ///< 0..495; 0 means off
    bool Endless = false;           ///< cyclic recording
    bool Buzzer = false;

    // The keep-mode block: kept with the profile, without other effect.
    int SaveFileType = 0; ///< form of `MakeSaveFileName`, 0..2
    std::string SaveFileSpecify;
    ExtractConditions Extract;
    bool ExtractSave = false;
    int LoadProfType = 0; ///< 0..2
    std::string LoadProfName;
    int ClearData = 0; ///< 0..2

private:
    int m_sampling = SamplingTable::StandardRow;
    int m_interval = 0;
};

/// A condition as an entry of `CProfileStore`.
using CProfile = CMeasureCondition;

} // namespace skeldon
