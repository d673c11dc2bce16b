#pragma once

#include "app/SkeldonApp.h"

#include <QString>

#include <atomic>
#include <string>

namespace skeldon::test {

/// The machine's clock, which a test may move on: what waits for the end of a silence need not
/// wait in earnest.
class CMovedClock final : public CClock
{
public:
    [[nodiscard]] std::uint32_t TickMs() override { return m_system.TickMs() + m_moved; }
    void SleepMs(std::uint32_t milliseconds) override { m_system.SleepMs(milliseconds); }
    [[nodiscard]] CalendarSeconds Now() override { return m_system.Now(); }
    void MoveOn(std::uint32_t milliseconds) { m_moved += milliseconds; }

private:
    CSystemClock m_system;
    std::atomic<std::uint32_t> m_moved = 0;
};

/// Name of the shared block and of its mutex that this process alone uses. The block goes with the
/// process.
[[nodiscard]] const std::string& SharedName();

/// What an application object gets in a test: settings of this file, with lock files in the same
/// folder; `CScriptedPrompts`; a shared block that no program knows of. The cable is still missing.
[[nodiscard]] AppServices TestServices(const QString& settingsFile, const QString& language,
                                       CClock& clock);

} // namespace skeldon::test
