#pragma once

#include "setup/view/SheetPage.h"

class QCheckBox;
class QRadioButton;

namespace skeldon {

/// How conditions are edited, whether unsaved data is asked about, whether profiles may change.
class CSettingFilePage : public CSheetPage
{
    Q_OBJECT

public:
    explicit CSettingFilePage(QWidget* parent = nullptr);

    void OnInitDialog() override;
    void OnOK() override;

    QRadioButton* m_interactively;
    QRadioButton* m_cardForm;
    QRadioButton* m_prompt;
    QRadioButton* m_notPrompt;
    QCheckBox* m_prohibitUpdate;
};

} // namespace skeldon
