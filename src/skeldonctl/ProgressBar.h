#pragma once

#include <cstdint>
#include <string_view>

namespace skeldon {

/// A bar on the terminal's last line while something long goes on; nothing where standard error
/// is no terminal.
class CProgressBar
{
public:
    /// `label` must outlive the bar; `range` is the position that means all.
    CProgressBar(std::string_view label, std::uint64_t range);
    /// Takes the bar off the terminal.
    ~CProgressBar();
    CProgressBar(const CProgressBar&) = delete;
    CProgressBar& operator=(const CProgressBar&) = delete;

    /// Draws the bar anew where it would look different.
    void SetPosition(std::uint64_t position);

private:
    std::string_view m_label;
    std::uint64_t m_range;
    bool m_onTerminal;
    int m_percent = -1; ///< as drawn
};

} // namespace skeldon
