#pragma once

#include "setup/view/ProfileFolder.h"
#include "setup/view/SetupState.h"

#include <QStringList>

namespace skeldon::test {

/// A state that shows the profiles of the folder.
class CShown : public CSetupState
{
public:
    explicit CShown(const CProfileFolder& folder)
        : CSetupState(folder.Folders())
    {
        SetListMode(ListMode::Profiles);
    }

    [[nodiscard]] QStringList Texts() const
    {
        QStringList texts;
        for (const ProfileLine& line : m_lines.Lines())
            texts << line.text;
        return texts;
    }
    /// Selects the line of that text.
    void Choose(const char* text)
    {
        SelectLine(static_cast<int>(Texts().indexOf(QString::fromUtf8(text))));
    }
    /// New conditions under a new name.
    void Create(const char* name, int number)
    {
        SetEditing(true);
        m_current.SerialNo = number;
        m_strName = QString::fromUtf8(name);
    }
};

/// A folder with the profile "crate" of host number 1 and, unless `boxNumber` is 0, "box" of that
/// number.
struct CrateFolder
{
    explicit CrateFolder(int boxNumber)
    {
        m_folder.WriteProfile("crate", "SerialNo=1\r\n");
        if (boxNumber != 0)
            m_folder.WriteProfile("box", "SerialNo=" + std::to_string(boxNumber) + "\r\n");
    }

    const CProfileFolder m_folder;
};

/// A state with a folder of its own, in which "crate" is chosen.
class CCrateShown : public CrateFolder, public CShown
{
public:
    explicit CCrateShown(int boxNumber = 0)
        : CrateFolder(boxNumber)
        , CShown(m_folder)
    {
        Choose("01 crate");
    }
};

} // namespace skeldon::test
