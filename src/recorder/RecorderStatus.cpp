#include "recorder/RecorderStatus.h"

#include "setup/tables/RecorderModel.h"

namespace skeldon {

std::string_view RecorderStatus::GetModelName() const
{
    return ModelOfType(m_type).word;
}

double RecorderStatus::GetMaxG() const
{
    return ModelOfType(m_type).maxG;
}

double RecorderStatus::GetThresholdFactor() const
{
    return ModelOfType(m_type).thresholdFactor;
}

bool RecorderStatus::HasBuzzer() const
{
    return m_type == QmType ? m_alphaFirmware : m_hasBuzzerKey;
}

bool RecorderStatus::CanChangeRange() const
{
    return m_alphaFirmware && GetOtherRange() > 0.0;
}

double RecorderStatus::GetOtherRange() const
{
    switch (m_type) {
    case 1:
        return 2.0;
    case 2:
        return 1.0;
    case 10:
        return 20.0;
    case 20:
        return 10.0;
    default:
        return 0.0;
    }
}

} // namespace skeldon
