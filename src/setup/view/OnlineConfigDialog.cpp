#include "setup/view/OnlineConfigDialog.h"

#include "app/OnlineSeconds.h"
#include "app/SkeldonApp.h"
#include "controls/IntComboEdit.h"
#include "recorder/OnlineTime.h"
#include "resources/StringTable.h"
#include "setup/view/OnlineOptions.h"

#include <QAbstractItemView>
#include <QDialogButtonBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace skeldon {

COnlineConfigDialog::COnlineConfigDialog(QWidget* parent)
    : QDialog(parent)
    , m_seconds(new CIntComboEdit(this))
    , m_value(ReadOnlineSeconds(App().Settings()))
{
    setWindowTitle(Text(StringId::TitleOnlineConfiguration));
    m_seconds->addItems(OnlineSecondsOptions());
    m_seconds->setMaxVisibleItems(m_seconds->count());
    m_seconds->SetRange(LeastOnlineSeconds, MostOnlineSeconds);
    m_seconds->SetName(Text(StringId::OnlineMaximumName));
    LayOut();
    ShowValue();
    m_seconds->setFocus();

    connect(m_seconds, &QComboBox::activated, this, [this](int index) {
        m_value = OnlineSecondsOf(m_seconds->itemText(index));
        PostValue();
    });
    connect(m_seconds->m_edit, &QLineEdit::textEdited, this, [this] {
        std::uint32_t value = 0;
        m_seconds->GetValue(value);
        m_value = static_cast<int>(value);
    });
    // The window that the list drops down in.
    m_seconds->view()->window()->installEventFilter(this);
}

void COnlineConfigDialog::LayOut()
{
    auto* const label = new QLabel(Text(StringId::OnlineMaximumTime), this);
    label->setBuddy(m_seconds);
    auto* const row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(m_seconds);
    row->addWidget(new QLabel(Text(StringId::OnlineMaximumTimeUnit), this));
    auto* const buttons = new QDialogButtonBox(this);
    buttons->addButton(Text(StringId::ButtonOk), QDialogButtonBox::AcceptRole);
    buttons->addButton(Text(StringId::ButtonCancel), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &COnlineConfigDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &COnlineConfigDialog::reject);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(row);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

bool COnlineConfigDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Hide)
        PostValue();
    return QDialog::eventFilter(watched, event);
}

void COnlineConfigDialog::PostValue()
{
    QMetaObject::invokeMethod(this, &COnlineConfigDialog::ShowValue, Qt::QueuedConnection);
}

void COnlineConfigDialog::ShowValue()
{
    // The list opens at the entry of that value, where there is one.
    m_seconds->setCurrentIndex(OnlineOptionOf(m_value));
    m_seconds->SetValue(static_cast<std::uint32_t>(m_value));
    m_seconds->m_edit->selectAll();
}

void COnlineConfigDialog::accept()
{
    std::uint32_t value = 0;
    if (!m_seconds->GetValue(value))
        return;
    WriteOnlineSeconds(App().Settings(), static_cast<int>(value));
    QDialog::accept();
}

void RunOnlineConfig(QWidget* parent)
{
    COnlineConfigDialog(parent).exec();
}

} // namespace skeldon
