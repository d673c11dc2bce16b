#pragma once

#include "controls/FilteredEdit.h"

namespace skeldon {

/// An edit box for the name of a profile. Refuses characters that no file name has, however they
/// come: a paste or drop that holds one is refused as a whole.
class CNameEdit : public CFilteredEdit
{
    Q_OBJECT

public:
    explicit CNameEdit(QWidget* parent = nullptr);

    /// Takes no more characters than that.
    void SetLimit(int characters);
    /// Shows a name, whatever it holds. One beyond the limit can only become shorter.
    void SetName(const QString& name);
    void setText(const QString& text) = delete;

protected:
    [[nodiscard]] bool PassesCharacter(QChar character, const QString& before,
                                       const QString& after) override;

private:
    class CGuard;
    CGuard* m_guard; ///< belongs to the box
};

} // namespace skeldon
