#include "setup/conditions/MeasureCondition.h"

#include "setup/conditions/ProfileFile.h"
#include "setup/conditions/ProfileFolders.h"
#include "setup/tables/GScale.h"
#include "setup/tables/IntervalTable.h"
#include "setup/tables/RecorderModel.h"

#include <algorithm>

namespace skeldon {

namespace {

/// Moves `row` by `step` within a table of `count` rows.
bool MoveRow(int& row, int step, int count)
{
    const int moved = row + step;
    if (moved < 0 || moved >= count)
        return false;
    row = moved;
    return true;
}

bool MoveUp(int& level, int highest)
{
    if (level >= highest)
        return false;
    level = StepGUp(level);
    return true;
}

bool MoveDown(int& level)
{
    if (level < 1)
        return false;
    level = StepGDown(level);
    return true;
}

/// `step` 0 stands for a recorder that takes every level up to `highest`.
LevelFit CheckLevel(int level, int highest, int step, int& value)
{
    value = 0;
    if (level > highest)
        return LevelFit::Unusable;
    value = step == 0 ? level : level / step * step;
    return value == level ? LevelFit::Usable : LevelFit::OffStep;
}

} // namespace

CMeasureCondition::CMeasureCondition()
{
    MakeProfileFoldersOnce();
}

void CMeasureCondition::SetSampling(int row)
{
    m_sampling = std::clamp(row, 0, SamplingTable::Count - 1);
}

void CMeasureCondition::SetInterval(int row)
{
    m_interval = std::clamp(row, 0, IntervalTable::Count - 1);
}

bool CMeasureCondition::NextSampling()
{
    return MoveRow(m_sampling, 1, SamplingTable::Count);
}

bool CMeasureCondition::PreviousSampling()
{
    return MoveRow(m_sampling, -1, SamplingTable::Count);
}

bool CMeasureCondition::NextInterval()
{
    return MoveRow(m_interval, 1, IntervalTable::Count);
}

bool CMeasureCondition::PreviousInterval()
{
    return MoveRow(m_interval, -1, IntervalTable::Count);
}

bool CMeasureCondition::ThresholdUp()
{
    return MoveUp(Threshold, HighestThreshold);
}

bool CMeasureCondition::ThresholdDown()
{
    return MoveDown(Threshold);
}

bool CMeasureCondition::HazardUp()
{
    return MoveUp(Hazard, HighestHazard);
}

bool CMeasureCondition::HazardDown()
{
    return MoveDown(Hazard);
}

std::error_code CMeasureCondition::Load(const std::filesystem::path& path)
{
    return LoadProfile(path, *this);
}

std::error_code CMeasureCondition::Save()
{
    const ProfileFolders folders = FindProfileFolders();
    MakeFolders(folders);
    return SaveProfile(*this, folders.profiles);
}

LevelFit CMeasureCondition::CheckThreshold(const RecorderFacts& recorder, int& value) const
{
    const RecorderModel& model = ModelOfType(recorder.type);
    return CheckLevel(Threshold, model.highestThreshold, model.thresholdStep, value);
}

LevelFit CMeasureCondition::CheckHazard(const RecorderFacts& recorder, int& value) const
{
    const RecorderModel& model = ModelOfType(recorder.type);
    if (!recorder.isAlpha)
        return CheckLevel(Hazard, 0, 0, value);
    return CheckLevel(Hazard, model.highestHazard, model.hazardStep, value);
}

bool CMeasureCondition::SameConditions(const CMeasureCondition& other) const
{
    return m_sampling == other.m_sampling && m_interval == other.m_interval &&
           Threshold == other.Threshold && OverThreshold == other.OverThreshold &&
           SerialNo == other.SerialNo && StartOpt == other.StartOpt && Alarm == other.Alarm &&
           Hazard == other.Hazard && Endless == other.Endless && Buzzer == other.Buzzer;
}

bool CMeasureCondition::SameKeepMode(const CMeasureCondition& other) const
{
    return SaveFileType == other.SaveFileType && SaveFileSpecify == other.SaveFileSpecify &&
           ExtractConditionsToString(Extract) == ExtractConditionsToString(other.Extract) &&
           ExtractSave == other.ExtractSave && LoadProfType == other.LoadProfType &&
           LoadProfName == other.LoadProfName && ClearData == other.ClearData;
}

} // namespace skeldon
