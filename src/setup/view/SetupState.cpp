#include "setup/view/SetupState.h"

#include "setup/view/ProfileName.h"

#include <utility>

namespace skeldon {

namespace {

/// The host number and the blank before the name of a line.
constexpr int LineHeadLength = 3;

} // namespace

CSetupState::CSetupState(ProfileFolders folders)
    : m_store(std::move(folders))
{}

CMeasureCondition CSetupState::NewCondition(int hostNumber)
{
    CMeasureCondition condition;
    condition.SerialNo = hostNumber;
    return condition;
}

bool CSetupState::MayChangeProfiles() const
{
    return m_listMode == ListMode::Profiles && !m_bNoProfileUpdate;
}

bool CSetupState::CanAdd() const
{
    if (!MayChangeProfiles() || m_strName.isEmpty() || !m_bConditionsValid)
        return false;
    for (int i = 0; i < m_store.GetCount(); ++i) {
        if (IsSameName(NameText(m_store.GetAt(i).ProfileName), m_strName))
            return false;
    }
    return true;
}

bool CSetupState::CanUpdate() const
{
    if (!MayChangeProfiles() || !IsSelected() ||
        !IsSameName(m_strName, NameText(m_saved.ProfileName)))
        return false;
    for (int i = 0; i < m_store.GetCount(); ++i) {
        if (i == m_nStoreIndex)
            continue;
        const CProfile other = m_store.GetAt(i);
        if (other.SerialNo == m_current.SerialNo ||
            IsSameName(NameText(other.ProfileName), m_strName))
            return false;
    }
    return !m_current.SameConditions(m_saved) || !m_current.SameKeepMode(m_saved);
}

bool CSetupState::CanDelete() const
{
    return MayChangeProfiles() && IsSelected();
}

bool CSetupState::CanRestore() const
{
    return m_bEditing && !m_current.SameConditions(m_saved);
}

void CSetupState::ReadFolder()
{
    m_store.Load(m_listMode == ListMode::Templates);
    m_lines.Fill(m_store, m_listMode);
    m_nListSel = -1;
    m_nStoreIndex = -1;
}

void CSetupState::SetListMode(ListMode mode)
{
    m_listMode = mode;
    ReadFolder();
    if (mode == ListMode::Templates)
        m_strName.clear();
}

void CSetupState::Select(int position)
{
    m_nListSel = position;
    m_nStoreIndex = m_lines.At(position).storeIndex;
}

void CSetupState::SelectLine(int position)
{
    m_bEditing = false;
    Select(position);
    m_current = m_store.GetAt(m_nStoreIndex);
    m_saved = m_current;
    m_bConditionsValid = true;
    m_strName = NameText(m_current.ProfileName);
}

QString CSetupState::SelectedName() const
{
    return m_lines.At(m_nListSel).text.mid(LineHeadLength);
}

HostNumberOffer CSetupState::OfferHostNumber(int shown) const
{
    if (shown >= 1 && m_store.FindByHostId(shown) < 0)
        return {HostNumberOffer::Kind::Free, shown};
    const int free = m_store.NextFreeHostId(0, -1);
    if (free < 1)
        return {HostNumberOffer::Kind::NoneLeft, free};
    return {HostNumberOffer::Kind::Taken, free};
}

std::error_code CSetupState::Add()
{
    if (!IsFileName(m_strName))
        return std::make_error_code(std::errc::invalid_argument);
    CMeasureCondition copy = m_current;
    copy.ProfileName = NameBytes(m_strName);
    if (const std::error_code error = copy.Save())
        return error;
    m_current = copy;
    m_saved = copy;
    m_bConditionsValid = true;
    const int index = m_store.GetCount();
    m_store.SetSize(index + 1);
    m_store.SetAt(index, copy);
    Select(m_lines.Add({LineText(m_listMode, copy.SerialNo, m_strName), index}));
    return {};
}

std::error_code CSetupState::Update()
{
    CMeasureCondition copy = m_current;
    // A name typed in another letter case means the file that is there.
    const CProfile stored = m_store.GetAt(m_nStoreIndex);
    const bool isStored = IsSameName(m_strName, NameText(stored.ProfileName));
    if (!isStored && !IsFileName(m_strName))
        return std::make_error_code(std::errc::invalid_argument);
    copy.ProfileName = isStored ? stored.ProfileName : NameBytes(m_strName);
    if (isStored)
        copy.FilePath = stored.FilePath;
    if (const std::error_code error = copy.Save())
        return error;
    m_current = copy;
    m_store.SetAt(m_nStoreIndex, copy);
    const QString text = LineText(m_listMode, copy.SerialNo, NameText(copy.ProfileName));
    if (m_lines.At(m_nListSel).text != text) {
        m_lines.RemoveAt(m_nListSel);
        m_nListSel = m_lines.Add({text, m_nStoreIndex});
    }
    m_saved = m_current;
    m_bConditionsValid = true;
    return {};
}

std::error_code CSetupState::Delete()
{
    if (const std::error_code error = m_store.RemoveAt(m_lines.At(m_nListSel).storeIndex))
        return error;
    ReadFolder();
    m_strName.clear();
    m_bConditionsValid = false;
    return {};
}

bool CSetupState::SetEditing(bool isEditing)
{
    m_bEditing = isEditing;
    if (!isEditing || m_bConditionsValid)
        return false;
    m_current = NewCondition(m_store.NextFreeHostId(0, -1));
    m_saved = m_current;
    m_bConditionsValid = true;
    return true;
}

void CSetupState::TakeReceived(const CMeasureCondition& received)
{
    m_bEditing = false;
    m_current = received;
    m_current.ProfileName = NameBytes(m_strName);
    m_saved = m_current;
    m_bConditionsValid = true;
}

void CSetupState::TakeEdited(const CMeasureCondition& edited)
{
    m_bEditing = false;
    m_current = edited;
    m_saved = edited;
    m_bConditionsValid = true;
    m_strName = NameText(edited.ProfileName);
}

void CSetupState::Restore()
{
    m_current = m_saved;
}

} // namespace skeldon
