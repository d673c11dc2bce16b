#pragma once

#include "setup/view/SheetPage.h"

class QRadioButton;

namespace skeldon {

/// The colour of the forms, which they take at the next start of the program.
class CSettingColorPage : public CSheetPage
{
    Q_OBJECT

public:
    explicit CSettingColorPage(QWidget* parent = nullptr);

    void OnInitDialog() override;
    /// Tells the user when a change shows.
    void OnOK() override;

    QRadioButton* m_classic;
    QRadioButton* m_windowsXp;
};

} // namespace skeldon
