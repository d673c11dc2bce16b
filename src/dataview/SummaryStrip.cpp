#include "dataview/SummaryStrip.h"

#include "app/DataText.h"
#include "app/SkeldonApp.h"
#include "resources/StringTable.h"

#include <QPainter>

namespace skeldon {

namespace {

/// Letters of a line that is 12 pixels high.
constexpr int LetterSize = 11;

} // namespace

CSummaryStrip::CSummaryStrip(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(Text(StringId::NameSummary));
    QFont small = font();
    small.setPixelSize(LetterSize);
    setFont(small);
}

void CSummaryStrip::SetText(const QString& text)
{
    m_text = text;
    repaint();
    AnnounceValue(this);
}

QAccessible::Role CSummaryStrip::AccessibleRole() const
{
    return QAccessible::StaticText;
}

QString CSummaryStrip::AccessibleValue() const
{
    return PrintableText(m_text).trimmed();
}

void CSummaryStrip::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), ToColour(App().m_viewBaseColour));
    painter.setPen(Qt::black);
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     PrintableText(m_text));
}

} // namespace skeldon
