#include "base/Paths.h"

#include "base/TextScan.h"

#include <algorithm>

namespace skeldon {

namespace {

constexpr std::string_view Separators = "/\\";

bool IsSeparator(char c)
{
    return Separators.find(c) != std::string_view::npos;
}

/// Length of the root that `path` begins with, "/" or "C:\\"; 0 without one.
std::size_t RootLength(std::string_view path)
{
    if (!path.empty() && IsSeparator(path[0]))
        return 1;
    const bool hasDrive = path.size() >= 3 && path[1] == ':' && ToLowerAscii(path[0]) >= 'a' &&
                          ToLowerAscii(path[0]) <= 'z';
    return hasDrive && IsSeparator(path[2]) ? 3 : 0;
}

} // namespace

std::string_view DirectoryOf(std::string_view path)
{
    const std::size_t at = path.find_last_of(Separators);
    if (at == std::string_view::npos)
        return {};
    return path.substr(0, std::max(at, RootLength(path)));
}

std::string_view FileNameOf(std::string_view path)
{
    const std::size_t at = path.find_last_of(Separators);
    return at == std::string_view::npos ? path : path.substr(at + 1);
}

std::string_view FileTitleOf(std::string_view path)
{
    const std::string_view name = FileNameOf(path);
    return name.substr(0, name.rfind('.'));
}

std::string_view ExtensionOf(std::string_view path)
{
    const std::string_view name = FileNameOf(path);
    const std::size_t point = name.rfind('.');
    return point == std::string_view::npos ? std::string_view{} : name.substr(point + 1);
}

std::string_view WithoutTrailingSeparator(std::string_view path)
{
    if (path.size() > RootLength(path) && IsSeparator(path.back()))
        path.remove_suffix(1);
    return path;
}

std::filesystem::path WithExtension(const std::filesystem::path& path, std::string_view extension)
{
    const std::string text = path.string();
    const std::string_view name = FileNameOf(text);
    const std::size_t point = name.rfind('.');
    if (point != std::string_view::npos && EqualNoCase(name.substr(point + 1), extension))
        return path;
    const std::size_t keep =
        point == std::string_view::npos ? text.size() : text.size() - name.size() + point;
    return text.substr(0, keep) + "." + std::string(extension);
}

} // namespace skeldon
