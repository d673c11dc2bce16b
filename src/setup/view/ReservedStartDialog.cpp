#include "setup/view/ReservedStartDialog.h"

#include "app/SkeldonApp.h"
#include "resources/StringTable.h"
#include "setup/view/StartQuestion.h"

#include <QDateEdit>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QTimeEdit>
#include <QVBoxLayout>

namespace skeldon {

namespace {

constexpr CalendarSeconds ProposedDelay = 120;
/// Leaves room for the title.
constexpr int LeastWidth = 280;

CalendarSeconds PresentTime()
{
    return App().Services().clock->Now();
}

} // namespace

CReservedStartDialog::CReservedStartDialog(QWidget* parent)
    : QDialog(parent)
    , m_date(new QDateEdit(this))
    , m_time(new QTimeEdit(this))
{
    setWindowTitle(Text(StringId::TitleReservedStart));
    auto* const buttons = new QDialogButtonBox(this);
    m_ok = buttons->addButton(Text(StringId::ButtonOk), QDialogButtonBox::AcceptRole);
    buttons->addButton(Text(StringId::ButtonCancel), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &CReservedStartDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &CReservedStartDialog::reject);

    const CalendarFields proposed = ToLocalFields(PresentTime() + ProposedDelay);
    m_date->setCalendarPopup(true);
    m_date->setDate({proposed.year, proposed.month, proposed.day});
    m_time->setDisplayFormat(QStringLiteral("HH:mm"));
    m_time->setTime({proposed.hour, proposed.minute, proposed.second});
    connect(m_date, &QDateEdit::dateChanged, this, &CReservedStartDialog::RefreshOk);
    connect(m_time, &QTimeEdit::timeChanged, this, &CReservedStartDialog::RefreshOk);

    auto* const group = new QGroupBox(Text(StringId::StartDateTime), this);
    group->setMinimumWidth(LeastWidth);
    auto* const form = new QFormLayout(group);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    form->addRow(Text(StringId::StartDate), m_date);
    form->addRow(Text(StringId::StartTime), m_time);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(Text(StringId::StartOptionInvalid), this));
    layout->addWidget(group);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    m_date->setFocus();
}

CalendarSeconds CReservedStartDialog::StartTime() const
{
    return ReserveTime(m_date->date(), m_time->time());
}

bool CReservedStartDialog::IsFuture() const
{
    return skeldon::IsFuture(StartTime(), PresentTime());
}

void CReservedStartDialog::RefreshOk()
{
    m_ok->setEnabled(IsFuture());
}

void CReservedStartDialog::accept()
{
    if (IsFuture()) {
        QDialog::accept();
        return;
    }
    App().Prompts().ShowBox(this, BoxKind::Warning, Text(StringId::ReservationInPast));
    m_ok->setEnabled(false);
}

} // namespace skeldon
