#include "chart/view/LineNumberEdit.h"

#include "controls/SpinButton.h"

#include <QKeyEvent>

#include <algorithm>

namespace skeldon {

namespace {

constexpr int EdgeGap = 2;

} // namespace

CLineNumberEdit::CLineNumberEdit(QWidget* parent)
    : CIntEdit(parent)
    , m_up(new CSpinButton(SpinKind::Up, this))
    , m_down(new CSpinButton(SpinKind::Down, this))
{
    for (CSpinButton* const button : {m_up, m_down}) {
        button->resize(button->sizeHint());
        button->setFocusPolicy(Qt::NoFocus);
        button->setCursor(Qt::ArrowCursor);
        button->SetSpeedUp(true);
    }
    connect(m_up, &CSpinButton::Stepped, this, [this] { Step(1); });
    connect(m_down, &CSpinButton::Stepped, this, [this] { Step(-1); });
    setTextMargins(0, 0, m_up->width() + EdgeGap, 0);
}

void CLineNumberEdit::resizeEvent(QResizeEvent* event)
{
    CIntEdit::resizeEvent(event);
    const int left = width() - m_up->width() - 2 * EdgeGap;
    m_up->move(left, height() / 2 - m_up->height());
    m_down->move(left, height() / 2);
}

void CLineNumberEdit::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Up)
        Step(1);
    else if (event->key() == Qt::Key_Down)
        Step(-1);
    else
        CIntEdit::keyPressEvent(event);
}

void CLineNumberEdit::Step(int by)
{
    const std::int64_t present = Read(text().toStdString()).value;
    SetValue(static_cast<std::uint32_t>(
        std::clamp<std::int64_t>(present + by, std::int64_t{m_nMin}, std::int64_t{m_nMax})));
    selectAll();
}

} // namespace skeldon
