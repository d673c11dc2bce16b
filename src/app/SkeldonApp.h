#pragma once

#include "app/Colour.h"
#include "app/Frame.h"
#include "app/Prompts.h"
#include "app/Settings.h"

#include <memory>

namespace skeldon {

/// Unit of the accelerations on the screen; the numbers are the settings store's.
enum class DispUnit
{
    G = 0,
    MetresPerSecondSquared = 1,
    Gal = 2,
};

/// The one application object: what every window needs. Made first in `main` and gone last.
class CSkeldonApp
{
public:
    CSkeldonApp(std::unique_ptr<CSettings> settings, std::unique_ptr<CPrompts> prompts);
    CSkeldonApp(const CSkeldonApp&) = delete;
    CSkeldonApp& operator=(const CSkeldonApp&) = delete;
    ~CSkeldonApp();

    [[nodiscard]] CSettings& Settings() { return *m_settings; }
    [[nodiscard]] CPrompts& Prompts() { return *m_prompts; }
    /// The main window; null while there is none. Set by the window itself.
    [[nodiscard]] CFrame* Frame() const { return m_frame; }
    void SetFrame(CFrame* frame) { m_frame = frame; }
    /// Whether the system's language is Japanese.
    [[nodiscard]] bool IsJapanese() const;

    QString m_language;                    ///< the system's language by its English name
    bool m_ctrlAtStart = false;            ///< Ctrl was held when the program started
    ColourRef m_viewBaseColour = 0xD8E9EC; ///< face of the forms
    DispUnit m_dispUnit = DispUnit::G;

private:
    std::unique_ptr<CSettings> m_settings;
    std::unique_ptr<CPrompts> m_prompts;
    CFrame* m_frame = nullptr;
};

/// The application object, which must exist.
[[nodiscard]] CSkeldonApp& App();
/// Shows a text in the status bar, where there is a main window.
void SetStatusText(const QString& text);
/// Puts "Ready" back into the status bar.
void ResetStatus();

} // namespace skeldon
