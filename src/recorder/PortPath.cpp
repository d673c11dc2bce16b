#include "recorder/PortPath.h"

#include "recorder/WireNumber.h"

#include <algorithm>

namespace skeldon {

namespace {

constexpr std::size_t LetterCount = 3;
constexpr int LastPlainNumber = 9;

bool IsLetter(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

} // namespace

std::optional<std::string> PortPath(std::string_view name)
{
    if (name.find('/') != std::string_view::npos)
        return std::string(name);
    if (name.size() <= LetterCount)
        return std::nullopt;
    const std::string_view letters = name.substr(0, LetterCount);
    const std::optional<int> number = ReadSignedWireNumber(name.substr(LetterCount));
    if (!number || !std::all_of(letters.begin(), letters.end(), IsLetter))
        return std::nullopt;
    return *number > LastPlainNumber ? R"(\\.\COM)" + std::to_string(*number) : std::string(name);
}

} // namespace skeldon
