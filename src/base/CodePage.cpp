#include "base/CodePage.h"

#include "base/TextScan.h"

#include <cstdlib>

namespace skeldon {

namespace {

bool IsContinuation(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

/// Length of the well-formed UTF-8 character at the start of `bytes`, 0 where there is none.
std::size_t CharacterLength(std::string_view bytes)
{
    const auto at = [&bytes](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    const unsigned char lead = at(0);
    if (lead < 0x80)
        return 1;
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || bytes.size() < length)
        return 0;
    for (std::size_t i = 1; i < length; ++i) {
        if (!IsContinuation(bytes[i]))
            return 0;
    }
    // Overlong forms, surrogates, and what lies behind U+10FFFF.
    if ((lead == 0xE0 && at(1) < 0xA0) || (lead == 0xED && at(1) > 0x9F) ||
        (lead == 0xF0 && at(1) < 0x90) || (lead == 0xF4 && at(1) > 0x8F))
        return 0;
    return length;
}

} // namespace

CodePage DataCodePage()
{
    for (const char* const name : {"LC_ALL", "LC_CTYPE", "LANG"}) {
        const char* const value = std::getenv(name);
        if (value == nullptr || *value == '\0')
            continue;
        const bool japanese = StartsWithNoCase(value, "ja_") || EqualNoCase(value, "ja") ||
                              StartsWithNoCase(value, "ja.");
        return japanese ? CodePage::Japanese : CodePage::Western;
    }
    return CodePage::Western;
}

std::string_view CodePageName(CodePage page)
{
    return page == CodePage::Japanese ? "CP932" : "WINDOWS-1252";
}

bool IsUtf8(std::string_view bytes)
{
    while (!bytes.empty()) {
        const std::size_t length = CharacterLength(bytes);
        if (length == 0)
            return false;
        bytes.remove_prefix(length);
    }
    return true;
}

} // namespace skeldon
