#include "controls/CableDialog.h"

#include "app/SkeldonApp.h"
#include "resources/Pictures.h"
#include "resources/StringTable.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace skeldon {

namespace {

constexpr int PictureGap = 12;
constexpr int LeastTextWidth = 200;

} // namespace

CCableDialog::CCableDialog(CRecorderLink& link, QWidget* parent)
    : QDialog(parent)
    , m_link(link)
{
    setWindowTitle(Text(StringId::TitleCable));
    auto* const picture = new QLabel(this);
    picture->setPixmap(QPixmap::fromImage(Picture(PictureId::Cable, devicePixelRatioF())));
    auto* const text = new QLabel(Text(StringId::DisconnectCable), this);
    text->setMinimumWidth(LeastTextWidth);
    auto* const buttons = new QDialogButtonBox(this);
    m_ok = buttons->addButton(Text(StringId::ButtonOk), QDialogButtonBox::AcceptRole);
    buttons->setCenterButtons(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &CCableDialog::accept);

    auto* const request = new QHBoxLayout;
    request->addWidget(picture);
    request->addSpacing(PictureGap);
    request->addWidget(text, 1);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(request);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    connect(&m_timer, &QTimer::timeout, this, &CCableDialog::Tick);
    m_timer.start(IntervalMs);
}

void CCableDialog::Tick()
{
    if (App().Conversation().IsUnderWay() || m_link.FindRecorderPort())
        return;
    m_timer.stop();
    QMetaObject::invokeMethod(this, &CCableDialog::accept, Qt::QueuedConnection);
}

} // namespace skeldon
