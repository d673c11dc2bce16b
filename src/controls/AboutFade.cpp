#include "controls/AboutFade.h"

#include <algorithm>

namespace skeldon {

void CAboutFade::Press()
{
    m_wasPressed = true;
    switch (m_phase) {
    case Phase::FadingIn:
    case Phase::FadingOut:
        m_isEndWanted = true;
        break;
    case Phase::Shown:
        m_phase = Phase::FadingOut;
        m_steps = 0;
        break;
    case Phase::After:
        m_phase = Phase::Closed;
        break;
    case Phase::Before:
    case Phase::Closed:
        break;
    }
}

void CAboutFade::DoubleClick()
{
    if (m_wasPressed)
        Press();
}

void CAboutFade::Tick()
{
    switch (m_phase) {
    case Phase::Before:
        m_phase = Phase::FadingIn;
        m_steps = 0;
        break;
    case Phase::FadingIn:
        Step(AlphaStep, FullAlpha, Phase::Shown);
        break;
    case Phase::FadingOut:
        Step(-AlphaStep, 0, Phase::After);
        break;
    case Phase::After:
        m_phase = Phase::Closed;
        break;
    case Phase::Shown:
    case Phase::Closed:
        break;
    }
}

void CAboutFade::Step(int by, int end, Phase next)
{
    ++m_steps;
    m_alpha = std::clamp(m_alpha + by, 0, FullAlpha);
    if (m_isEndWanted || m_alpha == end || m_steps >= MostSteps) {
        m_alpha = end;
        m_isEndWanted = false;
        m_phase = next;
    }
}

int CAboutFade::DelayMs() const
{
    switch (m_phase) {
    case Phase::Before:
    case Phase::After:
        return HoldMs;
    case Phase::FadingIn:
    case Phase::FadingOut:
        return m_isEndWanted ? 0 : StepMs;
    case Phase::Shown:
    case Phase::Closed:
        break;
    }
    return -1;
}

} // namespace skeldon
