#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include <unistd.h>

namespace skeldon {

/// A folder of one test's own, gone with everything in it at the test's end.
class CTestFolder
{
public:
    CTestFolder()
    {
        std::string name = (std::filesystem::temp_directory_path() / "conditionsXXXXXX").string();
        m_path = ::mkdtemp(name.data());
    }
    ~CTestFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    CTestFolder(const CTestFolder&) = delete;
    CTestFolder& operator=(const CTestFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& Path() const { return m_path; }
    [[nodiscard]] std::filesystem::path operator/(std::string_view name) const
    {
        return m_path / name;
    }
    /// How many names the folder holds.
    [[nodiscard]] std::ptrdiff_t Count() const
    {
        return std::distance(std::filesystem::directory_iterator(m_path), {});
    }

private:
    std::filesystem::path m_path;
};

/// Takes root's rights from this process for the time of a test, so that permissions count.
class CPlainUser
{
public:
    CPlainUser()
        : m_before(::geteuid())
    {
        constexpr uid_t Nobody = 65534;
        if (m_before == 0 && ::seteuid(Nobody) != 0)
            std::abort();
    }
    ~CPlainUser()
    {
        if (::seteuid(m_before) != 0)
            std::abort();
    }
    CPlainUser(const CPlainUser&) = delete;
    CPlainUser& operator=(const CPlainUser&) = delete;

private:
    uid_t m_before;
};

inline void SetMode(const std::filesystem::path& path, unsigned mode)
{
    std::filesystem::permissions(path, static_cast<std::filesystem::perms>(mode));
}

inline void WriteBytes(const std::filesystem::path& path, std::string_view bytes)
{
    std::ofstream(path, std::ios::binary) << bytes;
}

inline std::string ReadBytes(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace skeldon
