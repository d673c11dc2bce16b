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

} // namespace skeldon::test
