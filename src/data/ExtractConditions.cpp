#include "data/ExtractConditions.h"

#include "base/NumberFormat.h"
#include "base/TextScan.h"
#include "data/RecordFlags.h"

#include <bit>

namespace skeldon {

namespace {

constexpr int LevelDecimals = 6; // of "%f"

/// Takes the white space that may stand before a token off the front: blank, 0xA0, tab, the
/// ideographic blank of the Japanese code page, LF, CR and 0x1A.
void SkipBlank(std::string_view& text)
{
    constexpr std::string_view Single = " \xA0\t\n\r\x1A";
    constexpr std::string_view Ideographic = "\x81\x40";
    while (!text.empty()) {
        if (Single.find(text.front()) != std::string_view::npos)
            text.remove_prefix(1);
        else if (text.starts_with(Ideographic))
            text.remove_prefix(Ideographic.size());
        else
            return;
    }
}

/// Cuts the text up to the next comma off the front, without blanks before it.
std::string_view TakeToken(std::string_view& text)
{
    SkipBlank(text);
    const std::size_t comma = text.find(',');
    std::string_view token = text.substr(0, comma);
    text.remove_prefix(comma == std::string_view::npos ? text.size() : comma + 1);
    while (!token.empty() &&
           (token.back() == '\n' || token.back() == '\r' || token.back() == '\x1A'))
        token.remove_suffix(1);
    return token;
}

bool IsChannel(std::uint16_t channel)
{
    return std::has_single_bit(channel) && (channel & RecordFlag::Extracted) != 0;
}

void AppendLevel(std::string& text, double level)
{
    text += FixedText(level, LevelDecimals);
    text += ',';
}

} // namespace

std::string ExtractConditionsToString(const ExtractConditions& conditions)
{
    std::string text;
    for (const ExtractCondition& condition : conditions) {
        text += std::to_string(condition.channel) + ',';
        AppendLevel(text, condition.firstLevel);
        text += condition.firstEnabled ? "1," : "0,";
        AppendLevel(text, condition.secondLevel);
        text += condition.secondEnabled ? "1," : "0,";
    }
    return text;
}

ExtractConditions ExtractConditionsFromString(std::string_view text)
{
    ExtractConditions conditions;
    for (SkipBlank(text); !text.empty(); SkipBlank(text)) {
        ExtractCondition condition;
        condition.channel = static_cast<std::uint16_t>(ScanInt(TakeToken(text)));
        condition.firstLevel = ScanDouble(TakeToken(text));
        condition.firstEnabled = ScanInt(TakeToken(text)) != 0;
        condition.secondLevel = ScanDouble(TakeToken(text));
        condition.secondEnabled = ScanInt(TakeToken(text)) != 0;
        if (IsChannel(condition.channel))
            conditions.push_back(condition);
    }
    return conditions;
}

} // namespace skeldon
