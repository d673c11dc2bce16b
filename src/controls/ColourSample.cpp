#include "controls/ColourSample.h"

#include "resources/StringTable.h"

#include <QPainter>

#include <algorithm>

namespace skeldon {

CColourSample::CColourSample(QWidget* parent)
    : QWidget(parent)
{
    setAccessibleName(Text(StringId::NameColourSample));
}

void CColourSample::SetColour(ColourRef colour)
{
    m_colour = colour;
    update();
    AnnounceValue(this);
}

QAccessible::Role CColourSample::AccessibleRole() const
{
    return QAccessible::Graphic;
}

QString CColourSample::AccessibleValue() const
{
    return ToColour(m_colour).name(QColor::HexRgb).toUpper();
}

void CColourSample::paintEvent(QPaintEvent* /*event*/)
{
    if (!isEnabled())
        return;
    constexpr int Inset = 4;
    const int line = std::min(fontMetrics().height(), height() - 2 * Inset);
    const QRect bar(Inset, (height() - line) / 2, width() - 2 * Inset, line);
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    if (!bar.isEmpty())
        painter.fillRect(bar, ToColour(m_colour));
}

} // namespace skeldon
