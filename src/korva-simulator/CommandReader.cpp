#include "korva-simulator/CommandReader.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace skeldon {

namespace {

/// The commands; "9" stands for a digit and "?" for any printable character.
constexpr std::array<std::string_view, 19> Forms = {"m",    "p",
                                                    "i?",   "j?",
                                                    "d99",  "k9",
                                                    "N99",  "w99",
                                                    "Ox99", "Oz99",
                                                    "z9",   "s9999 99/99 99:99:99",
                                                    "t",    "l99/99 99:99",
                                                    "D",    "G",
                                                    "x",    "#",
                                                    "99"};

bool Fits(char form, char byte)
{
    if (form == '9')
        return byte >= '0' && byte <= '9';
    if (form == '?')
        return byte > ' ' && byte <= '~';
    return form == byte;
}

/// The form that `text` is the beginning of; empty where there is none.
std::string_view FormOf(std::string_view text)
{
    const auto form = std::ranges::find_if(Forms, [&](std::string_view candidate) {
        return text.size() <= candidate.size() &&
               std::ranges::equal(candidate.substr(0, text.size()), text, Fits);
    });
    return form == Forms.end() ? std::string_view() : *form;
}

} // namespace

std::optional<std::string> CCommandReader::Feed(char byte)
{
    m_partial += byte;
    std::string_view form = FormOf(m_partial);
    if (form.empty()) {
        // The byte may begin a command of its own.
        m_partial.assign(1, byte);
        form = FormOf(m_partial);
        if (form.empty()) {
            m_partial.clear();
            return std::nullopt;
        }
    }
    if (form.size() != m_partial.size())
        return std::nullopt;
    return std::exchange(m_partial, {});
}

} // namespace skeldon
