#include "controls/NameRule.h"

#include <algorithm>

namespace skeldon {

bool IsNameCharacter(char16_t character)
{
    constexpr std::u16string_view Forbidden = u"\"*./:<>?\\|";
    return Forbidden.find(character) == std::u16string_view::npos;
}

std::size_t CountForbidden(std::u16string_view text)
{
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char16_t c) { return !IsNameCharacter(c); }));
}

} // namespace skeldon
