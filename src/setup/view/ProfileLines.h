#pragma once

#include "setup/conditions/ProfileStore.h"

#include <QString>

#include <vector>

namespace skeldon {

/// Which folder the list of the setup view shows.
enum class ListMode
{
    Profiles,
    Templates,
};

/// One line of that list.
struct ProfileLine
{
    QString text;
    int storeIndex = -1; ///< the line's entry

    bool operator==(const ProfileLine&) const = default;
};

/// "07 name" of a profile, the name alone of a template.
[[nodiscard]] QString LineText(ListMode mode, int hostNumber, const QString& name);

/// The lines in the order of their texts, without regard to case. Profiles stand in order of host
/// number by it.
class CProfileLines
{
public:
    /// One line for each entry.
    void Fill(const CProfileStore& store, ListMode mode);
    /// Puts a line in its place, behind others of the same text, and gives its position.
    int Add(const ProfileLine& line);
    void RemoveAt(int position);

    [[nodiscard]] const std::vector<ProfileLine>& Lines() const { return m_lines; }
    [[nodiscard]] int GetCount() const { return static_cast<int>(m_lines.size()); }
    /// `position` must be one of a line.
    [[nodiscard]] const ProfileLine& At(int position) const;

private:
    std::vector<ProfileLine> m_lines;
};

} // namespace skeldon
