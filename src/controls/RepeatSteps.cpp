#include "controls/RepeatSteps.h"

namespace skeldon {

int CRepeatSteps::Press()
{
    m_ticks = 0;
    return m_repeats ? FirstDelayMs : 0;
}

int CRepeatSteps::Tick()
{
    ++m_ticks;
    // The first tick comes after the longer delay and is none at the usual pace.
    return m_speedsUp && m_ticks > StepsBeforeFast ? FastDelayMs : DelayMs;
}

void CRepeatSteps::Release()
{
    m_ticks = 0;
}

} // namespace skeldon
