#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace skeldon::test {

/// A folder of one test's own. It goes away with everything in it.
class CTemporaryFolder
{
public:
    CTemporaryFolder();
    ~CTemporaryFolder();
    CTemporaryFolder(const CTemporaryFolder&) = delete;
    CTemporaryFolder& operator=(const CTemporaryFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& Path() const { return m_folder; }
    [[nodiscard]] std::filesystem::path Path(std::string_view name) const
    {
        return m_folder / name;
    }
    [[nodiscard]] std::filesystem::path operator/(std::string_view name) const
    {
        return m_folder / name;
    }
    /// Names of all entries, ascending.
    [[nodiscard]] std::vector<std::string> Names() const;

private:
    std::filesystem::path m_folder;
};

/// The whole file. Throws where there is none that can be read, so that no test takes a missing
/// file for an empty one.
[[nodiscard]] std::string ReadText(const std::filesystem::path& path);
/// Makes or replaces the file. Throws where that fails.
void WriteText(const std::filesystem::path& path, std::string_view text);
void SetMode(const std::filesystem::path& path, unsigned mode);

} // namespace skeldon::test
