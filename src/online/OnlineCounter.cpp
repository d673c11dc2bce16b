#include "online/OnlineCounter.h"

#include "app/Colour.h"

#include <QPainter>

namespace skeldon {

namespace {

constexpr ColourRef Ink = 0xD78173;

} // namespace

COnlineCounter::COnlineCounter(Qt::Alignment alignment, QWidget* parent)
    : QWidget(parent)
    , m_alignment(alignment)
{}

void COnlineCounter::SetText(const QString& text)
{
    if (text == m_text)
        return;
    m_text = text;
    update();
    AnnounceValue(this);
}

QAccessible::Role COnlineCounter::AccessibleRole() const
{
    return QAccessible::StaticText;
}

void COnlineCounter::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setPen(ToColour(Ink));
    painter.drawText(rect(), static_cast<int>(m_alignment) | Qt::TextSingleLine | Qt::TextDontClip,
                     m_text);
}

} // namespace skeldon
