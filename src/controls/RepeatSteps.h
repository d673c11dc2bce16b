#pragma once

namespace skeldon {

/// When a button that is held down gives its steps. Times in milliseconds.
class CRepeatSteps
{
public:
    static constexpr int FirstDelayMs = 500;
    static constexpr int DelayMs = 100;
    static constexpr int FastDelayMs = 10;
    /// Steps at the usual pace before a button that speeds up does so.
    static constexpr int StepsBeforeFast = 10;

    bool m_repeats = true;
    bool m_speedsUp = false;

    /// The button goes down. Gives how long to wait for the first tick; 0 for no tick.
    int Press();
    /// A tick, which is one step. Gives how long to wait for the next tick.
    int Tick();
    /// Whether a click is a step of its own: not at the end of a hold that gave steps already.
    [[nodiscard]] bool ClickIsStep() const { return m_ticks == 0; }
    /// The button is let go; the next click stands for itself.
    void Release();

private:
    int m_ticks = 0;
};

} // namespace skeldon
