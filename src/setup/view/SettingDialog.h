#pragma once

#include "setup/view/SheetDialog.h"

namespace skeldon {

class CSettingColorPage;
class CSettingCsvPage;
class CSettingFilePage;

/// The settings sheet: the user's choices for the whole program.
class CSettingDialog : public CSheetDialog
{
    Q_OBJECT

public:
    explicit CSettingDialog(QWidget* parent = nullptr);

    CSettingFilePage* m_file;
    CSettingCsvPage* m_csv;
    CSettingColorPage* m_color;
};

/// Shows the settings sheet; true if it was closed with OK, and the views are to hear of it.
[[nodiscard]] bool RunSettings(QWidget* parent);

} // namespace skeldon
