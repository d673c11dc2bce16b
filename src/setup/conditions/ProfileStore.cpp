#include "setup/conditions/ProfileStore.h"

#include "base/Paths.h"
#include "base/TextScan.h"
#include "setup/conditions/platform/WholeFile.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

namespace skeldon {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view Extension = "skp";

/// By title; files of one title by the bytes of their names, so that the order is the same each
/// time.
bool IsBefore(const fs::path& a, const fs::path& b)
{
    const std::string nameA = a.filename().string();
    const std::string nameB = b.filename().string();
    const auto title = [](std::string_view name) { return name.substr(0, name.rfind('.')); };
    const int order = CompareNoCase(title(nameA), title(nameB));
    return order != 0 ? order < 0 : nameA < nameB;
}

struct Listing
{
    std::vector<fs::path> files; ///< regular ones, links followed
    bool isAnyFound = false;     ///< something of the extension, a folder perhaps
};

Listing ListProfiles(const fs::path& folder)
{
    Listing listing;
    std::error_code error;
    fs::directory_iterator entry(folder, error);
    while (!error && entry != fs::directory_iterator()) {
        if (EqualNoCase(ExtensionOf(entry->path().native()), Extension)) {
            listing.isAnyFound = true;
            std::error_code isGone;
            if (entry->is_regular_file(isGone))
                listing.files.push_back(entry->path());
        }
        entry.increment(error);
    }
    std::sort(listing.files.begin(), listing.files.end(), IsBefore);
    return listing;
}

} // namespace

std::vector<CProfile> ReadProfiles(const std::vector<fs::path>& paths, bool templates)
{
    std::vector<CProfile> entries;
    entries.reserve(paths.size());
    CProfile profile;
    for (const fs::path& path : paths) {
        [[maybe_unused]] const std::error_code ignored = profile.Load(path);
        if (templates)
            profile.SerialNo = 0;
        entries.push_back(profile);
    }
    return entries;
}

CProfileStore::CProfileStore(ProfileFolders folders)
    : m_folders(std::move(folders))
{}

bool CProfileStore::Load(bool templates)
{
    const Listing listing = ListProfiles(templates ? m_folders.templates : m_folders.profiles);
    m_entries = ReadProfiles(listing.files, templates);
    return listing.isAnyFound;
}

CProfile CProfileStore::GetAt(int index) const
{
    return m_entries.at(static_cast<std::size_t>(index));
}

void CProfileStore::SetAt(int index, const CProfile& entry)
{
    m_entries.at(static_cast<std::size_t>(index)) = entry;
}

void CProfileStore::SetSize(int count)
{
    m_entries.resize(static_cast<std::size_t>(count));
}

std::error_code CProfileStore::RemoveAt(int index)
{
    const fs::path path = GetAt(index).FilePath;
    if (!path.empty()) {
        if (const std::error_code error = DeleteFile(path))
            return error;
    }
    m_entries.erase(m_entries.begin() + index);
    return {};
}

int CProfileStore::FindByHostId(int id) const
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [id](const CProfile& entry) { return entry.SerialNo == id; });
    return found == m_entries.end() ? -1 : static_cast<int>(found - m_entries.begin());
}

int CProfileStore::NextFreeHostId(int from, int allowed) const
{
    if (from >= CMeasureCondition::HighestHostNumber)
        return from;
    for (int id = from + 1; id <= CMeasureCondition::HighestHostNumber; ++id) {
        if (id == allowed || FindByHostId(id) < 0)
            return id;
    }
    return from;
}

int CProfileStore::PrevFreeHostId(int from, int allowed) const
{
    if (from <= 1)
        return from;
    for (int id = from - 1; id >= 1; --id) {
        if (id == allowed || FindByHostId(id) < 0)
            return id;
    }
    return from;
}

} // namespace skeldon
