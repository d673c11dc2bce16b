#include "setup/view/SettingCsvPage.h"

#include "app/CsvSettings.h"
#include "app/SkeldonApp.h"
#include "resources/StringTable.h"
#include "setup/view/RadioGroup.h"
#include "setup/view/SettingValues.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QRadioButton>
#include <QVBoxLayout>

namespace skeldon {

CSettingCsvPage::CSettingCsvPage(QWidget* parent)
    : CSheetPage(parent)
    , m_resultant(new QCheckBox(Text(StringId::CsvPageResultant)))
    , m_temperature(new QCheckBox(Text(StringId::CsvPageTemperature)))
    , m_humidity(new QCheckBox(Text(StringId::CsvPageHumidity)))
    , m_dateTime(new QCheckBox(Text(StringId::CsvPageDateTime)))
    , m_g(new QRadioButton(Text(StringId::CsvPageUnitG)))
    , m_ms2(new QRadioButton(Text(StringId::CsvPageUnitMs2)))
    , m_gal(new QRadioButton(Text(StringId::CsvPageUnitGal)))
    , m_ravelin(new QCheckBox(Text(StringId::CsvPageRavelin)))
{
    auto* const columns = new QVBoxLayout;
    for (QCheckBox* const box : {m_resultant, m_temperature, m_humidity, m_dateTime})
        columns->addWidget(box);
    columns->addStretch();
    auto* const grid = new QGridLayout(this);
    grid->addLayout(columns, 0, 0);
    grid->addWidget(MakeRadioGroup(Text(StringId::CsvPageUnit), {m_g, m_ms2, m_gal}), 0, 1);
    grid->addWidget(m_ravelin, 1, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(2, 1);
    connect(m_ravelin, &QCheckBox::clicked, this, &CSettingCsvPage::ApplyRavelin);
}

void CSettingCsvPage::OnInitDialog()
{
    const CsvOptions options = ReadCsvOptions(App().Settings());
    m_resultant->setChecked(options.accel);
    m_temperature->setChecked(options.temperature);
    m_humidity->setChecked(options.humidity);
    m_dateTime->setChecked(options.dateTime);
    m_g->setChecked(options.unit == CsvUnit::G);
    m_ms2->setChecked(options.unit == CsvUnit::MetresPerSecondSquared);
    m_gal->setChecked(options.unit == CsvUnit::Gal);
    m_ravelin->setChecked(options.ravelin);
    ApplyRavelin();
}

void CSettingCsvPage::ApplyRavelin()
{
    const bool isFree = !m_ravelin->isChecked();
    for (QAbstractButton* const other : std::initializer_list<QAbstractButton*>{
             m_resultant, m_temperature, m_humidity, m_dateTime, m_g, m_ms2, m_gal})
        other->setEnabled(isFree);
}

void CSettingCsvPage::OnOK()
{
    CsvOptions options;
    options.accel = m_resultant->isChecked();
    options.temperature = m_temperature->isChecked();
    options.humidity = m_humidity->isChecked();
    options.dateTime = m_dateTime->isChecked();
    options.ravelin = m_ravelin->isChecked();
    if (m_gal->isChecked())
        options.unit = CsvUnit::Gal;
    else if (m_ms2->isChecked())
        options.unit = CsvUnit::MetresPerSecondSquared;
    WriteCsvOptions(App().Settings(), options);
}

} // namespace skeldon
