#pragma once

#include "setup/conditions/MeasureCondition.h"
#include "setup/conditions/ProfileFolders.h"

#include <cstddef>
#include <filesystem>
#include <system_error>
#include <vector>

namespace skeldon {

/// The entries of one folder, the user's profiles or the program's templates. Entries are held and
/// handed out by value. An index that is asked for must be one of an entry.
class CProfileStore
{
public:
    explicit CProfileStore(ProfileFolders folders = FindProfileFolders());

    /// Replaces the entries by the contents of one of the two folders: every regular file with the
    /// extension skp in any letter case, sorted by name without regard to case. Templates come
    /// with host number 0. False where nothing of that extension was found.
    bool Load(bool templates);

    [[nodiscard]] int GetCount() const { return static_cast<int>(m_entries.size()); }
    [[nodiscard]] CProfile GetAt(int index) const;
    void SetAt(int index, const CProfile& entry);
    /// New entries at the end are new objects.
    void SetSize(int count);

    /// Deletes the entry's file, if there is one, and the entry. On a failure both stay, and the
    /// result tells the system's reason.
    [[nodiscard]] std::error_code RemoveAt(int index);

    /// The first entry with that host number, or -1.
    [[nodiscard]] int FindByHostId(int id) const;
    /// The smallest number above `from`, up to 99, that no entry uses or that is `allowed`; `from`
    /// where there is none. -1 allows no used number.
    [[nodiscard]] int NextFreeHostId(int from, int allowed) const;
    /// The largest such number below `from`, down to 1.
    [[nodiscard]] int PrevFreeHostId(int from, int allowed) const;

private:
    ProfileFolders m_folders;
    std::vector<CProfile> m_entries;
};

/// Reads those files in their order. One that is gone meanwhile repeats the entry before it.
[[nodiscard]] std::vector<CProfile> ReadProfiles(const std::vector<std::filesystem::path>& paths,
                                                 bool templates);

} // namespace skeldon
