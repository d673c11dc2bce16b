#pragma once

#include "setup/conditions/MeasureCondition.h"
#include "setup/conditions/ProfileStore.h"
#include "setup/view/ProfileLines.h"

#include <QString>

#include <system_error>

namespace skeldon {

/// What Add has to ask about the host number before it goes on.
struct HostNumberOffer
{
    enum class Kind
    {
        Free,     ///< nothing: the number can be had
        Taken,    ///< whether `offered` will do instead
        NoneLeft, ///< nothing: no number is left
    };

    Kind kind = Kind::Free;
    int offered = 0;
};

/// What the setup view holds and may do: two copies of the conditions, the entries of one folder,
/// and the rules between them. Shows nothing and asks nothing.
class CSetupState
{
public:
    /// Nothing is read yet.
    explicit CSetupState(ProfileFolders folders = FindProfileFolders());

    // --- what can be done, the recorder left aside ---

    /// Profiles are shown and not protected, and what is on show has a name that is new.
    [[nodiscard]] bool CanAdd() const;
    /// Only what goes by the loaded name is updated: Update never renames.
    [[nodiscard]] bool CanUpdate() const;
    [[nodiscard]] bool CanDelete() const;
    /// Differences in the keep-mode block do not count.
    [[nodiscard]] bool CanRestore() const;

    // --- the list ---

    /// Reads the folder of `mode`; nothing is selected then. Templates empty the name.
    void SetListMode(ListMode mode);
    /// Takes the entry of a line; edit mode ends.
    void SelectLine(int position);
    /// The name in the selected line.
    [[nodiscard]] QString SelectedName() const;

    // --- profiles ---

    /// Looks at the host number on show.
    [[nodiscard]] HostNumberOffer OfferHostNumber(int shown) const;
    /// Saves the conditions on show as a new profile, which is selected. On a failure nothing
    /// changes.
    [[nodiscard]] std::error_code Add();
    /// Saves them over the selected one.
    [[nodiscard]] std::error_code Update();
    /// Deletes the selected profile and its file and reads the folder again. On a failure nothing
    /// changes.
    [[nodiscard]] std::error_code Delete();

    // --- conditions ---

    /// Switching on with nothing loaded gives a new object with the first free host number. Gives
    /// whether it did.
    bool SetEditing(bool isEditing);
    /// Takes what the recorder holds; edit mode ends.
    void TakeReceived(const CMeasureCondition& received);
    /// Whether the start option on show is one that no recorder should hold.
    [[nodiscard]] bool IsStartOptionIllegal() const { return m_current.StartOpt < 0; }
    /// Takes what the wizard or the card form made; edit mode ends.
    void TakeEdited(const CMeasureCondition& edited);
    void Restore();

    QString m_strName;           ///< text of the name box
    CMeasureCondition m_current; ///< on show: what a start, Add or Update uses
    CMeasureCondition m_saved;   ///< as last loaded, received or stored
    CProfileStore m_store;       ///< entries of the list
    CProfileLines m_lines;       ///< lines of the list
    ListMode m_listMode = ListMode::Profiles;
    int m_nListSel = -1;             ///< position of the selected line, -1 for none
    int m_nStoreIndex = -1;          ///< entry of the selected line, -1 for none
    bool m_bEditing = false;         ///< edit mode
    bool m_bConditionsValid = false; ///< conditions are on show
    bool m_bNoProfileUpdate = false; ///< profiles may not be changed

private:
    [[nodiscard]] bool MayChangeProfiles() const;
    [[nodiscard]] bool IsSelected() const { return m_nListSel >= 0; }
    void ReadFolder();
    void Select(int position);

    /// A new object with that host number.
    [[nodiscard]] static CMeasureCondition NewCondition(int hostNumber);
};

} // namespace skeldon
