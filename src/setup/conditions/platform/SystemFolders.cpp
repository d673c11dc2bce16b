#include "setup/conditions/platform/SystemFolders.h"

#include "base/TextScan.h"

#include <array>
#include <cstdlib>
#include <fstream>
#include <string>
#include <system_error>

#include <pwd.h>
#include <unistd.h>

namespace skeldon {

namespace fs = std::filesystem;

namespace {

/// More than any "user-dirs.dirs" holds; what lies behind it does not count.
constexpr std::size_t UserDirsLimit = std::size_t{64} * 1024;

/// The variable's value where it is an absolute path, else nothing: a relative one would lead
/// elsewhere each time.
fs::path AbsoluteFromEnvironment(const char* variable)
{
    const char* value = std::getenv(variable); // NOLINT(concurrency-mt-unsafe)
    fs::path path = value == nullptr ? "" : value;
    return path.is_absolute() ? path : fs::path();
}

fs::path HomeFolder()
{
    fs::path home = AbsoluteFromEnvironment("HOME");
    if (!home.empty())
        return home;
    std::array<char, std::size_t{16} * 1024> buffer{};
    passwd entry{};
    passwd* found = nullptr;
    if (::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &found) != 0 ||
        found == nullptr)
        return {};
    return found->pw_dir;
}

fs::path BelowHome(const fs::path& part)
{
    const fs::path home = HomeFolder();
    return home.empty() ? home : home / part;
}

std::string ReadStart(const fs::path& path)
{
    std::error_code ignored;
    std::string text;
    if (!fs::is_regular_file(path, ignored))
        return text;
    std::ifstream file(path, std::ios::binary);
    text.resize(UserDirsLimit);
    file.read(text.data(), static_cast<std::streamsize>(text.size()));
    text.resize(static_cast<std::size_t>(file.gcount()));
    return text;
}

/// The text between the double quotes of a shell assignment, with backslashes taken away.
std::string Unquoted(std::string_view value)
{
    std::string text;
    for (std::size_t i = 1; i < value.size() && value[i] != '"'; ++i) {
        if (value[i] == '\\' && i + 1 < value.size())
            ++i;
        text += value[i];
    }
    return text;
}

} // namespace

fs::path DocumentsFolderFrom(std::string_view text, const fs::path& home)
{
    constexpr std::string_view Start = "XDG_DOCUMENTS_DIR=\"";
    constexpr std::string_view Home = "$HOME/";
    fs::path folder;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        const std::string_view line = TrimWhite(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (!line.starts_with(Start))
            continue;
        const std::string value = Unquoted(line.substr(Start.size() - 1));
        if (value.starts_with(Home))
            folder = home / fs::path(value.substr(Home.size())).relative_path();
        else if (value.starts_with('/'))
            folder = value;
    }
    return folder;
}

fs::path UserDataFolder()
{
    fs::path folder = AbsoluteFromEnvironment("XDG_DATA_HOME");
    return folder.empty() ? BelowHome(".local/share") : folder;
}

fs::path DocumentsFolder()
{
    fs::path settings = AbsoluteFromEnvironment("XDG_CONFIG_HOME");
    if (settings.empty())
        settings = BelowHome(".config");
    fs::path folder;
    if (!settings.empty())
        folder = DocumentsFolderFrom(ReadStart(settings / "user-dirs.dirs"), HomeFolder());
    return folder.empty() ? BelowHome("Documents") : folder;
}

fs::path ProgramFolder()
{
    std::error_code error;
    const fs::path program = fs::read_symlink("/proc/self/exe", error);
    return error ? fs::path() : program.parent_path();
}

} // namespace skeldon
