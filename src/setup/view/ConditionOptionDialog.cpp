#include "setup/view/ConditionOptionDialog.h"

#include "app/SkeldonApp.h"
#include "controls/FloatComboEdit.h"
#include "controls/IntComboEdit.h"
#include "resources/StringTable.h"
#include "resources/TextFormat.h"
#include "setup/conditions/ProfileStore.h"
#include "setup/view/ConditionOptions.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace skeldon {

namespace {

constexpr double GPerTenth = 0.1;
constexpr double HighestThresholdG = 49.0;
constexpr double HighestHazardG = 49.5;
constexpr int Decimals = 1;
constexpr int SamplingFallback = SamplingTable::StandardRow;
constexpr int IntervalFallback = 0;
/// Between the two columns of boxes.
constexpr int ColumnGap = 24;

/// Shows a value in a box and makes it the present entry of the list, where it is one.
template <typename Box, typename Value>
void Show(Box& box, Value value)
{
    box.SetValue(value);
    box.setCurrentIndex(box.findText(box.currentText()));
    box.SetValue(value); // a box without a present entry is empty
}

} // namespace

CConditionOptionDialog::CConditionOptionDialog(const CMeasureCondition& condition,
                                               const CProfileStore& store, QWidget* parent)
    : QDialog(parent)
    , m_condition(condition)
    , m_sampling(new QComboBox(this))
    , m_interval(new QComboBox(this))
    , m_threshold(new CFloatComboEdit(this))
    , m_overThreshold(new QCheckBox(Text(StringId::OptionDetectAbove), this))
    , m_endless(new QCheckBox(Text(StringId::OptionEndless), this))
    , m_buzzer(new QCheckBox(Text(StringId::OptionBuzzer), this))
    , m_hostNumber(new CIntComboEdit(this))
    , m_startOption(new CIntComboEdit(this))
    , m_hazard(new CFloatComboEdit(this))
    , m_store(store)
{
    setWindowTitle(Text(StringId::TitleConditionOption));
    FillLists();
    ShowConditions();
    LayOut();
    m_sampling->setFocus();
}

void CConditionOptionDialog::FillLists()
{
    m_sampling->addItems(SamplingOptions());
    m_interval->addItems(IntervalOptions());
    m_threshold->addItems(LevelOptions(CMeasureCondition::HighestThreshold));
    m_threshold->SetRange(0, HighestThresholdG, Decimals);
    m_threshold->SetName(Text(StringId::ThresholdsName));
    m_hostNumber->addItems(FreeHostNumbers(m_store));
    m_hostNumber->SetRange(1, CMeasureCondition::HighestHostNumber);
    m_hostNumber->SetName(Text(StringId::HostNumberName));
    m_startOption->addItems(StartOptions());
    m_startOption->SetRange(0, CMeasureCondition::HighestStartOption);
    m_startOption->SetName(Text(StringId::StartOptionName));
    m_hazard->addItems(LevelOptions(CMeasureCondition::HighestHazard));
    m_hazard->SetRange(0, HighestHazardG, Decimals);
}

void CConditionOptionDialog::ShowConditions()
{
    m_sampling->setCurrentIndex(
        OptionRow(m_condition.GetSampling(), m_sampling->count(), SamplingFallback));
    m_interval->setCurrentIndex(
        OptionRow(m_condition.GetInterval(), m_interval->count(), IntervalFallback));
    Show(*m_threshold, m_condition.Threshold * GPerTenth);
    m_overThreshold->setChecked(m_condition.OverThreshold);
    m_endless->setChecked(m_condition.Endless);
    m_buzzer->setChecked(m_condition.Buzzer);
    Show(*m_hostNumber, static_cast<std::uint32_t>(m_condition.SerialNo));
    Show(*m_startOption, static_cast<std::uint32_t>(m_condition.StartOpt));
    Show(*m_hazard, m_condition.Hazard * GPerTenth);
}

void CConditionOptionDialog::LayOut()
{
    auto* const grid = new QGridLayout;
    const auto place = [&](int row, int column, StringId label, QWidget* box,
                           bool isLevel = false) {
        auto* const words = new QLabel(Text(label), this);
        words->setBuddy(box);
        grid->addWidget(words, row, column);
        grid->addWidget(box, row, column + 1);
        if (isLevel)
            grid->addWidget(new QLabel(Text(StringId::OptionG), this), row, column + 2);
    };
    constexpr int Right = 4; // column of the right half
    place(0, 0, StringId::OptionSampling, m_sampling);
    place(1, 0, StringId::OptionInterval, m_interval);
    place(2, 0, StringId::OptionThreshold, m_threshold, true);
    grid->addWidget(m_overThreshold, 3, 1);
    place(0, Right, StringId::OptionId, m_hostNumber);
    place(1, Right, StringId::OptionStartOption, m_startOption);
    place(2, Right, StringId::OptionHazard, m_hazard, true);
    grid->addWidget(m_endless, 3, Right + 1);
    grid->addWidget(m_buzzer, 4, Right + 1);
    grid->setColumnMinimumWidth(Right - 1, ColumnGap);

    // Down one column, then down the other.
    QWidget* const order[] = {m_sampling,    m_interval, m_threshold, m_overThreshold, m_hostNumber,
                              m_startOption, m_hazard,   m_endless,   m_buzzer};
    for (std::size_t i = 1; i < std::size(order); ++i)
        setTabOrder(order[i - 1], order[i]);
    auto* const buttons = new QDialogButtonBox(this);
    buttons->addButton(Text(StringId::ButtonOk), QDialogButtonBox::AcceptRole);
    buttons->addButton(Text(StringId::ButtonCancel), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &CConditionOptionDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &CConditionOptionDialog::reject);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addSpacing(ColumnGap / 2);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

bool CConditionOptionDialog::TakeConditions()
{
    m_condition.SetSampling(m_sampling->currentIndex());
    m_condition.SetInterval(m_interval->currentIndex());
    double threshold = 0;
    if (!m_threshold->GetValue(threshold))
        return false;
    m_condition.Threshold = TenthsOf(threshold);
    std::uint32_t number = 0;
    if (!m_hostNumber->GetValue(number))
        return false;
    m_condition.SerialNo = static_cast<int>(number);
    // Not even the number that the conditions came with: that of a profile is in use by itself.
    if (m_store.FindByHostId(m_condition.SerialNo) >= 0) {
        RefuseHostNumber(m_condition.SerialNo);
        return false;
    }
    if (!m_startOption->GetValue(number))
        return false;
    m_condition.StartOpt = static_cast<int>(number);
    m_condition.OverThreshold = m_overThreshold->isChecked();
    return true;
}

void CConditionOptionDialog::RefuseHostNumber(int number)
{
    SetStatusText(FormatText(Text(StringId::HostNumberInUse), {number}));
    App().Prompts().Beep();
    m_hostNumber->m_edit->setFocus(Qt::OtherFocusReason);
    m_hostNumber->m_edit->selectAll();
}

void CConditionOptionDialog::accept()
{
    if (TakeConditions())
        QDialog::accept();
}

} // namespace skeldon
