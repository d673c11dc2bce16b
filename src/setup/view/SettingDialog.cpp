#include "setup/view/SettingDialog.h"

#include "resources/StringTable.h"
#include "setup/view/SettingColorPage.h"
#include "setup/view/SettingCsvPage.h"
#include "setup/view/SettingFilePage.h"

namespace skeldon {

CSettingDialog::CSettingDialog(QWidget* parent)
    : CSheetDialog(Text(StringId::TitleConfiguration), SheetMode::OkCancel, false, parent)
    , m_file(new CSettingFilePage)
    , m_csv(new CSettingCsvPage)
    , m_color(new CSettingColorPage)
{
    AddPage(m_file, Text(StringId::PageFile));
    AddPage(m_csv, Text(StringId::PageCsv));
    AddPage(m_color, Text(StringId::PageDisplay));
}

bool RunSettings(QWidget* parent)
{
    CSettingDialog sheet(parent);
    return sheet.exec() == QDialog::Accepted;
}

} // namespace skeldon
