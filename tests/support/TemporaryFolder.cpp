#include "support/TemporaryFolder.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace skeldon::test {

namespace fs = std::filesystem;

CTemporaryFolder::CTemporaryFolder()
{
    std::string name = (fs::temp_directory_path() / "skeldon-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr)
        throw std::runtime_error("no temporary folder");
    m_folder = name;
}

CTemporaryFolder::~CTemporaryFolder()
{
    std::error_code ignored;
    fs::permissions(m_folder, fs::perms::owner_all, ignored);
    fs::remove_all(m_folder, ignored);
}

std::vector<std::string> CTemporaryFolder::Names() const
{
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(m_folder))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

std::string ReadText(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw std::runtime_error("can not read " + path.string());
    return {std::istreambuf_iterator<char>(file), {}};
}

void WriteText(const fs::path& path, std::string_view text)
{
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(text.data(), static_cast<std::streamsize>(text.size()));
    if (!file.flush())
        throw std::runtime_error("can not write " + path.string());
}

void SetMode(const fs::path& path, unsigned mode)
{
    fs::permissions(path, static_cast<fs::perms>(mode));
}

} // namespace skeldon::test
