#pragma once

#include "setup/view/SheetPage.h"

#include <vector>

class QCheckBox;
class QRadioButton;

namespace skeldon {

/// What a CSV file holds.
class CSettingCsvPage : public CSheetPage
{
    Q_OBJECT

public:
    explicit CSettingCsvPage(QWidget* parent = nullptr);

    void OnInitDialog() override;
    void OnOK() override;

    QCheckBox* m_resultant;
    QCheckBox* m_temperature;
    QCheckBox* m_humidity;
    QCheckBox* m_dateTime;
    QRadioButton* m_g;
    QRadioButton* m_ms2;
    QRadioButton* m_gal;
    QCheckBox* m_ravelin;

private:
    /// The older tools' form leaves nothing else to choose.
    void ApplyRavelin();
};

} // namespace skeldon
